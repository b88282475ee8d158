// The dialog that asks what to search for.
#ifndef VELLUMARK_UI_SEARCH_DIALOG_H_
#define VELLUMARK_UI_SEARCH_DIALOG_H_

#include "ui/modal_dialog.h"

class QCheckBox;
class QLineEdit;

namespace vellumark {

class SearchDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit SearchDialog(Program& program);

  void ImpostaValori() override;

 private:
  void Search();

  QLineEdit* text_;
  QCheckBox* in_level_names_;
  QCheckBox* in_notes_;
  QCheckBox* with_shot_;
  QCheckBox* with_note_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SEARCH_DIALOG_H_
