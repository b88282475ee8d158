#include "ui/savegame_list.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <algorithm>
#include <iterator>
#include <utility>

#include "ui/fonts.h"
#include "ui/savegame_list_model.h"

namespace vellumark {
namespace {

// Gives every line the same size without looking at it, wide enough for the longest.
class LineDelegate final : public QStyledItemDelegate {
 public:
  LineDelegate(const SavegameListModel& lines, QObject* parent)
      : QStyledItemDelegate(parent), lines_(lines) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    constexpr int kMargin = 4;
    const int width = option.fontMetrics.horizontalAdvance(u'0');
    return {static_cast<int>(lines_.LongestLine()) * width + 2 * kMargin,
            option.fontMetrics.height() + kMargin};
  }

 private:
  const SavegameListModel& lines_;
};

}  // namespace

SavegameList::SavegameList(QWidget* parent)
    : QListView(parent), lines_(new SavegameListModel(this)) {
  setModel(lines_);
  setItemDelegate(new LineDelegate(*lines_, this));
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideNone);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void SavegameList::SetLines(QStringList lines) {
  const QScopedValueRollback own_change(own_change_, true);
  // Finding the font takes a while; an empty list, as at the very first start, need not wait for
  // it.
  if (!lines.isEmpty()) setFont(ColumnFont());
  lines_->SetLines(std::move(lines));
}

void SavegameList::ReplaceLine(int index, const QString& line) { lines_->ReplaceLine(index, line); }

std::vector<int> SavegameList::SelectedLines() const {
  std::vector<int> selected;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) selected.push_back(row);
  }
  std::ranges::sort(selected);
  return selected;
}

void SavegameList::SelectLine(int index) {
  const QScopedValueRollback own_change(own_change_, true);
  const QModelIndex line = lines_->index(index);
  selectionModel()->setCurrentIndex(line, QItemSelectionModel::ClearAndSelect);
  scrollTo(line);
}

// The blank that selects a line together with Ctrl is no search for the lines that begin with one.
void SavegameList::keyboardSearch(const QString& search) {
  if (search != QLatin1String(" ")) QListView::keyboardSearch(search);
}

void SavegameList::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (own_change_) return;
  told_ = true;
  emit SelectionTouched();
}

// At the first or last line, the keys that lead there have nowhere to go, but select it alone all
// the same.
void SavegameList::keyPressEvent(QKeyEvent* event) {
  constexpr int kMoves[] = {Qt::Key_Up,   Qt::Key_PageUp,   Qt::Key_Home,
                            Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End};
  const QModelIndex before = currentIndex();
  QListView::keyPressEvent(event);
  const bool moves = std::ranges::find(kMoves, event->key()) != std::end(kMoves);
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (moves && plain && before.isValid() && currentIndex() == before) {
    selectionModel()->select(before, QItemSelectionModel::ClearAndSelect);
  }
}

void SavegameList::mousePressEvent(QMouseEvent* event) {
  told_ = false;
  QListView::mousePressEvent(event);
}

void SavegameList::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  // A click that changed the selection has been told with the change.
  if (!told_ && event->button() == Qt::LeftButton) emit SelectionTouched();
}

}  // namespace vellumark
