// The search dialog over the real main window.
#include "ui/search_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
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
#include "ui/principale.h"
#include "ui/savegame_list.h"
#include "ui/shown_program.h"

namespace vellumark {

class SearchDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void EveryControlHasItsCaptionAndKeyInReadingOrder();
  void EnterFindsAndTheButtonsStepThroughTheResult();
  void NothingFoundKeepsTheDialogForAnotherTry();
  void SwitchesHoldFromTheClickOnAndFiltersForOneOpening();

 private:
  // Opens the dialog by its menu command, acts in it and closes it if it still is open.
  void InDialog(const std::function<void(SearchDialog&)>& act);

  QString Position() const {
    return window_->findChild<QLineEdit*>(QStringLiteral("Text_Trovati"))->text();
  }

  std::unique_ptr<testing::TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
};

namespace {

QPushButton* Button(const QWidget& parent, const char* name) {
  return parent.findChild<QPushButton*>(QLatin1String(name));
}

QCheckBox* Box(const QWidget& dialog, const char* name) {
  return dialog.findChild<QCheckBox*>(QLatin1String(name));
}

QLineEdit* SearchedText(const QWidget& dialog) {
  return dialog.findChild<QLineEdit*>(QStringLiteral("Text_Cerca"));
}

}  // namespace

void SearchDialogTest::init() {
  world_ = std::make_unique<testing::TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Archive/Slot1", 1, "The Tower", 2);
  world_->AddSavegame("Archive/Slot1", 2, "Old Tower", 3);
  world_->disk.Write("Archive/Slot1/note0.txt", "before the tower, \xE9t\xE9\r\n");

  ShowProgram(*world_, window_, program_);
}

void SearchDialogTest::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

void SearchDialogTest::InDialog(const std::function<void(SearchDialog&)>& act) {
  bool acted = false;
  QTimer::singleShot(0, this, [&] {
    auto* dialog = qobject_cast<SearchDialog*>(QApplication::activeModalWidget());
    QVERIFY(dialog != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    act(*dialog);
    acted = true;
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  window_->findChild<QAction*>(QStringLiteral("mnu_Find"))->trigger();
  QVERIFY(acted);
}

void SearchDialogTest::EveryControlHasItsCaptionAndKeyInReadingOrder() {
  InDialog([this](SearchDialog& dialog) {
    QStringList keys;
    for (const Caption& caption : CaptionsOf(WindowId::kDialogCerca)) {
      const QString expected = ToQString(world_->text, LoadMessage(caption.message));
      if (*caption.control == '\0') {
        QCOMPARE(dialog.windowTitle(), expected);
        continue;
      }
      const auto* control = dialog.findChild<QObject*>(QLatin1String(caption.control));
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

    QTRY_VERIFY(SearchedText(dialog)->hasFocus());
    for (const char* next : {"Check_NomeLivello", "Check_Note", "Check_ConScreenShot",
                             "Check_ConNote", "Pul_Cerca", "Pul_Annulla", "Text_Cerca"}) {
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
      QCOMPARE(dialog.focusWidget()->objectName(), QLatin1String(next));
    }
  });
}

void SearchDialogTest::EnterFindsAndTheButtonsStepThroughTheResult() {
  InDialog([this](SearchDialog& dialog) {
    QTest::keyClicks(SearchedText(dialog), QStringLiteral("TOWER"));
    QTest::keyClick(SearchedText(dialog), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(Position(), QStringLiteral(" 1/3"));
  });
  QTest::mouseClick(Button(*window_, "Pul_Seguente"), Qt::LeftButton);
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  QTest::keyClick(window_.get(), Qt::Key_F3);
  QCOMPARE(Position(), QStringLiteral(" 3/3"));
  const auto* list = window_->findChild<SavegameList*>(QStringLiteral("List1"));
  QCOMPARE(list->SelectedLines(), std::vector<int>{2});

  // Cancelling keeps the result.
  InDialog([](SearchDialog& dialog) { Button(dialog, "Pul_Annulla")->click(); });
  QTest::mouseClick(Button(*window_, "Pul_Precedente"), Qt::LeftButton);
  QCOMPARE(Position(), QStringLiteral(" 2/3"));
}

void SearchDialogTest::NothingFoundKeepsTheDialogForAnotherTry() {
  InDialog([this](SearchDialog& dialog) {
    Box(dialog, "Check_ConNote")->click();
    for (const char* text : {"\u0416", "tower "}) {
      SearchedText(dialog)->setText(QString::fromUtf8(text));
      Button(dialog, "Pul_Cerca")->click();
      QCOMPARE(world_->boxes.AllTexts(), std::string("No savegame found\n"));
      world_->boxes.shown.clear();
      QVERIFY(dialog.isVisible());
      QVERIFY(Box(dialog, "Check_ConNote")->isChecked());
    }
    // What is typed next takes the place of the text.
    QTest::keyClicks(SearchedText(dialog), QString::fromUtf8("\u00C9t\u00C9"));
    Button(dialog, "Pul_Cerca")->click();
  });
  QCOMPARE(Position(), QStringLiteral(" 1/1"));
}

void SearchDialogTest::SwitchesHoldFromTheClickOnAndFiltersForOneOpening() {
  program_->preferences.SoundEffects = true;
  bool in_level_names = true;
  for (int opening = 1; opening <= 2; ++opening) {
    InDialog([&](SearchDialog& dialog) {
      QCOMPARE(Box(dialog, "Check_NomeLivello")->isChecked(), in_level_names);
      QTest::keyClick(Box(dialog, "Check_NomeLivello"), Qt::Key_Space);
      in_level_names = !in_level_names;
      QCOMPARE(program_->preferences.SearchInLevelName, in_level_names);
      QCOMPARE(program_->preferences.SearchInNotes, Box(dialog, "Check_Note")->isChecked());
      Box(dialog, "Check_Note")->click();
      QCOMPARE(program_->preferences.SearchInNotes, Box(dialog, "Check_Note")->isChecked());

      for (const char* filter : {"Check_ConNote", "Check_ConScreenShot"}) {
        QVERIFY(!Box(dialog, filter)->isChecked());
        Box(dialog, filter)->click();
      }
      QCOMPARE(SearchedText(dialog)->text(), QString());
      SearchedText(dialog)->setText(QStringLiteral("left over"));
    });
    QCOMPARE(world_->sounds.played.size(), static_cast<std::size_t>(opening));
    QVERIFY(world_->sounds.played.back().ends_with("s7.wav"));
  }
  QVERIFY(in_level_names && program_->preferences.SearchInNotes);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::SearchDialogTest)
#include "search_dialog_test.moc"
