// The dialog for the archive's properties.
#ifndef VELLUMARK_UI_ARCHIVE_PROPERTIES_DIALOG_H_
#define VELLUMARK_UI_ARCHIVE_PROPERTIES_DIALOG_H_

#include "ui/modal_dialog.h"

class QLineEdit;
class QPushButton;

namespace vellumark {

class PathLabel;
struct FoundGame;

class ArchivePropertiesDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit ArchivePropertiesDialog(Program& program);

  void ImpostaValori() override;

 private:
  void Accept();
  void ChooseExecutable();
  void BrowseForGame(QPushButton* button);
  void ChooseFolder();
  void TakeGame(const FoundGame& game);

  PathLabel* main_folder_;
  PathLabel* game_folder_;
  PathLabel* executable_;
  QLineEdit* base_name_;
  QLineEdit* max_savegame_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_ARCHIVE_PROPERTIES_DIALOG_H_
