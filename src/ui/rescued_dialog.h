// The dialog of what was set aside: from here it goes back into the archive or the game.
#ifndef VELLUMARK_UI_RESCUED_DIALOG_H_
#define VELLUMARK_UI_RESCUED_DIALOG_H_

#include <optional>
#include <string>
#include <vector>

#include "game/rescued_savegames.h"
#include "ui/modal_dialog.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace vellumark {

class ShotBox;

class RescuedDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit RescuedDialog(Program& program);

  void ImpostaValori() override;

 private:
  // A savegame with its companions, or a file that belongs to none.
  struct Row {
    std::string path;
    std::optional<RescuedSavegame> savegame;
  };

  void BuildLayout();
  void Refill();
  void AddFolder(const RescuedFolder& folder);
  void AddRow(QTreeWidgetItem* folder, Row row, const QString& line);
  void ShowChosen();
  void ToArchive();
  void ToGame();
  void ShowFolder();
  void Delete();

  // What is chosen; a folder stands for all that is in it.
  std::vector<const Row*> Chosen() const;
  std::vector<RescuedSavegame> ChosenSavegames() const;

  std::vector<Row> rows_;
  QLabel* head_;
  QTreeWidget* tree_;
  ShotBox* picture_;
  QPlainTextEdit* note_;
  QPushButton* to_archive_;
  QPushButton* to_game_;
  QPushButton* show_folder_;
  QPushButton* delete_;
  QPushButton* close_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_RESCUED_DIALOG_H_
