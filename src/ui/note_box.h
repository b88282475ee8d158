// The text box in which a note is changed.
#ifndef VELLUMARK_UI_NOTE_BOX_H_
#define VELLUMARK_UI_NOTE_BOX_H_

#include <QPlainTextEdit>
#include <optional>
#include <string>

#include "savegames/typed_note.h"

namespace vellumark {

class NoteBox final : public QPlainTextEdit {
  Q_OBJECT

 public:
  NoteBox(const char* name, const Text& text, QWidget* parent);

  // Shows a note in its stored form. Of one that is too long for a text box only the beginning is
  // shown; it cannot be changed then.
  void ShowNote(const std::string& stored);

  // The same, with the bytes that break its lines shown as they are, beside their line feeds.
  void ShowStoredNote(const std::string& stored);

  // The note as the user has made it; nothing while it is as it was shown.
  std::optional<TypedNote> ChangedNote() const;

  // Marks the first of these characters (UTF-8) and goes there.
  void Mark(const std::vector<std::string>& characters);

 private:
  // False, and nothing is shown, when there is room for the whole note.
  bool ShowBeginning(const std::string& stored);

  QString Lines() const;

  const Text& text_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_NOTE_BOX_H_
