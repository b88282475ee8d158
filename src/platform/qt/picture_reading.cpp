#include "platform/qt/picture_reading.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace vellumark {
namespace {

constexpr int kLongestSide = 32767;
constexpr int kMostMegabytes = 1024;

bool IsTooLarge(QSize size) {
  constexpr std::int64_t kBytesInPixel = 4;
  constexpr std::int64_t kMegabyte = 1 << 20;
  return size.width() > kLongestSide || size.height() > kLongestSide ||
         kBytesInPixel * size.width() * size.height() > kMostMegabytes * kMegabyte;
}

PictureFault FaultOf(QImageReader::ImageReaderError error) {
  return error == QImageReader::UnsupportedFormatError ? PictureFault::kNotAPicture
                                                       : PictureFault::kDamaged;
}

QImage OnBlack(const QImage& image) {
  QImage opaque(image.size(), QImage::Format_RGB32);
  opaque.fill(Qt::black);
  QPainter(&opaque).drawImage(opaque.rect(), image);
  return opaque;
}

}  // namespace

DecodedPicture DecodePicture(std::string_view bytes, QSize most) {
  [[maybe_unused]] static const bool limited = [] {
    QImageReader::setAllocationLimit(kMostMegabytes);
    return true;
  }();
  QByteArray content = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&content);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  const QSize size = reader.size();
  if (size.isValid() && IsTooLarge(size)) return {{}, PictureFault::kTooLarge};
  const bool too_wide = !most.isEmpty() && size.isValid() && size.boundedTo(most) != size;
  if (too_wide) reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));

  QImage image = reader.read();
  if (image.isNull()) return {{}, FaultOf(reader.error())};
  return {std::move(image)};
}

std::optional<std::string> EncodeJpeg(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  const QImage opaque = image.hasAlphaChannel() ? OnBlack(image) : image;
  if (!buffer.open(QIODevice::WriteOnly) || !opaque.save(&buffer, "JPG", kJpegQuality)) {
    return std::nullopt;
  }
  return bytes.toStdString();
}

std::optional<std::string> AsJpegFile(const std::string& bytes) {
  constexpr QSize kEnoughToSeeThatItDecodes(640, 480);
  const bool is_jpeg = bytes.starts_with("\xFF\xD8\xFF");
  const DecodedPicture decoded =
      DecodePicture(bytes, is_jpeg ? kEnoughToSeeThatItDecodes : QSize());
  if (decoded.image.isNull()) return std::nullopt;
  return is_jpeg ? bytes : EncodeJpeg(decoded.image);
}

}  // namespace vellumark
