// The queue of small pictures over a disk of its own, without a window.
#include "ui/picture_queue.h"

#include <QBuffer>
#include <QImage>
#include <QtTest>
#include <memory>

#include "support/test_world.h"
#include "ui/window_fixture.h"

namespace vellumark {
namespace {

constexpr QSize kMost(32, 24);

// A picture of which only the head is there: as many pixels as it says, and no data.
std::string ClaimedPng(int width, int height) {
  const auto number = [](int value) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>((value >> shift) & 0xFF);
    return bytes;
  };
  QImage image(1, 1, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray png;
  QBuffer buffer(&png);
  image.save(&buffer, "PNG");
  std::string bytes = png.toStdString();
  constexpr std::size_t kHead = 12;  // of the chunk that holds the size, its name first
  bytes.replace(kHead + 4, 8, number(width) + number(height));
  std::uint32_t sum = 0xFFFFFFFF;
  for (std::size_t i = kHead; i < kHead + 17; ++i) {
    sum ^= static_cast<unsigned char>(bytes[i]);
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
  }
  return bytes.replace(kHead + 17, 4, number(static_cast<int>(~sum)));
}

}  // namespace

class PictureQueueTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void ReadsInTheOrderAskedForAndDropsWhatIsAskedForNoMore();
  void ReadsAChangedFileAnew();
  void ForgetsWhatIsStillBeingRead();
  void TellsWhyThereIsNoPicture();
  void DecodesNoSizeThatTheFileHasNotTheBytesFor();
  void ReadsBesideTheCallersThreadWhereTheDiskCan();
  void KeepsNoMoreThanThereIsRoomFor();

 private:
  static std::string Path(int number) {
    return "T:\\Archive\\shot" + std::to_string(number) + ".jpg";
  }
  void Write(int number, const std::string& bytes) const {
    world_->disk.Write("Archive/shot" + std::to_string(number) + ".jpg", bytes);
  }
  const SmallPicture* Wait(int number) const {
    static_cast<void>(QTest::qWaitFor([&] { return queue_->Find(Path(number)) != nullptr; }));
    return queue_->Find(Path(number));
  }
  bool IsRed(int number) const { return Wait(number)->image.pixelColor(5, 5).blue() < 60; }

  std::unique_ptr<testing::TestWorld> world_;
  std::unique_ptr<PictureQueue> queue_;
};

void PictureQueueTest::init() {
  world_ = std::make_unique<testing::TestWorld>();
  for (int i = 0; i < 40; ++i) Write(i, Jpeg(Qt::red));
  queue_ = std::make_unique<PictureQueue>(world_->files);
}

void PictureQueueTest::cleanup() {
  queue_.reset();
  world_.reset();
}

void PictureQueueTest::ReadsInTheOrderAskedForAndDropsWhatIsAskedForNoMore() {
  std::vector<std::string> paths;
  for (int i = 39; i >= 0; --i) paths.push_back(Path(i));
  queue_->Ask(paths, kMost);
  const int begun = world_->files.calls();
  QVERIFY2(begun > 0 && begun < 40, "only what the threads can work on");

  // Scrolled on: three others are in sight, and what has not begun is not read at all.
  queue_->Ask({Path(2), Path(1), Path(0)}, kMost);
  QCOMPARE(queue_->Waiting(), std::size_t{3});
  QTRY_VERIFY(queue_->Find(Path(0)) != nullptr);
  QCOMPARE(world_->files.calls(), begun + 3);
  QVERIFY(queue_->Find(Path(39)) != nullptr);
  QVERIFY(queue_->Find(Path(20)) == nullptr);
  QVERIFY(queue_->Find(Path(39))->image.size().boundedTo(kMost) ==
          queue_->Find(Path(39))->image.size());

  // What is there is not read again, but for another size.
  queue_->Ask({Path(0), Path(1)}, kMost);
  QTest::qWait(20);
  QCOMPARE(world_->files.calls(), begun + 3);
  queue_->Ask({Path(0)}, 2 * kMost);
  QTRY_COMPARE(queue_->Find(Path(0))->image.size(), 2 * kMost);

  // What went out of sight while it was read is not read in the new size.
  queue_->Forget();
  queue_->Ask(paths, kMost);
  const int begun_again = world_->files.calls();
  queue_->Ask({Path(0)}, 3 * kMost);
  QTRY_VERIFY(queue_->Find(Path(0)) != nullptr);
  QTest::qWait(20);
  QCOMPARE(world_->files.calls(), begun_again + 1);
}

void PictureQueueTest::ReadsAChangedFileAnew() {
  queue_->Ask({Path(0)}, kMost);
  QVERIFY(IsRed(0));
  Write(0, Jpeg(Qt::blue));
  queue_->Renew(Path(0));
  QVERIFY2(IsRed(0), "the old picture stands until the new one comes");
  queue_->Ask({Path(0)}, kMost);
  QTRY_VERIFY(!IsRed(0));

  // The change comes while the file is being decoded.
  queue_->Renew(Path(0));
  queue_->Ask({Path(0)}, kMost);
  Write(0, Jpeg(Qt::red));
  queue_->Renew(Path(0));
  QTRY_VERIFY(IsRed(0));
}

void PictureQueueTest::ForgetsWhatIsStillBeingRead() {
  queue_->Ask({Path(0), Path(1)}, kMost);
  queue_->Forget();
  QTest::qWait(50);
  QVERIFY(queue_->Find(Path(0)) == nullptr);
  queue_->Ask({Path(0)}, kMost);
  QVERIFY(IsRed(0));
}

void PictureQueueTest::TellsWhyThereIsNoPicture() {
  Write(1, "no picture at all");
  Write(2, Jpeg(Qt::red).substr(0, 100));
  world_->files.FailAlways("Read", "shot3.jpg", FileError::kAccessDenied);
  Write(5, "P6 1 1 255\nrgb");  // of a format that is not taken
  queue_->Ask({Path(1), Path(2), Path(3), Path(77), Path(4), Path(5)}, kMost);
  QCOMPARE(Wait(1)->fault, std::string("it is no picture"));
  QVERIFY(Wait(2)->image.isNull() && !Wait(2)->fault.empty());
  QCOMPARE(Wait(3)->fault, std::string("it is read-only, or access is denied"));
  QVERIFY(!Wait(77)->exists && Wait(77)->fault.empty());
  QVERIFY2(IsRed(4), "the others are shown");
  QCOMPARE(Wait(5)->fault, std::string("it is no picture"));
}

void PictureQueueTest::DecodesNoSizeThatTheFileHasNotTheBytesFor() {
  Write(1, ClaimedPng(5000, 5000));
  Write(2, ClaimedPng(30000, 30000));
  Write(3, ClaimedPng(900, 900));
  queue_->Ask({Path(1), Path(2), Path(3)}, kMost);
  QCOMPARE(Wait(1)->fault,
           std::string("its file is too short for the size that it claims to have"));
  QCOMPARE(Wait(2)->fault, std::string("it is too large to be shown among the others"));
  QVERIFY(Wait(3) != nullptr);
}

void PictureQueueTest::ReadsBesideTheCallersThreadWhereTheDiskCan() {
  PictureQueue beside(world_->drives.files());
  std::vector<std::string> paths;
  for (int i = 0; i < 40; ++i) paths.push_back(Path(i));
  beside.Ask(paths, kMost);
  QTRY_VERIFY(std::ranges::all_of(paths, [&](const std::string& path) {
    return beside.Find(path) != nullptr && !beside.Find(path)->image.isNull();
  }));
}

void PictureQueueTest::KeepsNoMoreThanThereIsRoomFor() {
  QImage large(1600, 1200, QImage::Format_RGB32);
  large.fill(Qt::red);
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  large.save(&buffer, "JPEG");
  for (int i = 0; i < 8; ++i) Write(i, jpeg.toStdString());
  constexpr std::int64_t kOne = 1600 * 1200 * 4;
  for (int i = 0; i < 8; ++i) {
    queue_->Ask({Path(i)}, {1600, 1200});
    QVERIFY(Wait(i) != nullptr);
    QVERIFY(queue_->KeptBytes() <= 24 << 20);
  }
  QVERIFY(queue_->KeptBytes() >= kOne);
  QVERIFY2(queue_->Find(Path(0)) == nullptr, "the oldest goes first");
  QVERIFY(queue_->Find(Path(7)) != nullptr);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::PictureQueueTest)
#include "picture_queue_test.moc"
