#include "foundation/paths.h"

#include "platform/text.h"

namespace vellumark {

std::string FileNameOf(std::string_view path) {
  const auto last = path.find_last_of("\\:");
  return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string FolderOf(std::string_view path) {
  const auto last = path.rfind('\\');
  return std::string(last == std::string_view::npos ? std::string_view() : path.substr(0, last));
}

bool SamePath(const Text& text, std::string_view a, std::string_view b) {
  return a.size() == b.size() && text.LowerPath(a) == text.LowerPath(b);
}

std::string InFolder(std::string_view folder, std::string_view name) {
  std::string path;
  path.reserve(folder.size() + 1 + name.size());
  path.append(folder).append(1, '\\').append(name);
  return path;
}

}  // namespace vellumark
