// Decoding and encoding pictures. They come from anywhere: what a file says of itself costs neither
// time nor memory beyond the limits here.
#ifndef VELLUMARK_PLATFORM_QT_PICTURE_READING_H_
#define VELLUMARK_PLATFORM_QT_PICTURE_READING_H_

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>
#include <optional>
#include <string>
#include <string_view>

namespace vellumark {

// Of 100: a 4K screen-shot full of detail and noise keeps more than 35 dB, at a fraction of a
// PNG's size.
inline constexpr int kJpegQuality = 92;

enum class PictureFault {
  kNone,
  kNotAPicture,
  kDamaged,
  kTooLarge,          // more than 32,767 pixels a side or 1 GiB decoded
  kTooLargeForSmall,  // more than a small picture is made of
  kNotCredible,       // a size that the file has not the bytes for
};

struct DecodedPicture {
  QImage image;  // null on a fault
  PictureFault fault = PictureFault::kNone;
  QSize whole_size{};  // in the file, before it was scaled down
};

// The formats that are decoded, by their names, which are also the endings of their files.
const QList<QByteArray>& PictureFormatNames();

// Decodes the bytes of a picture file. One that is larger than `most` is scaled down to fit, while
// it is decoded where its format can; an empty `most` takes it as it is.
DecodedPicture DecodePicture(std::string_view bytes, QSize most = {});

// The same for a small picture, one of many that are decoded at once: refuses what takes more than
// 128 MiB decoded, and a size of more than a megapixel that the file has not the bytes for.
DecodedPicture DecodeSmallPicture(std::string_view bytes, QSize most);

// The bytes of a JPEG file; nothing when the picture is null. What is transparent becomes black.
std::optional<std::string> EncodeJpeg(const QImage& image);

// A picture file's bytes as those of a JPEG file: the same where it is one, nothing where they are
// no picture.
std::optional<std::string> AsJpegFile(const std::string& bytes);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_PICTURE_READING_H_
