// The list of savegames: one finished line each, in columns of a fixed-pitch font.
#ifndef VELLUMARK_UI_SAVEGAME_LIST_H_
#define VELLUMARK_UI_SAVEGAME_LIST_H_

#include <QListView>

#include "ui/view_manners.h"

namespace vellumark {

class ListHeading;
class SavegameListModel;

class SavegameList final : public QListView {
  Q_OBJECT

 public:
  SavegameList(SavegameListModel& lines, QWidget* parent);

  // What stands over the lines as soon as there are any; see ListHeading.
  void SetHeading(const QString& columns, const QString& legend, const QString& description);

  void keyboardSearch(const QString& search) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PrepareForLines();
  void PlaceHeading();

  SavegameListModel& lines_;
  ListHeading* heading_;
  LevelTyping typing_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SAVEGAME_LIST_H_
