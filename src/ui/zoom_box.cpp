#include "ui/zoom_box.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace vellumark {
namespace {

// Where a zoomed picture of this length begins along one side of the box: in the middle when it is
// shorter, else so that it leaves no gap.
double Begin(double wanted, double length, double room) {
  return length <= room ? (room - length) / 2 : std::clamp(wanted, room - length, 0.0);
}

}  // namespace

ZoomBox::ZoomBox(FileSystem& files, QWidget* parent) : PictureBox(files, parent) {
  setMouseTracking(true);
}

void ZoomBox::ShowFitted(const std::string& path) {
  Fit();
  ShowFile(path);
}

void ZoomBox::Fit() {
  scale_ = 0;
  unsetCursor();
  update();
}

void ZoomBox::ShowPixelByPixel() { SetScale(1 / devicePixelRatioF(), QRectF(rect()).center()); }

void ZoomBox::ZoomBySteps(double steps) {
  constexpr double kStep = 1.25;
  const double scale = IsFitted() ? FittingScale() : scale_;
  SetScale(scale * std::pow(kStep, steps), QRectF(rect()).center());
}

void ZoomBox::Move(QPointF by) {
  if (IsFitted()) return;
  corner_ += by;
  Settle();
}

void ZoomBox::SetKeepsShape(bool keeps) {
  keeps_shape_ = keeps;
  update();
}

double ZoomBox::FittingScale() const {
  const QSizeF size = WholeSize();
  return std::min(width() / size.width(), height() / size.height());
}

QRect ZoomBox::PictureArea() const {
  if (!keeps_shape_) return rect();
  QRect area(QPoint(), WholeSize().scaled(size(), Qt::KeepAspectRatio));
  area.moveCenter(rect().center());
  return area;
}

QRectF ZoomBox::Place() const {
  return IsFitted() ? QRectF(PictureArea()) : QRectF(corner_, QSizeF(WholeSize()) * scale_);
}

// What lies at a point of the box stays there.
void ZoomBox::SetScale(double scale, QPointF at) {
  if (Picture().isNull() || WholeSize().isEmpty()) return;
  constexpr double kMostPixels = 16;  // of the screen for one of the picture
  const double fitting = FittingScale();
  const double pixel = 1 / devicePixelRatioF();
  scale = std::clamp(scale, std::min(fitting, pixel), std::max(fitting * 4, kMostPixels * pixel));
  const bool fits = std::abs(scale / fitting - 1) < 0.01;
  if (fits && scale != pixel) return Fit();

  const QRectF before = Place();
  const QPointF inside((at.x() - before.x()) / before.width(),
                       (at.y() - before.y()) / before.height());
  scale_ = scale;
  const QSizeF size = QSizeF(WholeSize()) * scale_;
  corner_ = at - QPointF(inside.x() * size.width(), inside.y() * size.height());
  Settle();
  if (size.width() * devicePixelRatioF() > Picture().width() + 1) LoadWhole();
}

void ZoomBox::Settle() {
  const QSizeF size = QSizeF(WholeSize()) * scale_;
  corner_ = {Begin(corner_.x(), size.width(), width()),
             Begin(corner_.y(), size.height(), height())};
  const bool moves = size.width() > width() || size.height() > height();
  setCursor(moves ? Qt::OpenHandCursor : Qt::ArrowCursor);
  update();
}

// Of a zoomed picture only what is in sight is scaled.
void ZoomBox::paintEvent(QPaintEvent* event) {
  if (IsFitted() || Picture().isNull()) return PictureBox::paintEvent(event);
  constexpr double kSinglePixels = 2;  // from here on they are shown as such
  const QRectF place = Place();
  const QRectF seen = place & QRectF(rect());
  const double x_scale = Picture().width() / place.width();
  const double y_scale = Picture().height() / place.height();
  const QRectF part((seen.x() - place.x()) * x_scale, (seen.y() - place.y()) * y_scale,
                    seen.width() * x_scale, seen.height() * y_scale);
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform,
                        scale_ * devicePixelRatioF() < kSinglePixels);
  painter.drawImage(seen, Picture(), part);
}

void ZoomBox::resizeEvent(QResizeEvent* event) {
  PictureBox::resizeEvent(event);
  if (!IsFitted()) Settle();
}

void ZoomBox::wheelEvent(QWheelEvent* event) {
  constexpr double kNotch = 120;
  constexpr double kStep = 1.25;
  const double scale = IsFitted() ? FittingScale() : scale_;
  SetScale(scale * std::pow(kStep, event->angleDelta().y() / kNotch), event->position());
  event->accept();
}

void ZoomBox::mousePressEvent(QMouseEvent* event) {
  dragged_from_ = event->position();
  if (event->button() != Qt::LeftButton || IsFitted()) return PictureBox::mousePressEvent(event);
  if (cursor().shape() == Qt::OpenHandCursor) setCursor(Qt::ClosedHandCursor);
}

void ZoomBox::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return PictureBox::mouseMoveEvent(event);
  const QPointF from = std::exchange(dragged_from_, event->position());
  if (!IsFitted()) Move(event->position() - from);
}

void ZoomBox::mouseReleaseEvent(QMouseEvent* event) {
  PictureBox::mouseReleaseEvent(event);
  if (!IsFitted()) Settle();
}

}  // namespace vellumark
