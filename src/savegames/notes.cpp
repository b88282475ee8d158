#include "savegames/notes.h"

#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/strings.h"

namespace vellumark {

bool HoldsMoreThanANote(std::string_view bytes) {
  const auto end = bytes.find('\r');
  return end != std::string_view::npos && bytes.find_first_not_of("\r\n", end) != bytes.npos;
}

std::string DecodeNote(std::string_view bytes) {
  return std::string(bytes.substr(0, bytes.find('\r')));
}

std::string ReadNoteFile(FileSystem& files, const std::string& path) {
  return DecodeNote(files.Read(path, FileSystem::kWholeFile).bytes);
}

FileError WriteNoteFile(FileSystem& files, const std::string& path, std::string_view text) {
  const ReadResult old = files.Read(path, FileSystem::kWholeFile);
  if (old.error != FileError::kNone && old.error != FileError::kNotFound) return old.error;
  if (HoldsMoreThanANote(old.bytes) && !KeepBackupOf(files, path)) return FileError::kInputOutput;
  return ReplaceFile(files, path, NoteToStore(text) + "\r\n");
}

std::string NoteForTextBox(std::string_view stored) {
  return WithByteReplaced(stored, kStoredLineBreak, '\r');
}

std::string BeginningForTextBox(std::string_view stored, std::size_t most) {
  if (stored.size() <= most) return NoteForTextBox(stored);
  return NoteForTextBox(stored.substr(0, most)) + "\r\r" +
         LoadMessage(kNoteGoesOn, {std::to_string(most), std::to_string(stored.size())});
}

std::string NoteToStore(std::string_view text) {
  return WithByteReplaced(text, '\r', kStoredLineBreak);
}

}  // namespace vellumark
