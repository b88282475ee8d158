// The list of savegames: one finished line each, in columns of a fixed-pitch font.
#ifndef VELLUMARK_UI_SAVEGAME_LIST_H_
#define VELLUMARK_UI_SAVEGAME_LIST_H_

#include <QElapsedTimer>
#include <QListView>
#include <vector>

namespace vellumark {

class ListHeading;
class SavegameListModel;

class SavegameList final : public QListView {
  Q_OBJECT

 public:
  explicit SavegameList(QWidget* parent);

  // What stands over the lines as soon as there are any; see ListHeading.
  void SetHeading(const QString& columns, const QString& legend, const QString& description);

  void SetLines(QStringList lines);
  void ReplaceLine(int index, const QString& line);
  std::vector<int> SelectedLines() const;
  void SelectLine(int index);
  void keyboardSearch(const QString& search) override;

 signals:
  // The user has changed the selection, or clicked a line again.
  void SelectionTouched();

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void PlaceHeading();

  SavegameListModel* lines_;
  ListHeading* heading_;
  QElapsedTimer typed_;      // since the last letter of a level that is being typed
  bool own_change_ = false;  // the program, not the user, is changing the selection
  bool told_ = false;        // the change of this click has been told
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SAVEGAME_LIST_H_
