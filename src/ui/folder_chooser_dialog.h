// The dialog in which the user chooses a folder.
#ifndef VELLUMARK_UI_FOLDER_CHOOSER_DIALOG_H_
#define VELLUMARK_UI_FOLDER_CHOOSER_DIALOG_H_

#include "maintenance/folder_lines.h"
#include "ui/modal_dialog.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace vellumark {

class FolderList;

class FolderChooserDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit FolderChooserDialog(Program& program);

  void ImpostaValori() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildLayout();
  void NameControlsWithoutCaption();
  void FillDrives();
  void ChangeFolder(FolderLines folder);
  void ShowFolder(FolderLines folder);
  void ShowDriveOfFolder();
  void GoTo(const std::string& path);
  bool GoToTyped();
  void GoToDrive(int index);
  void Reread();
  void MakeFolder();
  void MarkCharacter(const std::string& character);
  void Take();

  QComboBox* drives_;
  FolderList* folders_;
  QLineEdit* path_;
  QPushButton* create_;
  QLineEdit* name_;
  QPushButton* ok_;
  QPushButton* cancel_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_FOLDER_CHOOSER_DIALOG_H_
