// The dialog that rebuilds the archive in a new place, and exports the screen-shots.
#ifndef VELLUMARK_UI_REORDER_DIALOG_H_
#define VELLUMARK_UI_REORDER_DIALOG_H_

#include "maintenance/reorder_settings.h"
#include "ui/modal_dialog.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace vellumark {

class ReorderDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit ReorderDialog(Program& program);

  void ImpostaValori() override;

 private:
  void BuildLayout();
  QGroupBox* MakeTargetFrame();
  QGroupBox* MakeSettingsFrame();
  void ConnectFields();
  void Browse();
  void Reorder();
  void ShowProgress(int percent);

  ReorderSettings settings_;

  QLineEdit* base_path_;
  QPushButton* browse_;
  QLineEdit* folder_name_;
  QLineEdit* max_slot_;
  QCheckBox* create_info_;
  QCheckBox* keep_levels_apart_;
  QCheckBox* remove_equals_;
  QCheckBox* delete_old_;
  QLineEdit* max_per_folder_;
  QProgressBar* progress_;
  QPushButton* export_shots_;
  QPushButton* reorder_;
  QPushButton* cancel_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_REORDER_DIALOG_H_
