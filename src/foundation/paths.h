// Taking paths apart. None of these touches the disk.
#ifndef VELLUMARK_FOUNDATION_PATHS_H_
#define VELLUMARK_FOUNDATION_PATHS_H_

#include <string>
#include <string_view>

namespace vellumark {

class Text;

// Everything after the last backslash or colon; the whole text when there is none.
std::string FileNameOf(std::string_view path);

// Everything before the last backslash; empty when there is none.
std::string FolderOf(std::string_view path);

// True when two paths are spelled the same but for letter case.
bool SamePath(const Text& text, std::string_view a, std::string_view b);

// folder + `\` + name.
std::string InFolder(std::string_view folder, std::string_view name);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PATHS_H_
