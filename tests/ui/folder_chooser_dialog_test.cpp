// The real folder chooser over a disk of its own.
#include "ui/folder_chooser_dialog.h"

#include <QApplication>
#include <QComboBox>
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
#include "ui/folder_list.h"
#include "ui/principale.h"

namespace vellumark {

// T: is the test world's disk, N: a drive without a medium. The current folder is T:\Program.
struct FolderChooserDesktop {
  FolderChooserDesktop() {
    program.paths.ProgramFolder = "T:\\Program";
    files.SetCurrentFolder("T:\\Program");
    window.Attach(program);
  }
  ~FolderChooserDesktop() { std::filesystem::current_path("/"); }

  testing::TestWorld world;
  testing::TestDrives drives{world.text,
                             {{'N', "/nonexistent"}, {'T', world.disk.path().string()}}};
  testing::FaultyFileSystem files{drives.files()};
  Principale window{files, world.text};
  Program program{.files = files,
                  .text = world.text,
                  .boxes = world.boxes,
                  .file_dialogs = world.dialogs,
                  .sounds = world.sounds,
                  .shell = world.shell,
                  .desktop = world.desktop,
                  .clipboard = world.clipboard,
                  .windows = window,
                  .main_window = window};
};

class FolderChooserDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desktop_ = std::make_unique<FolderChooserDesktop>(); }
  void cleanup() { desktop_.reset(); }

  void CaptionsAndAccessKeysAreInOrder();
  void KeysWalkThroughTheFolders();
  void AClickGoesToAFolderOnce();
  void OkTakesTheFolderOfThePathLine();
  void ThePlainModeIsShownUnprepared();
  void ADriveThatIsNotReadyLeadsBack();
  void ANewFolderIsMadeFromTheNameField();
  void FoldersThatCannotBeEnteredAreNot();
  void TenThousandFoldersAreListedOnce();
  void CancellingACopyLeavesTheChooserOpen();

 private:
  // Opens the chooser; `act` is done in it, and it is cancelled if it is open then.
  void InChooser(ChooserMode mode, const std::string& field, const std::function<void()>& act);

  template <typename Widget>
  Widget* Find(const char* name) const {
    return dialog_->findChild<Widget*>(QLatin1String(name));
  }
  FolderList* List() const { return Find<FolderList>("Dir1"); }
  QString Path() const { return Find<QLineEdit>("Text_Path")->text(); }
  QStringList Rows() const;
  void Press(Qt::Key key) const { QTest::keyClick(QApplication::focusWidget(), key); }
  void Click(const char* name) const { QTest::mouseClick(Find<QPushButton>(name), Qt::LeftButton); }
  const std::string& LastMessage() const { return desktop_->world.boxes.shown.back().text; }

  std::unique_ptr<FolderChooserDesktop> desktop_;
  FolderChooserDialog* dialog_ = nullptr;
};

void FolderChooserDialogTest::InChooser(ChooserMode mode, const std::string& field,
                                        const std::function<void()>& act) {
  bool acted = false;
  QTimer::singleShot(50, this, [&] {
    dialog_ = qobject_cast<FolderChooserDialog*>(QApplication::activeModalWidget());
    if (dialog_ == nullptr) return;
    acted = QTest::qWaitForWindowActive(dialog_);
    act();
    if (dialog_->isVisible()) dialog_->reject();
  });
  desktop_->program.chooser.FolderChooserMode = mode;
  desktop_->program.chooser.field = field;
  desktop_->program.windows.ShowModal(WindowId::kDialogGetDir);
  QVERIFY2(acted, "the chooser has not opened");
}

QStringList FolderChooserDialogTest::Rows() const {
  QStringList rows;
  for (int row = 0; row < List()->model()->rowCount(); ++row) {
    rows.append(List()->model()->index(row, 0).data().toString());
  }
  return rows;
}

void FolderChooserDialogTest::CaptionsAndAccessKeysAreInOrder() {
  InChooser(ChooserMode::kGameFolder, "T:\\Game", [this] {
    QCOMPARE(dialog_->objectName(), QStringLiteral("Dialog_GetDir"));
    QCOMPARE(dialog_->windowTitle(), QStringLiteral("Select Tomb Raider folder"));
    QSet<QChar> keys;
    for (const Caption& caption : CaptionsOf(WindowId::kDialogGetDir)) {
      if (*caption.control == '\0') continue;
      const QString text = Find<QPushButton>(caption.control)->text();
      QCOMPARE(WithoutAccessKey(text),
               ToQString(desktop_->world.text, LoadMessage(caption.message)));
      const qsizetype mark = text.indexOf(u'&');
      QVERIFY2(mark >= 0, caption.control);
      keys.insert(text[mark + 1].toLower());
    }
    QCOMPARE(keys.size(), 3);
    QVERIFY(dialog_->width() <= 1024 && dialog_->height() <= 600);
    for (const char* next : {"Dir1", "Text_Path", "Pul_NuovaCartella", "Text_NomeCartella",
                             "OKButton", "CancelButton", "Drive1"}) {
      QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
      QVERIFY2(!QApplication::focusWidget()->accessibleName().isEmpty(), next);
      Press(Qt::Key_Tab);
    }
  });
}

void FolderChooserDialogTest::KeysWalkThroughTheFolders() {
  desktop_->world.disk.MakeFolder("Archive/Old/Slot1");
  desktop_->world.disk.MakeFolder("Archive/Slot1");
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "Old", "Slot1"}));
    QTest::keyClicks(List(), QStringLiteral("ol"));
    QCOMPARE(List()->currentIndex().row(), 2);
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));
    Press(Qt::Key_Return);
    QVERIFY2(dialog_->isVisible(), "Enter opens the folder and does not press OK");
    QCOMPARE(Path(), QStringLiteral("T:\\Archive\\Old"));
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "Old", "Slot1"}));
    QCOMPARE(List()->currentIndex().row(), 2);

    desktop_->world.disk.MakeFolder("Archive/Old/Slot2");
    Press(Qt::Key_F5);
    QCOMPARE(Rows().size(), 5);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    QCOMPARE(Path(), QStringLiteral("T:\\"));
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "Game", "Program"}));
  });
}

void FolderChooserDialogTest::AClickGoesToAFolderOnce() {
  desktop_->world.disk.MakeFolder("Archive/Old");
  desktop_->world.disk.MakeFolder("Archive/Slot1/Deep");
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    QWidget* list = List()->viewport();
    const auto row = [this](int index) {
      return List()->visualRect(List()->model()->index(index, 0)).center();
    };
    QTest::mouseClick(list, Qt::LeftButton, {}, row(3));
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "Slot1", "Deep"}));
    // The second click of a double click falls on the line that stands there now.
    QTest::mouseDClick(list, Qt::LeftButton, {}, row(3));
    QTest::mouseRelease(list, Qt::LeftButton, {}, row(3));
    QCOMPARE(Path(), QStringLiteral("T:\\Archive\\Slot1"));
    QTest::mouseClick(list, Qt::LeftButton, {}, row(0));
    QCOMPARE(Path(), QStringLiteral("T:\\"));
  });
}

void FolderChooserDialogTest::OkTakesTheFolderOfThePathLine() {
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    Press(Qt::Key_Backspace);
    QTest::keyClick(dialog_, Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(!dialog_->isVisible());
  });
  QVERIFY(desktop_->program.chooser.Confirmed);
  QCOMPARE(desktop_->program.chooser.field, std::string("T:"));

  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    std::filesystem::remove_all(desktop_->world.disk.path() / "Archive");
    Click("OKButton");
    QVERIFY2(dialog_->isVisible(), "the folder has vanished");
    QVERIFY(LastMessage().find("does not exist") != std::string::npos);
    Press(Qt::Key_Escape);
    QVERIFY(!dialog_->isVisible());
  });
  QVERIFY(!desktop_->program.chooser.Confirmed);
  QCOMPARE(desktop_->program.chooser.field, std::string("T:\\Archive"));
}

void FolderChooserDialogTest::ThePlainModeIsShownUnprepared() {
  InChooser(ChooserMode::kPlain, "T:\\Archive", [this] {
    QCOMPARE(dialog_->windowTitle(), QStringLiteral(" Select folder for screen-shot capture"));
    QCOMPARE(Path(), QString());
    Press(Qt::Key_F5);
    QCOMPARE(Path(), QString());
    QCOMPARE(List()->currentIndex().data().toString(), QStringLiteral("Program"));
    Press(Qt::Key_Backspace);
    QCOMPARE(Path(), QStringLiteral("T:\\"));
    Click("OKButton");
  });
  QVERIFY(desktop_->program.chooser.Confirmed);
  QCOMPARE(desktop_->program.chooser.ChosenFolder, std::string("T:"));
}

void FolderChooserDialogTest::ADriveThatIsNotReadyLeadsBack() {
  InChooser(ChooserMode::kMainFolder, "t:\\archive", [this] {
    auto* drives = Find<QComboBox>("Drive1");
    QCOMPARE(drives->count(), 2);
    QVERIFY(drives->currentText().startsWith(QStringLiteral("T:")));
    QVERIFY(drives->currentText().endsWith(
        QString::fromStdString(desktop_->world.disk.path().string())));
    QTest::keyClick(drives, Qt::Key_Up);
    QCOMPARE(LastMessage(), std::string("Unit not ready"));
    QVERIFY(drives->currentText().startsWith(QStringLiteral("T:")));
    QCOMPARE(Path(), QStringLiteral("t:\\archive"));
  });
}

void FolderChooserDialogTest::ANewFolderIsMadeFromTheNameField() {
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    auto* name = Find<QLineEdit>("Text_NomeCartella");
    name->setFocus();
    QTest::keyClicks(name, QStringLiteral(" New "));
    Press(Qt::Key_Return);
    QVERIFY(dialog_->isVisible());
    QVERIFY(desktop_->world.disk.Exists("Archive/New"));
    QCOMPARE(name->text(), QString());
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "New"}));
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));

    name->setText(QStringLiteral("new"));
    Click("Pul_NuovaCartella");
    QCOMPARE(LastMessage(), std::string("\"T:\\Archive\\new\"folder alreay exists"));
    name->setText(QString::fromUtf8("ab\u0416c"));
    Click("Pul_NuovaCartella");
    QVERIFY(LastMessage().find("the marked character") != std::string::npos);
    QCOMPARE(name->selectedText(), QString(QChar(0x0416)));
    QCOMPARE(desktop_->world.disk.Names("Archive"), std::vector<std::string>{"New"});
    Find<QWidget>("Text_Path")->setFocus();
    Press(Qt::Key_Return);
    QVERIFY2(!dialog_->isVisible(), "elsewhere Enter presses OK");
  });
}

void FolderChooserDialogTest::FoldersThatCannotBeEnteredAreNot() {
  desktop_->world.disk.MakeFolder("Archive/a:\nb");
  desktop_->world.disk.MakeFolder("Archive/Locked");
  desktop_->files.FailAlways("List", "Locked\\*", FileError::kAccessDenied);
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "a: b", "Locked"}));
    const QModelIndex line = List()->model()->index(2, 0);
    QVERIFY(line.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Windows")));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, List()->visualRect(line).center());
    Press(Qt::Key_Down);
    QCOMPARE(List()->currentIndex().row(), 3);
    Press(Qt::Key_Return);
    QVERIFY(LastMessage().find("access is denied") != std::string::npos);
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));
    QCOMPARE(Rows().size(), 4);
  });
}

void FolderChooserDialogTest::TenThousandFoldersAreListedOnce() {
  constexpr int kFolders = 10000;
  for (int i = 1; i <= kFolders; ++i) {
    desktop_->world.disk.MakeFolder("Archive/Slot" + std::to_string(i));
  }
  desktop_->files.Reset();
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    QCOMPARE(desktop_->files.calls(), 1);
    QCOMPARE(List()->model()->rowCount(), kFolders + 2);
    QTest::keyClicks(List(), QStringLiteral("slot9999"));
    QCOMPARE(List()->currentIndex().row(), 9999 + 1);
    Press(Qt::Key_Return);
    QCOMPARE(Path(), QStringLiteral("T:\\Archive\\Slot9999"));
    QCOMPARE(desktop_->files.calls(), 2);
  });
}

void FolderChooserDialogTest::CancellingACopyLeavesTheChooserOpen() {
  auto& boxes = desktop_->world.boxes;
  const std::size_t before = boxes.shown.size();
  InChooser(ChooserMode::kCopy, {}, [&] {
    desktop_->program.chooser.savegames = {{.slot = 3}, {.slot = 3}};
    const QString path = Path();
    boxes.answers = {BoxAnswer::kCancel};
    Click("OKButton");
    QVERIFY(dialog_->isVisible() && !desktop_->program.chooser.Confirmed);
    QCOMPARE(Path(), path);
    QCOMPARE(boxes.shown.size(), before + 1);
    boxes.answers = {BoxAnswer::kOk, BoxAnswer::kYes};
    Click("OKButton");
    QVERIFY(!dialog_->isVisible() && desktop_->program.chooser.Confirmed);
  });
}

}  // namespace vellumark

QTEST_MAIN(vellumark::FolderChooserDialogTest)
#include "folder_chooser_dialog_test.moc"
