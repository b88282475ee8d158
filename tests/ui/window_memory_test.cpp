// What the main window remembers from run to run.
#include "ui/window_memory.h"

#include <QAction>
#include <QMenu>
#include <QSplitter>

#include "archive/archive_file.h"
#include "ui/window_fixture.h"

namespace vellumark {

class WindowMemoryTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void TheNextRunLooksAsTheLastOneLeftIt();
  void OnlyAnOrderlyEndWritesIt();
  void AFileThatCannotBeUsedGivesTheDefaultsAndIsReplaced();
  void WhatALaterVersionOrAReadOnlyFileHoldsStays();
  void AScreenThatIsGoneTakesOnlyThePlace();
  void RecentArchivesOpenAndThoseThatAreGoneSayWhy();
  void TheMenuHoldsTheLastEightAndLooksAtNoNetwork();

 private:
  void Restart() {
    window_->close();
    window_.reset();
    Start();
  }
  std::string File() const { return world_->disk.Read("Program/window.ini"); }
  QMenu* RecentMenu() const {
    emit Find<QMenu>(window_.get(), "mnu_File")->aboutToShow();
    auto* menu = Find<QMenu>(window_.get(), "mnu_Recent");
    emit menu->aboutToShow();
    return menu;
  }
  void WriteArchive(const std::string& name) const {
    world_->disk.Write(name, EncodeArchive(testing::WorldSettings()));
  }
};

void WindowMemoryTest::TheNextRunLooksAsTheLastOneLeftIt() {
  window_->setGeometry(20, 40, 701, 555);
  auto* splitter = window_->findChild<QSplitter*>();
  splitter->setSizes({400, 270});
  const int details = splitter->sizes().constLast();
  Find<QAction>(window_.get(), "mnu_ViewPictures")->trigger();
  Restart();
  QVERIFY(Find<QAction>(window_.get(), "mnu_ViewPictures")->isChecked());
  QCOMPARE(window_->geometry(), QRect(20, 40, 701, 555));
  QCOMPARE(window_->findChild<QSplitter*>()->sizes().constLast(), details);

  window_->showMaximized();
  QTRY_VERIFY(window_->width() > 701);
  Restart();
  QVERIFY(window_->isMaximized());
  window_->showNormal();
  QTRY_COMPARE(window_->geometry(), QRect(20, 40, 701, 555));
}

void WindowMemoryTest::OnlyAnOrderlyEndWritesIt() {
  window_->resize(640, 500);
  QTest::qWait(50);
  window_.reset();  // as a run does that is killed: it does not come to its end
  QVERIFY(!world_->disk.Exists("Program/window.ini"));
  Start();
  window_->close();
  QVERIFY(File().starts_with("[General]"));
  QCOMPARE(world_->boxes.AllTexts(), std::string());
}

void WindowMemoryTest::AFileThatCannotBeUsedGivesTheDefaultsAndIsReplaced() {
  const QSize usual = window_->size();
  std::string garbage;
  for (int i = 0; i < 3000; ++i) garbage += static_cast<char>(i * 167 + i / 251);
  const std::string hostile =
      "[General]\nversion=1\n[window]\nx=99999999999999999999\ny=@Variant(\\0\\0\\0)\n"
      "width=-5\nheight=40000\ndetails=2147483648\nmaximised=x\n[archives]\nlast=\x01,\"\",,@"
      "Invalid()\n";
  for (const std::string& bytes : {garbage, hostile, std::string(), std::string(200'000, '[')}) {
    window_->close();
    world_->disk.Write("Program/window.ini", bytes);
    window_.reset();
    Start();
    QCOMPARE(window_->size(), usual);
    window_->resize(600, 500);
    Restart();
    QCOMPARE(window_->size(), QSize(600, 500));
    QVERIFY(File().size() < 1000);
  }
  QCOMPARE(world_->boxes.AllTexts(), std::string());
}

void WindowMemoryTest::WhatALaterVersionOrAReadOnlyFileHoldsStays() {
  const QSize usual = window_->size();
  for (const char* later : {"[General]\nversion=2\n[window]\nx=1\ny=1\nwidth=600\nheight=500\n",
                            "[General]\nversion=99999999999\nother=1\n"}) {
    window_->close();
    world_->disk.Write("Program/window.ini", later);
    window_.reset();
    Start();
    QCOMPARE(window_->size(), usual);
    window_->resize(620, 520);
    window_->close();
    QCOMPARE(File(), std::string(later));
  }

  // A folder of that name cannot be written over.
  world_->disk.Remove({"Program/window.ini"});
  world_->disk.MakeFolder("Program/window.ini");
  window_.reset();
  Start();
  window_->close();
  QVERIFY(world_->disk.Exists("Program/window.ini"));
  QCOMPARE(world_->boxes.AllTexts(), std::string());
}

void WindowMemoryTest::AScreenThatIsGoneTakesOnlyThePlace() {
  const QRect screen = window_->screen()->availableGeometry();
  for (const QPoint place : {QPoint(20'000, 50), QPoint(-9'000, -9'000), QPoint(50, 30'000)}) {
    QWidget window;
    RestorePlace(window, {.place = QRect(place, QSize(500, 400))});
    QCOMPARE(window.size(), QSize(500, 400));
    QVERIFY(screen.contains(window.geometry()));
  }
  QWidget larger;
  RestorePlace(larger, {.place = QRect(QPoint(-3'000, -3'000), QSize(6'500, 6'500))});
  QVERIFY(screen.contains(larger.geometry()));
}

void WindowMemoryTest::RecentArchivesOpenAndThoseThatAreGoneSayWhy() {
  WriteArchive("B & C.vmk");
  world_->dialogs.answers = {"T:\\B & C.vmk"};
  Find<QAction>(window_.get(), "mnu_Load")->trigger();
  QCOMPARE(program_->preferences.LastArchive, std::string("T:\\B & C.vmk"));
  QList<QAction*> entries = RecentMenu()->actions();
  QCOMPARE(entries.size(), 2);
  QCOMPARE(entries[0]->text(), QStringLiteral("&1  T:\\B && C.vmk"));
  entries[1]->trigger();
  QCOMPARE(program_->preferences.LastArchive, std::string("T:\\Archive.vmk"));

  world_->disk.Remove({"B & C.vmk"});
  Restart();
  entries = RecentMenu()->actions();
  QCOMPARE(entries.size(), 2);
  QVERIFY(entries[0]->isEnabled() && !entries[1]->isEnabled());
  QCOMPARE(entries[1]->statusTip(), QStringLiteral("T:\\B & C.vmk: it does not exist"));
  QVERIFY(Find<QMenu>(window_.get(), "mnu_Recent")->toolTipsVisible());

  // Gone while the menu stood open: the program in use stays.
  world_->disk.Remove({"Archive.vmk"});
  const std::string before = program_->preferences.LastArchive;
  program_->archive.ArchiveChanged = false;
  entries[0]->trigger();
  QVERIFY(world_->boxes.AllTexts().find("it does not exist") != std::string::npos);
  QCOMPARE(program_->preferences.LastArchive, before);
}

void WindowMemoryTest::TheMenuHoldsTheLastEightAndLooksAtNoNetwork() {
  window_->close();
  std::string names;
  for (int i = 0; i < 12; ++i) names += "\\\\\\\\server\\\\" + std::to_string(i) + ".vmk, ";
  world_->disk.Write("Program/window.ini",
                     "[General]\nversion=1\n[archives]\nlast=" + names + "x\n");
  window_.reset();
  Start();
  const QList<QAction*> entries = RecentMenu()->actions();
  QCOMPARE(entries.size(), 8);
  QVERIFY(entries[1]->text().endsWith(QLatin1String("\\\\server\\0.vmk")));
  QVERIFY(entries[1]->isEnabled());
}

}  // namespace vellumark

QTEST_MAIN(vellumark::WindowMemoryTest)
#include "window_memory_test.moc"
