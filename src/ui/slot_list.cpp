#include "ui/slot_list.h"

#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "ui/fonts.h"

namespace vellumark {
namespace {

constexpr int kMostLines = 16;  // the slots of the game
constexpr int kLeastColumns = 34;
constexpr int kMostColumns = 50;

}  // namespace

SlotList::SlotList(QWidget* parent) : QListWidget(parent) {
  setFont(ColumnFont());
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideNone);
  connect(this, &QListWidget::itemSelectionChanged, this, [this] {
    emit Chosen(selectedItems().isEmpty() ? -1 : row(selectedItems().constFirst()));
  });
}

void SlotList::SetLines(const QStringList& lines, int chosen) {
  const QSignalBlocker quiet(this);
  clear();
  addItems(lines);
  // Without a chosen line none is current either, so that the first arrow key takes the first line.
  setCurrentIndex(model()->index(chosen, 0));
  updateGeometry();
}

QModelIndex SlotList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const bool far_down = action == MoveEnd || action == MovePageDown;
  if (currentIndex().isValid() || !far_down) return QListWidget::moveCursor(action, modifiers);
  const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)));
  const int last = count() - 1;
  return model()->index(action == MoveEnd ? last : std::min(page, last), 0);
}

QSize SlotList::sizeHint() const {
  qsizetype longest = kLeastColumns;
  for (int line = 0; line < count(); ++line) longest = std::max(longest, item(line)->text().size());
  QSize size = SizeFor(std::clamp(count(), 1, kMostLines),
                       std::min(static_cast<int>(longest), kMostColumns));
  if (longest > kMostColumns) size.rheight() += horizontalScrollBar()->sizeHint().height();
  return size;
}

QSize SlotList::minimumSizeHint() const {
  return {SizeFor(1, kLeastColumns).width(), sizeHint().height()};
}

QSize SlotList::SizeFor(int lines, int columns) const {
  const int line_height = count() > 0 ? sizeHintForRow(0) : fontMetrics().height();
  const int around = 2 * frameWidth();
  return {columns * fontMetrics().horizontalAdvance(u'0') + around +
              verticalScrollBar()->sizeHint().width(),
          lines * line_height + around};
}

}  // namespace vellumark
