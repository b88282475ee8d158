// The archive as pictures: a tile for each savegame, level by level.
#ifndef VELLUMARK_UI_PICTURES_VIEW_H_
#define VELLUMARK_UI_PICTURES_VIEW_H_

#include <QAccessible>
#include <QListView>
#include <QTimer>
#include <optional>
#include <string>

#include "ui/tile_layout.h"
#include "ui/view_manners.h"

namespace vellumark {

struct Program;
struct SavegameEntry;
struct SmallPicture;
class FileSystem;
class PictureQueue;
class SavegameListModel;

enum class TileSize { kSmall, kMedium, kLarge };

// A list to assistive technology and in all that concerns the selection; places, painting and the
// way from tile to tile are its own.
class PicturesView final : public QListView {
  Q_OBJECT

 public:
  PicturesView(FileSystem& files, SavegameListModel& lines, QWidget* parent);

  // The program whose catalogue the lines are of.
  void Attach(const Program& program);

  TileSize Size() const { return size_; }
  void SetSize(TileSize size);
  // One size up (1) or down (-1), as far as there is one.
  void StepSize(int step);

  // Shows this savegame's row, with the heading of its level, at the top.
  void ScrollToTop(int index);

  // The savegame's picture may have changed on the disk.
  void Renew(int index);

  const PictureQueue& Queue() const { return *queue_; }

  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  QModelIndex indexAt(const QPoint& point) const override;
  void reset() override;
  void doItemsLayout() override;
  void keyboardSearch(const QString& search) override;

 signals:
  void SizeChanged(TileSize size);

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  int horizontalOffset() const override { return 0; }
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex& /*index*/) const override { return false; }
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void dataChanged(const QModelIndex& top_left, const QModelIndex& bottom_right,
                   const QList<int>& roles) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QSize PictureSize() const;  // of a tile's picture at most, in the window's pixels
  QSize SizeOfTile() const;
  const SavegameEntry& EntryOf(int index) const;
  void LayOut();
  // Tells assistive technology of a tile.
  void Tell(QAccessible::Event event, const QModelIndex& index);
  // The same, but what is in sight stays there: the current tile, or else the one at the top.
  void LayOutAround();
  QModelIndex CurrentOrFirst() const;
  std::optional<int> IndexAt(QPoint point) const;
  int PageFrom(int index, int direction) const;

  // Asks for the pictures in sight, and for those a page around.
  void AskForPictures();
  void PaintHeading(QPainter& painter, int first) const;
  void PaintTile(QPainter& painter, int index) const;
  QString TipOf(int index) const;

  FileSystem& files_;
  SavegameListModel& lines_;
  const Program* program_ = nullptr;
  PictureQueue* queue_;
  TileLayout layout_;
  TileSize size_ = TileSize::kMedium;
  QTimer asking_;  // puts off AskForPictures to the end of a change
  LevelTyping typing_;
  int turned_ = 0;      // how far the wheel has turned towards another size
  QPoint band_anchor_;  // of the rubber band, from the top of the whole
  QRect band_;          // in the same measure; empty for none
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PICTURES_VIEW_H_
