// The reorder dialog over the real main window.
#include "ui/reorder_dialog.h"

#include <QProgressBar>
#include <QTimer>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "ui/window_fixture.h"

namespace vellumark {

class ReorderDialogTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void EveryOpeningStartsEmptyAndEscapeChangesNothing();
  void TheFieldsReorderTheArchiveOnEnter();
  void ARefusalLeavesTheDialogOpen();
  void TheBarIsPaintedWhileNothingElseRuns();
  void BothBrowseButtonsOpenTheChooserInTheirMode();

 private:
  void Prepare() override;
};

// The fields that a reorder needs.
void TypeTarget(const QWidget* dialog, const char* max_slot) {
  Type(dialog, "Text_PercorsoBase", "T:\\New");
  Type(dialog, "Text_NomeCartelle", "Part");
  Type(dialog, "Text_MaxSavegame", max_slot);
}

void ReorderDialogTest::Prepare() {
  world_->disk.MakeFolder("New");
  world_->AddSavegame("Archive/Slot1", 0, "Tower", 9);
  world_->AddSavegame("Archive/Slot1", 1, "Maze", 3);
}

void ReorderDialogTest::EveryOpeningStartsEmptyAndEscapeChangesNothing() {
  const auto before = world_->disk.AllFiles();
  const ArchiveSettings settings = program_->archive.settings;
  for (int opening = 0; opening < 2; ++opening) {
    InDialog("mnu_Reorder", [](QDialog* dialog) {
      for (auto* field : dialog->findChildren<QLineEdit*>()) QCOMPARE(field->text(), QString());
      for (auto* box : dialog->findChildren<QCheckBox*>()) {
        QVERIFY(!box->isChecked());
        QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
        QVERIFY(box->isChecked());
      }
      TypeTarget(dialog, "10");
      QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QVERIFY(!cancelled_);
  }
  QVERIFY(world_->disk.AllFiles() == before);
  QVERIFY(program_->archive.settings == settings);
}

void ReorderDialogTest::TheFieldsReorderTheArchiveOnEnter() {
  InDialog("mnu_Reorder", [](QDialog* dialog) {
    TypeTarget(dialog, "10");
    Type(dialog, "Text_MaxPerCartella", "1");
    for (const auto key : {Qt::Key_I, Qt::Key_A}) QTest::keyClick(dialog, key, Qt::AltModifier);
    QTRY_VERIFY(IsTicked(dialog, "Check_CreaInfo") && IsTicked(dialog, "Check_EliminaSorgente"));
    QTest::keyClick(Find<QLineEdit>(dialog, "Text_MaxPerCartella"), Qt::Key_Return);
  });
  QVERIFY(!cancelled_);
  const std::vector<std::string> names = {"info.txt", "savegame.0"};
  QVERIFY(world_->disk.Names("New/Part1") == names && world_->disk.Names("New/Part2") == names);
  QVERIFY(!world_->disk.Exists("Archive/Slot1"));
  QCOMPARE(program_->archive.settings.MaxSavegame, std::int16_t{10});
  QCOMPARE(program_->catalogue.EntryCount(), std::int16_t{2});
}

void ReorderDialogTest::ARefusalLeavesTheDialogOpen() {
  InDialog("mnu_Reorder", [this](const QDialog* dialog) {
    TypeTarget(dialog, "1x");
    QCOMPARE(world_->boxes.shown.size(), std::size_t{1});
    Find<QLineEdit>(dialog, "Text_NomeCartelle")->setText(QString(QChar(0x0416)));
    Click(dialog, "Pul_Riordina");
    QCOMPARE(world_->boxes.shown.back().text, LoadMessage(kFolderNameNotExpressible));
  });
  QVERIFY2(cancelled_, "the code page lacks the name's letter");
  QVERIFY(world_->disk.Names("New").empty());
}

void ReorderDialogTest::TheBarIsPaintedWhileNothingElseRuns() {
  QList<int> painted;
  bool other_event = false;
  bool was_working = true;
  InDialog("mnu_Reorder", [&](QDialog* dialog) {
    TypeTarget(dialog, "10");
    auto* bar = Find<QProgressBar>(dialog, "ProgressBar1");
    QTimer::singleShot(0, dialog, [&other_event] { other_event = true; });
    world_->files.meanwhile = [&](const std::string& operation) {
      if (operation != "Copy") return;
      painted.append(bar->value());
      was_working = was_working && program_->working && !other_event;
    };
    Find<QPushButton>(dialog, "Pul_Riordina")->click();
    world_->files.meanwhile = nullptr;
  });
  QCOMPARE(painted, (QList<int>{50, 100}));
  QVERIFY(was_working);
}

void ReorderDialogTest::BothBrowseButtonsOpenTheChooserInTheirMode() {
  world_->disk.Write("Archive/Slot1/shot0.jpg", "picture");
  InDialog("mnu_Reorder", [this](const QDialog* dialog) {
    const auto take = [&](const char* button, const char* title) {
      InDialog([&] { Click(dialog, button); },
               [title](const QDialog* chooser) {
                 QCOMPARE(chooser->windowTitle(), QLatin1String(title));
                 Find<QPushButton>(chooser, "OKButton")->click();
               });
    };
    take("Pul_PercorsoBase", "Select target folder for new archive");
    QCOMPARE(TextOf(dialog, "Text_PercorsoBase"), QStringLiteral("T:\\Archive"));
    take("Pul_CopiaShot", "Select target folder where save all screen-shots");
  });
  QVERIFY2(cancelled_, "the reorder dialog has stayed open");
  QVERIFY(world_->disk.Exists("Program/Tower_9.jpg"));
}

}  // namespace vellumark

QTEST_MAIN(vellumark::ReorderDialogTest)
#include "reorder_dialog_test.moc"
