// What the modal dialogs have in common.
#ifndef VELLUMARK_UI_MODAL_DIALOG_H_
#define VELLUMARK_UI_MODAL_DIALOG_H_

#include <QDialog>
#include <memory>
#include <string>

#include "foundation/caption_map.h"

class QLineEdit;

namespace vellumark {

struct Program;

// A dialog that lives for one opening: made, prepared, shown, released. It opens centred over the
// window that is modal at that moment, inside the screen. Escape and the close control cancel it.
class ModalDialog : public QDialog {
  Q_OBJECT

 public:
  ModalDialog(WindowId window, Program& program);

  // Fills the controls from the program's state; called once, before the dialog is shown.
  virtual void ImpostaValori() = 0;

 protected:
  void showEvent(QShowEvent* event) override;

  // Gives the controls their captions, by their object names; to be called when all are made.
  void SetCaptions();

  // Between the core's texts and Qt's. FromText asks for one of a text that the code page can
  // express; what it lacks becomes a question mark.
  QString ToText(const std::string& text) const;
  std::string FromText(const QString& text) const;

  // True when the code page can express what stands in a field; else the user is told by this
  // message, and the character is marked.
  bool IsExpressible(QLineEdit* field, int refusal);

  Program& program() const { return program_; }

 private:
  const WindowId window_;
  Program& program_;
};

// The dialog of that name; null for one that is not modal or does not exist.
std::unique_ptr<ModalDialog> MakeModalDialog(WindowId window, Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_UI_MODAL_DIALOG_H_
