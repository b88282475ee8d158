#include "ui/rescued_dialog.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <set>
#include <utility>

#include "archive/scan.h"
#include "foundation/failures.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/list_line.h"
#include "savegames/notes.h"
#include "ui/controls.h"
#include "ui/fonts.h"
#include "ui/picture_box.h"

namespace vellumark {
namespace {

enum Column { kSavegame, kNote, kOrigin, kWhy, kColumns };

constexpr int kFolderRow = -1;
constexpr std::size_t kNoteShown = 120;        // characters, in the list
constexpr std::size_t kNoteShownWhole = 8000;  // beside it

int RowOf(const QTreeWidgetItem* item) { return item->data(kSavegame, Qt::UserRole).toInt(); }

bool EndsWith(const std::string& path, const std::string& ending) {
  return path.size() >= ending.size() &&
         EqualsIgnoringAsciiCase(path.substr(path.size() - ending.size()), ending);
}

}  // namespace

RescuedDialog::RescuedDialog(Program& program)
    : ModalDialog(WindowId::kDialogRescued, program),
      head_(Named<QLabel>("Label1", this)),
      tree_(Named<QTreeWidget>("Tree_Rescued", this)),
      picture_(Named(new ShotBox(program.files, this), "Image1")),
      note_(Named<QPlainTextEdit>("Text_Note", this)),
      to_archive_(Named<QPushButton>("Pul_ToArchive", this)),
      to_game_(Named<QPushButton>("Pul_ToGame", this)),
      show_folder_(Named<QPushButton>("Pul_ShowFolder", this)),
      delete_(Named<QPushButton>("Pul_Delete", this)),
      close_(Named<QPushButton>("Pul_Close", this)) {
  BuildLayout();
  SetCaptions();
  tree_->setAccessibleName(windowTitle());
  note_->setAccessibleName(ToText(LoadMessage(kNameNote)));
  picture_->setAccessibleName(ToText(LoadMessage(kNamePicture)));

  connect(tree_, &QTreeWidget::itemSelectionChanged, this, &RescuedDialog::ShowChosen);
  connect(to_archive_, &QPushButton::clicked, this, &RescuedDialog::ToArchive);
  connect(to_game_, &QPushButton::clicked, this, &RescuedDialog::ToGame);
  connect(show_folder_, &QPushButton::clicked, this, &RescuedDialog::ShowFolder);
  connect(delete_, &QPushButton::clicked, this, &RescuedDialog::Delete);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
}

void RescuedDialog::BuildLayout() {
  tree_->setColumnCount(kColumns);
  tree_->setHeaderLabels({ToText(LoadMessage(kRescuedSavegame)), ToText(LoadMessage(kRescuedNote)),
                          ToText(LoadMessage(kRescuedOrigin)), ToText(LoadMessage(kRescuedWhy))});
  tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tree_->setUniformRowHeights(true);
  tree_->setMinimumSize(240, 160);
  const int indented = 2 * tree_->indentation();
  const QFontMetrics columns(ColumnFont());
  tree_->header()->resizeSection(
      kSavegame, indented + columns.averageCharWidth() * static_cast<int>(kNoteColumn + 1));
  tree_->header()->resizeSection(kOrigin, fontMetrics().averageCharWidth() * 28);
  auto* remove = new QAction(tree_);
  remove->setShortcut(QKeySequence::Delete);
  remove->setShortcutContext(Qt::WidgetShortcut);
  tree_->addAction(remove);
  connect(remove, &QAction::triggered, delete_, &QPushButton::click);

  note_->setReadOnly(true);
  note_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  note_->setTabChangesFocus(true);
  note_->setMinimumHeight(2 * note_->fontMetrics().lineSpacing());
  picture_->setMinimumSize(160, 120);

  auto* details = new QVBoxLayout;
  details->addWidget(picture_, 3);
  details->addWidget(note_, 2);
  auto* middle = new QHBoxLayout;
  middle->addWidget(tree_, 3);
  middle->addLayout(details, 1);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {to_archive_, to_game_, show_folder_, delete_}) {
    button->setAutoDefault(false);
    buttons->addWidget(button);
  }
  buttons->addStretch(1);
  buttons->addWidget(close_);
  close_->setDefault(true);
  auto* column = new QVBoxLayout(this);
  column->addWidget(head_);
  column->addLayout(middle, 1);
  column->addLayout(buttons);
  resize(940, 480);

  SetTabSequence({tree_, note_, to_archive_, to_game_, show_folder_, delete_, close_});
}

void RescuedDialog::ImpostaValori() {
  Refill();
  tree_->setFocus();
}

void RescuedDialog::Refill() {
  std::vector<Failure> failures;
  const std::vector<RescuedFolder> folders = ListRescued(program(), failures);
  tree_->clear();
  rows_.clear();
  for (const RescuedFolder& folder : folders) AddFolder(folder);
  tree_->expandAll();
  head_->setText(ToText(LoadMessage(folders.empty() ? kNothingRescued : kRescuedHead)));
  tree_->setEnabled(!folders.empty());
  if (!folders.empty()) tree_->setCurrentItem(tree_->topLevelItem(0));
  ShowChosen();
  if (failures.empty()) return;
  Tell(program(), LoadMessage(kRescuedNotRead) + DescribeFailures(failures), BoxIcon::kExclamation);
}

void RescuedDialog::AddFolder(const RescuedFolder& folder) {
  auto* item = new QTreeWidgetItem(tree_);
  const std::string name = folder.path.substr(program().paths.ProgramFolder.size() + 1);
  const QString when =
      folder.when.empty() ? QString() : QStringLiteral("   ") + ToText(folder.when);
  item->setText(kSavegame, ToText(name) + when);
  item->setData(kSavegame, Qt::UserRole, kFolderRow);
  item->setFirstColumnSpanned(true);
  for (const RescuedSavegame& savegame : folder.savegames) {
    const std::string line = FormatEntryLine(savegame.entry, savegame.has_shot);
    AddRow(item, {savegame.entry.SavegamePath, savegame},
           ToDisplayText(program().text, line.substr(0, kNoteColumn)));
  }
  for (const std::string& path : folder.loose) {
    AddRow(item, {path, std::nullopt}, ToText(FileNameOf(path)));
  }
}

void RescuedDialog::AddRow(QTreeWidgetItem* folder, Row row, const QString& line) {
  auto* item = new QTreeWidgetItem(folder);
  item->setText(kSavegame, line);
  if (row.savegame) {
    item->setFont(kSavegame, ColumnFont());
    item->setText(
        kNote, ToDisplayText(program().text, row.savegame->entry.NoteText.substr(0, kNoteShown)));
    item->setText(kOrigin, ToText(FolderOf(row.savegame->origin)));
    item->setToolTip(kOrigin, ToText(row.savegame->origin));
    item->setText(kWhy, ToText(row.savegame->why));
    item->setToolTip(kWhy, item->text(kWhy));
  }
  item->setData(kSavegame, Qt::UserRole, static_cast<int>(rows_.size()));
  rows_.push_back(std::move(row));
}

void RescuedDialog::ShowChosen() {
  const auto chosen = Chosen();
  const bool savegames =
      std::ranges::any_of(chosen, [](const Row* row) { return row->savegame.has_value(); });
  to_archive_->setEnabled(savegames);
  to_game_->setEnabled(savegames);
  show_folder_->setEnabled(!chosen.empty());
  delete_->setEnabled(!chosen.empty());

  std::string note;
  std::string picture;
  if (chosen.size() == 1) {
    const Row& row = *chosen.front();
    if (row.savegame) {
      note = row.savegame->entry.NoteText;
      picture =
          row.savegame->has_shot ? row.savegame->entry.ShotPath : program().paths.DefaultShotPath;
    } else if (EndsWith(row.path, ".txt")) {
      note = ReadNoteFile(program().files, row.path);
    } else if (EndsWith(row.path, ".jpg")) {
      picture = row.path;
    }
  }
  note_->setPlainText(ToDisplayText(program().text, BeginningForTextBox(note, kNoteShownWhole)));
  picture_->ShowFile(picture);
}

std::vector<const RescuedDialog::Row*> RescuedDialog::Chosen() const {
  std::set<int> rows;
  for (const QTreeWidgetItem* item : tree_->selectedItems()) {
    if (RowOf(item) != kFolderRow) rows.insert(RowOf(item));
    for (int i = 0; i < item->childCount(); ++i) rows.insert(RowOf(item->child(i)));
  }
  std::vector<const Row*> chosen;
  chosen.reserve(rows.size());
  for (const int row : rows) chosen.push_back(&rows_[static_cast<std::size_t>(row)]);
  return chosen;
}

std::vector<RescuedSavegame> RescuedDialog::ChosenSavegames() const {
  std::vector<RescuedSavegame> savegames;
  for (const Row* row : Chosen()) {
    if (row->savegame) savegames.push_back(*row->savegame);
  }
  return savegames;
}

void RescuedDialog::ToArchive() {
  ArchiveRescued(program(), ChosenSavegames());
  ScanArchive(program());
  Refill();
}

void RescuedDialog::ToGame() {
  PutRescuedIntoGame(program(), ChosenSavegames());
  ScanArchive(program());
  Refill();
}

void RescuedDialog::ShowFolder() { ShowRescuedFolder(program(), Chosen().front()->path); }

void RescuedDialog::Delete() {
  std::vector<std::string> paths;
  for (const Row* row : Chosen()) {
    const auto files = row->savegame ? FilesOf(*row->savegame) : std::vector{row->path};
    paths.insert(paths.end(), files.begin(), files.end());
  }
  if (DeleteRescuedFiles(program(), paths)) Refill();
}

}  // namespace vellumark
