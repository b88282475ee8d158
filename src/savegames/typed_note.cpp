#include "savegames/typed_note.h"

#include <cstdint>
#include <cstdio>

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "platform/text.h"
#include "program.h"
#include "savegames/notes.h"

namespace vellumark {
namespace {

constexpr std::string_view kLineBreakByte(&kStoredLineBreak, 1);
// What the byte is in a code page that has no letter for it.
constexpr std::string_view kLineBreakAsControl = "\xC2\x8D";

// The control character says that the byte itself is meant, whatever the code page; carriage return
// is how a text in the code page says so.
std::string WithReturnForControl(std::string_view utf8) {
  std::string text(utf8);
  for (auto at = text.find(kLineBreakAsControl); at != std::string::npos;
       at = text.find(kLineBreakAsControl, at)) {
    text.replace(at, kLineBreakAsControl.size(), 1, '\r');
  }
  return text;
}

// One character of valid UTF-8 by its number, as in U+0416.
std::string NumberOf(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character.front());
  std::uint32_t number = character.size() == 1 ? lead : lead & (0x7FU >> character.size());
  for (const char byte : character.substr(1)) {
    number = (number << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  char text[16];
  std::snprintf(std::begin(text), std::size(text), "U+%04X", static_cast<unsigned>(number));
  return std::begin(text);
}

// A message can show only what the code page has.
std::string Described(const Text& text, const std::string& character) {
  const EncodedText encoded = text.FromUtf8(character);
  return encoded.missing.empty() ? Quoted(encoded.bytes) : NumberOf(character);
}

}  // namespace

TypedNote NoteFromTextBox(const Text& text, std::string_view utf8) {
  const EncodedText encoded = text.FromUtf8(WithReturnForControl(utf8));
  TypedNote note{.lacking = encoded.missing};
  const std::string letter = text.ToUtf8(kLineBreakByte);
  if (letter != kLineBreakAsControl && utf8.find(letter) != std::string_view::npos) {
    note.lacking.push_back(letter);
  }

  for (const char byte : NoteToStore(encoded.bytes)) {
    if (byte == '\n' && !note.stored.ends_with(kStoredLineBreak)) note.stored += kStoredLineBreak;
    note.stored += byte;
  }
  return note;
}

bool CanBeStored(Program& program, const TypedNote& note) {
  if (note.lacking.empty()) return true;

  constexpr std::size_t kMostNamed = 12;
  std::string named;
  for (std::size_t i = 0; i < note.lacking.size(); ++i) {
    if (i != 0) named += ", ";
    if (i == kMostNamed) {
      named += "...";
      break;
    }
    named += Described(program.text, note.lacking[i]);
  }
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(kNoteCharacters, {named}), BoxIcon::kCritical);
  return false;
}

}  // namespace vellumark
