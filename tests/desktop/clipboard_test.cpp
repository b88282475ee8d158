// Pictures that another process has put on the clipboard.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>
#include <string>

#include "desktop/offer_content.h"
#include "desktop/pictures.h"
#include "desktop/test_window.h"
#include "platform/qt/qt_clipboard.h"
#include "support/temporary_folder.h"

namespace vellumark::testing {
namespace {

// Another process that owns the clipboard, until it is told to end.
class Offering {
 public:
  Offering(const QString& format, const QByteArray& bytes) {
    folder_.Write("content", bytes.toStdString());
    const QString file = QString::fromStdString((folder_.path() / "content").string());
    process_.start(QCoreApplication::applicationFilePath(), {kOfferOption, format, file});
    EXPECT_TRUE(process_.waitForReadyRead());
    EXPECT_TRUE(Becomes([&] {
      QCoreApplication::processEvents();
      return QGuiApplication::clipboard()->mimeData()->formats().contains(format);
    }));
  }
  ~Offering() {
    process_.closeWriteChannel();
    process_.waitForFinished();
  }

  // Each format that the process was asked to hand over, one a line.
  QByteArray Asked() {
    process_.waitForReadyRead(100);
    return process_.readAllStandardOutput();
  }

 private:
  TemporaryFolder folder_;
  QProcess process_;
};

QByteArray Encoded(const QImage& picture, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(picture.save(&buffer, format));
  return buffer.data();
}

TEST(Clipboard, GivesAPictureOfEachKind) {
  // Large enough that it is handed over in parts.
  const QImage picture = NoisyScene({1280, 800});
  struct Kind {
    const char* mime_type;
    const char* format;
  };
  for (const auto& [mime_type, format] :
       {Kind{"image/png", "PNG"}, Kind{"image/bmp", "BMP"}, Kind{"image/x-win-bitmap", "BMP"}}) {
    const Offering other(QLatin1String(mime_type), Encoded(picture, format));
    const ClipboardRead read = QtClipboard().ReadPicture();
    ASSERT_EQ(read.answer, ClipboardAnswer::kPicture) << mime_type;
    const auto* taken = dynamic_cast<const QtPicture*>(read.picture.get());
    ASSERT_NE(taken, nullptr);
    EXPECT_EQ(taken->Image().convertToFormat(picture.format()), picture) << mime_type;
  }
}

TEST(Clipboard, AsksForNothingThatIsNoPicture) {
  Offering other(QStringLiteral("text/plain"), "words");
  other.Asked();
  EXPECT_EQ(QtClipboard().ReadPicture().answer, ClipboardAnswer::kNoPicture);
  EXPECT_EQ(other.Asked(), "");
}

TEST(Clipboard, SurvivesAPictureThatIsNone) {
  const Offering other(QStringLiteral("image/png"), "no picture at all");
  EXPECT_EQ(QtClipboard().ReadPicture().answer, ClipboardAnswer::kNoPicture);
}

TEST(Clipboard, IsEmptiedForEveryProgram) {
  const Offering other(QStringLiteral("image/png"), Encoded(NoisyScene({64, 48}), "PNG"));
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
