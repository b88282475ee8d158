#include "platform/qt/qt_clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace vellumark {
namespace {

// Of 100. Fine detail of a game's picture survives, at a fifth of a PNG's size.
constexpr int kJpegQuality = 92;

}  // namespace

std::optional<std::string> QtPicture::ToJpeg() const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image_.save(&buffer, "JPG", kJpegQuality)) {
    return std::nullopt;
  }
  return bytes.toStdString();
}

ClipboardRead QtClipboard::ReadPicture() {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  if (content == nullptr || !content->hasImage()) return {};
  QImage image = qvariant_cast<QImage>(content->imageData());
  if (image.isNull()) return {};
  return {ClipboardAnswer::kPicture, std::make_shared<QtPicture>(std::move(image))};
}

void QtClipboard::Empty() { QGuiApplication::clipboard()->clear(); }

}  // namespace vellumark
