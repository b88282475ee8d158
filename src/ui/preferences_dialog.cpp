#include "ui/preferences_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "foundation/preferences_commands.h"
#include "program.h"
#include "ui/controls.h"
#include "ui/path_label.h"

namespace vellumark {
PreferencesDialog::PreferencesDialog(Program& program)
    : ModalDialog(WindowId::kDialogPref, program),
      sounds_(Named<QCheckBox>("Check_Suoni", this)),
      capture_(Named<QCheckBox>("Check_AvvioAutomatico", this)),
      all_subfolders_(Named<QCheckBox>("Check_TutteLeDir", this)),
      shot_folder_(new PathLabel("Label_DirScreenShot", this)) {
  auto* label = Named<QLabel>("Label1", this);
  auto* browse = Named<QPushButton>("Pul_Sfoglia", this);
  auto* ok = Named<QPushButton>("Pul_Ok", this);
  auto* cancel = Named<QPushButton>("Pul_Annulla", this);
  label->setBuddy(browse);
  ok->setDefault(true);
  browse->setAutoDefault(false);  // Enter is OK's, also after it was used

  auto* folder_row = new QHBoxLayout;
  folder_row->addWidget(shot_folder_, 1);
  folder_row->addWidget(browse);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(ok, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel, QDialogButtonBox::RejectRole);
  auto* column = new QVBoxLayout(this);
  for (QCheckBox* box : {sounds_, capture_, all_subfolders_}) column->addWidget(box);
  column->addSpacing(8);
  column->addWidget(label);
  column->addLayout(folder_row);
  column->addStretch(1);
  column->addWidget(buttons);

  SetTabSequence({sounds_, capture_, all_subfolders_, browse, ok, cancel});
  SetCaptions();

  connect(ok, &QPushButton::clicked, this, &PreferencesDialog::Accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(browse, &QPushButton::clicked, this, [this] {
    ChooseShotFolder(this->program());
    ShowShotFolder();
  });
}

void PreferencesDialog::ImpostaValori() {
  const PreferenceSwitches switches = PreparePreferences(program());
  sounds_->setChecked(switches.sound_effects);
  capture_->setChecked(switches.auto_capture);
  all_subfolders_->setChecked(switches.scan_all_subfolders);
  ShowShotFolder();
}

void PreferencesDialog::ShowShotFolder() {
  shot_folder_->SetPath(ToText(program().preferences.ShotFolder));
}

void PreferencesDialog::Accept() {
  AcceptPreferences(program(), {.sound_effects = sounds_->isChecked(),
                                .auto_capture = capture_->isChecked(),
                                .scan_all_subfolders = all_subfolders_->isChecked()});
  accept();
}

}  // namespace vellumark
