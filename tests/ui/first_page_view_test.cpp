// The page in the place of the list, in the real main window.
#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include "archive/scan.h"
#include "ui/archive_views.h"
#include "ui/savegame_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

class FirstPageViewTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void ItIsReadAndUsedByTheKeyboardAlone();
  void AsSoonAsThereIsAListItIsGone();
  void SeveralGamesAreAChoice();
  void ALongNameFitsASmallWindow();

 private:
  void Prepare() override {
    std::filesystem::rename(world_->disk.path() / "Archive.vmk", world_->disk.path() / "away");
  }
  void Found(const char* folder) const {
    program_->game_search.games.push_back({folder, folder + std::string("\\tomb4.exe"), 10});
    window_->RefreshPage();
  }
};

void FirstPageViewTest::ItIsReadAndUsedByTheKeyboardAlone() {
  auto* again = Find<QPushButton>(window_.get(), "Pul_PageAgain");
  auto* label = Find<QLabel>(window_.get(), "Label_Page");
  QCOMPARE(label->textFormat(), Qt::PlainText);
  QVERIFY(label->text().contains(QStringLiteral("\"T:\\Archive.vmk\"")));
  QVERIFY(GetsFocus(window_.get()));
  QTRY_COMPARE(QApplication::focusWidget(), again);
  QCOMPARE(again->accessibleDescription(), label->text());
  for (const char* next : {"Pul_PageNew", "Pul_PageOpen", "Pul_PageHelp", "Pul_Zoom"}) {
    Press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
  }
  again->setFocus();
  Press(Qt::Key_Space);
  QVERIFY(label->text().contains(QStringLiteral("still not there")));
  QCOMPARE(QApplication::focusWidget(), again);
}

void FirstPageViewTest::AsSoonAsThereIsAListItIsGone() {
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  std::filesystem::rename(world_->disk.path() / "away", world_->disk.path() / "Archive.vmk");
  Click(window_.get(), "Pul_PageAgain");
  auto* list = Find<SavegameList>(window_.get(), "List1");
  QVERIFY(list->isVisible());
  QVERIFY(!Find<QWidget>(window_.get(), "Page1")->isVisible());
  QCOMPARE(QApplication::focusWidget(), list);
}

void FirstPageViewTest::SeveralGamesAreAChoice() {
  program_->session.missing_archive.clear();
  Found("T:\\Games\\R&D");
  QCOMPARE(TextOf(window_.get(), "Pul_PageNew"), QStringLiteral("&New archive for R&&D"));
  Found("T:\\Game");
  InDialog([this] { Click(window_.get(), "Pul_PageNew"); },
           [](QDialog* dialog) {
             QCOMPARE(TextOf(dialog, "Label_PathTr"), QStringLiteral("T:\\Games\\R&D"));
             QCOMPARE(TextOf(dialog, "Text_MaxSavegame"), QStringLiteral("10"));
             QTimer::singleShot(0, dialog, [] {
               auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
               QVERIFY(menu != nullptr);
               QCOMPARE(menu->actions().size(), 4);
               QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("T:\\Game"));
               menu->actions().at(1)->trigger();
               menu->close();
             });
             Click(dialog, "pul_sfoglia_tr");
             QCOMPARE(TextOf(dialog, "Label_PathTr"), QStringLiteral("T:\\Game"));
             QCOMPARE(TextOf(dialog, "Label_TrExe"), QStringLiteral("T:\\Game\\tomb4.exe"));
           });
  QCOMPARE(program_->archive.settings.GameFolder, std::string());
}

void FirstPageViewTest::ALongNameFitsASmallWindow() {
  program_->session.missing_archive.clear();
  Found(("T:\\" + std::string(200, 'N')).c_str());
  window_->resize(800, 600);
  QVERIFY(QTest::qWaitFor([this] { return window_->width() == 800 && window_->height() == 600; }));
  const auto* page = Find<QWidget>(window_.get(), "Page1");
  for (const char* name : {"Pul_PageNew", "Pul_PageOpen", "Pul_PageHelp"}) {
    const auto* button = Find<QPushButton>(window_.get(), name);
    const QPoint corner = button->mapTo(page, button->rect().bottomRight());
    QVERIFY2(page->rect().contains(corner), name);
  }
}

}  // namespace vellumark

QTEST_MAIN(vellumark::FirstPageViewTest)
#include "first_page_view_test.moc"
