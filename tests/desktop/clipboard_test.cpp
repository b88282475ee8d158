// Pictures on the clipboard, and what is saved of them.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "desktop/pictures.h"
#include "platform/qt/picture_reading.h"
#include "platform/qt/qt_clipboard.h"

namespace vellumark::testing {
namespace {

// What a program has put on the clipboard, until someone asks for it.
class Content : public QMimeData {
 public:
  Content(QString format, QByteArray bytes)
      : format_(std::move(format)), bytes_(std::move(bytes)) {}

  QStringList formats() const override { return {format_}; }
  bool hasFormat(const QString& format) const override { return format == format_; }

  mutable int asked = 0;

 protected:
  QVariant retrieveData(const QString& /*format*/, QMetaType /*type*/) const override {
    ++asked;
    return bytes_;
  }

 private:
  QString format_;
  QByteArray bytes_;
};

const Content& Offer(const QString& format, const QByteArray& bytes) {
  auto content = std::make_unique<Content>(format, bytes);
  const Content& offered = *content;
  QGuiApplication::clipboard()->setMimeData(content.release());
  return offered;
}

QByteArray Encoded(const QImage& picture, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(picture.save(&buffer, format));
  return buffer.data();
}

ClipboardRead ReadWhenIdle(QtClipboard& clipboard) {
  ClipboardRead read;
  do {
    read = clipboard.ReadPicture();
  } while (read.answer == ClipboardAnswer::kBusy);
  return read;
}

TEST(Clipboard, GivesAPictureOfEachKind) {
  const QImage picture = NoisyScene({64, 48});
  struct Kind {
    const char* mime_type;
    const char* format;
  };
  for (const auto& [mime_type, format] :
       {Kind{"image/png", "PNG"}, Kind{"image/bmp", "BMP"}, Kind{"image/x-win-bitmap", "BMP"}}) {
    Offer(QLatin1String(mime_type), Encoded(picture, format));
    QtClipboard clipboard;
    const ClipboardRead read = ReadWhenIdle(clipboard);
    ASSERT_EQ(read.answer, ClipboardAnswer::kPicture) << mime_type;
    const auto* taken = dynamic_cast<const QtPicture*>(read.picture.get());
    ASSERT_NE(taken, nullptr);
    EXPECT_EQ(taken->Preview().convertToFormat(picture.format()), picture) << mime_type;
  }
}

TEST(Clipboard, AsksForNothingThatIsNoPicture) {
  const Content& words = Offer(QStringLiteral("text/plain"), "words");
  EXPECT_EQ(QtClipboard().ReadPicture().answer, ClipboardAnswer::kNoPicture);
  EXPECT_EQ(words.asked, 0);
}

TEST(Clipboard, SaysOnceThatAPictureIsNone) {
  QtClipboard clipboard;
  const Content& none = Offer(QStringLiteral("image/png"), "no picture at all");
  EXPECT_EQ(ReadWhenIdle(clipboard).answer, ClipboardAnswer::kUnreadable);
  const int asked = none.asked;
  EXPECT_EQ(ReadWhenIdle(clipboard).answer, ClipboardAnswer::kNoPicture);
  EXPECT_EQ(none.asked, asked);

  Offer(QStringLiteral("image/png"), Encoded(NoisyScene({64, 48}), "PNG"));
  EXPECT_EQ(ReadWhenIdle(clipboard).answer, ClipboardAnswer::kPicture);
}

// More than the windows' library takes by itself.
TEST(Clipboard, GivesThePictureOfSeveralLargeScreens) {
  QImage screens(12000, 6000, QImage::Format_RGB32);
  screens.fill(Qt::darkCyan);
  Offer(QStringLiteral("image/png"), Encoded(screens, "PNG"));
  QtClipboard clipboard;
  const ClipboardRead read = ReadWhenIdle(clipboard);
  ASSERT_EQ(read.answer, ClipboardAnswer::kPicture);
  const auto jpeg = read.picture->ToJpeg();
  EXPECT_EQ(AsJpegFile(jpeg.value_or("")), jpeg);
  EXPECT_EQ(DecodePicture(jpeg.value_or(""), {100, 100}).image.size(), QSize(100, 50));
}

TEST(Picture, ThatSaysItIsEnormousCostsNothing) {
  std::string jpeg = Encoded(QImage(8, 8, QImage::Format_RGB32), "JPG").toStdString();
  jpeg.replace(jpeg.find("\xFF\xC0") + 5, 4, "\x7F\xF0\x7F\xF0");
  EXPECT_EQ(DecodePicture(jpeg).fault, PictureFault::kTooLarge);
  EXPECT_EQ(DecodePicture("words").fault, PictureFault::kNotAPicture);
}

TEST(Clipboard, IsEmptied) {
  Offer(QStringLiteral("image/png"), Encoded(NoisyScene({64, 48}), "PNG"));
  QtClipboard().Empty();
  EXPECT_EQ(QtClipboard().ReadPicture().answer, ClipboardAnswer::kNoPicture);
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->formats().isEmpty());
}

// What a picture is after it has been a JPEG.
QImage ThroughJpeg(const QImage& picture) {
  const auto bytes = QtPicture(picture).ToJpeg();
  EXPECT_TRUE(bytes.has_value());
  return QImage::fromData(QByteArray::fromStdString(bytes.value_or("")), "JPG");
}

TEST(Picture, KeepsItsDetailAsJpeg) {
  // A quarter of a 4K screen, at which a block of the encoder sees more detail than at the whole.
  const QImage picture = NoisyScene({1920, 1080});
  const QImage decoded = ThroughJpeg(picture);
  ASSERT_EQ(decoded.size(), picture.size());
  EXPECT_GE(SignalToNoise(picture, decoded), 35.0);
}

TEST(Picture, IsBlackWhereItIsTransparent) {
  QImage picture(64, 64, QImage::Format_ARGB32);
  picture.fill(qRgba(255, 255, 255, 0));
  EXPECT_EQ(ThroughJpeg(picture).pixel(32, 32), qRgb(0, 0, 0));
}

TEST(Picture, IsNothingWhenItCannotBeEncoded) {
  EXPECT_FALSE(QtPicture(QImage()).ToJpeg().has_value());
}

}  // namespace
}  // namespace vellumark::testing
