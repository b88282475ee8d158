// The reorder dialog over the real main window.
#include "ui/reorder_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>
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
#include "ui/principale.h"
#include "ui/shown_program.h"

namespace vellumark {

class ReorderDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void EveryControlHasItsCaptionAndKey();
  void EveryOpeningStartsEmptyAndEscapeChangesNothing();
  void TheFieldsReorderTheArchiveOnEnter();
  void ARefusalLeavesTheDialogOpen();
  void NumbersThatCannotBeAreRefusedWhileTyping();
  void TheBarIsPaintedWhileNothingElseRuns();
  void BothBrowseButtonsOpenTheChooserInTheirMode();

 private:
  // Opens the dialog by its menu command, acts in it and closes it if it still is open.
  void InDialog(const std::function<void(ReorderDialog&)>& act);

  std::unique_ptr<testing::TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
};

namespace {

template <typename Widget>
Widget* Find(const QWidget& dialog, const char* name) {
  return dialog.findChild<Widget*>(QLatin1String(name));
}

void Type(const QWidget& dialog, const char* field, const char* typed) {
  QTest::keyClicks(Find<QLineEdit>(dialog, field), QLatin1String(typed));
}

void Click(const QWidget& dialog, const char* button) {
  QTest::mouseClick(Find<QPushButton>(dialog, button), Qt::LeftButton);
}

}  // namespace

void ReorderDialogTest::init() {
  world_ = std::make_unique<testing::TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  world_->disk.MakeFolder("New");
  world_->AddSavegame("Archive/Slot1", 0, "Tower", 9);
  world_->AddSavegame("Archive/Slot1", 1, "Maze", 3);
  ShowProgram(*world_, window_, program_);
}

void ReorderDialogTest::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

void ReorderDialogTest::InDialog(const std::function<void(ReorderDialog&)>& act) {
  bool acted = false;
  QTimer::singleShot(0, this, [&] {
    auto* dialog = qobject_cast<ReorderDialog*>(QApplication::activeModalWidget());
    QVERIFY(dialog != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QTRY_VERIFY(Find<QLineEdit>(*dialog, "Text_PercorsoBase")->hasFocus());
    act(*dialog);
    acted = true;
    if (dialog->isVisible()) QTest::keyClick(dialog, Qt::Key_Escape);
  });
  window_->findChild<QAction*>(QStringLiteral("mnu_Reorder"))->trigger();
  QVERIFY(acted);
}

void ReorderDialogTest::EveryControlHasItsCaptionAndKey() {
  InDialog([this](ReorderDialog& dialog) {
    QStringList keys;
    for (const Caption& caption : CaptionsOf(WindowId::kDialogRiordina)) {
      const QString expected = ToQString(world_->text, LoadMessage(caption.message));
      if (*caption.control == '\0') {
        QCOMPARE(dialog.windowTitle(), expected);
        continue;
      }
      const auto* control = Find<QWidget>(dialog, caption.control);
      QVERIFY2(control != nullptr, caption.control);
      const bool is_frame = qobject_cast<const QGroupBox*>(control) != nullptr;
      const QString shown = control->property(is_frame ? "title" : "text").toString();
      QCOMPARE(WithoutAccessKey(shown), expected);
      if (is_frame) continue;
      const qsizetype mark = shown.indexOf(u'&');
      QVERIFY2(mark >= 0, caption.control);
      keys.append(shown.mid(mark + 1, 1).toLower());
    }
    QCOMPARE(keys.removeDuplicates(), 0);
    QVERIFY(dialog.width() <= 1024 && dialog.height() <= 600);
    QTRY_VERIFY(Find<QLineEdit>(dialog, "Text_PercorsoBase")->hasFocus());
    QVERIFY(!Find<QLineEdit>(dialog, "Text_MaxPerCartella")->toolTip().isEmpty());
  });
}

void ReorderDialogTest::EveryOpeningStartsEmptyAndEscapeChangesNothing() {
  const auto before = world_->disk.AllFiles();
  const ArchiveSettings settings = program_->archive.settings;
  for (int opening = 0; opening < 2; ++opening) {
    InDialog([](ReorderDialog& dialog) {
      for (auto* field : dialog.findChildren<QLineEdit*>()) QCOMPARE(field->text(), QString());
      for (auto* box : dialog.findChildren<QCheckBox*>()) {
        QVERIFY(!box->isChecked());
        QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
        QVERIFY(box->isChecked());
      }
      Type(dialog, "Text_PercorsoBase", "T:\\New");
    });
  }
  QVERIFY(world_->disk.AllFiles() == before);
  QVERIFY(program_->archive.settings == settings);
}

void ReorderDialogTest::TheFieldsReorderTheArchiveOnEnter() {
  InDialog([](ReorderDialog& dialog) {
    Type(dialog, "Text_PercorsoBase", "T:\\New");
    Type(dialog, "Text_NomeCartelle", "Part");
    Type(dialog, "Text_MaxSavegame", "10");
    Type(dialog, "Text_MaxPerCartella", "1");
    for (const auto key : {Qt::Key_I, Qt::Key_A}) QTest::keyClick(&dialog, key, Qt::AltModifier);
    QTRY_VERIFY(Find<QCheckBox>(dialog, "Check_CreaInfo")->isChecked());
    QTRY_VERIFY(Find<QCheckBox>(dialog, "Check_EliminaSorgente")->isChecked());
    QTest::keyClick(Find<QLineEdit>(dialog, "Text_MaxPerCartella"), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
  });
  const std::vector<std::string> names = {"info.txt", "savegame.0"};
  QVERIFY(world_->disk.Names("New/Part1") == names && world_->disk.Names("New/Part2") == names);
  QVERIFY(!world_->disk.Exists("Archive/Slot1"));
  QCOMPARE(program_->archive.settings.MaxSavegame, std::int16_t{10});
  QCOMPARE(program_->catalogue.EntryCount(), std::int16_t{2});
}

void ReorderDialogTest::ARefusalLeavesTheDialogOpen() {
  InDialog([this](ReorderDialog& dialog) {
    Type(dialog, "Text_PercorsoBase", "T:\\New");
    Find<QLineEdit>(dialog, "Text_NomeCartelle")->setText(QString(QChar(0x0416)));
    Type(dialog, "Text_MaxSavegame", "10");
    Click(dialog, "Pul_Riordina");
    QVERIFY2(dialog.isVisible(), "the code page lacks the name's letter");
    QCOMPARE(world_->boxes.shown.size(), std::size_t{1});
    QCOMPARE(Find<QLineEdit>(dialog, "Text_PercorsoBase")->text(), QStringLiteral("T:\\New"));
  });
  QVERIFY(world_->disk.Names("New").empty());
}

void ReorderDialogTest::NumbersThatCannotBeAreRefusedWhileTyping() {
  InDialog([this](ReorderDialog& dialog) {
    Type(dialog, "Text_PercorsoBase", "T:\\New");
    Type(dialog, "Text_NomeCartelle", "Part");
    Type(dialog, "Text_MaxSavegame", "1x");
    QCOMPARE(world_->boxes.shown.size(), std::size_t{1});
    QCOMPARE(Find<QLineEdit>(dialog, "Text_MaxSavegame")->text(), QStringLiteral("1x"));
    Find<QLineEdit>(dialog, "Text_MaxSavegame")->clear();
    Click(dialog, "Pul_Riordina");
  });
  QCOMPARE(program_->archive.settings.MaxSavegame, std::int16_t{1});
}

void ReorderDialogTest::TheBarIsPaintedWhileNothingElseRuns() {
  QList<int> painted;
  bool other_event = false;
  bool was_working = true;
  InDialog([&](ReorderDialog& dialog) {
    Type(dialog, "Text_PercorsoBase", "T:\\New");
    Type(dialog, "Text_NomeCartelle", "Part");
    Type(dialog, "Text_MaxSavegame", "10");
    auto* bar = Find<QProgressBar>(dialog, "ProgressBar1");
    QTimer::singleShot(0, &dialog, [&other_event] { other_event = true; });
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
  const auto take = [this](const char* title) {
    QTimer::singleShot(50, this, [title] {
      auto* chooser = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      QVERIFY(chooser != nullptr);
      QCOMPARE(chooser->windowTitle(), QLatin1String(title));
      Find<QPushButton>(*chooser, "OKButton")->click();
    });
  };
  world_->disk.Write("Archive/Slot1/shot0.jpg", "picture");
  InDialog([&](ReorderDialog& dialog) {
    take("Select target folder for new archive");
    Click(dialog, "Pul_PercorsoBase");
    QCOMPARE(Find<QLineEdit>(dialog, "Text_PercorsoBase")->text(), QStringLiteral("T:\\Archive"));
    take("Select target folder where save all screen-shots");
    Click(dialog, "Pul_CopiaShot");
    QVERIFY(dialog.isVisible());
  });
  QVERIFY(world_->disk.Exists("Program/Tower_9.jpg"));
}

}  // namespace vellumark

QTEST_MAIN(vellumark::ReorderDialogTest)
#include "reorder_dialog_test.moc"
