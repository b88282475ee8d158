#include "platform/qt/qt_text.h"

#include <string>

namespace vellumark {
namespace {

// In a note this byte is a line break also where the code page has a letter for it.
constexpr char kNoteLineBreak = '\x8D';
// Stands for it on the way through the decoding; shown as a pilcrow.
constexpr char kMarkedBreak = '\v';
constexpr QChar kLineBreakMark = u'\u00B6';

}  // namespace

QString ToQString(const Text& text, std::string_view bytes) {
  const std::string utf8 = text.ToUtf8(bytes);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString ToDisplayText(const Text& text, std::string_view bytes) {
  QString shown = ToQString(text, bytes);
  shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  shown.replace(u'\r', u'\n');
  return shown;
}

QString ToDisplayLine(const Text& text, std::string_view line, std::size_t note_column) {
  std::string marked(line);
  for (std::size_t i = note_column; i < marked.size(); ++i) {
    if (marked[i] == kNoteLineBreak) marked[i] = kMarkedBreak;
  }
  QString shown = ToQString(text, marked);
  for (QChar& character : shown) {
    if (character.category() != QChar::Other_Control) continue;
    character = character == QLatin1Char(kMarkedBreak) ? kLineBreakMark : QChar(u' ');
  }
  return shown;
}

}  // namespace vellumark
