#include "platform/qt/picture_reading.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QSemaphore>

namespace vellumark {
namespace {

constexpr int kLongestSide = 32767;
constexpr int kMostMegabytes = 1024;

constexpr std::int64_t kBytesInPixel = 4;
constexpr std::int64_t kMegabyte = 1 << 20;

std::int64_t Pixels(QSize size) { return std::int64_t{size.width()} * size.height(); }

PictureFault FaultOfSize(QSize size) {
  const bool too_large = size.width() > kLongestSide || size.height() > kLongestSide ||
                         kBytesInPixel * Pixels(size) > kMostMegabytes * kMegabyte;
  return too_large ? PictureFault::kTooLarge : PictureFault::kNone;
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

// `check` tells by the size that the file claims whether to decode it.
template <typename Check>
DecodedPicture Decode(std::string_view bytes, QSize most, const Check& check) {
  [[maybe_unused]] static const bool limited = [] {
    QImageReader::setAllocationLimit(kMostMegabytes);
    return true;
  }();
  QByteArray content = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&content);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  // Readers of other formats may unpack much before they know a size.
  if (!PictureFormatNames().contains(reader.format())) return {{}, PictureFault::kNotAPicture};
  const QSize size = reader.size();
  if (size.isValid()) {
    const PictureFault fault = check(size);
    if (fault != PictureFault::kNone) return {{}, fault};
  }
  const bool too_wide = !most.isEmpty() && size.isValid() && size.boundedTo(most) != size;
  if (too_wide) reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));

  QImage image = reader.read();
  if (image.isNull()) return {{}, FaultOf(reader.error())};
  const QSize whole_size = size.isValid() ? size : image.size();
  return {std::move(image), PictureFault::kNone, whole_size};
}

}  // namespace

const QList<QByteArray>& PictureFormatNames() {
  static const QList<QByteArray> names = {"jpg", "jpeg", "png", "bmp", "webp"};
  return names;
}

DecodedPicture DecodePicture(std::string_view bytes, QSize most) {
  return Decode(bytes, most, FaultOfSize);
}

DecodedPicture DecodeSmallPicture(std::string_view bytes, QSize most) {
  constexpr int kMostSmallMegabytes = 128;
  // Large pictures are decoded one after the other, however many threads ask.
  static QSemaphore megabytes(kMostSmallMegabytes);
  std::optional<QSemaphoreReleaser> taken;
  const auto fault_of = [&](QSize size) {
    constexpr std::int64_t kAlwaysTaken = 1 << 20;
    // A picture of a single colour: no format that is common for screen-shots says more with a
    // byte.
    constexpr std::int64_t kMostPixelsInByte = 1024;
    const std::int64_t pixels = Pixels(size);
    if (kBytesInPixel * pixels > kMostSmallMegabytes * kMegabyte) {
      return PictureFault::kTooLargeForSmall;
    }
    if (pixels > kAlwaysTaken && pixels / kMostPixelsInByte > std::int64_t(bytes.size())) {
      return PictureFault::kNotCredible;
    }
    const auto needed = static_cast<int>(kBytesInPixel * pixels / kMegabyte);
    megabytes.acquire(needed);
    taken.emplace(megabytes, needed);
    return FaultOfSize(size);
  };
  return Decode(bytes, most, fault_of);
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
