// The real folder chooser over a disk of its own.
#include "ui/folder_chooser_dialog.h"

#include <QComboBox>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "ui/folder_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

// The current folder is T:\Program.
class FolderChooserDialogTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void KeysWalkThroughTheFolders();
  void AClickGoesToAFolderOnce();
  void OkTakesTheFolderOfThePathLine();
  void APathCanBeTyped();
  void ThePlainModeIsShownUnprepared();
  void ADriveThatIsNotReadyLeadsBack();
  void ANewFolderIsMadeFromTheNameField();
  void FoldersThatCannotBeEnteredAreNot();
  void CancellingACopyLeavesTheChooserOpen();

 private:
  void InChooser(ChooserMode mode, const std::string& field, const std::function<void()>& act);

  template <typename Widget>
  Widget* Find(const char* name) const {
    return vellumark::Find<Widget>(dialog_, name);
  }
  void Click(const char* button) const { vellumark::Click(dialog_, button); }
  FolderList* List() const { return Find<FolderList>("Dir1"); }
  QString Path() const { return vellumark::TextOf(dialog_, "Text_Path"); }
  QStringList Rows() const;
  QPoint PlaceOf(int row) const {
    return List()->visualRect(List()->model()->index(row, 0)).center();
  }
  const std::string& LastMessage() const { return world_->boxes.shown.back().text; }

  QDialog* dialog_ = nullptr;
};

void FolderChooserDialogTest::InChooser(ChooserMode mode, const std::string& field,
                                        const std::function<void()>& act) {
  world_->files.SetCurrentFolder("T:\\Program");
  world_->files.Reset();
  program_->chooser.FolderChooserMode = mode;
  program_->chooser.field = field;
  InDialog([this] { window_->ShowModal(WindowId::kDialogGetDir); },
           [&](QDialog* dialog) {
             dialog_ = dialog;
             act();
           });
}

QStringList FolderChooserDialogTest::Rows() const {
  QStringList rows;
  for (int row = 0; row < List()->model()->rowCount(); ++row) {
    rows.append(List()->model()->index(row, 0).data().toString());
  }
  return rows;
}

void FolderChooserDialogTest::KeysWalkThroughTheFolders() {
  world_->disk.MakeFolder("Archive/Old/Slot1");
  world_->disk.MakeFolder("Archive/Slot1");
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    QCOMPARE(world_->files.calls(), 1);  // each folder is listed once, however much it holds
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "Old", "Slot1"}));
    QTest::keyClicks(List(), QStringLiteral("ol"));
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));
    Press(Qt::Key_Return);
    QVERIFY2(dialog_->isVisible(), "Enter opens the folder and does not press OK");
    QCOMPARE(world_->files.calls(), 2);
    QCOMPARE(Path(), QStringLiteral("T:\\Archive\\Old"));
    QCOMPARE(List()->currentIndex().row(), 2);

    world_->disk.MakeFolder("Archive/Old/Slot2");
    Press(Qt::Key_F5);
    QCOMPARE(Rows().size(), 5);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    QCOMPARE(Path(), QStringLiteral("T:\\"));
  });
}

void FolderChooserDialogTest::AClickGoesToAFolderOnce() {
  world_->disk.MakeFolder("Archive/Old");
  world_->disk.MakeFolder("Archive/Slot1/Deep");
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    QWidget* list = List()->viewport();
    QTest::mouseClick(list, Qt::LeftButton, {}, PlaceOf(3));
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "Slot1", "Deep"}));
    // The second click of a double click falls on the line that stands there now.
    QTest::mouseDClick(list, Qt::LeftButton, {}, PlaceOf(3));
    QTest::mouseRelease(list, Qt::LeftButton, {}, PlaceOf(3));
    QCOMPARE(Path(), QStringLiteral("T:\\Archive\\Slot1"));
    QTest::mouseClick(list, Qt::LeftButton, {}, PlaceOf(0));
    QCOMPARE(Path(), QStringLiteral("T:\\"));
  });
}

void FolderChooserDialogTest::OkTakesTheFolderOfThePathLine() {
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    Press(Qt::Key_Backspace);
    QTest::keyClick(dialog_, Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(!dialog_->isVisible());
  });
  QVERIFY(program_->chooser.Confirmed);
  QCOMPARE(program_->chooser.field, std::string("T:"));

  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    std::filesystem::remove_all(world_->disk.path() / "Archive");
    Click("OKButton");
    QVERIFY2(dialog_->isVisible(), "the folder has vanished");
    Press(Qt::Key_Escape);
    QVERIFY(!dialog_->isVisible());
  });
  QVERIFY(!program_->chooser.Confirmed);
  QCOMPARE(program_->chooser.field, std::string("T:\\Archive"));
}

void FolderChooserDialogTest::APathCanBeTyped() {
  world_->disk.MakeFolder("Archive/Old");
  const auto type = [this](const QString& path) {
    auto* line = Find<QLineEdit>("Text_Path");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, path);
  };
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [&] {
    type(QStringLiteral("T:\\none"));
    Press(Qt::Key_Return);
    QCOMPARE(LastMessage(),
             LoadMessage(kFolderNotOpened, {"\"T:\\none\"", LoadMessage(kReasonNotFound)}));
    QCOMPARE(List()->Folder(), std::string("T:\\Archive"));

    type(QString::fromStdString((world_->disk.path() / "Archive" / "Old").string()));
    Press(Qt::Key_Return);
    QVERIFY2(dialog_->isVisible(), "Enter goes there and does not press OK");
    QCOMPARE(Path(), QStringLiteral("T:\\Archive\\Old"));
    QCOMPARE(List()->Folder(), std::string("T:\\Archive\\Old"));
    type(QStringLiteral("T:\\Game"));
    Click("OKButton");
    QTRY_VERIFY(!dialog_->isVisible());
  });
  QCOMPARE(program_->chooser.field, std::string("T:\\Game"));
}

void FolderChooserDialogTest::ThePlainModeIsShownUnprepared() {
  InChooser(ChooserMode::kPlain, "T:\\Archive", [this] {
    QCOMPARE(Path(), QString());
    Press(Qt::Key_F5);
    QCOMPARE(Path(), QString());
    QCOMPARE(List()->currentIndex().data().toString(), QStringLiteral("Program"));
    Press(Qt::Key_Backspace);
    QCOMPARE(Path(), QStringLiteral("T:\\"));
    Click("OKButton");
  });
  QVERIFY(program_->chooser.Confirmed);
  QCOMPARE(program_->chooser.ChosenFolder, std::string("T:"));
}

void FolderChooserDialogTest::ADriveThatIsNotReadyLeadsBack() {
  InChooser(ChooserMode::kMainFolder, "t:\\archive", [this] {
    auto* drives = Find<QComboBox>("Drive1");
    QVERIFY(drives->currentText().endsWith(QString::fromStdString(world_->disk.path().string())));
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
    QVERIFY(world_->disk.Exists("Archive/New"));
    QCOMPARE(name->text(), QString());
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "New"}));
    name->setText(QString::fromUtf8("ab\u0416c"));
    Click("Pul_NuovaCartella");
    QVERIFY(LastMessage().find("the marked character") != std::string::npos);
    QCOMPARE(name->selectedText(), QString(QChar(0x0416)));
    QCOMPARE(world_->disk.Names("Archive"), std::vector<std::string>{"New"});
    Find<QWidget>("Text_Path")->setFocus();
    Press(Qt::Key_Return);
    QVERIFY2(!dialog_->isVisible(), "elsewhere Enter presses OK");
  });
}

void FolderChooserDialogTest::FoldersThatCannotBeEnteredAreNot() {
  world_->disk.MakeFolder("Archive/a:\nb");
  world_->disk.MakeFolder("Archive/Locked");
  InChooser(ChooserMode::kMainFolder, "T:\\Archive", [this] {
    world_->files.FailAlways("List", "Locked\\*", FileError::kAccessDenied);
    QCOMPARE(Rows(), (QStringList{"T:\\", "Archive", "a: b", "Locked"}));
    const QModelIndex line = List()->model()->index(2, 0);
    QVERIFY(line.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Windows")));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, PlaceOf(2));
    Press(Qt::Key_Down);
    QCOMPARE(List()->currentIndex().row(), 3);
    Press(Qt::Key_Return);
    QVERIFY(LastMessage().find("access is denied") != std::string::npos);
    QCOMPARE(Path(), QStringLiteral("T:\\Archive"));
    QCOMPARE(Rows().size(), 4);
  });
}

void FolderChooserDialogTest::CancellingACopyLeavesTheChooserOpen() {
  InChooser(ChooserMode::kCopy, {}, [this] {
    program_->chooser.savegames = {{.slot = 3}, {.slot = 3}};
    const QString path = Path();
    world_->boxes.answers = {BoxAnswer::kCancel};
    Click("OKButton");
    QVERIFY(dialog_->isVisible() && !program_->chooser.Confirmed);
    QCOMPARE(Path(), path);
    world_->boxes.answers = {BoxAnswer::kOk, BoxAnswer::kYes};
    Click("OKButton");
    QVERIFY(!dialog_->isVisible() && program_->chooser.Confirmed);
  });
}

}  // namespace vellumark

QTEST_MAIN(vellumark::FolderChooserDialogTest)
#include "folder_chooser_dialog_test.moc"
