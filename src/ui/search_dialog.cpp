#include "ui/search_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "foundation/sound_effects.h"
#include "program.h"
#include "savegames/search.h"
#include "ui/controls.h"

namespace vellumark {
namespace {

QGroupBox* FrameAround(const char* name, std::initializer_list<QCheckBox*> boxes, QWidget* parent) {
  auto* frame = Named<QGroupBox>(name, parent);
  auto* column = new QVBoxLayout(frame);
  for (QCheckBox* box : boxes) column->addWidget(box);
  return frame;
}

}  // namespace

SearchDialog::SearchDialog(Program& program)
    : ModalDialog(WindowId::kDialogCerca, program),
      text_(Named<QLineEdit>("Text_Cerca", this)),
      in_level_names_(Named<QCheckBox>("Check_NomeLivello", this)),
      in_notes_(Named<QCheckBox>("Check_Note", this)),
      with_shot_(Named<QCheckBox>("Check_ConScreenShot", this)),
      with_note_(Named<QCheckBox>("Check_ConNote", this)) {
  auto* label = Named<QLabel>("Label1", this);
  auto* find = Named<QPushButton>("Pul_Cerca", this);
  auto* cancel = Named<QPushButton>("Pul_Annulla", this);
  label->setBuddy(text_);
  text_->setMinimumWidth(text_->fontMetrics().averageCharWidth() * 40);
  find->setDefault(true);

  auto* text_row = new QHBoxLayout;
  text_row->addWidget(label);
  text_row->addWidget(text_, 1);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(find, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel, QDialogButtonBox::RejectRole);
  auto* column = new QVBoxLayout(this);
  column->addLayout(text_row);
  column->addWidget(FrameAround("Frame1", {in_level_names_, in_notes_}, this));
  column->addWidget(FrameAround("Frame2", {with_shot_, with_note_}, this));
  column->addStretch(1);
  column->addWidget(buttons);

  SetTabSequence({text_, in_level_names_, in_notes_, with_shot_, with_note_, find, cancel});
  SetCaptions();

  Preferences& preferences = program.preferences;
  connect(in_level_names_, &QCheckBox::toggled, this,
          [&preferences](bool ticked) { preferences.SearchInLevelName = ticked; });
  connect(in_notes_, &QCheckBox::toggled, this,
          [&preferences](bool ticked) { preferences.SearchInNotes = ticked; });
  connect(find, &QPushButton::clicked, this, &SearchDialog::Search);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void SearchDialog::ImpostaValori() {
  PlaySoundEffect(program(), SoundEffect::kOpening);
  in_level_names_->setChecked(program().preferences.SearchInLevelName);
  in_notes_->setChecked(program().preferences.SearchInNotes);
  text_->setFocus();
}

void SearchDialog::Search() {
  const SearchRequest request{.text = program().text.FromUtf8(text_->text().toStdString()),
                              .with_note = with_note_->isChecked(),
                              .with_shot = with_shot_->isChecked()};
  if (RunSearch(program(), request)) return;

  text_->selectAll();
  text_->setFocus();
}

}  // namespace vellumark
