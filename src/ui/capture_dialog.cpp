#include "ui/capture_dialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "game/capture.h"
#include "game/capture_link.h"
#include "game/capture_picture.h"
#include "game/capture_slots.h"
#include "game/running_game.h"
#include "platform/desktop_services.h"
#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "ui/caption_setter.h"
#include "ui/controls.h"
#include "ui/note_box.h"
#include "ui/picture_box.h"
#include "ui/slot_list.h"

namespace vellumark {
namespace {

constexpr int kNoteCaption = 102;
// What a window manager's frame takes of a small screen.
constexpr QSize kFrameRoom(16, 40);

// A picture keeps its proportions within a place that is 4:3 at first; it is never blown up.
class CapturedPicture final : public PictureBox {
 public:
  using PictureBox::PictureBox;

  QSize sizeHint() const override { return {560, 420}; }
  QSize minimumSizeHint() const override { return {320, 240}; }

 protected:
  QRect PictureArea() const override {
    const QSize whole = Picture().size();
    const QSize shown =
        whole.boundedTo(size()) == whole ? whole : whole.scaled(size(), Qt::KeepAspectRatio);
    return {QPoint((width() - shown.width()) / 2, 0), shown};
  }
};

}  // namespace

CaptureDialog::CaptureDialog(Program& program)
    : QDialog(ModalOpener()),
      program_(program),
      picture_(Named(new CapturedPicture(program.files, this), "Image1")),
      slots_(Named<SlotList>("Combo_Slot", this)),
      note_(new NoteBox("Text_Note", program.text, this)),
      save_(Named<QPushButton>("Pul_SalvaScreenShot", this)),
      ok_(Named<QPushButton>("Pul_Ok", this)),
      cancel_(Named<QPushButton>("Pul_Annulla", this)) {
  setObjectName(QLatin1String(NameOf(WindowId::kDialogCattura)));
  picture_->setAccessibleName(ToQString(program.text, LoadMessage(kNameCapturedPicture)));
  note_->setAccessibleName(ToQString(program.text, LoadMessage(kNoteCaption)).trimmed());
  save_->setAutoDefault(false);
  ok_->setDefault(true);
  BuildLayout();
  SetWindowCaptions(*this, WindowId::kDialogCattura, program.text);
  slots_->setFocus();

  connect(note_, &QPlainTextEdit::textChanged, this, [this] {
    program_.capture.typed_note = note_->ChangedNote().value_or(TypedNote{}).stored;
  });
  connect(slots_, &SlotList::Chosen, this, [this](int line) { ChooseSlot(program_, line); });
  connect(save_, &QPushButton::clicked, this, &CaptureDialog::SaveElsewhere);
  connect(ok_, &QPushButton::clicked, this, &CaptureDialog::Link);
  connect(cancel_, &QPushButton::clicked, this, &CaptureDialog::Cancel);
  connect(this, &QDialog::finished, this, [this] {
    EndCapture(program_);
    deleteLater();
  });
  if (parentWidget() != nullptr) parentWidget()->installEventFilter(this);
}

void CaptureDialog::BuildLayout() {
  auto* label = Named<QLabel>("Label1", this);
  label->setBuddy(slots_);
  auto* note_frame = Named<QGroupBox>("Frame2", this);
  (new QVBoxLayout(note_frame))->addWidget(note_);
  note_->setMinimumHeight(2 * note_->fontMetrics().lineSpacing());

  auto* fields = new QVBoxLayout;
  fields->addWidget(label);
  fields->addWidget(slots_, 1);
  fields->addWidget(note_frame, 1);
  auto* row = new QHBoxLayout;
  row->addWidget(picture_, 1);
  row->addLayout(fields);

  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(ok_, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel_, QDialogButtonBox::RejectRole);

  auto* bottom = new QHBoxLayout;
  bottom->addWidget(save_);
  bottom->addStretch(1);
  bottom->addWidget(buttons);

  auto* column = new QVBoxLayout(this);
  column->addLayout(row, 1);
  column->addLayout(bottom);

  SetTabSequence({slots_, note_, save_, ok_, cancel_});
}

void CaptureDialog::ImpostaValori() {
  shown_note_ = PrepareCapture(program_);
  ShowSlots();
  note_->ShowStoredNote(shown_note_);
  program_.capture.typed_note.clear();
  const auto* captured = dynamic_cast<const QtPicture*>(program_.capture.picture.get());
  picture_->ShowImage(captured != nullptr ? captured->Preview() : QImage());
}

void CaptureDialog::ShowSlots() {
  QStringList lines;
  for (const std::string& line : program_.capture.slot_lines) {
    lines.append(ToDisplayLine(program_.text, line, line.size()));
  }
  slots_->SetLines(lines, program_.capture.SelectedSlot);
}

void CaptureDialog::Appear() {
  // Left to itself, a window takes no more than two thirds of a small screen.
  if (!testAttribute(Qt::WA_Resized)) {
    resize(sizeHint().boundedTo(screen()->availableGeometry().size() - kFrameRoom));
  }
  show();
  raise();
  activateWindow();
  BringToFront(static_cast<WindowHandle>(winId()));
}

bool CaptureDialog::eventFilter(QObject* watched, QEvent* event) {
  // A window that is minimized hides too, but not by the program's doing.
  if (watched == parentWidget() && event->type() == QEvent::Hide && !event->spontaneous()) {
    FollowOpener();
  }
  return QDialog::eventFilter(watched, event);
}

void CaptureDialog::FollowOpener() {
  QWidget* opener = ModalOpener();
  if (!isVisible() || opener == nullptr || opener == parentWidget()) return;

  const QPoint place = pos();
  const QPointer<QWidget> focus = focusWidget();
  parentWidget()->removeEventFilter(this);
  opener->installEventFilter(this);
  setParent(opener, windowFlags());
  move(place);
  if (focus != nullptr) focus->setFocus();
  Appear();
  // The window that closes may hand the input focus on when it is done.
  QMetaObject::invokeMethod(this, &QWidget::activateWindow, Qt::QueuedConnection);
}

// A note that was not edited is the file's own, byte for byte.
TypedNote CaptureDialog::Note() const {
  return note_->ChangedNote().value_or(TypedNote{.stored = shown_note_});
}

void CaptureDialog::Link() {
  const AskingScope asking(*this);
  const TypedNote note = Note();
  switch (LinkCapture(program_, note)) {
    case LinkAnswer::kRefused:
      slots_->setFocus();
      return;
    case LinkAnswer::kSlotsChanged:
      ShowSlots();
      slots_->setFocus();
      return;
    case LinkAnswer::kNoteRefused:
      note_->Mark(note.lacking);
      return;
    case LinkAnswer::kNoteNotWritten:
      note_->setFocus();
      return;
    case LinkAnswer::kLinked:
      accept();
  }
}

void CaptureDialog::Cancel() {
  ActivateRunningGame(program_);
  reject();
}

void CaptureDialog::SaveElsewhere() {
  const AskingScope asking(*this);
  SaveCaptureElsewhere(program_);
}

}  // namespace vellumark
