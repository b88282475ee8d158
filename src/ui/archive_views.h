// What stands in the main window's middle: the archive, in one of its views. They share the model
// and the selection.
#ifndef VELLUMARK_UI_ARCHIVE_VIEWS_H_
#define VELLUMARK_UI_ARCHIVE_VIEWS_H_

#include <QStackedWidget>
#include <QStringList>
#include <vector>

class QAbstractItemView;
class QItemSelectionModel;

namespace vellumark {

struct Program;
class FileSystem;
class PicturesView;
class SavegameList;
class SavegameListModel;

enum class ArchiveView { kList, kPictures };

class ArchiveViews final : public QStackedWidget {
  Q_OBJECT

 public:
  ArchiveViews(FileSystem& files, QWidget* parent);

  // The program whose catalogue is shown.
  void Attach(const Program& program);

  SavegameList& List() { return *list_; }
  PicturesView& Pictures() { return *pictures_; }
  QItemSelectionModel& Selection() const;

  // The view that is chosen; a page in its place does not change that.
  ArchiveView Chosen() const { return chosen_; }
  void Choose(ArchiveView view);

  // Shows a page of the stack in the place of the chosen view; null: the view again.
  void ShowInstead(QWidget* page);

  // Offers a command in the context menu of each view.
  void AddCommand(QAction* command);

  // The line at a point of the screen, in the view that is shown; -1 where there is none. And the
  // place of one on the screen, as far as it is in sight.
  int LineAt(QPoint global) const;
  QRect RectOf(int line) const;

  void SetLines(QStringList lines);
  void ReplaceLine(int index, const QString& line);
  std::vector<int> SelectedLines() const;
  // Leaves exactly this line selected, current and in sight.
  void SelectLine(int index);
  // Shows this line at the top, with the heading of its level where there is one.
  void ScrollToTop(int index);

 signals:
  // The user has changed the selection, or clicked a savegame again.
  void SelectionTouched();
  void ViewChosen(ArchiveView view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAbstractItemView& ViewOf(ArchiveView view) const;
  void ShowPage(QWidget* page);

  const Program* program_ = nullptr;
  SavegameListModel* lines_;
  SavegameList* list_;
  PicturesView* pictures_;
  ArchiveView chosen_ = ArchiveView::kList;
  QWidget* instead_ = nullptr;
  bool own_change_ = false;  // the program, not the user, is changing the selection
  bool told_ = false;        // the change of this click has been told
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_ARCHIVE_VIEWS_H_
