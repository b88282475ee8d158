// The dialog for the program's preferences.
#ifndef VELLUMARK_UI_PREFERENCES_DIALOG_H_
#define VELLUMARK_UI_PREFERENCES_DIALOG_H_

#include "ui/modal_dialog.h"

class QCheckBox;

namespace vellumark {

class PathLabel;

class PreferencesDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit PreferencesDialog(Program& program);

  void ImpostaValori() override;

 private:
  void Accept();
  void ShowShotFolder();

  QCheckBox* sounds_;
  QCheckBox* capture_;
  QCheckBox* all_subfolders_;
  PathLabel* shot_folder_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PREFERENCES_DIALOG_H_
