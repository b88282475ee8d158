// The list of savegames: one finished line each, in columns of a fixed-pitch font.
#ifndef VELLUMARK_UI_SAVEGAME_LIST_H_
#define VELLUMARK_UI_SAVEGAME_LIST_H_

#include <QListView>
#include <vector>

namespace vellumark {

class SavegameListModel;

class SavegameList final : public QListView {
  Q_OBJECT

 public:
  explicit SavegameList(QWidget* parent);

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
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  SavegameListModel* lines_;
  bool own_change_ = false;  // the program, not the user, is changing the selection
  bool told_ = false;        // the change of this click has been told
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SAVEGAME_LIST_H_
