// What is dragged onto the real main window.
#include "ui/drops.h"

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "archive/archive_file.h"
#include "session/archive_commands.h"
#include "ui/archive_views.h"
#include "ui/savegame_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

class DropsTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void APictureGoesToTheSavegameBelowThePointer();
  void AnArchiveIsOpenedWhereverItIsDropped();
  void WhatCannotBeTakenIsRefusedWhileItHovers();
  void NothingIsTakenWhileAQuestionWaits();

 private:
  void Prepare() override;
  QUrl Url(const char* file) const {
    return QUrl::fromLocalFile(QString::fromStdString(world_->disk / file));
  }
  QPoint PlaceOf(int row) const {
    auto* list = Find<SavegameList>(window_.get(), "List1");
    const QPoint at = list->visualRect(list->model()->index(row, 0)).topLeft() + QPoint(40, 5);
    return list->viewport()->mapTo(window_.get(), at);
  }
  // What a drag to this place would do.
  Qt::DropAction Hover(const QList<QUrl>& urls, QPoint at,
                       Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(at, offered, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    if (!enter.isAccepted()) return Qt::IgnoreAction;
    QDragMoveEvent move(at, offered, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &move);
    return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
  }
  bool Drop(const QUrl& url, QPoint at) {
    if (Hover({url}, at) != Qt::CopyAction) return false;
    QMimeData data;
    data.setUrls({url});
    QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
  }
};

void DropsTest::Prepare() {
  for (int slot = 0; slot < 3; ++slot) world_->AddSavegame("Archive/Slot1", slot, "Tower", 7);
  world_->disk.Write("red.jpg", Jpeg(Qt::red));
  world_->disk.Write("Other.vmk", EncodeArchive(testing::WorldSettings()));
}

void DropsTest::APictureGoesToTheSavegameBelowThePointer() {
  QCOMPARE(Hover({Url("red.jpg")}, PlaceOf(2)), Qt::CopyAction);
  QVERIFY(Drop(Url("red.jpg"), PlaceOf(2)));
  QVERIFY2(!world_->disk.Exists("Archive/Slot1/shot2.jpg"), "the other program does not wait");
  QTRY_VERIFY(world_->disk.Exists("Archive/Slot1/shot2.jpg"));
  QCOMPARE(world_->disk.Read("Archive/Slot1/shot2.jpg"), Jpeg(Qt::red));
  QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{2});
}

void DropsTest::AnArchiveIsOpenedWhereverItIsDropped() {
  QVERIFY(Drop(Url("Other.vmk"), {window_->width() - 20, window_->height() - 20}));
  QTRY_COMPARE(NamedArchive(*program_), std::string("T:\\Other.vmk"));
}

void DropsTest::WhatCannotBeTakenIsRefusedWhileItHovers() {
  const QPoint savegame = PlaceOf(1);
  const QPoint beside(window_->width() - 20, 60);
  QCOMPARE(Hover({Url("red.jpg")}, beside), Qt::IgnoreAction);
  QCOMPARE(Hover({Url("red.jpg")}, PlaceOf(2) + QPoint(0, 60)), Qt::IgnoreAction);
  QCOMPARE(Hover({Url("a.txt")}, savegame), Qt::IgnoreAction);
  QCOMPARE(Hover({Url("red.jpg"), Url("red.jpg")}, savegame), Qt::IgnoreAction);
  QCOMPARE(Hover({QUrl("http://x.invalid/red.jpg")}, savegame), Qt::IgnoreAction);
  QCOMPARE(Hover({QUrl("file://elsewhere.invalid/red.jpg")}, savegame), Qt::IgnoreAction);
  QCOMPARE(Hover({}, savegame), Qt::IgnoreAction);
  QCOMPARE(Hover({Url("red.jpg")}, savegame, Qt::MoveAction), Qt::IgnoreAction);
  QCOMPARE(Hover({Url("red.jpg")}, savegame, Qt::LinkAction), Qt::LinkAction);
  program_->working = true;
  QCOMPARE(Hover({Url("Other.vmk")}, savegame), Qt::IgnoreAction);
  program_->working = false;
  QCOMPARE(Hover({QUrl("file://localhost" + Url("red.jpg").path())}, savegame), Qt::CopyAction);
}

void DropsTest::NothingIsTakenWhileAQuestionWaits() {
  Qt::DropAction action = Qt::CopyAction;
  InDialog("mnu_PropSavegame", [&](QDialog*) {
    action = Hover({Url("Other.vmk")}, PlaceOf(1));
    QVERIFY(!Drop(Url("Other.vmk"), PlaceOf(1)));
  });
  QCOMPARE(action, Qt::IgnoreAction);
  QTest::qWait(20);
  QCOMPARE(NamedArchive(*program_), std::string("T:\\Archive.vmk"));
}

}  // namespace vellumark

QTEST_MAIN(vellumark::DropsTest)
#include "drops_test.moc"
