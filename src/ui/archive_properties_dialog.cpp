#include "ui/archive_properties_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "archive/archive_properties.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "maintenance/folder_chooser.h"
#include "program.h"
#include "ui/controls.h"
#include "ui/path_label.h"

namespace vellumark {
namespace {

// One row: a label, the field that it speaks of, and perhaps a button.
void AddRow(QGridLayout* grid, const char* label_name, QWidget* field, QPushButton* button) {
  const int row = grid->rowCount();
  auto* label = Named<QLabel>(label_name, field->parentWidget());
  label->setBuddy(button != nullptr ? static_cast<QWidget*>(button) : field);
  grid->addWidget(label, row, 0);
  grid->addWidget(field, row, 1);
  if (button != nullptr) grid->addWidget(button, row, 2);
}

}  // namespace

ArchivePropertiesDialog::ArchivePropertiesDialog(Program& program)
    : ModalDialog(WindowId::kDialogSetNewArc, program),
      main_folder_(new PathLabel("Label_PathArchivio", this)),
      game_folder_(new PathLabel("Label_PathTr", this)),
      executable_(new PathLabel("Label_TrExe", this)),
      base_name_(Named<QLineEdit>("Text_nome_dir", this)),
      max_savegame_(Named<QLineEdit>("Text_MaxSavegame", this)) {
  auto* browse_main = Named<QPushButton>("pul_sfoglia_dir", this);
  auto* browse_game = Named<QPushButton>("pul_sfoglia_tr", this);
  auto* browse_executable = Named<QPushButton>("pul_sfoglia_nome_tomb", this);
  auto* ok = Named<QPushButton>("Pul_Ok", this);
  auto* cancel = Named<QPushButton>("Pul_Cancel", this);
  ok->setDefault(true);
  // Enter is OK's, also after one of these was used.
  for (QPushButton* browse : {browse_main, browse_game, browse_executable}) {
    browse->setAutoDefault(false);
  }

  auto* grid = new QGridLayout;
  AddRow(grid, "Label1", main_folder_, browse_main);
  AddRow(grid, "Label3", base_name_, nullptr);
  AddRow(grid, "Label2", game_folder_, browse_game);
  AddRow(grid, "Label7", executable_, browse_executable);
  AddRow(grid, "Label9", max_savegame_, nullptr);
  grid->setColumnStretch(1, 1);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(ok, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel, QDialogButtonBox::RejectRole);
  auto* column = new QVBoxLayout(this);
  column->addLayout(grid);
  column->addStretch(1);
  column->addWidget(buttons);

  SetTabSequence(
      {browse_main, base_name_, browse_game, browse_executable, max_savegame_, ok, cancel});
  SetCaptions();

  connect(ok, &QPushButton::clicked, this, &ArchivePropertiesDialog::Accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(browse_executable, &QPushButton::clicked, this,
          &ArchivePropertiesDialog::ChooseExecutable);
  connect(browse_main, &QPushButton::clicked, this, [this] {
    main_folder_->SetPath(
        ToText(ChooseMainFolder(this->program(), FromText(main_folder_->text()))));
  });
  connect(browse_game, &QPushButton::clicked, this,
          [this, browse_game] { BrowseForGame(browse_game); });
}

void ArchivePropertiesDialog::ImpostaValori() {
  const ArchivePropertiesFields fields = PrepareArchiveProperties(program());
  main_folder_->SetPath(ToText(fields.main_folder));
  game_folder_->SetPath(ToText(fields.game_folder));
  executable_->SetPath(ToText(fields.executable));
  base_name_->setText(ToText(fields.base_name));
  max_savegame_->setText(ToText(fields.max_savegame));
  setWindowTitle(ToText(ArchivePropertiesTitle(program())));
}

// Begins with a choice where several games were found.
void ArchivePropertiesDialog::BrowseForGame(QPushButton* button) {
  const std::vector<FoundGame> games = program().game_search.games;
  if (games.size() < 2) return ChooseFolder();
  QMenu choice(this);
  choice.setObjectName(QStringLiteral("Games1"));
  for (const FoundGame& game : games) {
    connect(choice.addAction(ToText(game.folder).replace(u'&', QLatin1String("&&"))),
            &QAction::triggered, this, [this, game] { TakeGame(game); });
  }
  choice.addSeparator();
  connect(choice.addAction(ToText(LoadMessage(kOtherGameFolder))), &QAction::triggered, this,
          &ArchivePropertiesDialog::ChooseFolder);
  choice.setActiveAction(choice.actions().first());
  choice.exec(button->mapToGlobal(button->rect().bottomLeft()));
}

void ArchivePropertiesDialog::ChooseFolder() {
  game_folder_->SetPath(ToText(ChooseGameFolder(program(), FromText(game_folder_->text()))));
}

void ArchivePropertiesDialog::TakeGame(const FoundGame& game) {
  TakeGameFolder(program(), game.folder);
  game_folder_->SetPath(ToText(game.folder));
  executable_->SetPath(ToText(game.executable));
  max_savegame_->setText(QString::number(game.max_savegame));
}

void ArchivePropertiesDialog::ChooseExecutable() {
  const auto chosen = ChooseGameExecutable(program(), FromText(game_folder_->text()));
  if (chosen) executable_->SetPath(ToText(*chosen));
}

void ArchivePropertiesDialog::Accept() {
  if (!IsExpressible(base_name_, kFolderNameNotExpressible)) return;
  const ArchivePropertiesFields fields{.main_folder = FromText(main_folder_->text()),
                                       .base_name = FromText(base_name_->text()),
                                       .game_folder = FromText(game_folder_->text()),
                                       .executable = FromText(executable_->text()),
                                       .max_savegame = FromText(max_savegame_->text())};
  if (AcceptArchiveProperties(program(), fields)) accept();
}

}  // namespace vellumark
