#include "ui/note_box.h"

#include <QTextCursor>
#include <QTextDocument>

#include "platform/qt/qt_text.h"
#include "savegames/notes.h"

namespace vellumark {

NoteBox::NoteBox(const char* name, const Text& text, QWidget* parent)
    : QPlainTextEdit(parent), text_(text) {
  setObjectName(QLatin1String(name));
  setTabChangesFocus(true);
}

void NoteBox::ShowNote(const std::string& stored) {
  if (!ShowBeginning(stored)) setPlainText(ToDisplayText(text_, NoteForTextBox(stored)));
}

void NoteBox::ShowStoredNote(const std::string& stored) {
  if (ShowBeginning(stored)) return;
  QString shown = ToQString(text_, NoteForTextBox(stored));
  shown.replace(u'\r', QChar(kStoredLineBreak & 0xFF));
  setPlainText(shown);
}

bool NoteBox::ShowBeginning(const std::string& stored) {
  constexpr std::size_t kMostShown = 65536;
  const bool too_long = stored.size() > kMostShown;
  setReadOnly(too_long);
  if (too_long) setPlainText(ToDisplayText(text_, BeginningForTextBox(stored, kMostShown)));
  return too_long;
}

std::optional<TypedNote> NoteBox::ChangedNote() const {
  if (!document()->isModified()) return std::nullopt;
  return NoteFromTextBox(text_, Lines().toStdString());
}

void NoteBox::Mark(const std::vector<std::string>& characters) {
  const QString lines = Lines();
  qsizetype first = lines.size();
  qsizetype length = 0;
  for (const std::string& utf8 : characters) {
    const QString character = QString::fromStdString(utf8);
    const qsizetype at = lines.indexOf(character);
    if (at < 0 || at >= first) continue;
    first = at;
    length = character.size();
  }

  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(first));
  cursor.setPosition(static_cast<int>(first + length), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  setFocus();
}

// Character by character as in the document: toPlainText() would turn no-break blanks into others.
QString NoteBox::Lines() const {
  QString lines = document()->toRawText();
  lines.replace(QChar::ParagraphSeparator, u'\n');
  lines.replace(QChar::LineSeparator, u'\n');
  return lines;
}

}  // namespace vellumark
