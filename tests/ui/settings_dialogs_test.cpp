// The archive properties dialog and the preferences dialog, opened from the main window's menus.

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "ui/window_fixture.h"

namespace vellumark {

class SettingsDialogsTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void PropertiesAreEditedAndStored();
  void PropertiesThatAreRefusedOrCancelledChangeNothing();
  void PreferencesAreStoredOnOkOnly();
};

void SettingsDialogsTest::PropertiesAreEditedAndStored() {
  world_->dialogs.answers = {"T:\\Game\\other.exe"};
  InDialog("mnu_PrefArchive", [](const QDialog* dialog) {
    QCOMPARE(TextOf(dialog, "Label_PathArchivio"), QStringLiteral("T:\\Archive"));
    QCOMPARE(TextOf(dialog, "Text_nome_dir"), QStringLiteral("Slot"));
    Type(dialog, "Text_nome_dir", "  Part ");
    Type(dialog, "Text_MaxSavegame", "10 slots");
    Click(dialog, "pul_sfoglia_nome_tomb");
    QCOMPARE(TextOf(dialog, "Label_TrExe"), QStringLiteral("T:\\Game\\other.exe"));
    QTest::keyClick(Find<QLineEdit>(dialog, "Text_MaxSavegame"), Qt::Key_Return);
  });
  QVERIFY(!cancelled_);
  const ArchiveSettings expected{"Part", "T:\\Archive", "T:\\Game", "T:\\Game\\other.exe", 10, 0};
  QVERIFY(program_->archive.settings == expected);
  QCOMPARE(world_->dialogs.requests[0].start_folder, std::string("T:\\Game"));
}

void SettingsDialogsTest::PropertiesThatAreRefusedOrCancelledChangeNothing() {
  const ArchiveSettings before = program_->archive.settings;
  InDialog("mnu_PrefArchive", [this](const QDialog* dialog) {
    Find<QLineEdit>(dialog, "Text_MaxSavegame")->clear();
    Click(dialog, "Pul_Ok");
    QVERIFY(dialog->isVisible());
    QCOMPARE(world_->boxes.shown.back().text, std::string("You must set [Max Number Savegame]"));
    Type(dialog, "Text_MaxSavegame", "15");
    Find<QLineEdit>(dialog, "Text_nome_dir")->setText(QString(QChar(0x0416)));
    Click(dialog, "Pul_Ok");
    QVERIFY2(dialog->isVisible(), "the code page lacks the name's letter");
    QCOMPARE(world_->boxes.shown.back().text, LoadMessage(kFolderNameNotExpressible));

    Type(dialog, "Text_nome_dir", "Other");
    Click(dialog, "Pul_Cancel");
  });
  QVERIFY(!cancelled_);
  QVERIFY(program_->archive.settings == before);
  QVERIFY(!program_->archive.ArchivePropertiesOk);
}

void SettingsDialogsTest::PreferencesAreStoredOnOkOnly() {
  const Preferences before = program_->preferences;
  InDialog("mnu_PrefManager", [](const QDialog* dialog) {
    QVERIFY(!IsTicked(dialog, "Check_Suoni") && IsTicked(dialog, "Check_AvvioAutomatico"));
    QCOMPARE(TextOf(dialog, "Label_DirScreenShot"), QStringLiteral("T:\\Program"));
    Find<QCheckBox>(dialog, "Check_Suoni")->setChecked(true);
    Click(dialog, "Pul_Annulla");
  });
  QVERIFY(program_->preferences == before);

  InDialog("mnu_PrefManager", [](QDialog* dialog) {
    QVERIFY2(!IsTicked(dialog, "Check_Suoni"), "nothing of the last opening");
    QTest::keyClick(dialog, Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY(!IsTicked(dialog, "Check_AvvioAutomatico"));
    Toggle(dialog, "Check_TutteLeDir");
    QTest::keyClick(dialog, Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(IsTicked(dialog, "Check_Suoni"));
    QTest::keyClick(dialog, Qt::Key_Return);
  });
  QVERIFY(!cancelled_);
  QVERIFY(!program_->preferences.AutoCapture);
  QVERIFY(program_->preferences.ScanAllSubfolders && program_->preferences.SoundEffects);
  QVERIFY2(world_->sounds.played.empty(), "they are heard from the next one on");
}

}  // namespace vellumark

QTEST_MAIN(vellumark::SettingsDialogsTest)
#include "settings_dialogs_test.moc"
