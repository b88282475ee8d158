// The dialog that links a captured screen-shot to a slot of the game.
#ifndef VELLUMARK_UI_CAPTURE_DIALOG_H_
#define VELLUMARK_UI_CAPTURE_DIALOG_H_

#include <QDialog>
#include <string>

#include "savegames/typed_note.h"

class QPushButton;

namespace vellumark {

struct Program;
class NoteBox;
class PictureBox;
class SlotList;

// Blocks no other window, and is blocked by none that was modal when it opened: it is that window's
// child, and moves on to the next one below when that closes. Releases itself when it has closed.
class CaptureDialog final : public QDialog {
  Q_OBJECT

 public:
  explicit CaptureDialog(Program& program);

  // Fills the controls from the game folder's slots and shows the captured picture.
  void ImpostaValori();

  // Shows the dialog in front of all other windows, with the input focus.
  void Appear();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildLayout();
  void ShowSlots();
  void FollowOpener();
  TypedNote Note() const;
  void Link();
  void Cancel();
  void SaveElsewhere();

  Program& program_;
  std::string shown_note_;  // in its stored form
  PictureBox* picture_;
  SlotList* slots_;
  NoteBox* note_;
  QPushButton* save_;
  QPushButton* ok_;
  QPushButton* cancel_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_CAPTURE_DIALOG_H_
