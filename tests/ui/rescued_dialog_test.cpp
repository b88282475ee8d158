// The dialog of what was set aside, over the real main window.
#include "ui/rescued_dialog.h"

#include <QPlainTextEdit>
#include <QTreeWidget>

#include "ui/picture_box.h"
#include "ui/savegame_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

class RescuedDialogTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void ShowsWhatWasSetAsideAndPutsItIntoTheArchive();
  void SaysThatNothingIsSetAside();

 private:
  void Prepare() override;
};

void RescuedDialogTest::Prepare() {
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Program/rescued/3", 4, "The Tower", 2);
  world_->disk.Write("Program/rescued/3/note4.txt", "before the tower\r\n");
  world_->disk.Write("Program/rescued/3/shot4.jpg", Jpeg(Qt::red));
  world_->disk.Write("Program/rescued/3/note7.txt", "left alone\r\n");
}

void RescuedDialogTest::ShowsWhatWasSetAsideAndPutsItIntoTheArchive() {
  InDialog("mnu_Rescued", [this](QDialog* dialog) {
    ExpectCaptions(dialog, WindowId::kDialogRescued, program_->text);
    auto* tree = Find<QTreeWidget>(dialog, "Tree_Rescued");
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->childCount(), 2);
    ExpectTabOrder({"Text_Note", "Pul_ToArchive", "Pul_ToGame", "Pul_ShowFolder", "Pul_Delete",
                    "Pul_Close", "Tree_Rescued"});
    Press(Qt::Key_Down);
    QVERIFY(tree->currentItem()->text(0).contains("The Tower"));
    QCOMPARE(Find<QPlainTextEdit>(dialog, "Text_Note")->toPlainText(), "before the tower");
    QVERIFY(!Find<ShotBox>(dialog, "Image1")->Picture().isNull());
    Click(dialog, "Pul_ShowFolder");
    QCOMPARE(world_->shell.opened.size(), 1U);
    tree->setFocus();

    // The loose note can only be looked at and deleted; Del asks first.
    Press(Qt::Key_Down);
    QCOMPARE(Find<QPlainTextEdit>(dialog, "Text_Note")->toPlainText(), "left alone");
    QVERIFY(!Find<QPushButton>(dialog, "Pul_ToArchive")->isEnabled());
    Press(Qt::Key_Delete);
    QVERIFY(world_->disk.Exists("Program/rescued/3/note7.txt"));
    world_->boxes.answers = {BoxAnswer::kYes};
    Press(Qt::Key_Delete);
    QVERIFY(!world_->disk.Exists("Program/rescued/3/note7.txt"));

    // The folder that is chosen now stands for all that is in it.
    Click(dialog, "Pul_ToArchive");
    QVERIFY(!tree->isEnabled());
    QVERIFY(!Find<QPushButton>(dialog, "Pul_Delete")->isEnabled());
  });
  QVERIFY(world_->disk.Exists("Archive/Slot2/savegame.4"));
  QCOMPARE(program_->catalogue.EntryCount(), std::int16_t{2});
}

void RescuedDialogTest::SaysThatNothingIsSetAside() {
  world_->disk.Remove({"Program/rescued"});
  InDialog("mnu_Rescued", [](QDialog* dialog) {
    QCOMPARE(TextOf(dialog, "Label1"), QStringLiteral("Nothing is set aside."));
    Press(Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
  });
}

}  // namespace vellumark

QTEST_MAIN(vellumark::RescuedDialogTest)
#include "rescued_dialog_test.moc"
