#include "savegames/notes.h"

#include "foundation/file_utilities.h"
#include "foundation/strings.h"

namespace vellumark {

std::string DecodeNote(std::string_view bytes) {
  return std::string(bytes.substr(0, bytes.find('\r')));
}

std::string ReadNoteFile(FileSystem& files, const std::string& path) {
  return DecodeNote(files.Read(path, FileSystem::kWholeFile).bytes);
}

FileError WriteNoteFile(FileSystem& files, const std::string& path, std::string_view text) {
  return ReplaceFile(files, path, NoteToStore(text) + "\r\n");
}

std::string NoteForTextBox(std::string_view stored) {
  return WithByteReplaced(stored, kStoredLineBreak, '\r');
}

std::string NoteToStore(std::string_view text) {
  return WithByteReplaced(text, '\r', kStoredLineBreak);
}

}  // namespace vellumark
