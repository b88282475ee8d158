#include "platform/qt/qt_clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>

#include "platform/desktop_services.h"

namespace vellumark {
namespace {

QImage OnBlack(const QImage& image) {
  QImage opaque(image.size(), QImage::Format_RGB32);
  opaque.fill(Qt::black);
  QPainter(&opaque).drawImage(opaque.rect(), image);
  return opaque;
}

// Asks the clipboard's owner for a picture only when it has said that it offers one.
QImage ReadImage(const QMimeData& content) {
  if (content.hasImage()) {
    auto image = qvariant_cast<QImage>(content.imageData());
    if (!image.isNull()) return image;
  }
  // Names of picture formats that Qt does not know by name may stand for ones that it can read.
  const QStringList formats = content.formats();
  for (const QString& format : formats) {
    if (!format.startsWith(QLatin1String("image/"))) continue;
    QImage image = QImage::fromData(content.data(format));
    if (!image.isNull()) return image;
  }
  return QImage::fromData(QByteArray::fromStdString(ClipboardAsBmpFile()), "BMP");
}

}  // namespace

std::optional<std::string> QtPicture::ToJpeg() const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  const QImage opaque = image_.hasAlphaChannel() ? OnBlack(image_) : image_;
  if (!buffer.open(QIODevice::WriteOnly) || !opaque.save(&buffer, "JPG", kJpegQuality)) {
    return std::nullopt;
  }
  return bytes.toStdString();
}

ClipboardRead QtClipboard::ReadPicture() {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  if (content == nullptr) return {};
  QImage image = ReadImage(*content);
  if (image.isNull()) return {};
  return {ClipboardAnswer::kPicture, std::make_shared<QtPicture>(std::move(image))};
}

void QtClipboard::Empty() { QGuiApplication::clipboard()->clear(); }

}  // namespace vellumark
