// The savegame properties dialog over the real main window.
#include "ui/savegame_properties_dialog.h"

#include "savegames/details.h"
#include "ui/note_box.h"
#include "ui/savegame_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

class SavegamePropertiesDialogTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void ShowsTheSavegame();
  void LongPathsFitASmallScreen();
  void ANoteThatWasNotChangedGoesBackByteForByte();
  void TypedValuesGoToTheSavegameOfTheOpening();
  void CancelAppliesNothingButALinkedScreenShot();
  void RefusedValuesAreMarked();
  void ANoteThatCannotBeWrittenStays();

 private:
  void Prepare() override;

  // Opens the dialog on the second savegame and lets the user act in it until it is closed.
  void InProperties(const std::function<void(QDialog*)>& act);
  std::string NoteFile() const { return world_->disk.Read("Archive/Slot1/NOTE3.TXT"); }
  SavegameEntry& Entry() const { return program_->catalogue.entries[1]; }
};

NoteBox* Note(const QWidget* dialog) { return Find<NoteBox>(dialog, "Text_Commento"); }

constexpr char kCounter[] = "Text_NuovoNSalvataggio";

void SavegamePropertiesDialogTest::Prepare() {
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Archive/Slot1", 3, "Tower", 12);
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", "one\x8D\ntwo\r\n");
  world_->disk.Write("Archive/Slot1/shot3.jpg", Jpeg(Qt::red));
}

void SavegamePropertiesDialogTest::InProperties(const std::function<void(QDialog*)>& act) {
  SelectOnly(*program_, 1);
  InDialog("mnu_PropSavegame", act);
  QVERIFY2(!cancelled_, "the dialog was left open");
}

void SavegamePropertiesDialogTest::ShowsTheSavegame() {
  InProperties([](QDialog* dialog) {
    QCOMPARE(TextOf(dialog, "Text_Path"), QStringLiteral("t:\\archive\\slot1\\savegame.3"));
    QCOMPARE(TextOf(dialog, "Text_Livello"), QStringLiteral(" 12  Tower"));
    QCOMPARE(TextOf(dialog, kCounter), QStringLiteral(" 12"));
    QCOMPARE(TextOf(dialog, "Label_ScreenShot"), QStringLiteral("t:\\archive\\slot1\\shot3.jpg"));
    QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("one\ntwo"));
    QVERIFY(!IsTicked(dialog, "Check_EliminaShot"));
    QTest::keyClick(dialog, Qt::Key_R, Qt::AltModifier);
    QVERIFY(Find<QCheckBox>(dialog, "Check_EliminaShot")->hasFocus());
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
}

void SavegamePropertiesDialogTest::LongPathsFitASmallScreen() {
  Entry().ShotPath = "T:\\" + std::string(250, 'x') + ".jpg";
  Entry().SavegamePath = Entry().ShotPath;
  InProperties([](QDialog* dialog) {
    QVERIFY(dialog->width() <= 1024 && dialog->height() <= 600);
    dialog->close();
  });
}

void SavegamePropertiesDialogTest::ANoteThatWasNotChangedGoesBackByteForByte() {
  const std::string note = "a\x8D b\nc\xA0\x81\x07 \x8D\x8D\n";
  Entry().NoteText = note;
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", note);
  InProperties([](const QDialog* dialog) {
    QTest::keyClicks(Note(dialog), QStringLiteral("typed"));
    QTest::keyClick(Note(dialog), Qt::Key_Z, Qt::ControlModifier);
    Click(dialog, "Pul_Ok");
  });
  QCOMPARE(NoteFile(), note + "\r\n");
  QCOMPARE(Entry().NoteText, note);

  const std::string too_long(5'000'000, 'n');
  Entry().NoteText = too_long;
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", too_long + "\r\n");
  InProperties([](const QDialog* dialog) {
    QVERIFY(Note(dialog)->isReadOnly() && Note(dialog)->toPlainText().size() < 100'000);
    QVERIFY(Note(dialog)->toPlainText().contains("65536 of 5000000"));
    Click(dialog, "Pul_Ok");
  });
  QVERIFY(NoteFile() == too_long + "\r\n");
}

void SavegamePropertiesDialogTest::TypedValuesGoToTheSavegameOfTheOpening() {
  Entry().NoteText = "no\xA0 break";
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", Entry().NoteText);
  InProperties([this](const QDialog* dialog) {
    SelectOnly(*program_, 0);  // as a capture may do
    QTest::keyClick(Note(dialog), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(Note(dialog), Qt::Key_Return);
    Note(dialog)->insertPlainText(QString::fromUtf8("\u00E9"));
    QTest::keyClick(Note(dialog), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(Note(dialog), QStringLiteral("end"));
    Type(dialog, kCounter, "300");
    Find<QCheckBox>(dialog, "Check_EliminaShot")->setFocus();
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
  });
  QCOMPARE(world_->boxes.AllTexts(), std::string());
  QCOMPARE(NoteFile(), std::string("no\xA0 break\x8D\n\xE9\x8D\nend\r\n"));
  QCOMPARE(world_->disk.Read("Archive/Slot1/savegame.3").substr(75, 2), std::string("\x2C\x01"));
  QVERIFY(!world_->disk.Exists("Archive/Slot1/shot3.jpg"));
  QCOMPARE(program_->catalogue.entries[0].InternalCounter, std::int16_t{1});
  const auto* list = Find<SavegameList>(window_.get(), "List1");
  QVERIFY(list->model()->index(1, 0).data().toString().startsWith(QLatin1String("    300 Tower")));
  QCOMPARE(window_->SelectedLines(), std::vector<int>{1});
}

void SavegamePropertiesDialogTest::CancelAppliesNothingButALinkedScreenShot() {
  const std::string new_shot = Jpeg(Qt::blue);
  world_->disk.Write("new.jpg", new_shot);
  InProperties([this](const QDialog* dialog) {
    world_->dialogs.answers = {"T:\\new.jpg"};
    Click(dialog, "Pul_SfogliaScreen");
    QCOMPARE(world_->boxes.AllTexts(), std::string());
    QTest::keyClicks(Note(dialog), QStringLiteral("typed"));
    Type(dialog, kCounter, "300");
    Find<QCheckBox>(dialog, "Check_EliminaShot")->setChecked(true);
    Click(dialog, "Pul_Annulla");
  });
  QCOMPARE(world_->disk.Read("Archive/Slot1/shot3.jpg"), new_shot);
  QCOMPARE(NoteFile(), std::string("one\x8D\ntwo\r\n"));
  QCOMPARE(Entry().InternalCounter, std::int16_t{12});
}

void SavegamePropertiesDialogTest::RefusedValuesAreMarked() {
  InProperties([this](QDialog* dialog) {
    Note(dialog)->insertPlainText(QString::fromUtf8("\u00E9 \U0001F600 \u0416"));
    Type(dialog, kCounter, "-32769");
    QTest::keyClick(dialog, Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(Note(dialog)->textCursor().selectedText(), QString::fromUtf8("\U0001F600"));
    QVERIFY(Note(dialog)->hasFocus());

    Note(dialog)->setPlainText(QString());
    Click(dialog, "Pul_Ok");
    QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(kCounter));
    QCOMPARE(world_->boxes.shown.size(), std::size_t{2});
    QCOMPARE(NoteFile(), std::string("one\x8D\ntwo\r\n"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-32768"));
    Press(Qt::Key_Return);
  });
  QCOMPARE(Entry().InternalCounter, std::int16_t{-32768});
}

void SavegamePropertiesDialogTest::ANoteThatCannotBeWrittenStays() {
  world_->disk.MakeReadOnly("Archive/Slot1/NOTE3.TXT");
  InProperties([](const QDialog* dialog) {
    QTest::keyClicks(Note(dialog), QStringLiteral("new "));
    Find<QCheckBox>(dialog, "Check_EliminaShot")->setChecked(true);
    Click(dialog, "Pul_Ok");
    QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("new one\ntwo"));
    QVERIFY(IsTicked(dialog, "Check_EliminaShot"));
    Click(dialog, "Pul_Annulla");
  });
  QVERIFY(world_->disk.Exists("Archive/Slot1/shot3.jpg"));
  QCOMPARE(Entry().NoteText, std::string("one\x8D\ntwo"));
}

}  // namespace vellumark

QTEST_MAIN(vellumark::SavegamePropertiesDialogTest)
#include "savegame_properties_dialog_test.moc"
