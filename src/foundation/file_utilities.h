// The small file and shell operations that everything else is built from. None shows a message
// and none fails otherwise than by its answer.
#ifndef VELLUMARK_FOUNDATION_FILE_UTILITIES_H_
#define VELLUMARK_FOUNDATION_FILE_UTILITIES_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace vellumark {

class Shell;
class Text;

// True when a plain file of that name exists, or, with wildcards in the path, any that matches.
// Folders, hidden and system files do not count. Every error is false.
bool FileExists(FileSystem& files, const std::string& path);

// True when something of that name exists and is a folder. Every error is false.
bool FolderExists(FileSystem& files, const std::string& path);

// True when both files could be read and hold the same bytes.
bool SameContent(FileSystem& files, const std::string& a, const std::string& b);

// Copies a file over whatever plain file the destination names, read-only or not. The copy is made
// under a temporary name, read back and compared, and then takes the destination's place in one
// step, so that a failure leaves the old destination as it was; only a source that does not exist
// costs the destination, so callers test it first. Source and destination being the same file is
// success without a change. On false `why`, where given, tells the reason.
bool CopyFileReplacing(FileSystem& files, const std::string& source, const std::string& destination,
                       FileError* why = nullptr);

// The same for all files of all groups, which are copied in bulk where nothing has their names;
// sets the error of each. `begin` as with FileSystem::CopyAllVerified.
void CopyAllReplacing(FileSystem& files, std::vector<CopyGroup>& groups,
                      const std::function<bool(std::size_t)>& begin);

// Deletes a file whatever its attributes. True when the file is gone or never was.
bool DeleteFileForced(FileSystem& files, const std::string& path, FileError* why = nullptr);

// Makes a file hold exactly these bytes, in one step: what was there before is there until the new
// content stands complete, read back and flushed. A read-only file is kAccessDenied.
FileError ReplaceFile(FileSystem& files, const std::string& path, std::string_view bytes);

// The temporary name under which a new content of `path` is prepared, in the same folder.
std::string TemporaryNameFor(const std::string& path);
// The same for a new folder. Different folders never share one.
std::string TemporaryFolderFor(const std::string& path);
// True for a name that these make: a leftover of a run that was cut off.
bool IsTemporaryName(std::string_view name);

// Opens a document with the system's program for it, or starts a program, without waiting.
// An empty working folder means the document's own. False when the system refuses.
bool OpenWithShell(FileSystem& files, const Text& text, Shell& shell, const std::string& document,
                   const std::string& parameters, bool hidden, const std::string& working_folder);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_FILE_UTILITIES_H_
