#include "ui/picture_box.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "foundation/failures.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "platform/file_system.h"
#include "platform/qt/background_work.h"
#include "platform/qt/picture_reading.h"
#include "savegames/savegame_properties.h"
#include "ui/picture_faults.h"

namespace vellumark {
namespace {

constexpr QSize kLeastSize(64, 48);

constexpr auto kAtOnce = std::chrono::milliseconds(0);
constexpr auto kLookEvery = std::chrono::milliseconds(50);

QString NotShown(const std::string& reason) {
  return QString::fromStdString(LoadMessage(kPictureNotShown, {reason}));
}

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
  path_ = path;
  whole_asked_ = false;
  ShowImage({});
  Load(screen()->size() * devicePixelRatioF());
}

void PictureBox::LoadWhole() {
  if (whole_asked_ || picture_.size() == whole_size_) return;
  whole_asked_ = true;
  Load({});
}

void PictureBox::Load(QSize most) {
  const int number = ++*asked_;
  if (path_.empty()) return;
  ReadResult read = files_.Read(path_, kMostPictureBytes + 1);
  if (read.bytes.size() > kMostPictureBytes) {
    return picture_.isNull() ? ShowWords(NotShown(LoadMessage(kPictureFileTooLarge))) : void();
  }
  if (read.error != FileError::kNone) {
    return picture_.isNull() ? ShowWords(NotShown(ReasonFor(read.error))) : void();
  }
  const auto work = [bytes = std::move(read.bytes), most, number, asked = asked_] {
    return number == *asked ? DecodePicture(bytes, most) : DecodedPicture();
  };
  constexpr auto kPatience = std::chrono::milliseconds(150);
  const auto decoded = BeginBeside<DecodedPicture>(work);
  if (decoded.wait_for(kPatience) == std::future_status::ready) return Take(decoded.get());

  auto* watch = new QTimer(this);
  connect(watch, &QTimer::timeout, this, [this, watch, decoded, number] {
    const bool wanted = number == *asked_;
    if (wanted && decoded.wait_for(kAtOnce) != std::future_status::ready) return;
    watch->deleteLater();
    if (!wanted) return;
    Take(decoded.get());
    emit Arrived();
  });
  watch->start(kLookEvery);
}

void PictureBox::Take(const DecodedPicture& decoded) {
  if (!decoded.image.isNull()) {
    ShowImage(decoded.image);
    whole_size_ = decoded.whole_size;
  } else if (picture_.isNull()) {
    ShowWords(NotShown(WordsFor(decoded.fault)));
  }
}

void PictureBox::ShowWords(const QString& words) {
  ShowImage({});
  words_ = words;
  update();
  setAccessibleDescription(words);
}

void PictureBox::ShowImage(const QImage& image) {
  picture_ = image;
  whole_size_ = image.size();
  words_.clear();
  setAccessibleDescription({});
  scaled_ = {};
  update();
}

void PictureBox::SetDimmed(bool dimmed) {
  dimmed_ = dimmed;
  update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
  if (picture_.isNull()) return PaintWords();

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

void PictureBox::PaintWords() {
  if (words_.isEmpty()) return;
  constexpr int kMargin = 8;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                   Qt::AlignCenter | Qt::TextWordWrap, words_);
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
