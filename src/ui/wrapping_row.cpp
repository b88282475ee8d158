#include "ui/wrapping_row.h"

#include <QWidget>
#include <algorithm>

namespace vellumark {

WrappingRow::WrappingRow(QWidget* parent) : QLayout(parent) { setContentsMargins(0, 0, 0, 0); }

WrappingRow::~WrappingRow() = default;

void WrappingRow::addItem(QLayoutItem* item) { items_.emplace_back(item); }

QLayoutItem* WrappingRow::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto at = items_.begin() + index;
  QLayoutItem* item = at->release();
  items_.erase(at);
  return item;
}

WrappingRow::Row WrappingRow::RowFrom(std::size_t first, int width) const {
  Row row{first, -spacing(), 0};
  for (; row.end < items_.size(); ++row.end) {
    const QSize size = items_[row.end]->sizeHint();
    const int wider = row.width + spacing() + size.width();
    if (row.end > first && wider > width) break;
    row.width = wider;
    row.height = std::max(row.height, size.height());
  }
  return row;
}

QSize WrappingRow::sizeHint() const {
  const Row all = RowFrom(0, QWIDGETSIZE_MAX);
  return {all.width, all.height};
}

QSize WrappingRow::minimumSize() const {
  QSize least;
  for (const auto& item : items_) least = least.expandedTo(item->minimumSize());
  return least;
}

int WrappingRow::heightForWidth(int width) const {
  int height = -spacing();
  for (std::size_t first = 0; first < items_.size();) {
    const Row row = RowFrom(first, width);
    height += spacing() + row.height;
    first = row.end;
  }
  return height;
}

void WrappingRow::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  int top = place.top();
  for (std::size_t first = 0; first < items_.size();) {
    const Row row = RowFrom(first, place.width());
    const auto gaps = static_cast<int>(row.end - first) - 1;
    const int gap = spacing() + std::max(0, place.width() - row.width) / std::max(1, gaps);
    int left = place.left();
    for (; first < row.end; ++first) {
      const int width = std::min(items_[first]->sizeHint().width(), place.width());
      items_[first]->setGeometry(QRect(left, top, width, row.height));
      left += width + gap;
    }
    top += row.height + spacing();
  }
}

}  // namespace vellumark
