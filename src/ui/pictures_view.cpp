#include "ui/pictures_view.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <QScrollBar>
#include <QStyleHintReturnMask>
#include <QStyleOptionRubberBand>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/tile.h"
#include "ui/picture_queue.h"
#include "ui/plain_tip.h"
#include "ui/savegame_list_model.h"
#include "ui/tile_painting.h"

namespace vellumark {
namespace {

constexpr int kPadding = 6;  // between a tile's edge and what it shows
constexpr QSize kPictureSizes[] = {{128, 96}, {192, 144}, {288, 216}};

}  // namespace

PicturesView::PicturesView(FileSystem& files, SavegameListModel& lines, QWidget* parent)
    : QListView(parent), files_(files), lines_(lines), queue_(new PictureQueue(files_, this)) {
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setSelectionRectVisible(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Otherwise the number of columns could depend on whether it is there, and the other way round.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  asking_.setSingleShot(true);
  asking_.setInterval(0);
  connect(&asking_, &QTimer::timeout, this, &PicturesView::AskForPictures);
  connect(queue_, &PictureQueue::Arrived, this, [this](const std::string& path) {
    for (const auto& [first, last] :
         layout_.Touched(viewport()->rect().translated(0, verticalOffset()))) {
      for (int i = first; i <= last; ++i) {
        if (EntryOf(i).ShotPath == path) viewport()->update(visualRect(lines_.index(i)));
      }
    }
  });
}

void PicturesView::Attach(const Program& program) { program_ = &program; }

void PicturesView::SetSize(TileSize size) {
  if (size_ == size) return;
  size_ = size;
  LayOutAround();
  emit SizeChanged(size);
}

void PicturesView::StepSize(int step) {
  const int size = std::clamp(static_cast<int>(size_) + step, static_cast<int>(TileSize::kSmall),
                              static_cast<int>(TileSize::kLarge));
  SetSize(static_cast<TileSize>(size));
}

QSize PicturesView::PictureSize() const { return kPictureSizes[static_cast<int>(size_)]; }

QSize PicturesView::SizeOfTile() const {
  return PictureSize() + QSize(2 * kPadding, 2 * kPadding + 3 + 2 * fontMetrics().height());
}

const SavegameEntry& PicturesView::EntryOf(int index) const {
  return program_->catalogue.entries[static_cast<std::size_t>(index)];
}

void PicturesView::reset() {
  queue_->Forget();
  QListView::reset();
  LayOut();
}

void PicturesView::LayOut() {
  layout_.SetRuns(lines_.rowCount() > 0 ? LevelRuns(program_->catalogue) : std::vector<LevelRun>());
  doItemsLayout();
}

void PicturesView::doItemsLayout() {
  layout_.SetSizes(SizeOfTile(), fontMetrics().height() + 3 * kPadding, viewport()->width());
  updateGeometries();
  viewport()->update();
  asking_.start();
}

void PicturesView::LayOutAround() {
  const QRect seen = viewport()->rect();
  const auto touched = layout_.Touched(seen.translated(0, verticalOffset()));
  QModelIndex kept;
  if (visualRect(currentIndex()).intersects(seen)) {
    kept = currentIndex();
  } else if (!touched.empty() && verticalOffset() > 0) {
    kept = lines_.index(touched.front().first);
  }
  const int above = visualRect(kept).top();
  doItemsLayout();
  if (!kept.isValid()) return;
  verticalScrollBar()->setValue(layout_.TileRect(kept.row()).top() - above);
  if (kept == currentIndex()) scrollTo(kept);
}

void PicturesView::updateGeometries() {
  verticalScrollBar()->setSingleStep(std::max(1, SizeOfTile().height() / 3));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setRange(0, std::max(0, layout_.Height() - viewport()->height()));
}

int PicturesView::verticalOffset() const { return verticalScrollBar()->value(); }

void PicturesView::scrollContentsBy(int /*dx*/, int dy) {
  scrollDirtyRegion(0, dy);
  viewport()->scroll(0, dy);
  asking_.start();
}

void PicturesView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  LayOutAround();
}

void PicturesView::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  asking_.start();
}

void PicturesView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOutAround();
}

QRect PicturesView::visualRect(const QModelIndex& index) const {
  return index.isValid() ? layout_.TileRect(index.row()).translated(0, -verticalOffset()) : QRect();
}

std::optional<int> PicturesView::IndexAt(QPoint point) const {
  const int index = layout_.At(point + QPoint(0, verticalOffset()));
  return index < 0 ? std::nullopt : std::optional(index);
}

// Out of sight there is none: the rubber band scrolls on there.
QModelIndex PicturesView::indexAt(const QPoint& point) const {
  if (!viewport()->rect().contains(point)) return {};
  const std::optional<int> index = IndexAt(point);
  return index ? lines_.index(*index) : QModelIndex();
}

void PicturesView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid() || index.row() >= layout_.Count()) return;
  if (hint == PositionAtTop) return ScrollToTop(index.row());
  QRect wanted = layout_.TileRect(index.row());
  const QRect heading = layout_.HeadingRect(index.row());
  if (index.row() - layout_.FirstOfRun(index.row()) < layout_.Columns()) {
    wanted.setTop(layout_.FirstOfRun(index.row()) == 0 ? 0 : heading.top());
  }
  const int room = viewport()->height();
  int offset = verticalOffset();
  if (hint == PositionAtCenter) {
    offset = wanted.center().y() - room / 2;
  } else {
    if (wanted.bottom() >= offset + room) offset = wanted.bottom() + kPadding - room;
    if (wanted.top() < offset) offset = wanted.top();
  }
  verticalScrollBar()->setValue(offset);
}

void PicturesView::ScrollToTop(int index) {
  if (index < 0 || index >= layout_.Count()) return;
  const bool in_first_row = index - layout_.FirstOfRun(index) < layout_.Columns();
  verticalScrollBar()->setValue(in_first_row ? layout_.HeadingRect(index).top()
                                             : layout_.TileRect(index).top());
}

QModelIndex PicturesView::CurrentOrFirst() const {
  return currentIndex().isValid() ? currentIndex() : lines_.index(0);
}

// The tile in the same column a page further.
int PicturesView::PageFrom(int index, int direction) const {
  const int page = std::max(1, viewport()->height() - SizeOfTile().height());
  const int from = layout_.TileRect(index).top();
  int at = index;
  while (true) {
    const int next = direction < 0 ? layout_.Above(at) : layout_.Below(at);
    if (next == at || std::abs(layout_.TileRect(next).top() - from) > page) break;
    at = next;
  }
  if (at != index) return at;
  return direction < 0 ? layout_.Above(index) : layout_.Below(index);
}

QModelIndex PicturesView::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/) {
  const int count = layout_.Count();
  if (count == 0) return {};
  const int current = CurrentOrFirst().row();
  const bool mirrored = isRightToLeft();
  const auto step = [&](int by) { return std::clamp(current + by, 0, count - 1); };
  const auto to = [this](int index) { return lines_.index(index); };
  switch (action) {
    case MoveUp:
      return to(layout_.Above(current));
    case MoveDown:
      return to(layout_.Below(current));
    case MoveLeft:
      return to(step(mirrored ? 1 : -1));
    case MoveRight:
      return to(step(mirrored ? -1 : 1));
    case MoveHome:
      return to(0);
    case MoveEnd:
      return to(count - 1);
    case MovePageUp:
      return to(PageFrom(current, -1));
    case MovePageDown:
      return to(PageFrom(current, 1));
    case MovePrevious:
      return to(step(-1));
    case MoveNext:
      return to(step(1));
  }
  return to(current);
}

// By the rubber band: what it touches. Otherwise: from one savegame to the other in their order.
void PicturesView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
  QItemSelection selection;
  const auto add = [&](int first, int last) {
    selection.append({lines_.index(first), lines_.index(last)});
  };
  if (state() == DragSelectingState) {
    const QRect area =
        QRect(QPoint(std::min(rect.left(), rect.right()), std::min(rect.top(), rect.bottom())),
              QPoint(std::max(rect.left(), rect.right()), std::max(rect.top(), rect.bottom())));
    for (const auto& [first, last] : layout_.Touched(area.translated(0, verticalOffset()))) {
      add(first, last);
    }
  } else {
    const std::optional<int> from = IndexAt(rect.topLeft());
    const std::optional<int> to = IndexAt(rect.bottomRight());
    if (from && to) add(std::min(*from, *to), std::max(*from, *to));
  }
  selectionModel()->select(selection, command);
}

QRegion PicturesView::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  const QRect seen = viewport()->rect().translated(0, verticalOffset());
  for (const auto& [first, last] : layout_.Touched(seen)) {
    for (int i = first; i <= last; ++i) {
      const QModelIndex index = lines_.index(i);
      if (selection.contains(index)) region += visualRect(index);
    }
  }
  return region;
}

void PicturesView::keyboardSearch(const QString& search) {
  if (typing_.Takes(search)) QListView::keyboardSearch(search);
}

void PicturesView::dataChanged(const QModelIndex& top_left, const QModelIndex& bottom_right,
                               const QList<int>& roles) {
  for (int i = top_left.row(); i <= bottom_right.row(); ++i) Renew(i);
  QListView::dataChanged(top_left, bottom_right, roles);
}

void PicturesView::Renew(int index) {
  queue_->Renew(EntryOf(index).ShotPath);
  asking_.start();
}

void PicturesView::Tell(QAccessible::Event event, const QModelIndex& index) {
  if (!index.isValid() || !isVisible() || !QAccessible::isActive()) return;
  QAccessibleEvent of_tile(this, event);
  of_tile.setChild(index.row());
  QAccessible::updateAccessibility(&of_tile);
}

// A list would look for the places that it has not laid out, and tell of no tile.
void PicturesView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
  if (hasFocus()) Tell(QAccessible::Focus, current);
}

void PicturesView::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
  QAbstractItemView::selectionChanged(  // NOLINT(bugprone-parent-virtual-call)
      selected, deselected);
  if (!selected.isEmpty()) Tell(QAccessible::SelectionAdd, selected.front().topLeft());
  if (!deselected.isEmpty()) Tell(QAccessible::SelectionRemove, deselected.front().topLeft());
}

void PicturesView::AskForPictures() {
  if (!isVisible() || layout_.Count() == 0) return;
  const QRect seen = viewport()->rect().translated(0, verticalOffset());
  std::vector<std::string> paths;
  const auto add = [&](const QRect& area) {
    for (const auto& [first, last] : layout_.Touched(area)) {
      for (int i = first; i <= last; ++i) {
        if (lines_.HasShot(i)) paths.push_back(EntryOf(i).ShotPath);
      }
    }
  };
  add(seen);
  add(seen.translated(0, seen.height()));
  add(seen.translated(0, -seen.height()));
  queue_->Ask(std::move(paths), (QSizeF(PictureSize()) * devicePixelRatioF()).toSize());
}

void PicturesView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QRect dirty = event->rect().translated(0, verticalOffset());
  // A heading may be in sight without any of its tiles.
  const int reach = SizeOfTile().height();
  int headed = -1;
  for (const auto& [first, last] : layout_.Touched(dirty.adjusted(-width(), 0, width(), reach))) {
    if (const int run = layout_.FirstOfRun(first); run != headed) {
      headed = run;
      if (layout_.HeadingRect(run).intersects(dirty)) PaintHeading(painter, run);
    }
    for (int i = first; i <= last; ++i) {
      if (layout_.TileRect(i).intersects(dirty)) PaintTile(painter, i);
    }
  }
  if (band_.isNull()) return;
  QStyleOptionRubberBand option;
  option.initFrom(this);
  option.shape = QRubberBand::Rectangle;
  option.opaque = false;
  option.rect = band_.translated(0, -verticalOffset());
  painter.save();
  QStyleHintReturnMask mask;
  if (style()->styleHint(QStyle::SH_RubberBand_Mask, &option, this, &mask) != 0) {
    painter.setClipRegion(mask.region, Qt::IntersectClip);
  }
  style()->drawControl(QStyle::CE_RubberBand, &option, &painter, this);
  painter.restore();
}

void PicturesView::PaintHeading(QPainter& painter, int first) const {
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const QRect place = layout_.HeadingRect(first)
                          .translated(0, -verticalOffset())
                          .adjusted(kPadding, kPadding, -kPadding, 0);
  const QString level = ToQString(program_->text, LevelHeading(EntryOf(first)));
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::Text));
  const QString shown = metrics.elidedText(level, Qt::ElideRight, place.width());
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, shown);
  painter.setFont(font());

  const int line_from = place.left() + metrics.horizontalAdvance(shown) + 2 * kPadding;
  painter.setPen(TileGround(palette()));
  if (line_from < place.right()) {
    painter.drawLine(line_from, place.center().y(), place.right(), place.center().y());
  }
}

void PicturesView::PaintTile(QPainter& painter, int index) const {
  const SavegameEntry& entry = EntryOf(index);
  const QModelIndex model_index = lines_.index(index);
  const QRect tile = visualRect(model_index);
  const bool selected = selectionModel()->isSelected(model_index);
  const bool active = isActiveWindow() && hasFocus();
  const auto group = active ? QPalette::Active : QPalette::Inactive;
  if (selected) {
    painter.setRenderHint(QPainter::Antialiasing);
    // Out of focus, some themes leave hardly more of the colour than the ground has.
    painter.setPen(active ? QPen(Qt::NoPen) : QPen(palette().color(QPalette::PlaceholderText)));
    painter.setBrush(palette().brush(group, QPalette::Highlight));
    painter.drawRoundedRect(QRectF(tile).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }

  const QRect box(tile.topLeft() + QPoint(kPadding, kPadding), PictureSize());
  painter.fillRect(box, TileGround(palette()));
  const QString level = ToQString(program_->text, LevelHeading(entry));
  const bool has_shot = lines_.HasShot(index);
  const SmallPicture* picture = has_shot ? queue_->Find(entry.ShotPath) : nullptr;
  if (!has_shot || (picture != nullptr && !picture->exists)) {
    PaintPlaceholder(painter, box, level, palette());
  } else if (picture != nullptr && picture->image.isNull()) {
    PaintBrokenPicture(painter, box, palette());
  } else if (picture != nullptr) {
    PaintPicture(painter, box, picture->image);
  }

  const QColor text = palette().color(group, selected ? QPalette::HighlightedText : QPalette::Text);
  const int line = fontMetrics().height();
  QRect words(box.left(), box.bottom() + 4, box.width(), line);
  QRect mark(words.right() - line + 3, words.top() + 2, line - 3, line - 3);
  if (!entry.NoteText.empty()) {
    PaintNoteMark(painter, mark, text);
    mark.translate(-line - 1, 0);
  }
  if (entry.FolderNumber == 0) {
    PaintLetterMark(painter, mark, ToQString(program_->text, LoadMessage(319)), text);
  }
  painter.setPen(text);
  painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, QString::number(entry.InternalCounter));
  words.translate(0, line);
  painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(level, Qt::ElideRight, words.width()));

  if (model_index == currentIndex() && active) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = tile.adjusted(1, 1, -1, -1);
    focus.backgroundColor = palette().color(selected ? QPalette::Highlight : QPalette::Base);
    focus.state |= QStyle::State_KeyboardFocusChange;
    // Some styles fill the frame; the picture keeps its colours.
    painter.save();
    painter.setClipRegion(QRegion(tile) - box, Qt::IntersectClip);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    painter.restore();
  }
}

// Why there is no picture, and the beginning of the note.
QString PicturesView::TipOf(int index) const {
  const SavegameEntry& entry = EntryOf(index);
  QStringList parts;
  const SmallPicture* picture = queue_->Find(entry.ShotPath);
  if (picture != nullptr && !picture->fault.empty()) {
    parts.append(QString::fromStdString(LoadMessage(kPictureNotShown, {picture->fault})));
  }
  if (!entry.NoteText.empty()) parts.append(ToDisplayText(program_->text, NoteInTip(entry)));
  return PlainTip(parts.join(QStringLiteral("\n\n")));
}

bool PicturesView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const std::optional<int> index = IndexAt(help->pos());
  QToolTip::showText(help->globalPos(), index ? TipOf(*index) : QString(), viewport(),
                     index ? visualRect(lines_.index(*index)) : QRect());
  return true;
}

void PicturesView::contextMenuEvent(QContextMenuEvent* event) { ShowContextMenu(*this, *event); }

void PicturesView::keyPressEvent(QKeyEvent* event) {
  const QModelIndex before = currentIndex();
  QListView::keyPressEvent(event);
  SelectAloneAtTheEnd(*this, before, *event);
}

void PicturesView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    return QListView::wheelEvent(event);
  }
  turned_ += event->angleDelta().y();
  const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ %= QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) StepSize(steps);
  event->accept();
}

void PicturesView::mousePressEvent(QMouseEvent* event) {
  band_anchor_ = event->position().toPoint() + QPoint(0, verticalOffset());
  QListView::mousePressEvent(event);
}

void PicturesView::mouseMoveEvent(QMouseEvent* event) {
  QListView::mouseMoveEvent(event);
  if (state() != DragSelectingState) return;
  const QPoint at = event->position().toPoint() + QPoint(0, verticalOffset());
  band_ = QRect(band_anchor_, at).normalized();
  viewport()->update();
}

void PicturesView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  band_ = {};
  viewport()->update();
}

}  // namespace vellumark
