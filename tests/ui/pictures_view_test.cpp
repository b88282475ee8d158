// The pictures of the archive in the main window, over a disk of their own.
#include "ui/pictures_view.h"

#include <QAccessible>
#include <QAction>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "ui/picture_queue.h"
#include "ui/plain_tip.h"
#include "ui/savegame_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

class PicturesViewTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void AScreenReaderHearsWhatATileShows();
  void KeysGoThroughTheTilesAsThroughFiles();
  void TheRubberBandSelectsWhatItTouches();
  void TheRubberBandScrollsOn();
  void ClicksSelectAsInTheList();
  void AnotherSizeKeepsWhatIsInSight();
  void ALevelIsReachedFromTheMenuInEitherView();
  void TheTipHasTheNoteAndWhatIsWrongWithThePicture();
  void AChangedPictureIsReadAnew();
  void WindowsOfAnySizeAndLookShowTheTiles();
  void WhatIsSelectedShowsWithoutTheFocusToo();

 private:
  void Prepare() override;
  PicturesView* Pictures() const { return Find<PicturesView>(window_.get(), "Pictures1"); }
  QRect TileOf(int index) const {
    return Pictures()->visualRect(Pictures()->model()->index(index, 0));
  }
  void Show() {
    window_->resize(1000, 700);
    Find<QAction>(window_.get(), "mnu_ViewPictures")->trigger();
    QTRY_VERIFY(Pictures()->hasFocus());
  }
  std::vector<int> Selected() const { return window_->SelectedLines(); }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {}) const;
  QString TipAt(int index) const;
  // The colour in the middle of a tile's picture, as it is painted.
  QColor ColourOf(int index) const {
    const QRect tile = TileOf(index);
    return Pictures()->viewport()->grab().toImage().pixelColor(tile.center().x(),
                                                               tile.top() + tile.height() / 3);
  }
};

// Two levels of seven savegames each, and one in the game folder, which the start imports.
void PicturesViewTest::Prepare() {
  for (int i = 0; i < 14; ++i) {
    const auto counter = static_cast<std::int16_t>(10 + i);
    world_->AddSavegame("Archive/Slot1", i, i < 7 ? "Angkor Wat" : "The Tomb Of Seth", counter);
  }
  world_->AddSavegame("Game", 4, "", 41);
  world_->disk.Write("Archive/Slot1/shot0.jpg", Jpeg(Qt::red));
  world_->disk.Write("Archive/Slot1/shot1.jpg", "no picture at all");
  world_->disk.Write("Archive/Slot1/note0.txt", "first\x8D\nsecond <b>\r\n");
  std::string note;
  for (int i = 1; i <= 12; ++i) note += "line " + std::to_string(i) + "\x8D\n";
  world_->disk.Write("Archive/Slot1/note1.txt", note + "\r\n");
}

void PicturesViewTest::Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers) const {
  QWidget* viewport = Pictures()->viewport();
  QTest::mousePress(viewport, Qt::LeftButton, modifiers, from);
  for (const QPoint at : {(from + to) / 2, to}) {
    QMouseEvent move(QEvent::MouseMove, at, viewport->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     modifiers);
    QCoreApplication::sendEvent(viewport, &move);
  }
}

QString PicturesViewTest::TipAt(int index) const {
  const QPoint at = TileOf(index).center();
  QHelpEvent help(QEvent::ToolTip, at, Pictures()->viewport()->mapToGlobal(at));
  QCoreApplication::sendEvent(Pictures()->viewport(), &help);
  return QToolTip::text();
}

void PicturesViewTest::AScreenReaderHearsWhatATileShows() {
  Show();
  auto* view = QAccessible::queryAccessibleInterface(Pictures());
  QVERIFY(view != nullptr);
  QCOMPARE(view->role(), QAccessible::List);
  QCOMPARE(view->childCount(), 16);
  const auto tile = [view](int index) { return view->child(index); };
  QCOMPARE(tile(0)->role(), QAccessible::ListItem);
  QCOMPARE(tile(0)->text(QAccessible::Name),
           QStringLiteral("10, Angkor Wat, with screen-shot, note: first\nsecond <b>"));
  QCOMPARE(tile(2)->text(QAccessible::Name), QStringLiteral("12, Angkor Wat, no screen-shot"));
  QCOMPARE(tile(15)->text(QAccessible::Name),
           QStringLiteral("41, No level name, in the Tomb Raider folder, no screen-shot"));
  QVERIFY(tile(0)->state().selected && tile(0)->state().focused);
  QVERIFY(!tile(1)->state().selected && tile(1)->state().selectable);
  QVERIFY(tile(15)->state().invisible && !tile(0)->state().invisible);
  QCOMPARE(tile(1)->rect().topLeft(), Pictures()->viewport()->mapToGlobal(TileOf(1).topLeft()));
  QCOMPARE(view->childAt(tile(1)->rect().center().x(), tile(1)->rect().center().y()), tile(1));
  QCOMPARE(view->indexOfChild(tile(3)), 3);
  QCOMPARE(tile(3)->parent(), view);

  QTest::keyClick(Pictures(), Qt::Key_Right);
  QCOMPARE(view->focusChild(), tile(1));
}

void PicturesViewTest::KeysGoThroughTheTilesAsThroughFiles() {
  Show();
  const auto after = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Pictures(), key, modifiers);
    return Selected();
  };
  int columns = 1;
  while (TileOf(columns).top() == TileOf(0).top()) ++columns;
  QVERIFY(columns > 1 && columns < 7);
  QCOMPARE(after(Qt::Key_Down), std::vector<int>{columns});
  QCOMPARE(after(Qt::Key_Up), std::vector<int>{0});
  QCOMPARE(after(Qt::Key_End), std::vector<int>{15});
  QVERIFY(Pictures()->viewport()->rect().contains(TileOf(15)));
  QCOMPARE(after(Qt::Key_Home), std::vector<int>{0});
  QCOMPARE(Pictures()->verticalScrollBar()->value(), 0);
  QCOMPARE(after(Qt::Key_Right, Qt::ShiftModifier), (std::vector<int>{0, 1}));
  QCOMPARE(after(Qt::Key_Right, Qt::ControlModifier), (std::vector<int>{0, 1}));
  QCOMPARE(after(Qt::Key_Space, Qt::ControlModifier), (std::vector<int>{0, 1, 2}));
  QCOMPARE(after(Qt::Key_A, Qt::ControlModifier).size(), std::size_t{16});
  QCOMPARE(after(Qt::Key_Home), std::vector<int>{0});

  const std::vector<int> page = after(Qt::Key_PageDown);
  QVERIFY2(page.front() > columns && page.front() < 15, "more than a row, less than all");
  QVERIFY(Pictures()->viewport()->rect().contains(TileOf(page.front())));
  QCOMPARE(after(Qt::Key_PageUp), std::vector<int>{0});

  QTest::keyClicks(Pictures(), "the t");
  QCOMPARE(Selected(), std::vector<int>{7});
  QVERIFY(Pictures()->viewport()->rect().contains(TileOf(7)));
}

void PicturesViewTest::TheRubberBandSelectsWhatItTouches() {
  Show();
  const QPoint corner = Pictures()->viewport()->rect().topLeft() + QPoint(2, 2);
  QWidget* viewport = Pictures()->viewport();
  // From blank ground, and to blank ground: between two tiles.
  const QPoint gap(TileOf(1).right() + 1, TileOf(0).center().y());
  QVERIFY(!Pictures()->indexAt(corner).isValid() && !Pictures()->indexAt(gap).isValid());
  Drag(corner, gap);
  QCOMPARE(Selected(), (std::vector<int>{0, 1}));
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, gap);
  const QPoint above(gap.x(), TileOf(0).top() - 2);
  Drag(corner, above);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, above);
  QVERIFY2(Selected().empty(), "a heading is no savegame");

  Drag(corner, TileOf(0).center());
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, TileOf(0).center());
  QCOMPARE(Selected(), std::vector<int>{0});
  Drag(gap, TileOf(1).center(), Qt::ShiftModifier);
  QTest::mouseRelease(viewport, Qt::LeftButton, Qt::ShiftModifier, TileOf(1).center());
  QCOMPARE(Selected(), (std::vector<int>{0, 1}));
  Drag(corner, gap, Qt::ControlModifier);
  QTest::mouseRelease(viewport, Qt::LeftButton, Qt::ControlModifier, gap);
  QVERIFY2(Selected().empty(), "together with Ctrl it turns round what it touches");
  QCOMPARE(program_->selection.Count(), std::int16_t{0});
}

void PicturesViewTest::TheRubberBandScrollsOn() {
  Show();
  const QRect area = Pictures()->viewport()->rect();
  const QPoint below(area.right(), area.bottom() + 60);
  Drag(area.topLeft() + QPoint(2, 2), below);
  QTRY_COMPARE(Pictures()->verticalScrollBar()->value(),
               Pictures()->verticalScrollBar()->maximum());
  QTRY_COMPARE(Selected().size(), std::size_t{16});
  QTest::mouseRelease(Pictures()->viewport(), Qt::LeftButton, {}, below);
  const int end = Pictures()->verticalScrollBar()->value();
  QTest::qWait(100);
  QCOMPARE(Pictures()->verticalScrollBar()->value(), end);
  QCOMPARE(program_->selection.Count(), std::int16_t{16});
}

void PicturesViewTest::ClicksSelectAsInTheList() {
  Show();
  const auto click = [this](int index, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(Pictures()->viewport(), Qt::LeftButton, modifiers, TileOf(index).center());
    return Selected();
  };
  QCOMPARE(click(1), std::vector<int>{1});
  QCOMPARE(click(3, Qt::ShiftModifier), (std::vector<int>{1, 2, 3}));
  QCOMPARE(click(2, Qt::ControlModifier), (std::vector<int>{1, 3}));
  QCOMPARE(TextOf(window_.get(), "Text_PathSavegame"), QStringLiteral("Selected  2 savegames"));

  // The other view has the same selection.
  Find<QAction>(window_.get(), "mnu_ViewList")->trigger();
  auto* list = Find<SavegameList>(window_.get(), "List1");
  QCOMPARE(list->selectionModel()->selectedIndexes().size(), 2);
  QTest::keyClick(list, Qt::Key_End);
  Find<QAction>(window_.get(), "mnu_ViewPictures")->trigger();
  QVERIFY(Pictures()->viewport()->rect().contains(TileOf(15)));
  QTest::mouseClick(Pictures()->viewport(), Qt::LeftButton, {}, TileOf(15).bottomRight() * 2);
  QVERIFY2(Selected().empty(), "a click on blank ground selects nothing");
}

void PicturesViewTest::AnotherSizeKeepsWhatIsInSight() {
  Show();
  auto* larger = Find<QAction>(window_.get(), "mnu_ViewLarger");
  auto* smaller = Find<QAction>(window_.get(), "mnu_ViewSmaller");
  const auto turn = [this](int by) {
    const QPoint at = Pictures()->viewport()->rect().center();
    QWheelEvent wheel(at, Pictures()->viewport()->mapToGlobal(at), {}, {0, by}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Pictures()->viewport(), &wheel);
  };
  turn(60);
  QVERIFY2(Pictures()->Size() == TileSize::kMedium, "half a step");
  turn(60);
  QVERIFY(Pictures()->Size() == TileSize::kLarge);
  QVERIFY(!larger->isEnabled() && smaller->isEnabled());
  turn(-240);
  QVERIFY(Pictures()->Size() == TileSize::kSmall && !smaller->isEnabled());
  turn(240);

  // What is current stays in sight; when it is far away, what is at the top does.
  QTest::keyClick(Pictures(), Qt::Key_End);
  turn(-240);
  QVERIFY(Pictures()->viewport()->rect().contains(TileOf(15)));
  turn(240);
  QVERIFY(Pictures()->viewport()->rect().contains(TileOf(15)));
  QTest::keyClick(Pictures(), Qt::Key_Home);
  Pictures()->ScrollToTop(7);
  QVERIFY(!Pictures()->viewport()->rect().intersects(TileOf(0)));
  window_->resize(800, 600);
  QTRY_VERIFY(Pictures()->viewport()->rect().intersects(TileOf(7)));
}

void PicturesViewTest::ALevelIsReachedFromTheMenuInEitherView() {
  Show();
  auto* levels = Find<QMenu>(window_.get(), "mnu_ViewGoToLevel");
  const auto go = [levels](int number) {
    emit levels->aboutToShow();
    levels->actions().at(number)->trigger();
  };
  go(1);
  QCOMPARE(levels->actions().size(), 3);
  QCOMPARE(levels->actions().at(0)->text(), QStringLiteral("Angkor Wat (7)"));
  QCOMPARE(levels->actions().at(2)->text(), QStringLiteral("No level name (2)"));
  QCOMPARE(Selected(), std::vector<int>{7});
  QVERIFY2(TileOf(7).top() < TileOf(7).height() / 2, "its heading is at the top");

  Find<QAction>(window_.get(), "mnu_ViewList")->trigger();
  auto* list = Find<SavegameList>(window_.get(), "List1");
  go(2);
  QCOMPARE(Selected(), std::vector<int>{14});
  QVERIFY(list->viewport()->rect().contains(list->visualRect(list->currentIndex()).center()));
  QVERIFY(list->hasFocus());
}

void PicturesViewTest::TheTipHasTheNoteAndWhatIsWrongWithThePicture() {
  Show();
  QVERIFY(TipAt(0).contains(QLatin1String("first\nsecond &lt;b&gt;")));
  QTRY_VERIFY(TipAt(1).contains(QLatin1String("This picture cannot be shown: it is no picture.")));
  QVERIFY(TipAt(1).contains(QLatin1String("line 10 ...")) && !TipAt(1).contains("line 11"));
  QTRY_VERIFY(TipAt(2).isEmpty());

  // As long as there is room, a line of a tip is one line.
  QLabel tip(PlainTip(QStringLiteral("Z:\\a folder\\Gone.vmk: it does not exist")));
  tip.setWordWrap(true);
  QVERIFY(tip.sizeHint().height() < 2 * tip.fontMetrics().height());
  tip.setText(PlainTip(QString(300, u'n').replace(100, 1, u' ')));
  QVERIFY(tip.sizeHint().height() >= 2 * tip.fontMetrics().height());
}

void PicturesViewTest::AChangedPictureIsReadAnew() {
  Show();
  QTRY_VERIFY(ColourOf(0).red() > 200 && ColourOf(0).blue() < 60);
  world_->disk.Write("Archive/Slot1/shot0.jpg", Jpeg(Qt::blue));
  world_->disk.Write("Archive/Slot1/shot2.jpg", Jpeg(Qt::green));
  QTest::keyClick(window_.get(), Qt::Key_F5);
  QTRY_VERIFY(ColourOf(0).blue() > 200 && ColourOf(0).red() < 60);
  QTRY_VERIFY(ColourOf(2).green() > 200);
  world_->disk.Remove({"Archive/Slot1/shot0.jpg"});
  QTest::keyClick(window_.get(), Qt::Key_F5);
  QTRY_VERIFY2(ColourOf(0).red() > 150, "the placeholder");
}

void PicturesViewTest::WindowsOfAnySizeAndLookShowTheTiles() {
  Show();
  window_->resize(800, 600);
  QTRY_VERIFY(TileOf(0).width() > 0);
  QVERIFY(TileOf(0).right() < Pictures()->viewport()->width());
  window_->resize(1000, 700);
  QTRY_VERIFY(Pictures()->viewport()->rect().contains(TileOf(2)));
  // A dark desktop that says nothing of quiet words.
  const QPalette before = QApplication::palette();
  QPalette dark = before;
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  QApplication::setPalette(dark);
  QTRY_VERIFY(Pictures()->palette().color(QPalette::PlaceholderText).lightness() > 200);
  QVERIFY(ColourOf(2).lightness() < 120);
  const QImage painted = Pictures()->viewport()->grab(TileOf(2)).toImage();
  int lightest = 0;  // in the placeholder, where the level's name stands
  for (int y = 20; y < 100; ++y) {
    for (int x = 20; x < painted.width() - 20; ++x) {
      lightest = std::max(lightest, painted.pixelColor(x, y).lightness());
    }
  }
  QApplication::setPalette(before);
  QTRY_VERIFY(Pictures()->viewport()->grab().toImage().pixelColor(1, 1).lightness() > 200);
  QVERIFY2(lightest > 120, qPrintable(QString::number(lightest)));
}

void PicturesViewTest::WhatIsSelectedShowsWithoutTheFocusToo() {
  Show();
  QPalette pale = window_->palette();
  pale.setColor(QPalette::Inactive, QPalette::Highlight, pale.color(QPalette::Base));
  Pictures()->setPalette(pale);
  Find<QWidget>(window_.get(), "Text_Note")->setFocus();
  const QImage painted = Pictures()->viewport()->grab().toImage();
  const auto at_edge_of = [&](int index) {
    return painted.pixelColor(TileOf(index).left(), TileOf(index).center().y()).lightness();
  };
  QVERIFY2(at_edge_of(1) - at_edge_of(0) > 40, qPrintable(QString::number(at_edge_of(0))));
}

}  // namespace vellumark

QTEST_MAIN(vellumark::PicturesViewTest)
#include "pictures_view_test.moc"
