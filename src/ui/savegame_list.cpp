#include "ui/savegame_list.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

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

void SavegameList::keyboardSearch(const QString& search) {
  if (typing_.Takes(search)) QListView::keyboardSearch(search);
}

void SavegameList::contextMenuEvent(QContextMenuEvent* event) { ShowContextMenu(*this, *event); }

void SavegameList::keyPressEvent(QKeyEvent* event) {
  const QModelIndex before = currentIndex();
  QListView::keyPressEvent(event);
  // To the side, keys scroll the list.
  const bool to_the_side = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
  if (!to_the_side) SelectAloneAtTheEnd(*this, before, *event);
}

}  // namespace vellumark
