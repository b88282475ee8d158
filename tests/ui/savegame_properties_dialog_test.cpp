// The savegame properties dialog over the real main window.
#include "ui/savegame_properties_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <functional>
#include <memory>

#include "foundation/messages.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/details.h"
#include "support/test_world.h"
#include "ui/access_keys.h"
#include "ui/note_box.h"
#include "ui/principale.h"
#include "ui/savegame_list.h"
#include "ui/shown_program.h"

namespace vellumark {

using testing::TestWorld;

class SavegamePropertiesDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void ShowsTheSavegameUnderItsCaptions();
  void KeysReachEveryControl();
  void LongPathsFitASmallScreen();
  void ANoteThatWasNotChangedGoesBackByteForByte();
  void TypedValuesGoToTheSavegameOfTheOpening();
  void CancelAppliesNothingButALinkedScreenShot();
  void RefusedValuesAreMarked();
  void ANoteThatCannotBeWrittenStays();

 private:
  // Opens the dialog by its command and lets the user act in it until it is closed.
  void InDialog(const std::function<void(QDialog*)>& act);
  std::string NoteFile() const { return world_->disk.Read("Archive/Slot1/NOTE3.TXT"); }
  SavegameEntry& Entry() const { return program_->catalogue.entries[1]; }

  std::unique_ptr<TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
};

template <typename Widget>
Widget* Find(const QWidget* window, const char* name) {
  return window->findChild<Widget*>(QLatin1String(name));
}

NoteBox* Note(const QWidget* dialog) { return Find<NoteBox>(dialog, "Text_Commento"); }

QString TextOf(const QWidget* dialog, const char* name) {
  return Find<QWidget>(dialog, name)->property("text").toString();
}

void Press(const QWidget* dialog, const char* button) {
  QTest::mouseClick(Find<QPushButton>(dialog, button), Qt::LeftButton);
}

void TypeCounter(const QWidget* dialog, const char* text) {
  auto* counter = Find<QLineEdit>(dialog, "Text_NuovoNSalvataggio");
  counter->selectAll();
  QTest::keyClicks(counter, QLatin1String(text));
}

std::string Jpeg() {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImage image(64, 48, QImage::Format_RGB32);
  image.fill(Qt::red);
  image.save(&buffer, "JPEG");
  return bytes.toStdString();
}

void SavegamePropertiesDialogTest::init() {
  world_ = std::make_unique<TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Archive/Slot1", 3, "Tower", 12);
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", "one\x8D\ntwo\r\n");
  world_->disk.Write("Archive/Slot1/shot3.jpg", Jpeg());
  ShowProgram(*world_, window_, program_);
  SelectOnly(*program_, 1);
}

void SavegamePropertiesDialogTest::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

void SavegamePropertiesDialogTest::InDialog(const std::function<void(QDialog*)>& act) {
  bool closed = false;
  QTimer::singleShot(50, window_.get(), [&] {
    auto* dialog = qobject_cast<SavegamePropertiesDialog*>(QApplication::activeModalWidget());
    QVERIFY(dialog != nullptr && QTest::qWaitForWindowActive(dialog));
    act(dialog);
    closed = !dialog->isVisible();
    dialog->reject();
  });
  Find<QAction>(window_.get(), "mnu_PropSavegame")->trigger();
  QVERIFY2(closed, "the dialog did not open or was left open");
}

void SavegamePropertiesDialogTest::ShowsTheSavegameUnderItsCaptions() {
  InDialog([this](QDialog* dialog) {
    QCOMPARE(TextOf(dialog, "Text_Path"), QStringLiteral("t:\\archive\\slot1\\savegame.3"));
    QCOMPARE(TextOf(dialog, "Text_Livello"), QStringLiteral(" 12  Tower"));
    QCOMPARE(TextOf(dialog, "Text_NuovoNSalvataggio"), QStringLiteral(" 12"));
    QCOMPARE(TextOf(dialog, "Label_ScreenShot"), QStringLiteral("t:\\archive\\slot1\\shot3.jpg"));
    QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("one\ntwo"));
    QVERIFY(!Find<QCheckBox>(dialog, "Check_EliminaShot")->isChecked());

    for (const Caption& caption : CaptionsOf(WindowId::kDialogNote)) {
      const bool is_window = *caption.control == '\0';
      auto* control = is_window ? dialog : Find<QWidget>(dialog, caption.control);
      QVERIFY2(control != nullptr, caption.control);
      const bool is_frame = qobject_cast<QGroupBox*>(control) != nullptr;
      const char* property = is_window ? "windowTitle" : is_frame ? "title" : "text";
      QCOMPARE(WithoutAccessKey(control->property(property).toString()),
               ToQString(world_->text, LoadMessage(caption.message)));
    }
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
}

void SavegamePropertiesDialogTest::KeysReachEveryControl() {
  InDialog([](QDialog* dialog) {
    QVERIFY(Note(dialog)->hasFocus());
    for (const char* next : {"Pul_SfogliaScreen", "Check_EliminaShot", "Pul_Ok", "Pul_Annulla",
                             "Text_Path", "Text_Livello", "Text_NuovoNSalvataggio"}) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
      QVERIFY2(!QApplication::focusWidget()->accessibleName().isEmpty(), next);
    }
    const std::pair<Qt::Key, const char*> keys[] = {{Qt::Key_S, "Text_Path"},
                                                    {Qt::Key_L, "Text_Livello"},
                                                    {Qt::Key_I, "Text_NuovoNSalvataggio"},
                                                    {Qt::Key_N, "Text_Commento"},
                                                    {Qt::Key_R, "Check_EliminaShot"}};
    for (const auto& [key, control] : keys) {
      QTest::keyClick(dialog, key, Qt::AltModifier);
      QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(control));
    }
    QTest::keyClick(dialog, Qt::Key_C, Qt::AltModifier);
    QTRY_VERIFY(!dialog->isVisible());
  });
}

void SavegamePropertiesDialogTest::LongPathsFitASmallScreen() {
  Entry().ShotPath = "T:\\" + std::string(250, 'x') + ".jpg";
  Entry().SavegamePath = Entry().ShotPath;
  InDialog([](QDialog* dialog) {
    QVERIFY(dialog->width() <= 1024 && dialog->height() <= 600);
    const int height = Note(dialog)->height();
    dialog->resize(dialog->width(), dialog->height() + 100);
    QTRY_COMPARE(Note(dialog)->height(), height + 100);
    dialog->close();
  });
}

void SavegamePropertiesDialogTest::ANoteThatWasNotChangedGoesBackByteForByte() {
  const std::string note = "a\x8D b\nc\xA0\x81\x07 \x8D\x8D\n";
  Entry().NoteText = note;
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", note);
  InDialog([](QDialog* dialog) {
    QTest::keyClicks(Note(dialog), QStringLiteral("typed"));
    QTest::keyClick(Note(dialog), Qt::Key_Z, Qt::ControlModifier);
    Press(dialog, "Pul_Ok");
  });
  QCOMPARE(NoteFile(), note + "\r\n");
  QCOMPARE(Entry().NoteText, note);
}

void SavegamePropertiesDialogTest::TypedValuesGoToTheSavegameOfTheOpening() {
  Entry().NoteText = "no\xA0 break";
  world_->disk.Write("Archive/Slot1/NOTE3.TXT", Entry().NoteText);
  InDialog([this](QDialog* dialog) {
    SelectOnly(*program_, 0);  // as a capture may do
    QTest::keyClick(Note(dialog), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(Note(dialog), Qt::Key_Return);
    Note(dialog)->insertPlainText(QString::fromUtf8("\u00E9"));
    QTest::keyClick(Note(dialog), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(Note(dialog), QStringLiteral("end"));
    TypeCounter(dialog, "300");
    Find<QCheckBox>(dialog, "Check_EliminaShot")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  QCOMPARE(world_->boxes.AllTexts(), std::string());
  QCOMPARE(NoteFile(), std::string("no\xA0 break\x8D\n\xE9\x8D\nend\r\n"));
  QCOMPARE(world_->disk.Read("Archive/Slot1/savegame.3").substr(75, 2), std::string("\x2C\x01"));
  QVERIFY(!world_->disk.Exists("Archive/Slot1/shot3.jpg"));
  QCOMPARE(program_->catalogue.entries[0].InternalCounter, std::int16_t{1});
  auto* list = Find<SavegameList>(window_.get(), "List1");
  QVERIFY(list->model()->index(1, 0).data().toString().startsWith(QLatin1String("    300 Tower")));
  QCOMPARE(list->SelectedLines(), std::vector<int>{1});
}

void SavegamePropertiesDialogTest::CancelAppliesNothingButALinkedScreenShot() {
  world_->disk.Write("new.jpg", Jpeg() + "new");
  world_->disk.Write("text.jpg", "no picture");
  InDialog([this](QDialog* dialog) {
    world_->dialogs.answers = {"T:\\new.jpg", "T:\\text.jpg"};
    world_->boxes.answers = {BoxAnswer::kNo};
    Press(dialog, "Pul_SfogliaScreen");
    QCOMPARE(world_->boxes.AllTexts(), std::string());
    Press(dialog, "Pul_SfogliaScreen");
    QCOMPARE(world_->boxes.shown.size(), std::size_t{1});
    QTest::keyClicks(Note(dialog), QStringLiteral("typed"));
    TypeCounter(dialog, "300");
    Find<QCheckBox>(dialog, "Check_EliminaShot")->setChecked(true);
    Press(dialog, "Pul_Annulla");
  });
  QCOMPARE(world_->disk.Read("Archive/Slot1/shot3.jpg"), Jpeg() + "new");
  QCOMPARE(NoteFile(), std::string("one\x8D\ntwo\r\n"));
  QCOMPARE(Entry().InternalCounter, std::int16_t{12});
}

void SavegamePropertiesDialogTest::RefusedValuesAreMarked() {
  InDialog([this](QDialog* dialog) {
    Note(dialog)->insertPlainText(QString::fromUtf8("\u00E9 \U0001F600 \u0416"));
    TypeCounter(dialog, "-32769");
    QTest::keyClick(dialog, Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(Note(dialog)->textCursor().selectedText(), QString::fromUtf8("\U0001F600"));
    QVERIFY(Note(dialog)->hasFocus());

    Note(dialog)->setPlainText(QString());
    Press(dialog, "Pul_Ok");
    QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String("Text_NuovoNSalvataggio"));
    QCOMPARE(world_->boxes.shown.size(), std::size_t{2});
    QCOMPARE(NoteFile(), std::string("one\x8D\ntwo\r\n"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-32768"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  QCOMPARE(Entry().InternalCounter, std::int16_t{-32768});
}

void SavegamePropertiesDialogTest::ANoteThatCannotBeWrittenStays() {
  world_->disk.MakeReadOnly("Archive/Slot1/NOTE3.TXT");
  InDialog([](QDialog* dialog) {
    QTest::keyClicks(Note(dialog), QStringLiteral("new "));
    Find<QCheckBox>(dialog, "Check_EliminaShot")->setChecked(true);
    Press(dialog, "Pul_Ok");
    QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("new one\ntwo"));
    QVERIFY(!Find<QCheckBox>(dialog, "Check_EliminaShot")->isChecked());
    QCOMPARE(TextOf(dialog, "Label_ScreenShot"), QString());
    Press(dialog, "Pul_Annulla");
  });
  QCOMPARE(Entry().NoteText, std::string("one\x8D\ntwo"));
}

}  // namespace vellumark

QTEST_MAIN(vellumark::SavegamePropertiesDialogTest)
#include "savegame_properties_dialog_test.moc"
