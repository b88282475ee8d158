// The archive properties dialog and the preferences dialog, opened from the main window's menus.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>

#include "foundation/messages.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "support/test_world.h"
#include "ui/access_keys.h"
#include "ui/modal_dialog.h"
#include "ui/path_label.h"
#include "ui/principale.h"
#include "ui/shown_program.h"

namespace vellumark {

class SettingsDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void CaptionsAndAccessKeysAreInOrder_data();
  void CaptionsAndAccessKeysAreInOrder();
  void PropertiesAreEditedAndStored();
  void PropertiesThatAreRefusedStayOpen();
  void CancelledPropertiesChangeNothing();
  void NewArchiveStartsFromItsDefaults();
  void PreferencesAreStoredOnOkOnly();
  void SoundsAreHeardFromTheNextOneOn();

 private:
  // Triggers a menu item; `act` is done in the dialog that it opens.
  void InDialogOf(const char* item, const std::function<void(QDialog*)>& act);

  std::unique_ptr<testing::TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
};

template <typename Widget>
Widget* Find(QWidget* dialog, const char* name) {
  return dialog->findChild<Widget*>(QLatin1String(name));
}

void Click(QWidget* dialog, const char* button) {
  QTest::mouseClick(Find<QWidget>(dialog, button), Qt::LeftButton);
}

void SettingsDialogsTest::init() {
  world_ = std::make_unique<testing::TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  ShowProgram(*world_, window_, program_);
}

void SettingsDialogsTest::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

void SettingsDialogsTest::InDialogOf(const char* item, const std::function<void(QDialog*)>& act) {
  bool acted = false;
  QTimer::singleShot(50, this, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    acted = QTest::qWaitForWindowActive(dialog);
    act(dialog);
    if (dialog->isVisible()) dialog->reject();
  });
  window_->findChild<QAction*>(QLatin1String(item))->trigger();
  QVERIFY2(acted, "no dialog has opened");
}

void SettingsDialogsTest::CaptionsAndAccessKeysAreInOrder_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<int>("window");
  QTest::newRow("archive") << QStringLiteral("mnu_PrefArchive")
                           << static_cast<int>(WindowId::kDialogSetNewArc);
  QTest::newRow("program") << QStringLiteral("mnu_PrefManager")
                           << static_cast<int>(WindowId::kDialogPref);
}

void SettingsDialogsTest::CaptionsAndAccessKeysAreInOrder() {
  QFETCH(const QString, item);
  QFETCH(const int, window);
  InDialogOf(item.toLatin1().constData(), [this, window](QDialog* dialog) {
    const auto id = static_cast<WindowId>(window);
    QCOMPARE(dialog->objectName(), QLatin1String(NameOf(id)));
    QSet<QChar> keys;
    for (const Caption& caption : CaptionsOf(id)) {
      if (*caption.control == '\0') continue;
      auto* control = dialog->findChild<QWidget*>(QLatin1String(caption.control));
      QVERIFY2(control != nullptr, caption.control);
      const QString text = control->property("text").toString();
      QCOMPARE(WithoutAccessKey(text), ToQString(world_->text, LoadMessage(caption.message)));
      const qsizetype mark = text.indexOf(u'&');
      QVERIFY2(mark >= 0, caption.control);
      QVERIFY2(!keys.contains(text[mark + 1].toLower()), caption.control);
      keys.insert(text[mark + 1].toLower());
    }
    QVERIFY(dialog->width() <= 1024 && dialog->height() <= 600);
    const QPoint off_centre = dialog->frameGeometry().center() - window_->frameGeometry().center();
    QVERIFY2(off_centre.manhattanLength() <= 60, "it opens over the middle of its opener");
  });
}

void SettingsDialogsTest::PropertiesAreEditedAndStored() {
  world_->dialogs.answers = {"T:\\Game\\other.exe"};
  InDialogOf("mnu_PrefArchive", [](QDialog* dialog) {
    QCOMPARE(dialog->windowTitle(), QStringLiteral(" Properties of archive: T:\\Archive.vmk"));
    QCOMPARE(Find<PathLabel>(dialog, "Label_PathArchivio")->text(), QStringLiteral("T:\\Archive"));
    QCOMPARE(Find<PathLabel>(dialog, "Label_PathTr")->text(), QStringLiteral("T:\\Game"));
    auto* name = Find<QLineEdit>(dialog, "Text_nome_dir");
    QCOMPARE(name->text(), QStringLiteral("Slot"));
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("  Part "));
    auto* maximum = Find<QLineEdit>(dialog, "Text_MaxSavegame");
    maximum->selectAll();
    QTest::keyClicks(maximum, QStringLiteral("10 slots"));
    Click(dialog, "pul_sfoglia_nome_tomb");
    QCOMPARE(Find<PathLabel>(dialog, "Label_TrExe")->text(), QStringLiteral("T:\\Game\\other.exe"));
    QTest::keyClick(maximum, Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
  });
  const ArchiveSettings expected{"Part", "T:\\Archive", "T:\\Game", "T:\\Game\\other.exe", 10, 0};
  QVERIFY(program_->archive.settings == expected);
  QCOMPARE(world_->dialogs.requests[0].start_folder, std::string("T:\\Game"));
}

void SettingsDialogsTest::PropertiesThatAreRefusedStayOpen() {
  const ArchiveSettings before = program_->archive.settings;
  InDialogOf("mnu_PrefArchive", [this](QDialog* dialog) {
    auto* maximum = Find<QLineEdit>(dialog, "Text_MaxSavegame");
    maximum->clear();
    Click(dialog, "Pul_Ok");
    QVERIFY(dialog->isVisible());
    QCOMPARE(world_->boxes.shown.back().text, std::string("You must set [Max Number Savegame]"));
    maximum->setText(QStringLiteral("15"));
    Find<QLineEdit>(dialog, "Text_nome_dir")->setText(QString(QChar(0x0416)));
    Click(dialog, "Pul_Ok");
    QVERIFY2(dialog->isVisible(), "the code page lacks the name's letter");
    QCOMPARE(world_->boxes.shown.size(), std::size_t{2});
  });
  QVERIFY(program_->archive.settings == before);
}

void SettingsDialogsTest::CancelledPropertiesChangeNothing() {
  const ArchiveSettings before = program_->archive.settings;
  InDialogOf("mnu_PrefArchive", [](QDialog* dialog) {
    Find<QLineEdit>(dialog, "Text_nome_dir")->setText(QStringLiteral("Other"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
  });
  QVERIFY(program_->archive.settings == before);
  QVERIFY(!program_->archive.ArchivePropertiesOk);
}

void SettingsDialogsTest::NewArchiveStartsFromItsDefaults() {
  const ArchiveSettings before = program_->archive.settings;
  InDialogOf("mnu_New", [](QDialog* dialog) {
    QCOMPARE(dialog->windowTitle(),
             QStringLiteral(" Properties of archive: T:\\Program\\NoName.vmk"));
    QCOMPARE(Find<QLineEdit>(dialog, "Text_nome_dir")->text(), QStringLiteral("Slot"));
    QCOMPARE(Find<QLineEdit>(dialog, "Text_MaxSavegame")->text(), QStringLiteral("15"));
    QCOMPARE(Find<PathLabel>(dialog, "Label_PathTr")->text(), QString());
    Click(dialog, "Pul_Cancel");
  });
  QVERIFY(program_->archive.settings == before);
}

void SettingsDialogsTest::PreferencesAreStoredOnOkOnly() {
  const Preferences before = program_->preferences;
  InDialogOf("mnu_PrefManager", [](QDialog* dialog) {
    QVERIFY(!Find<QCheckBox>(dialog, "Check_Suoni")->isChecked());
    QVERIFY(Find<QCheckBox>(dialog, "Check_AvvioAutomatico")->isChecked());
    QCOMPARE(Find<PathLabel>(dialog, "Label_DirScreenShot")->text(), QStringLiteral("T:\\Program"));
    Find<QCheckBox>(dialog, "Check_Suoni")->setChecked(true);
    Click(dialog, "Pul_Annulla");
  });
  QVERIFY(program_->preferences == before);

  InDialogOf("mnu_PrefManager", [](QDialog* dialog) {
    QVERIFY2(!Find<QCheckBox>(dialog, "Check_Suoni")->isChecked(), "nothing of the last opening");
    QTest::keyClick(dialog, Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY(!Find<QCheckBox>(dialog, "Check_AvvioAutomatico")->isChecked());
    QTest::keyClick(dialog, Qt::Key_A, Qt::AltModifier);
    QTRY_VERIFY(Find<QCheckBox>(dialog, "Check_TutteLeDir")->isChecked());
    QTest::keyClick(dialog, Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
  });
  QVERIFY(!program_->preferences.AutoCapture);
  QVERIFY(program_->preferences.ScanAllSubfolders);
}

void SettingsDialogsTest::SoundsAreHeardFromTheNextOneOn() {
  InDialogOf("mnu_PrefManager", [](QDialog* dialog) {
    Find<QCheckBox>(dialog, "Check_Suoni")->setChecked(true);
    Click(dialog, "Pul_Ok");
  });
  QVERIFY(world_->sounds.played.empty());
  InDialogOf("mnu_PrefArchive", [](QDialog*) {});
  QCOMPARE(world_->sounds.played.size(), std::size_t{1});
}

}  // namespace vellumark

QTEST_MAIN(vellumark::SettingsDialogsTest)
#include "settings_dialogs_test.moc"
