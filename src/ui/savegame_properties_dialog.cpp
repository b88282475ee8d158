#include "ui/savegame_properties_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "foundation/messages.h"
#include "program.h"
#include "savegames/savegame_properties.h"
#include "ui/controls.h"
#include "ui/note_box.h"
#include "ui/path_label.h"
#include "ui/picture_formats.h"
#include "ui/read_only_field.h"

namespace vellumark {
namespace {

constexpr int kNoteCaption = 158;

QLabel* LabelFor(const char* name, QWidget* field) {
  auto* label = Named<QLabel>(name, field->parentWidget());
  label->setBuddy(field);
  return label;
}

}  // namespace

SavegamePropertiesDialog::SavegamePropertiesDialog(Program& program)
    : ModalDialog(WindowId::kDialogNote, program),
      path_(new ReadOnlyField("Text_Path", this)),
      level_(new ReadOnlyField("Text_Livello", this)),
      counter_(Named<QLineEdit>("Text_NuovoNSalvataggio", this)),
      note_(new NoteBox("Text_Commento", program.text, this)),
      shot_(new PathLabel("Label_ScreenShot", this)),
      browse_(Named<QPushButton>("Pul_SfogliaScreen", this)),
      remove_shot_(Named<QCheckBox>("Check_EliminaShot", this)),
      ok_(Named<QPushButton>("Pul_Ok", this)),
      cancel_(Named<QPushButton>("Pul_Annulla", this)) {
  counter_->setAlignment(Qt::AlignCenter);
  note_->setAccessibleName(ToText(LoadMessage(kNoteCaption)).trimmed());
  ok_->setDefault(true);
  BuildLayout();
  SetCaptions();
  note_->setFocus();

  connect(browse_, &QPushButton::clicked, this, &SavegamePropertiesDialog::Browse);
  connect(ok_, &QPushButton::clicked, this, &SavegamePropertiesDialog::Accept);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void SavegamePropertiesDialog::BuildLayout() {
  auto* fields = new QGridLayout;
  fields->addWidget(LabelFor("Label1", path_), 0, 0);
  fields->addWidget(path_, 0, 1);
  fields->addWidget(LabelFor("Label2", level_), 1, 0);
  fields->addWidget(level_, 1, 1);

  auto* counter_row = new QHBoxLayout;
  counter_row->addWidget(LabelFor("Label3", counter_));
  counter_row->addWidget(counter_, 1);
  counter_->setMinimumWidth(counter_->fontMetrics().horizontalAdvance(QStringLiteral("-32768")) +
                            24);

  auto* note_frame = Named<QGroupBox>("Frame1", this);
  (new QVBoxLayout(note_frame))->addWidget(note_);

  auto* shot_frame = Named<QGroupBox>("Frame2", this);
  auto* shot_rows = new QVBoxLayout(shot_frame);
  auto* shot_row = new QHBoxLayout;
  shot_row->addWidget(shot_, 1);
  shot_row->addWidget(browse_);
  shot_rows->addLayout(shot_row);
  shot_rows->addWidget(remove_shot_);

  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(ok_, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel_, QDialogButtonBox::RejectRole);

  auto* column = new QVBoxLayout(this);
  column->addLayout(fields);
  column->addLayout(counter_row);
  column->addWidget(note_frame, 1);
  column->addWidget(shot_frame);
  column->addWidget(buttons);
  resize(620, 480);

  SetTabSequence({path_, level_, counter_, note_, browse_, remove_shot_, ok_, cancel_});
}

void SavegamePropertiesDialog::ImpostaValori() {
  const SavegameProperties shown = PrepareSavegameProperties(program());
  index_ = shown.index;
  shown_note_ = shown.note;
  note_->ShowNote(shown.note);
  path_->setText(ToText(shown.path));
  level_->setText(ToText(shown.level));
  counter_->setText(ToText(shown.counter));
  shot_->SetPath(ToText(shown.shot));
}

void SavegamePropertiesDialog::ShowShot() { shot_->SetPath(ToText(LinkedShot(program(), index_))); }

void SavegamePropertiesDialog::Browse() {
  if (ChooseScreenShot(program(), index_, ReadablePictures())) ShowShot();
}

void SavegamePropertiesDialog::Accept() {
  const SavegameChanges changes{.index = index_,
                                .shown_note = shown_note_,
                                .note = note_->ChangedNote(),
                                .counter = FromText(counter_->text()),
                                .remove_shot = remove_shot_->isChecked()};
  switch (ApplySavegameChanges(program(), changes)) {
    case ChangesAnswer::kRefused:
      if (changes.note && !changes.note->lacking.empty()) {
        note_->Mark(changes.note->lacking);
      } else {
        counter_->selectAll();
        counter_->setFocus();
      }
      return;
    case ChangesAnswer::kNoteNotWritten:
      note_->setFocus();
      return;
    case ChangesAnswer::kDone:
      accept();
  }
}

}  // namespace vellumark
