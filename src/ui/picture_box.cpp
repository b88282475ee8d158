#include "ui/picture_box.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <algorithm>

#include "platform/file_system.h"

namespace vellumark {
namespace {

constexpr QSize kLeastSize(64, 48);

QAccessibleInterface* PictureForAssistants(const QString& /*class_name*/, QObject* object) {
  auto* box = qobject_cast<PictureBox*>(object);
  return box == nullptr ? nullptr : new QAccessibleWidget(box, QAccessible::Graphic);
}

}  // namespace

PictureBox::PictureBox(FileSystem& files, QWidget* parent) : QWidget(parent), files_(files) {
  [[maybe_unused]] static const bool known = [] {
    QAccessible::installFactory(PictureForAssistants);
    return true;
  }();
}

void PictureBox::ShowFile(const std::string& path) {
  QImage image;
  if (!path.empty()) {
    const ReadResult read = files_.Read(path, FileSystem::kWholeFile);
    image.loadFromData(reinterpret_cast<const uchar*>(read.bytes.data()),
                       static_cast<int>(read.bytes.size()));
  }
  ShowImage(image);
}

void PictureBox::ShowImage(const QImage& image) {
  picture_ = image;
  scaled_ = {};
  update();
}

void PictureBox::SetDimmed(bool dimmed) {
  dimmed_ = dimmed;
  update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
  if (picture_.isNull()) return;

  const QRect area = PictureArea();
  const QSize pixels = (QSizeF(area.size()) * devicePixelRatioF()).toSize();
  if (scaled_.size() != pixels) {
    scaled_ = QPixmap::fromImage(
        picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    scaled_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter painter(this);
  if (dimmed_) painter.setOpacity(0.25);
  painter.drawPixmap(area.topLeft(), scaled_);
}

ShotBox::ShotBox(FileSystem& files, QWidget* parent) : PictureBox(files, parent) {
  setMinimumSize(kLeastSize);
}

QRect ShotBox::PictureArea() const {
  QRect area(QPoint(), QSize(4, 3).scaled(size(), Qt::KeepAspectRatio));
  area.moveCenter(rect().center());
  return area;
}

void ShotBox::resizeEvent(QResizeEvent* event) {
  PictureBox::resizeEvent(event);
  setMaximumHeight(width() * 3 / 4);
}

}  // namespace vellumark
