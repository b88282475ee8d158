// The dialog for the properties of a savegame: its note, its counter and its screen-shot.
#ifndef VELLUMARK_UI_SAVEGAME_PROPERTIES_DIALOG_H_
#define VELLUMARK_UI_SAVEGAME_PROPERTIES_DIALOG_H_

#include <string>

#include "ui/modal_dialog.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace vellumark {

class NoteBox;
class PathLabel;

class SavegamePropertiesDialog final : public ModalDialog {
  Q_OBJECT

 public:
  explicit SavegamePropertiesDialog(Program& program);

  void ImpostaValori() override;

 private:
  void BuildLayout();
  void Browse();
  void Accept();
  void ShowShot();

  int index_ = 0;           // the savegame's place in the catalogue
  std::string shown_note_;  // in its stored form
  QLineEdit* path_;
  QLineEdit* level_;
  QLineEdit* counter_;
  NoteBox* note_;
  PathLabel* shot_;
  QPushButton* browse_;
  QCheckBox* remove_shot_;
  QPushButton* ok_;
  QPushButton* cancel_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SAVEGAME_PROPERTIES_DIALOG_H_
