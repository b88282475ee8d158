// Note files. In memory a note is kept in its stored form: byte 0x8D for each carriage return.
#ifndef VELLUMARK_SAVEGAMES_NOTES_H_
#define VELLUMARK_SAVEGAMES_NOTES_H_

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace vellumark {

constexpr char kStoredLineBreak = '\x8D';

// The note in a note file's bytes: everything before the first carriage return.
std::string DecodeNote(std::string_view bytes);

// The note of a note file in its stored form; empty when the file is empty or cannot be read.
std::string ReadNoteFile(FileSystem& files, const std::string& path);

// True for a file that goes on after its note, as one that another editor has written.
bool HoldsMoreThanANote(std::string_view bytes);

// Makes or replaces a note file. Carriage returns of the text become 0x8D. A file that holds more
// than the note that can be read of it is kept as `<name>.bak` first; one that cannot be read stays
// as it is.
FileError WriteNoteFile(FileSystem& files, const std::string& path, std::string_view text);

// Between the stored form and the text of a text box, carriage return for 0x8D.
std::string NoteForTextBox(std::string_view stored);

// The same of the first characters of a note that is longer than `most`, with a last line that says
// so: laying out a text that fills its box many times over takes seconds, and minutes where it has
// no blanks.
std::string BeginningForTextBox(std::string_view stored, std::size_t most);

std::string NoteToStore(std::string_view text);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_NOTES_H_
