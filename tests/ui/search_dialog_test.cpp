// The search dialog over the real main window.
#include "ui/search_dialog.h"

#include "ui/window_fixture.h"

namespace vellumark {

class SearchDialogTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void EnterFindsAndTheButtonsStepThroughTheResult();
  void NothingFoundKeepsTheDialogForAnotherTry();
  void SwitchesHoldFromTheClickOnAndFiltersForOneOpening();

 private:
  void Prepare() override;
  QString Position() const { return TextOf(window_.get(), "Text_Trovati"); }
};

void SearchDialogTest::Prepare() {
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Archive/Slot1", 1, "The Tower", 2);
  world_->AddSavegame("Archive/Slot1", 2, "Old Tower", 3);
  world_->disk.Write("Archive/Slot1/note0.txt", "before the tower, \xE9t\xE9\r\n");
}

void SearchDialogTest::EnterFindsAndTheButtonsStepThroughTheResult() {
  InDialog("mnu_Find", [this](const QDialog* dialog) {
    Type(dialog, "Text_Cerca", "TOWER");
    QTest::keyClick(Find<QLineEdit>(dialog, "Text_Cerca"), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(Position(), QStringLiteral(" 1/3"));
  });
  Click(window_.get(), "Pul_Seguente");
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  QTest::keyClick(window_.get(), Qt::Key_F3);
  QCOMPARE(Position(), QStringLiteral(" 3/3"));
  QCOMPARE(window_->SelectedLines(), std::vector<int>{2});

  // Cancelling keeps the result.
  InDialog("mnu_Find", [](const QDialog* dialog) { Click(dialog, "Pul_Annulla"); });
  Click(window_.get(), "Pul_Precedente");
  QCOMPARE(Position(), QStringLiteral(" 2/3"));
}

void SearchDialogTest::NothingFoundKeepsTheDialogForAnotherTry() {
  InDialog("mnu_Find", [this](const QDialog* dialog) {
    Find<QCheckBox>(dialog, "Check_ConNote")->click();
    Find<QLineEdit>(dialog, "Text_Cerca")->setText(QString(QChar(0x0416)));
    Click(dialog, "Pul_Cerca");
    QCOMPARE(world_->boxes.AllTexts(), std::string("No savegame found\n"));
    QVERIFY(dialog->isVisible() && IsTicked(dialog, "Check_ConNote"));
    // What is typed next takes the place of the text.
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8("\u00C9t\u00C9"));
    Click(dialog, "Pul_Cerca");
  });
  QCOMPARE(Position(), QStringLiteral(" 1/1"));
}

void SearchDialogTest::SwitchesHoldFromTheClickOnAndFiltersForOneOpening() {
  Preferences& preferences = program_->preferences;
  preferences.SoundEffects = true;
  bool in_level_names = true;
  for (int opening = 1; opening <= 2; ++opening) {
    InDialog("mnu_Find", [&](const QDialog* dialog) {
      QCOMPARE(IsTicked(dialog, "Check_NomeLivello"), in_level_names);
      QTest::keyClick(Find<QCheckBox>(dialog, "Check_NomeLivello"), Qt::Key_Space);
      in_level_names = !in_level_names;
      QCOMPARE(preferences.SearchInLevelName, in_level_names);
      QCOMPARE(preferences.SearchInNotes, IsTicked(dialog, "Check_Note"));
      Toggle(dialog, "Check_Note");
      QCOMPARE(preferences.SearchInNotes, IsTicked(dialog, "Check_Note"));

      for (const char* filter : {"Check_ConNote", "Check_ConScreenShot"}) {
        QVERIFY(!IsTicked(dialog, filter));
        Find<QCheckBox>(dialog, filter)->click();
      }
    });
    QCOMPARE(world_->sounds.played.size(), static_cast<std::size_t>(opening));
  }
  QVERIFY(in_level_names && preferences.SearchInNotes);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::SearchDialogTest)
#include "search_dialog_test.moc"
