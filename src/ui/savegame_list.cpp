#include "ui/savegame_list.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <iterator>

#include "ui/fonts.h"
#include "ui/list_heading.h"
#include "ui/savegame_list_model.h"

namespace vellumark {
namespace {

// Gives every line the same size without looking at it, wide enough for the longest, and paints of
// a line no more than can be seen.
class LineDelegate final : public QStyledItemDelegate {
 public:
  LineDelegate(const SavegameListModel& lines, QWidget* viewport)
      : QStyledItemDelegate(viewport), lines_(lines), viewport_(viewport) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    constexpr int kMargin = 4;
    const int width = option.fontMetrics.horizontalAdvance(u'0');
    return {static_cast<int>(lines_.LongestLine()) * width + 2 * kMargin,
            option.fontMetrics.height() + kMargin};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    // Letters that the font lacks may be narrower than its own.
    const int narrowest = std::max(1, option->fontMetrics.horizontalAdvance(u'0') / 2);
    option->text.truncate((viewport_->width() - option->rect.left()) / narrowest);
  }

 private:
  const SavegameListModel& lines_;
  const QWidget* viewport_;
};

}  // namespace

SavegameList::SavegameList(SavegameListModel& lines, QWidget* parent)
    : QListView(parent), lines_(lines), heading_(new ListHeading(this)) {
  // Before the view itself hears of new lines.
  connect(&lines, &QAbstractItemModel::modelReset, this, &SavegameList::PrepareForLines);
  setModel(&lines);
  setItemDelegate(new LineDelegate(lines, viewport()));
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideNone);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, heading_, &ListHeading::ScrollTo);
}

void SavegameList::SetHeading(const QString& columns, const QString& legend,
                              const QString& description) {
  heading_->SetTexts(columns, legend, description);
  setAccessibleDescription(description);
}

// Finding the font takes a while; an empty list, as at the very first start, need not wait for it.
void SavegameList::PrepareForLines() {
  if (lines_.rowCount() > 0) setFont(ColumnFont());
  PlaceHeading();
}

void SavegameList::PlaceHeading() {
  heading_->setVisible(lines_.rowCount() > 0);
  const int height = lines_.rowCount() > 0 ? heading_->HeightFor(viewport()->width()) : 0;
  setViewportMargins(0, height, 0, 0);
  const QRect lines = viewport()->geometry();
  heading_->setGeometry(lines.left(), lines.top() - height, lines.width(), height);
}

void SavegameList::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  PlaceHeading();
}

// A blank belongs to a level that is being typed; otherwise it is the one that selects a line
// together with Ctrl.
void SavegameList::keyboardSearch(const QString& search) {
  const bool typing = typed_.isValid() && !typed_.hasExpired(QApplication::keyboardInputInterval());
  if (search == QLatin1String(" ") && !typing) return;
  typed_.start();
  QListView::keyboardSearch(search);
}

// By key the menu opens at the current line, of which only the beginning need be in sight.
void SavegameList::contextMenuEvent(QContextMenuEvent* event) {
  QPoint place = event->globalPos();
  if (event->reason() == QContextMenuEvent::Keyboard) {
    scrollTo(currentIndex());
    const QPoint below = visualRect(currentIndex()).bottomLeft();
    place = viewport()->mapToGlobal(QPoint(std::max(0, below.x()), below.y()));
  }
  QMenu::exec(actions(), place, nullptr, this);
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

}  // namespace vellumark
