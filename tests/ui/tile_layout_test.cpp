// Where tiles and headings stand, without a window.
#include "ui/tile_layout.h"

#include <QtTest>

namespace vellumark {
namespace {

constexpr QSize kTile(100, 80);
constexpr int kHeading = 20;

using Ranges = std::vector<std::pair<int, int>>;

TileLayout Layout(const std::vector<std::size_t>& levels, int width) {
  std::vector<LevelRun> runs;
  std::size_t first = 0;
  for (const std::size_t count : levels) {
    runs.push_back({first, count});
    first += count;
  }
  TileLayout layout;
  layout.SetRuns(runs);
  layout.SetSizes(kTile, kHeading, width);
  return layout;
}

}  // namespace

class TileLayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void NothingOverlapsAndEverythingIsFoundWhereItStands_data();
  void NothingOverlapsAndEverythingIsFoundWhereItStands();
  void AnAreaTouchesWhatItReaches();
  void KeysKeepToTheColumn();
  void AnEmptyArchiveHasNothing();
};

void TileLayoutTest::NothingOverlapsAndEverythingIsFoundWhereItStands_data() {
  QTest::addColumn<int>("width");
  QTest::addColumn<int>("columns");
  QTest::newRow("narrower than a tile") << 40 << 1;
  QTest::newRow("no width at all") << 0 << 1;
  QTest::newRow("a pixel short of two") << 215 << 1;
  QTest::newRow("just two") << 216 << 2;
  QTest::newRow("some room to spare") << 500 << 4;
}

void TileLayoutTest::NothingOverlapsAndEverythingIsFoundWhereItStands() {
  QFETCH(int, width);
  QFETCH(int, columns);
  const TileLayout layout = Layout({1, 5, 4, 1, 1, 300}, width);
  QCOMPARE(layout.Columns(), columns);
  QCOMPARE(layout.Count(), 312);
  int bottom = 0;  // of all that stands higher
  for (int i = 0; i < layout.Count(); ++i) {
    const QRect tile = layout.TileRect(i);
    const bool new_row = i == 0 || tile.top() != layout.TileRect(i - 1).top();
    if (layout.FirstOfRun(i) == i) {
      QVERIFY(layout.HeadingRect(i).top() >= bottom);
      bottom = layout.HeadingRect(i).bottom() + 1;
      QCOMPARE(layout.At(layout.HeadingRect(i).center()), -1);
    }
    if (new_row) {
      QVERIFY(tile.top() >= bottom);
    } else {
      QVERIFY(tile.left() > layout.TileRect(i - 1).right());
    }
    if (i + 1 == layout.Count() || layout.TileRect(i + 1).top() > tile.top()) {
      bottom = tile.bottom() + 1;
    }
    QVERIFY(columns == 1 || tile.right() < width);
    for (const QPoint corner :
         {tile.topLeft(), tile.topRight(), tile.bottomLeft(), tile.bottomRight()}) {
      QCOMPARE(layout.At(corner), i);
    }
    for (const QPoint beside : {tile.topLeft() - QPoint(1, 0), tile.topRight() + QPoint(1, 0),
                                tile.bottomLeft() + QPoint(0, 1), tile.topLeft() - QPoint(0, 1)}) {
      QVERIFY(layout.At(beside) != i);
    }
  }
  QVERIFY(layout.Height() >= bottom);
}

void TileLayoutTest::AnAreaTouchesWhatItReaches() {
  const TileLayout layout = Layout({3, 4}, 216);  // rows: 0 1, 2 -, heading, 3 4, 5 6
  QVERIFY(layout.Touched({0, 0, 216, layout.Height()}) == (Ranges{{0, 1}, {2, 2}, {3, 4}, {5, 6}}));
  const auto between = [&](int from, int to) {
    return layout.Touched(QRect(layout.TileRect(from).center(), layout.TileRect(to).center()));
  };
  QVERIFY(between(1, 6) == (Ranges{{1, 1}, {4, 4}, {6, 6}}));
  QVERIFY(layout.Touched(layout.HeadingRect(3)).empty());
  QVERIFY(layout.Touched({0, -500, 216, 100}).empty());
  QVERIFY(layout.Touched({0, layout.Height(), 216, 100}).empty());
}

void TileLayoutTest::KeysKeepToTheColumn() {
  const TileLayout layout = Layout({3, 1, 4}, 216);  // rows: 0 1, 2 -, 3 -, 4 5, 6 7
  const auto path = [&](int from, int (TileLayout::*step)(int) const) {
    std::vector<int> way{from};
    while ((layout.*step)(way.back()) != way.back()) way.push_back((layout.*step)(way.back()));
    return way;
  };
  QVERIFY(path(0, &TileLayout::Below) == (std::vector<int>{0, 2, 3, 4, 6}));
  QVERIFY(path(6, &TileLayout::Above) == (std::vector<int>{6, 4, 3, 2, 0}));
  QVERIFY2(path(1, &TileLayout::Below) == (std::vector<int>{1, 2, 3, 4, 6}),
           "a short row has the nearest");
  QVERIFY(path(7, &TileLayout::Above) == (std::vector<int>{7, 5, 3, 2, 0}));
}

void TileLayoutTest::AnEmptyArchiveHasNothing() {
  const TileLayout layout = Layout({}, 500);
  QCOMPARE(layout.Height(), 0);
  QCOMPARE(layout.Count(), 0);
  QCOMPARE(layout.At({50, 50}), -1);
  QVERIFY(layout.TileRect(0).isNull() && layout.TileRect(-1).isNull());
}

}  // namespace vellumark

QTEST_APPLESS_MAIN(vellumark::TileLayoutTest)
#include "tile_layout_test.moc"
