#include "ui/tile_layout.h"

#include <algorithm>

namespace vellumark {
namespace {

constexpr int kMargin = 6;  // around the whole
constexpr int kGap = 4;     // between tiles

}  // namespace

void TileLayout::SetRuns(const std::vector<LevelRun>& runs) {
  runs_.clear();
  runs_.reserve(runs.size());
  for (const LevelRun& run : runs) {
    runs_.push_back({.first = static_cast<int>(run.first), .count = static_cast<int>(run.count)});
  }
  Place();
}

void TileLayout::SetSizes(QSize tile, int heading_height, int width) {
  tile_ = tile;
  heading_ = heading_height;
  width_ = width;
  Place();
}

void TileLayout::Place() {
  columns_ = std::max(1, (width_ - 2 * kMargin + kGap) / (tile_.width() + kGap));
  int top = kMargin;
  for (Run& run : runs_) {
    run.top = top;
    top = RowTop(run, RowsOf(run));
  }
  height_ = runs_.empty() ? 0 : top + kMargin;
}

int TileLayout::Count() const {
  return runs_.empty() ? 0 : runs_.back().first + runs_.back().count;
}

std::size_t TileLayout::RunOf(int index) const {
  const auto behind = std::ranges::upper_bound(runs_, index, {}, &Run::first);
  return static_cast<std::size_t>(behind - runs_.begin()) - 1;
}

// The run at this height; the first one above all, the last one below.
std::size_t TileLayout::RunAt(int y) const {
  const auto behind = std::ranges::upper_bound(runs_, y, {}, &Run::top);
  return behind == runs_.begin() ? 0 : static_cast<std::size_t>(behind - runs_.begin()) - 1;
}

int TileLayout::RowTop(const Run& run, int row) const {
  return run.top + heading_ + row * (tile_.height() + kGap);
}

// What the columns leave of the width is shared out between them.
int TileLayout::ColumnLeft(int column) const {
  const int used = columns_ * tile_.width() + (columns_ - 1) * kGap;
  const int spare = std::max(0, width_ - 2 * kMargin - used);
  return kMargin + column * (tile_.width() + kGap) + spare * (2 * column + 1) / (2 * columns_);
}

QRect TileLayout::TileRect(int index) const {
  if (index < 0 || index >= Count()) return {};
  const Run& run = runs_[RunOf(index)];
  const int in_run = index - run.first;
  return {QPoint(ColumnLeft(in_run % columns_), RowTop(run, in_run / columns_)), tile_};
}

QRect TileLayout::HeadingRect(int index) const {
  return {kMargin, runs_[RunOf(index)].top, std::max(0, width_ - 2 * kMargin), heading_};
}

int TileLayout::At(QPoint place) const {
  const auto touched = Touched(QRect(place, QSize(1, 1)));
  return touched.empty() ? -1 : touched.front().first;
}

std::vector<std::pair<int, int>> TileLayout::Touched(const QRect& area) const {
  std::vector<std::pair<int, int>> touched;
  if (runs_.empty()) return touched;
  int first_column = columns_;
  int last_column = -1;
  for (int column = 0; column < columns_; ++column) {
    const int left = ColumnLeft(column);
    if (left > area.right() || left + tile_.width() <= area.left()) continue;
    first_column = std::min(first_column, column);
    last_column = column;
  }
  if (last_column < 0) return touched;

  for (std::size_t i = RunAt(area.top()); i < runs_.size() && runs_[i].top <= area.bottom(); ++i) {
    const Run& run = runs_[i];
    const int step = tile_.height() + kGap;
    const int from = std::max(0, area.top() - RowTop(run, 0)) / step;
    for (int row = from; row < RowsOf(run) && RowTop(run, row) <= area.bottom(); ++row) {
      if (RowTop(run, row) + tile_.height() <= area.top()) continue;
      const int first = row * columns_ + first_column;
      const int last = std::min(row * columns_ + last_column, run.count - 1);
      if (first <= last) touched.emplace_back(run.first + first, run.first + last);
    }
  }
  return touched;
}

int TileLayout::Above(int index) const {
  const Run& run = runs_[RunOf(index)];
  const int in_run = index - run.first;
  if (in_run >= columns_) return index - columns_;
  if (run.first == 0) return index;
  const Run& before = runs_[RunOf(run.first - 1)];
  const int last_row = (RowsOf(before) - 1) * columns_;
  return before.first + std::min(last_row + in_run % columns_, before.count - 1);
}

int TileLayout::Below(int index) const {
  const Run& run = runs_[RunOf(index)];
  const int in_run = index - run.first;
  if (in_run / columns_ < RowsOf(run) - 1) {
    return run.first + std::min(in_run + columns_, run.count - 1);
  }
  const int next = run.first + run.count;
  if (next >= Count()) return index;
  const Run& behind = runs_[RunOf(next)];
  return behind.first + std::min(in_run % columns_, behind.count - 1);
}

}  // namespace vellumark
