// Notes as they come out of a text box.
#ifndef VELLUMARK_SAVEGAMES_TYPED_NOTE_H_
#define VELLUMARK_SAVEGAMES_TYPED_NOTE_H_

#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

struct Program;
class Text;

struct TypedNote {
  std::string stored{};  // in the stored form

  // The characters that a note cannot hold, UTF-8, each once: those that the code page lacks, and
  // the letter of the byte that breaks the lines of a note.
  std::vector<std::string> lacking{};
};

// The note that a text box holds: UTF-8, its lines separated by line feeds. U+008D in it is the
// byte that breaks lines, also in code pages that have a letter for that byte.
TypedNote NoteFromTextBox(const Text& text, std::string_view utf8);

// Tells the user which characters a note cannot hold; false when there are any.
bool CanBeStored(Program& program, const TypedNote& note);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_TYPED_NOTE_H_
