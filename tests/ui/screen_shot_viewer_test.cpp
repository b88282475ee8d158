// The viewer over the real main window.
#include "ui/screen_shot_viewer.h"

#include <QLabel>
#include <QToolButton>
#include <QWheelEvent>

#include "ui/archive_views.h"
#include "ui/window_fixture.h"
#include "ui/zoom_box.h"

namespace vellumark {

class ScreenShotViewerTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void KeysAndButtonsStepWithoutChangingTheSelection();
  void TheLineBelowCanBeHidden();
  void ThePictureZoomsAroundThePointerAndMoves();
  void EveryPixelIsThere();
  void EscapeLeavesTheWholeScreenFirst();

 private:
  void Prepare() override;
  ScreenShotViewer* Viewer() {
    Click(window_.get(), "Pul_Zoom");
    auto* viewer = Find<ScreenShotViewer>(window_.get(), "Dialog_ScreenShot");
    [&] { QVERIFY(GetsFocus(viewer)); }();
    return viewer;
  }
  ZoomBox* Box(const QWidget* viewer) const { return Find<ZoomBox>(viewer, "Image1"); }
  bool Shows(const QWidget* viewer, Qt::GlobalColor colour) const {
    const QColor seen = Box(viewer)->Picture().pixelColor(5, 5);
    const QColor wanted(colour);
    return std::abs(seen.red() - wanted.red()) < 60 && std::abs(seen.blue() - wanted.blue()) < 60;
  }
  static void MoveMouse(QWidget* box, QPoint to, Qt::MouseButtons buttons) {
    QMouseEvent move(QEvent::MouseMove, to, box->mapToGlobal(to), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QApplication::sendEvent(box, &move);
  }
  static void Wheel(QWidget* box, QPoint at, int delta) {
    QWheelEvent event(at, box->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &event);
  }
};

// One in four quarters of colour, and a line of single pixels.
std::string Quarters(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::red);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = size.width() / 2; x < size.width(); ++x) image.setPixel(x, y, qRgb(0, 0, 255));
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "PNG");
  return bytes.toStdString();
}

void ScreenShotViewerTest::Prepare() {
  for (int slot = 0; slot < 4; ++slot) world_->AddSavegame("Archive/Slot1", slot, "Tower", 7);
  world_->disk.Write("Archive/Slot1/note0.txt", "a note\r\n");
  world_->disk.Write("Archive/Slot1/shot0.jpg", Jpeg(Qt::red));
  world_->disk.Write("Archive/Slot1/shot2.jpg", Jpeg(Qt::blue));
  world_->disk.Write("Archive/Slot1/shot3.jpg", Quarters({3000, 1500}));
}

void ScreenShotViewerTest::KeysAndButtonsStepWithoutChangingTheSelection() {
  auto* viewer = Viewer();
  QVERIFY(Shows(viewer, Qt::red));
  QTest::keyClick(viewer, Qt::Key_Right);
  QVERIFY(Shows(viewer, Qt::blue) && viewer->windowTitle().isEmpty());
  QTest::keyClick(viewer, Qt::Key_Left);
  QVERIFY(Shows(viewer, Qt::red));

  auto* next = Find<QToolButton>(viewer, "Pul_Seguente");
  QVERIFY(!next->isVisible() && !next->accessibleName().isEmpty());
  MoveMouse(Box(viewer), {100, 100}, Qt::NoButton);
  QTRY_VERIFY(next->isVisible());
  QTest::mouseClick(next, Qt::LeftButton);
  QVERIFY(Shows(viewer, Qt::blue));
  QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{0});
  ExpectCaptions(viewer, WindowId::kDialogScreenShot, world_->text);
}

void ScreenShotViewerTest::TheLineBelowCanBeHidden() {
  auto* viewer = Viewer();
  auto* line = Find<QLabel>(viewer, "Label_Line");
  QCOMPARE(line->text(), QStringLiteral("7  Tower  a note"));
  QCOMPARE(Box(viewer)->accessibleName(), line->text());
  QVERIFY(Box(viewer)->height() < viewer->height() && line->isVisible());
  QTest::keyClick(viewer, Qt::Key_L);
  QVERIFY(!line->isVisible());
  QCOMPARE(Box(viewer)->size(), viewer->size());
  viewer->close();
  QTRY_COMPARE(window_->findChildren<ScreenShotViewer*>().size(), 0);
  QVERIFY2(!Viewer()->ShowsLine(), "it stays hidden");

  program_->catalogue.entries[0].NoteText = "<b>a</b> note " + std::string(500, 'x');
  QTest::keyClick(Viewer(), Qt::Key_L);
  const QString tip = Find<QLabel>(Viewer(), "Label_Line")->toolTip();
  QVERIFY2(tip.contains(QLatin1String("&lt;b&gt;a")), "a note is never taken for mark-up");
}

void ScreenShotViewerTest::ThePictureZoomsAroundThePointerAndMoves() {
  auto* viewer = Viewer();
  QTest::keyClick(viewer, Qt::Key_Right);
  QTest::keyClick(viewer, Qt::Key_Right);
  auto* box = Box(viewer);
  QTRY_COMPARE(box->WholeSize(), QSize(3000, 1500));
  const int y = box->height() / 5;  // beside the buttons
  const auto border = [box, y] {    // between red and blue
    const QImage seen = box->grab().toImage();
    int x = 0;
    while (x < seen.width() && qBlue(seen.pixel(x, y)) < 128) ++x;
    return x;
  };
  const int middle = box->width() / 2;
  QVERIFY(std::abs(border() - middle) <= 2);
  Wheel(box, {middle, y}, 120);
  QVERIFY2(std::abs(border() - middle) <= 2, "what is below the pointer stays there");
  for (int i = 0; i < 4; ++i) Wheel(box, {middle - 60, y}, 120);
  const int zoomed = border();
  QVERIFY(zoomed > middle + 30);

  QTest::mousePress(box, Qt::LeftButton, {}, {100, y});
  MoveMouse(box, {70, y}, Qt::LeftButton);
  QTest::mouseRelease(box, Qt::LeftButton, {}, {70, y});
  QVERIFY2(std::abs(border() - (zoomed - 30)) <= 2,
           qPrintable(QStringLiteral("%1 %2 %3").arg(zoomed).arg(border()).arg(box->width())));

  for (int i = 0; i < 40; ++i) Wheel(box, {10, 10}, -120);
  QTest::keyClick(viewer, Qt::Key_0);
  QVERIFY(std::abs(border() - middle) <= 2);
}

void ScreenShotViewerTest::EveryPixelIsThere() {
  auto* viewer = Viewer();
  QTest::keyClick(viewer, Qt::Key_Left);
  QTest::keyClick(viewer, Qt::Key_Right);
  QTest::keyClick(viewer, Qt::Key_Right);
  auto* box = Box(viewer);
  QTRY_COMPARE(box->WholeSize(), QSize(3000, 1500));
  QVERIFY2(box->Picture().width() < 3000, "only what the screen can show is decoded at first");
  QTest::keyClick(viewer, Qt::Key_1);
  QTRY_COMPARE(box->Picture().width(), 3000);
}

void ScreenShotViewerTest::EscapeLeavesTheWholeScreenFirst() {
  auto* viewer = Viewer();
  QTest::keyClick(viewer, Qt::Key_F11);
  QTRY_VERIFY(viewer->isFullScreen());
  QTest::keyClick(viewer, Qt::Key_Right);
  QVERIFY(viewer->isFullScreen() && Shows(viewer, Qt::blue));
  QTest::keyClick(viewer, Qt::Key_Escape);
  QTRY_VERIFY(!viewer->isFullScreen() && viewer->isVisible());
  QTest::keyClick(viewer, Qt::Key_Escape);
  QVERIFY(!program_->details.ViewerOpen);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::ScreenShotViewerTest)
#include "screen_shot_viewer_test.moc"
