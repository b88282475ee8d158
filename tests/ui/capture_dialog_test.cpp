// The capture dialog over the real main window and over other dialogs.
#include "ui/capture_dialog.h"

#include <QFileDialog>
#include <QMessageBox>

#include "foundation/messages.h"
#include "game/capture.h"
#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_message_boxes.h"
#include "savegames/details.h"
#include "ui/note_box.h"
#include "ui/slot_list.h"
#include "ui/window_fixture.h"

namespace vellumark {

class CaptureDialogTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void ShowsThePictureTheSlotsAndItsCaptions();
  void KeysReachEveryControl();
  void TheFirstKeyLeadsFromTheFirstSlot();
  void ANoteThatTheProgramFilledInIsNotTyped();
  void FitsASmallScreenWithAllSlots();
  void ClosingArmsTheCaptureAgain();
  void RefusalsLeaveTheDialogOpen();
  void TakesInputWhileTheDesktopsFileDialogWaits();
  void TakesInputOverAMessageBoxAndMovesOnWhenItCloses();
  void PropertiesKeepTheirSavegameUnderACapture();
  void ItsOwnMessagesOpenOverIt();

 private:
  void Prepare() override;
  CaptureDialog* Capture();
  void AddSlot(int slot, const char* level) const {
    world_->AddSavegame("Game", slot, level, static_cast<std::int16_t>(10 + slot));
  }
  // Lets a real message box wait and does something meanwhile.
  void WhileABoxWaits(const std::function<void(QDialog*)>& act);
  // Acts in the properties of the first savegame.
  void InProperties(const std::function<void(QDialog*)>& act);
};

CaptureDialog* OpenDialog() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<CaptureDialog*>(window);
    if (dialog != nullptr && dialog->isVisible()) return dialog;
  }
  return nullptr;
}

NoteBox* Note(const QWidget* dialog) { return Find<NoteBox>(dialog, "Text_Note"); }
SlotList* Slots(const QWidget* dialog) { return Find<SlotList>(dialog, "Combo_Slot"); }

// Input that goes the way of the window system's, so that a modal window can stop it.
void Click(QWidget* control, const QPoint& place) {
  QWidget* window = control->window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                    control->mapTo(window, place));
}
void Press(const QWidget* dialog, const char* button) {
  auto* control = Find<QPushButton>(dialog, button);
  Click(control, control->rect().center());
}
void Choose(const QWidget* dialog, int line) {
  Click(Slots(dialog)->viewport(),
        Slots(dialog)->visualItemRect(Slots(dialog)->item(line)).center());
}
void Type(const QWidget* dialog, const char* text) {
  Click(Note(dialog)->viewport(), QPoint(5, 5));
  for (const char* letter = text; *letter != '\0'; ++letter) {
    QTest::keyClick(dialog->windowHandle(), *letter);
  }
}

void CaptureDialogTest::Prepare() {
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 90);
  AddSlot(0, "North");
  AddSlot(2, "South");
  world_->desktop.open = {{6, LoadMessage(330)}};
}

CaptureDialog* CaptureDialogTest::Capture() {
  QImage screen(640, 480, QImage::Format_RGB32);
  screen.fill(Qt::darkCyan);
  world_->clipboard.content = std::make_shared<QtPicture>(screen);
  program_->capture.CaptureArmed = true;
  OnTimer(*program_);
  CaptureDialog* dialog = OpenDialog();
  return dialog != nullptr && GetsFocus(dialog) ? dialog : nullptr;
}

void CaptureDialogTest::WhileABoxWaits(const std::function<void(QDialog*)>& act) {
  InDialog(
      [this] { QtMessageBoxes(world_->text).Show("waiting", BoxButtons::kOk, BoxIcon::kNone); },
      act);
}

void CaptureDialogTest::InProperties(const std::function<void(QDialog*)>& act) {
  SelectOnly(*program_, 0);
  InDialog([this] { window_->ShowModal(WindowId::kDialogNote); }, act);
}

void CaptureDialogTest::ShowsThePictureTheSlotsAndItsCaptions() {
  CaptureDialog* dialog = Capture();
  QVERIFY(dialog != nullptr && !dialog->isModal());
  QCOMPARE(Slots(dialog)->count(), 3);
  QVERIFY(Slots(dialog)->selectedItems().isEmpty());
  QCOMPARE(
      dialog->grab().toImage().pixelColor(Find<QWidget>(dialog, "Image1")->geometry().center()),
      QColor(Qt::darkCyan));

  QCOMPARE(dialog->windowTitle(), QStringLiteral("Tomb Raider screen-shot captured"));
  ExpectCaptions(dialog, WindowId::kDialogCattura, world_->text);
  QVERIFY(!Find<QWidget>(dialog, "Image1")->accessibleName().isEmpty());
}

void CaptureDialogTest::KeysReachEveryControl() {
  CaptureDialog* dialog = Capture();
  QVERIFY(Slots(dialog)->hasFocus());
  ExpectTabOrder({"Text_Note", "Pul_SalvaScreenShot", "Pul_Ok", "Pul_Annulla", "Combo_Slot"});
  QTest::keyClick(dialog->windowHandle(), Qt::Key_N, Qt::AltModifier);
  QVERIFY(Note(dialog)->hasFocus());
  QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
  QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("\n"));
  QTest::keyClick(dialog->windowHandle(), Qt::Key_L, Qt::AltModifier);
  QVERIFY(Slots(dialog)->hasFocus());
  QTest::keyClick(dialog->windowHandle(), Qt::Key_S, Qt::AltModifier);
  QTRY_COMPARE(world_->dialogs.requests.size(), std::size_t{1});
  QTest::keyClick(dialog->windowHandle(), Qt::Key_C, Qt::AltModifier);
  QTRY_VERIFY(OpenDialog() == nullptr);
}

void CaptureDialogTest::TheFirstKeyLeadsFromTheFirstSlot() {
  CaptureDialog* dialog = Capture();
  QTest::keyClick(dialog->windowHandle(), Qt::Key_Down);
  QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
  QVERIFY(OpenDialog() == nullptr);
  QVERIFY(world_->disk.Exists("Game/shot0.jpg"));

  for (const Qt::Key down : {Qt::Key_End, Qt::Key_PageDown}) {
    dialog = Capture();
    QTest::keyClick(dialog->windowHandle(), down);
    QCOMPARE(program_->capture.SelectedSlot, std::int16_t{2});
    dialog->reject();
    QTRY_VERIFY(OpenDialog() == nullptr);
  }
}

void CaptureDialogTest::ANoteThatTheProgramFilledInIsNotTyped() {
  world_->disk.Remove({"Game/savegame.2"});
  world_->disk.Write("Game/note0.txt", "of the slot\r\n");
  CaptureDialog* dialog = Capture();
  QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("of the slot"));
  QCOMPARE(program_->capture.typed_note, std::string());
}

void CaptureDialogTest::FitsASmallScreenWithAllSlots() {
  AddSlot(15, "The Great Hypostyle Hall of Karnak");
  CaptureDialog* dialog = Capture();
  const QSize small(1008, 560);
  dialog->resize(small);
  QCOMPARE(dialog->size(), small);
  const QPoint last_line = Slots(dialog)->visualItemRect(Slots(dialog)->item(15)).bottomLeft();
  QVERIFY(Slots(dialog)->viewport()->rect().contains(last_line));
}

void CaptureDialogTest::ClosingArmsTheCaptureAgain() {
  const struct {
    const char* name;
    std::function<void(CaptureDialog*)> close;
    bool back_to_game;
    bool links;
  } ways[] = {{"Cancel", [](CaptureDialog* dialog) { Press(dialog, "Pul_Annulla"); }, true, false},
              {"Escape", [](CaptureDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); },
               false, false},
              {"close box", [](CaptureDialog* dialog) { dialog->close(); }, false, false},
              {"shut-down", [this](auto*) { window_->CloseDialog(WindowId::kDialogCattura); },
               false, false},
              {"OK", [](CaptureDialog* dialog) { Press(dialog, "Pul_Ok"); }, true, true}};
  for (const auto& way : ways) {
    // The next picture does not wait until the old dialog is gone.
    CaptureDialog* dialog = Capture();
    QVERIFY2(dialog != nullptr, way.name);
    QVERIFY(program_->capture.CaptureDialogOpen && !program_->capture.CaptureArmed);
    world_->desktop.activated.clear();
    Choose(dialog, 2);
    Type(dialog, "typed");
    QCOMPARE(program_->capture.typed_note, std::string("typed"));
    way.close(dialog);
    QVERIFY2(OpenDialog() == nullptr, way.name);
    QVERIFY(!program_->capture.CaptureDialogOpen && program_->capture.CaptureArmed);
    QVERIFY(program_->capture.typed_note.empty());
    QVERIFY(world_->clipboard.content == nullptr);
    QVERIFY2(world_->desktop.activated.empty() != way.back_to_game, way.name);
    QVERIFY2(world_->disk.Exists("Game/note2.txt") == way.links, way.name);
  }
}

void CaptureDialogTest::RefusalsLeaveTheDialogOpen() {
  CaptureDialog* dialog = Capture();
  Press(dialog, "Pul_Ok");
  QCOMPARE(world_->boxes.shown.back().text, LoadMessage(109));
  Choose(dialog, 1);
  Press(dialog, "Pul_Ok");
  QVERIFY(Slots(dialog)->hasFocus());
  Choose(dialog, 2);
  Note(dialog)->insertPlainText(QString::fromUtf8("\u00E9 \u0416"));
  Press(dialog, "Pul_Ok");
  QCOMPARE(Note(dialog)->textCursor().selectedText(), QString::fromUtf8("\u0416"));
  QVERIFY(Note(dialog)->hasFocus());

  AddSlot(2, "Played on");
  Press(dialog, "Pul_Ok");
  QCOMPARE(world_->boxes.shown.size(), std::size_t{4});
  QCOMPARE(Slots(dialog)->item(2)->text(), QStringLiteral("SLOT  2 ->   12  Played on"));
  QVERIFY(Slots(dialog)->selectedItems().isEmpty());
  QVERIFY(!world_->disk.Exists("Game/shot2.jpg"));

  world_->disk.Write("Game/note2.txt", "old\r\n");
  world_->disk.MakeReadOnly("Game/note2.txt");
  Choose(dialog, 2);
  Note(dialog)->clear();
  Type(dialog, "typed");
  Press(dialog, "Pul_Ok");
  QVERIFY2(world_->disk.Exists("Game/shot2.jpg"), "only the note cannot be written");
  QVERIFY(OpenDialog() == dialog);
  QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("typed"));
}

// The desktop's own dialog stands in front of one of ours that is modal, but not on the screen.
void CaptureDialogTest::TakesInputWhileTheDesktopsFileDialogWaits() {
  QFileDialog files(window_.get());
  files.setOption(QFileDialog::DontUseNativeDialog);
  files.setAttribute(Qt::WA_DontShowOnScreen);
  files.setModal(true);
  files.show();
  CaptureDialog* dialog = Capture();
  QVERIFY(window_->geometry().intersects(dialog->geometry()));
  Choose(dialog, 0);
  Type(dialog, "typed");
  files.reject();
  QVERIFY(dialog->isVisible() && dialog->parentWidget() == window_.get());
  Press(dialog, "Pul_Ok");
  QCOMPARE(world_->disk.Read("Game/note0.txt"), std::string("typed\r\n"));
}

void CaptureDialogTest::TakesInputOverAMessageBoxAndMovesOnWhenItCloses() {
  CaptureDialog* dialog = nullptr;
  QPoint place;
  InProperties([&](QDialog* properties) {
    WhileABoxWaits([&](QDialog* box) {
      Press(properties, "Pul_Annulla");
      QVERIFY2(properties->isVisible(), "the box blocks what is below it");
      dialog = Capture();
      QVERIFY(dialog != nullptr && dialog->parentWidget() == box);
      Choose(dialog, 2);
      Type(dialog, "one ");
      place = dialog->pos();
    });
    QVERIFY(dialog->isVisible() && dialog->parentWidget() == properties);
    QVERIFY(GetsFocus(dialog));
    QTRY_COMPARE(dialog->pos(), place);
    Choose(dialog, 0);
  });

  QVERIFY(dialog != nullptr && dialog == OpenDialog());
  QCOMPARE(dialog->parentWidget(), window_.get());
  QTRY_COMPARE(dialog->pos(), place);
  QVERIFY(program_->capture.CaptureDialogOpen);
  QVERIFY(GetsFocus(dialog));
  QCOMPARE(dialog->focusWidget(), Slots(dialog));
  QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("one "));
  Press(dialog, "Pul_Ok");
  QCOMPARE(world_->disk.Read("Game/note0.txt"), std::string("one\r\n"));
}

void CaptureDialogTest::PropertiesKeepTheirSavegameUnderACapture() {
  InProperties([this](QDialog* properties) {
    auto* comment = Find<NoteBox>(properties, "Text_Commento");
    comment->insertPlainText(QStringLiteral("of Angkor Wat"));
    CaptureDialog* dialog = Capture();
    QVERIFY(dialog != nullptr && dialog->parentWidget() == properties);
    Choose(dialog, 2);
    Type(dialog, "of South");
    Press(dialog, "Pul_Ok");
    QVERIFY(OpenDialog() == nullptr);
    QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{2});
    QVERIFY(properties->isVisible());
    Press(properties, "Pul_Ok");
  });
  QCOMPARE(world_->disk.Read("Archive/Slot1/note0.txt"), std::string("of Angkor Wat\r\n"));
  QCOMPARE(world_->disk.Read("Game/note2.txt"), std::string("of South\r\n"));
}

void CaptureDialogTest::ItsOwnMessagesOpenOverIt() {
  int shown = 0;
  const auto check = [&] {
    ++shown;
    CaptureDialog* dialog = OpenDialog();
    QCOMPARE(ModalOpener(), dialog);
    WhileABoxWaits([dialog](QDialog* box) {
      QCOMPARE(box->parentWidget(), dialog);
      QCOMPARE(ModalOpener(), box);
      Type(dialog, "x");
      QCOMPARE(Note(dialog)->toPlainText(), QString());
    });
  };
  world_->boxes.while_waiting = check;
  CaptureDialog* dialog = Capture();
  Press(dialog, "Pul_Ok");
  dialog->reject();
  WhileABoxWaits([&](QDialog* box) {
    Press(Capture(), "Pul_Ok");
    QCOMPARE(ModalOpener(), box);
    OpenDialog()->reject();
  });
  QCOMPARE(shown, 2);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::CaptureDialogTest)
#include "capture_dialog_test.moc"
