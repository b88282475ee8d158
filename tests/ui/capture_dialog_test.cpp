// The capture dialog over the real main window and over other dialogs.
#include "ui/capture_dialog.h"

#include <QAction>
#include <QFileDialog>
#include <QGroupBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QtTest>
#include <functional>
#include <memory>

#include "foundation/messages.h"
#include "game/capture.h"
#include "platform/qt/opener.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/details.h"
#include "support/test_world.h"
#include "ui/access_keys.h"
#include "ui/note_box.h"
#include "ui/picture_box.h"
#include "ui/principale.h"
#include "ui/savegame_list.h"
#include "ui/savegame_properties_dialog.h"
#include "ui/shown_program.h"
#include "ui/slot_list.h"

namespace vellumark {

using testing::TestWorld;

class CaptureDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void ShowsThePictureTheSlotsAndItsCaptions();
  void KeysReachEveryControl();
  void TheFirstArrowKeyChoosesTheFirstSlot();
  void FitsASmallScreenWithAllSlots();
  void ClosingArmsTheCaptureAgain_data();
  void ClosingArmsTheCaptureAgain();
  void NotesGoBackAsStored();
  void RefusalsLeaveTheDialogOpen();
  void ANoteThatCannotBeWrittenStays();
  void TakesInputWhileAMessageBoxWaits();
  void TakesInputWhileTheDesktopsFileDialogWaits();
  void MovesOnWhenTheWindowBelowCloses();
  void PropertiesKeepTheirSavegameUnderACapture();
  void ItsOwnMessagesOpenOverIt();

 private:
  CaptureDialog* Capture();
  void AddSlot(int slot, const char* level) const {
    world_->AddSavegame("Game", slot, level, static_cast<std::int16_t>(10 + slot));
  }
  // Lets a real message box wait and does something meanwhile.
  void WhileABoxWaits(const std::function<void(QMessageBox*)>& act);

  std::unique_ptr<TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
};

template <typename Widget>
Widget* Find(const QWidget* window, const char* name) {
  return window->findChild<Widget*>(QLatin1String(name));
}

CaptureDialog* OpenDialog() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<CaptureDialog*>(window);
    if (dialog != nullptr && dialog->isVisible()) return dialog;
  }
  return nullptr;
}

NoteBox* Note(const QWidget* dialog) { return Find<NoteBox>(dialog, "Text_Note"); }
SlotList* Slots(const QWidget* dialog) { return Find<SlotList>(dialog, "Combo_Slot"); }

// A window counts as active for Qt also while one that it stands over has the input focus.
bool GetsFocus(QWidget* window) {
  return QTest::qWaitFor(
      [window] { return QGuiApplication::focusWindow() == window->windowHandle(); });
}

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

void CaptureDialogTest::init() {
  world_ = std::make_unique<TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 90);
  AddSlot(0, "North");
  AddSlot(2, "South");
  world_->desktop.open = {{6, LoadMessage(330)}};
  ShowProgram(*world_, window_, program_);
  program_->capture.CaptureArmed = true;
}

void CaptureDialogTest::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

CaptureDialog* CaptureDialogTest::Capture() {
  QImage screen(640, 480, QImage::Format_RGB32);
  screen.fill(Qt::darkCyan);
  world_->clipboard.content = std::make_shared<QtPicture>(screen);
  OnTimer(*program_);
  CaptureDialog* dialog = OpenDialog();
  return dialog != nullptr && GetsFocus(dialog) ? dialog : nullptr;
}

void CaptureDialogTest::WhileABoxWaits(const std::function<void(QMessageBox*)>& act) {
  bool acted = false;
  QTimer::singleShot(50, window_.get(), [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QVERIFY(box != nullptr && GetsFocus(box));
    act(box);
    acted = true;
    box->accept();
  });
  QtMessageBoxes(world_->text).Show("waiting", BoxButtons::kOk, BoxIcon::kNone);
  QVERIFY(acted);
}

void CaptureDialogTest::ShowsThePictureTheSlotsAndItsCaptions() {
  CaptureDialog* dialog = Capture();
  QVERIFY(dialog != nullptr && !dialog->isModal());
  QCOMPARE(Slots(dialog)->count(), 3);
  QCOMPARE(Slots(dialog)->item(0)->text(), QStringLiteral("SLOT  0 ->   10  North"));
  QVERIFY(Slots(dialog)->selectedItems().isEmpty());
  QCOMPARE(Find<PictureBox>(dialog, "Image1")->Picture().size(), QSize(640, 480));
  QCOMPARE(
      dialog->grab().toImage().pixelColor(Find<QWidget>(dialog, "Image1")->geometry().center()),
      QColor(Qt::darkCyan));

  for (const Caption& caption : CaptionsOf(WindowId::kDialogCattura)) {
    const bool is_window = *caption.control == '\0';
    auto* control = is_window ? dialog : Find<QWidget>(dialog, caption.control);
    QVERIFY2(control != nullptr, caption.control);
    const bool is_frame = qobject_cast<QGroupBox*>(control) != nullptr;
    const char* property = is_window ? "windowTitle" : is_frame ? "title" : "text";
    QCOMPARE(WithoutAccessKey(control->property(property).toString()),
             ToQString(world_->text, LoadMessage(caption.message)));
  }
  for (const char* name : {"Image1", "Combo_Slot", "Text_Note"}) {
    QVERIFY2(!Find<QWidget>(dialog, name)->accessibleName().isEmpty(), name);
  }
}

void CaptureDialogTest::KeysReachEveryControl() {
  CaptureDialog* dialog = Capture();
  QVERIFY(Slots(dialog)->hasFocus());
  for (const char* next :
       {"Text_Note", "Pul_SalvaScreenShot", "Pul_Ok", "Pul_Annulla", "Combo_Slot"}) {
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
  }
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

void CaptureDialogTest::TheFirstArrowKeyChoosesTheFirstSlot() {
  CaptureDialog* dialog = Capture();
  QTest::keyClick(dialog->windowHandle(), Qt::Key_Down);
  QCOMPARE(program_->capture.SelectedSlot, std::int16_t{0});
  QCOMPARE(program_->capture.SelectedLevelName, std::string("North"));
  QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
  QVERIFY(OpenDialog() == nullptr);
  QVERIFY(world_->disk.Exists("Game/shot0.jpg"));
}

void CaptureDialogTest::FitsASmallScreenWithAllSlots() {
  AddSlot(15, "The Great Hypostyle Hall of Karnak");
  CaptureDialog* dialog = Capture();
  const QSize small(1008, 560);
  dialog->resize(small);
  QCOMPARE(dialog->size(), small);
  const SlotList* slots_list = Slots(dialog);
  QVERIFY(slots_list->viewport()->rect().contains(
      slots_list->visualItemRect(slots_list->item(15)).bottomLeft()));
  QVERIFY(Find<QWidget>(dialog, "Image1")->width() >= 320);
  QVERIFY(Note(dialog)->viewport()->height() >= 2 * Note(dialog)->fontMetrics().lineSpacing());
}

void CaptureDialogTest::ClosingArmsTheCaptureAgain_data() {
  QTest::addColumn<QString>("way");
  QTest::addColumn<bool>("back_to_game");
  QTest::newRow("OK") << QStringLiteral("Pul_Ok") << true;
  QTest::newRow("Cancel") << QStringLiteral("Pul_Annulla") << true;
  QTest::newRow("Escape") << QStringLiteral("escape") << false;
  QTest::newRow("close box") << QStringLiteral("close") << false;
  QTest::newRow("shut-down") << QStringLiteral("program") << false;
}

void CaptureDialogTest::ClosingArmsTheCaptureAgain() {
  QFETCH(const QString, way);
  QFETCH(const bool, back_to_game);
  CaptureDialog* dialog = Capture();
  QVERIFY(program_->capture.CaptureDialogOpen && !program_->capture.CaptureArmed);
  Choose(dialog, 2);
  Type(dialog, "typed");
  QCOMPARE(program_->capture.typed_note, std::string("typed"));
  if (way == QStringLiteral("escape")) {
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
  } else if (way == QStringLiteral("close")) {
    dialog->close();
  } else if (way == QStringLiteral("program")) {
    window_->CloseDialog(WindowId::kDialogCattura);
  } else {
    Press(dialog, way.toLatin1().constData());
  }
  QVERIFY(OpenDialog() == nullptr);
  QVERIFY(!program_->capture.CaptureDialogOpen && program_->capture.CaptureArmed);
  QVERIFY(program_->capture.typed_note.empty());
  QVERIFY(world_->clipboard.content == nullptr);
  QCOMPARE(!world_->desktop.activated.empty(), back_to_game);
  QCOMPARE(world_->disk.Exists("Game/note2.txt"), way == QStringLiteral("Pul_Ok"));

  // The next picture does not wait until the old dialog is gone.
  QVERIFY(Capture() != nullptr);
}

void CaptureDialogTest::NotesGoBackAsStored() {
  std::filesystem::remove(world_->disk.path() / "Game/savegame.0");
  const std::string note = "a\x8D\nb\n\x81 c\xA0\x8D\x8D\n";
  world_->disk.Write("Game/note2.txt", note + "\r\n");
  CaptureDialog* dialog = Capture();
  QCOMPARE(Note(dialog)->document()->blockCount(), 4);
  QVERIFY(Note(dialog)->document()->firstBlock().text() == QString::fromUtf8("a\u008D"));
  Press(dialog, "Pul_Ok");
  QCOMPARE(world_->disk.Read("Game/note2.txt"), note + "\r\n");

  dialog = Capture();
  Note(dialog)->moveCursor(QTextCursor::End);
  QTest::keyClick(Note(dialog), Qt::Key_Z);
  QTest::keyClick(Note(dialog), Qt::Key_Return);
  QTest::keyClick(Note(dialog), Qt::Key_Y);
  Press(dialog, "Pul_Ok");
  QCOMPARE(world_->disk.Read("Game/note2.txt"),
           std::string("a\x8D\nb\x8D\n\x81 c\xA0\x8D\x8D\nz\x8D\ny\r\n"));
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
  QVERIFY(!Note(dialog)->toPlainText().isEmpty());
  QVERIFY(dialog->isVisible());
  QVERIFY(!world_->disk.Exists("Game/shot2.jpg"));
}

void CaptureDialogTest::ANoteThatCannotBeWrittenStays() {
  world_->disk.Write("Game/note2.txt", "old\r\n");
  world_->disk.MakeReadOnly("Game/note2.txt");
  CaptureDialog* dialog = Capture();
  Choose(dialog, 2);
  Type(dialog, "typed");
  Press(dialog, "Pul_Ok");
  QVERIFY(dialog->isVisible());
  QCOMPARE(Note(dialog)->toPlainText(), QStringLiteral("typed"));
  QCOMPARE(program_->catalogue.entries[2].NoteText, std::string());
  QVERIFY(world_->disk.Exists("Game/shot2.jpg"));
}

void CaptureDialogTest::TakesInputWhileAMessageBoxWaits() {
  WhileABoxWaits([this](QMessageBox*) {
    auto* list = Find<SavegameList>(window_.get(), "List1");
    SelectOnly(*program_, 0);
    Click(list->viewport(), list->visualRect(list->model()->index(1, 0)).center());
    QCOMPARE(list->SelectedLines(), std::vector<int>{0});  // the box does block the main window

    CaptureDialog* dialog = Capture();
    Choose(dialog, 2);
    Type(dialog, "typed");
    Press(dialog, "Pul_Ok");
    QVERIFY(OpenDialog() == nullptr);
  });
  QCOMPARE(world_->disk.Read("Game/note2.txt"), std::string("typed\r\n"));
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

void CaptureDialogTest::MovesOnWhenTheWindowBelowCloses() {
  SelectOnly(*program_, 0);
  CaptureDialog* dialog = nullptr;
  QPoint place;
  QTimer::singleShot(50, window_.get(), [&] {
    auto* properties = QApplication::activeModalWidget();
    const auto close = qScopeGuard([properties] { properties->close(); });
    WhileABoxWaits([&](QMessageBox* box) {
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
  window_->ShowModal(WindowId::kDialogNote);

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
  SelectOnly(*program_, 0);
  QTimer::singleShot(50, window_.get(), [this] {
    auto* properties = QApplication::activeModalWidget();
    const auto close = qScopeGuard([properties] { properties->close(); });
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
  window_->ShowModal(WindowId::kDialogNote);
  QCOMPARE(world_->disk.Read("Archive/Slot1/note0.txt"), std::string("of Angkor Wat\r\n"));
  QCOMPARE(world_->disk.Read("Game/note2.txt"), std::string("of South\r\n"));
}

void CaptureDialogTest::ItsOwnMessagesOpenOverIt() {
  int shown = 0;
  const auto check = [&] {
    ++shown;
    CaptureDialog* dialog = OpenDialog();
    QCOMPARE(ModalOpener(), dialog);
    WhileABoxWaits([dialog](QMessageBox* box) {
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
  WhileABoxWaits([&](QMessageBox* box) {
    Press(Capture(), "Pul_Ok");
    QCOMPARE(ModalOpener(), box);
    OpenDialog()->reject();
  });
  QCOMPARE(shown, 2);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::CaptureDialogTest)
#include "capture_dialog_test.moc"
