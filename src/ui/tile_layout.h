// Where the tiles of the pictures view stand: rows of tiles of one size, level by level, each level
// under a heading. All is reckoned, nothing is kept for each tile. Pixels, from the top of the
// whole.
#ifndef VELLUMARK_UI_TILE_LAYOUT_H_
#define VELLUMARK_UI_TILE_LAYOUT_H_

#include <QRect>
#include <utility>
#include <vector>

#include "savegames/tile.h"

namespace vellumark {

class TileLayout {
 public:
  void SetRuns(const std::vector<LevelRun>& runs);
  void SetSizes(QSize tile, int heading_height, int width);

  int Height() const { return height_; }
  int Columns() const { return columns_; }
  int Count() const;

  QRect TileRect(int index) const;
  // The first tile of the level whose heading stands over this one.
  int FirstOfRun(int index) const { return runs_[RunOf(index)].first; }
  QRect HeadingRect(int index) const;

  // The tile at a place, or -1.
  int At(QPoint place) const;
  // The tiles that an area touches, as ranges of first and last.
  std::vector<std::pair<int, int>> Touched(const QRect& area) const;

  // The tile above or below in the same column, or the nearest to it in that row; this one at the
  // end.
  int Above(int index) const;
  int Below(int index) const;

 private:
  struct Run {
    int first = 0;
    int count = 0;
    int top = 0;  // of the heading
  };

  void Place();
  std::size_t RunOf(int index) const;
  std::size_t RunAt(int y) const;
  int RowTop(const Run& run, int row) const;
  int RowsOf(const Run& run) const { return (run.count + columns_ - 1) / columns_; }
  int ColumnLeft(int column) const;

  std::vector<Run> runs_;
  QSize tile_{1, 1};
  int heading_ = 0;
  int width_ = 0;
  int columns_ = 1;
  int height_ = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_TILE_LAYOUT_H_
