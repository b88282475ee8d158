#include "platform/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRegularExpression>
#include <algorithm>
#include <chrono>

#include "platform/desktop_services.h"
#include "platform/qt/background_work.h"
#include "platform/qt/picture_reading.h"

namespace vellumark {
namespace {

// Stands among the names of formats for a picture that Qt makes of what it knows.
const QString kMadeByQt = QStringLiteral("application/x-qt-image");
// The same for what the system has in a form of its own, of which Qt may make nothing.
const QString kMadeBySystem = QStringLiteral("system");

QImage MakePreview(const QImage& image) {
  constexpr QSize kLargeScreen(3840, 2160);
  if (image.size().boundedTo(kLargeScreen) == image.size()) return image;
  return image.scaled(kLargeScreen, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

QtPicture::QtPicture(const QImage& image)
    : preview_(MakePreview(image)),
      jpeg_(BeginBeside<std::optional<std::string>>([image] { return EncodeJpeg(image); })) {}

std::optional<std::string> QtPicture::ToJpeg() const { return WaitPainting(jpeg_); }

QtClipboard::QtClipboard() {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &QtClipboard::Forget);
}

// A picture that cannot be had may be one that its owner is still making.
ClipboardRead QtClipboard::ReadPicture() {
  constexpr auto kPatience = std::chrono::milliseconds(200);
  constexpr int kMostAttempts = 3;
  if (!begun_) Begin();
  while (begun_ && !refused_) {
    if (decoding_.wait_for(kPatience) != std::future_status::ready) {
      return {ClipboardAnswer::kBusy};
    }
    if (const auto picture = decoding_.get(); picture != nullptr) {
      return {ClipboardAnswer::kPicture, picture};
    }
    if (BeginNext()) continue;
    refused_ = ++attempts_ == kMostAttempts;
    begun_ = refused_;
    return {refused_ ? ClipboardAnswer::kUnreadable : ClipboardAnswer::kBusy};
  }
  return {};
}

void QtClipboard::Empty() {
  Forget();
  QGuiApplication::clipboard()->clear();
}

void QtClipboard::PutText(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

void QtClipboard::Forget() {
  begun_ = false;
  refused_ = false;
  attempts_ = 0;
}

// What the clipboard's owner offers as a file is decoded on another thread; names of formats that
// Qt does not know may stand for ones that it can read.
void QtClipboard::Begin() {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  formats_.clear();
  if (content != nullptr) {
    formats_ = content->formats().filter(QRegularExpression(QStringLiteral("^image/")));
    std::stable_partition(formats_.begin(), formats_.end(), [](const QString& format) {
      return format == QLatin1String("image/png");
    });
    if (content->hasImage()) formats_.append(kMadeByQt);
  }
  formats_.append(kMadeBySystem);
  begun_ = BeginNext();
}

// False when nothing is left to be tried.
bool QtClipboard::BeginNext() {
  if (formats_.isEmpty()) return false;
  const QString format = formats_.takeFirst();
  if (format == kMadeBySystem) {
    const std::string bytes = ClipboardAsBmpFile();
    if (!bytes.empty()) BeginDecoding(QByteArray::fromStdString(bytes));
    return !bytes.empty();
  }
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  if (content == nullptr) return false;
  if (format != kMadeByQt) {
    BeginDecoding(content->data(format));
    return true;
  }
  const auto image = qvariant_cast<QImage>(content->imageData());
  decoding_ = BeginBeside<Decoded>(
      [image] { return image.isNull() ? nullptr : std::make_shared<const QtPicture>(image); });
  return true;
}

void QtClipboard::BeginDecoding(const QByteArray& bytes) {
  decoding_ = BeginBeside<Decoded>([bytes]() -> Decoded {
    const QImage image =
        DecodePicture({bytes.data(), static_cast<std::size_t>(bytes.size())}).image;
    return image.isNull() ? nullptr : std::make_shared<const QtPicture>(image);
  });
}

}  // namespace vellumark
