#include "ui/reorder_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "maintenance/export_shots.h"
#include "maintenance/reorder.h"
#include "program.h"
#include "ui/controls.h"

namespace vellumark {
namespace {

QLineEdit* NumberField(const char* name, QWidget* parent) {
  auto* field = Named<QLineEdit>(name, parent);
  field->setFixedWidth(field->fontMetrics().averageCharWidth() * 10);
  return field;
}

QLabel* LabelFor(const char* name, QWidget* field) {
  auto* label = Named<QLabel>(name, field->parentWidget());
  label->setBuddy(field);
  return label;
}

}  // namespace

ReorderDialog::ReorderDialog(Program& program)
    : ModalDialog(WindowId::kDialogRiordina, program),
      base_path_(Named<QLineEdit>("Text_PercorsoBase", this)),
      browse_(Named<QPushButton>("Pul_PercorsoBase", this)),
      folder_name_(Named<QLineEdit>("Text_NomeCartelle", this)),
      max_slot_(NumberField("Text_MaxSavegame", this)),
      create_info_(Named<QCheckBox>("Check_CreaInfo", this)),
      keep_levels_apart_(Named<QCheckBox>("Check_NonMescolare", this)),
      remove_equals_(Named<QCheckBox>("Check_EliminaUguali", this)),
      delete_old_(Named<QCheckBox>("Check_EliminaSorgente", this)),
      max_per_folder_(NumberField("Text_MaxPerCartella", this)),
      progress_(Named<QProgressBar>("ProgressBar1", this)),
      export_shots_(Named<QPushButton>("Pul_CopiaShot", this)),
      reorder_(Named<QPushButton>("Pul_Riordina", this)),
      cancel_(Named<QPushButton>("Pul_Annulla", this)) {
  BuildLayout();
  SetCaptions();
  progress_->setAccessibleName(ToText(LoadMessage(kNameProgress)));
  max_per_folder_->setToolTip(findChild<QLabel*>(QStringLiteral("Label3"))->toolTip());
  base_path_->setFocus();

  ConnectFields();
  connect(browse_, &QPushButton::clicked, this, &ReorderDialog::Browse);
  connect(export_shots_, &QPushButton::clicked, this,
          [this] { ChooseExportFolder(this->program()); });
  connect(reorder_, &QPushButton::clicked, this, &ReorderDialog::Reorder);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void ReorderDialog::BuildLayout() {
  reorder_->setDefault(true);
  // Enter is the reorder button's, also after one of these was used.
  for (QPushButton* button : {browse_, export_shots_}) button->setAutoDefault(false);
  progress_->setRange(0, 100);
  progress_->setValue(0);

  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(reorder_, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel_, QDialogButtonBox::RejectRole);
  auto* last_row = new QHBoxLayout;
  last_row->addWidget(export_shots_);
  last_row->addStretch(1);
  last_row->addWidget(buttons);
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeTargetFrame());
  column->addWidget(MakeSettingsFrame());
  column->addStretch(1);
  column->addWidget(progress_);
  column->addLayout(last_row);

  SetTabSequence({base_path_, browse_, folder_name_, max_slot_, create_info_, keep_levels_apart_,
                  remove_equals_, delete_old_, max_per_folder_, export_shots_, reorder_, cancel_});
}

QGroupBox* ReorderDialog::MakeTargetFrame() {
  auto* frame = Named<QGroupBox>("Frame1", this);
  auto* grid = new QGridLayout(frame);
  grid->addWidget(LabelFor("Label1", base_path_), 0, 0);
  grid->addWidget(base_path_, 0, 1);
  grid->addWidget(browse_, 0, 2);
  grid->addWidget(LabelFor("Label2", folder_name_), 1, 0);
  grid->addWidget(folder_name_, 1, 1);
  grid->addWidget(LabelFor("Label9", max_slot_), 2, 0);
  grid->addWidget(max_slot_, 2, 1, Qt::AlignLeft);
  grid->setColumnStretch(1, 1);
  base_path_->setMinimumWidth(base_path_->fontMetrics().averageCharWidth() * 40);
  return frame;
}

QGroupBox* ReorderDialog::MakeSettingsFrame() {
  auto* frame = Named<QGroupBox>("Frame3", this);
  auto* column = new QVBoxLayout(frame);
  for (QCheckBox* box : {create_info_, keep_levels_apart_, remove_equals_, delete_old_}) {
    column->addWidget(box);
  }
  auto* row = new QHBoxLayout;
  row->addWidget(LabelFor("Label3", max_per_folder_));
  row->addWidget(max_per_folder_);
  row->addStretch(1);
  column->addLayout(row);
  return frame;
}

void ReorderDialog::ConnectFields() {
  connect(base_path_, &QLineEdit::textChanged, this,
          [this](const QString& text) { settings_.BasePath = FromText(text); });
  connect(folder_name_, &QLineEdit::textChanged, this,
          [this](const QString& text) { settings_.FolderName = FromText(text); });
  connect(max_slot_, &QLineEdit::textChanged, this,
          [this](const QString& text) { TypeMaxSlot(this->program(), settings_, FromText(text)); });
  connect(max_per_folder_, &QLineEdit::textChanged, this, [this](const QString& text) {
    TypeMaxPerFolder(this->program(), settings_, FromText(text));
  });

  const std::pair<QCheckBox*, bool ReorderSettings::*> boxes[] = {
      {create_info_, &ReorderSettings::CreateInfoFiles},
      {keep_levels_apart_, &ReorderSettings::KeepLevelsApart},
      {remove_equals_, &ReorderSettings::RemoveEquals},
      {delete_old_, &ReorderSettings::DeleteOldArchive}};
  for (const auto& [box, setting] : boxes) {
    connect(box, &QCheckBox::toggled, this,
            [this, field = setting](bool ticked) { settings_.*field = ticked; });
  }
}

void ReorderDialog::ImpostaValori() { settings_ = PrepareReorder(program()); }

void ReorderDialog::Browse() {
  if (const auto folder = ChooseNewMainFolder(program())) base_path_->setText(ToText(*folder));
}

void ReorderDialog::Reorder() {
  if (!IsExpressible(base_path_, kPathNotExpressible)) return;
  if (!IsExpressible(folder_name_, kFolderNameNotExpressible)) return;
  if (ReorderArchive(program(), settings_, [this](int percent) { ShowProgress(percent); })) {
    accept();
  } else {
    progress_->setValue(0);
  }
}

// Painted at once, so that no other event has to run for it.
void ReorderDialog::ShowProgress(int percent) {
  if (percent == progress_->value()) return;
  progress_->setValue(percent);
  progress_->repaint();
}

}  // namespace vellumark
