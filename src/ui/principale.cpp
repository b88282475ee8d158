#include "ui/principale.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "game/capture.h"
#include "game/game_start.h"
#include "platform/desktop_services.h"
#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/details.h"
#include "savegames/list_line.h"
#include "savegames/notes.h"
#include "savegames/viewer.h"
#include "session/archive_commands.h"
#include "session/first_page.h"
#include "session/shut_down.h"
#include "ui/archive_views.h"
#include "ui/available_screen_size.h"
#include "ui/caption_setter.h"
#include "ui/capture_dialog.h"
#include "ui/commands.h"
#include "ui/controls.h"
#include "ui/drops.h"
#include "ui/first_page_view.h"
#include "ui/modal_dialog.h"
#include "ui/picture_box.h"
#include "ui/pictures_view.h"
#include "ui/quiet_text.h"
#include "ui/read_only_field.h"
#include "ui/recent_archives.h"
#include "ui/savegame_list.h"
#include "ui/screen_shot_viewer.h"
#include "ui/view_menu.h"
#include "ui/window_memory.h"
#include "ui/wrapping_row.h"

namespace vellumark {
namespace {

constexpr int kTimerInterval = 500;  // milliseconds
constexpr int kPaintInterval = 100;  // milliseconds
constexpr int kProgressDelay = 500;

QLineEdit* NumberField(const char* name, QWidget* parent, const QString& widest) {
  auto* field = new ReadOnlyField(name, parent);
  field->setAlignment(Qt::AlignCenter);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(widest) + 24);
  return field;
}

QLabel* LabelFor(const char* name, QWidget* buddy) {
  auto* label = Named(new QLabel(buddy->parentWidget()), name);
  label->setBuddy(buddy);
  return label;
}

void ReplaceWidget(QWidget* shown, QWidget* other) {
  shown->hide();
  other->show();
}

QPushButton* Button(const char* name, QWidget* parent) {
  auto* button = Named(new QPushButton(parent), name);
  button->setAutoDefault(false);
  return button;
}

void FillRow(QWidget* line, std::initializer_list<QWidget*> controls) {
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* control : controls) row->addWidget(control);
}

}  // namespace

Principale::Principale(FileSystem& files, const Text& text) : files_(files), text_(text) {
  setObjectName(QStringLiteral("Principale"));
  KeepQuietTextReadable();
  resize(QSize(1120, 700).boundedTo(RoomOnScreen(*this)));
  BuildMenus();
  BuildRecentMenu();
  BuildCentre();
  SetTabOrder();
  NameControlsWithoutCaption();
  const QItemSelectionModel& selection = views_->Selection();
  connect(&selection, &QItemSelectionModel::selectionChanged, this,
          &Principale::DimWhatIsNotSelected);
  connect(selection.model(), &QAbstractItemModel::modelReset, this,
          &Principale::DimWhatIsNotSelected);
  timer_.setObjectName(QStringLiteral("Timer1"));
  timer_.setInterval(kTimerInterval);
  views_->setFocus();
}

void Principale::Attach(Program& program) {
  program_ = &program;
  views_->Attach(program);
  view_menu_->Attach(program);
  Recall();
  const auto* drops = new Drops(program, *views_, *this);
  connect(drops, &Drops::Taken, this, [this] {
    recent_->Add(NamedArchive(*program_));
    RefreshPage();
  });
  connect(views_, &ArchiveViews::SelectionTouched, this, [this] { RefreshDetails(*program_); });
  for (const Command& command : Commands()) Connect(command);
  connect(&timer_, &QTimer::timeout, this, [this] {
    OnTimer(*program_);
    WatchGameStart(*program_);
  });
  timer_.start();
}

void Principale::BuildMenus() {
  for (const Command& command : Commands()) {
    if (command.menu == nullptr) continue;
    const QString name = QLatin1String(command.menu);
    auto* menu = menuBar()->findChild<QMenu*>(name);
    if (menu == nullptr) menu = Named(menuBar()->addMenu(name), command.menu);
    if (QLatin1String(command.item) == QLatin1String("-")) {
      menu->addSeparator();
      continue;
    }
    auto* action = Named(new QAction(this), command.item);
    action->setShortcut(QKeySequence(QLatin1String(command.shortcut)));
    if (command.of_list) action->setShortcutContext(Qt::WidgetShortcut);
    menu->addAction(action);
  }
}

// Below the command that asks for an archive.
void Principale::BuildRecentMenu() {
  auto* file = menuBar()->findChild<QMenu*>(QStringLiteral("mnu_File"));
  recent_ = Named(new RecentArchives(files_, text_, file), "mnu_Recent");
  const QList<QAction*> items = file->actions();
  const auto load = std::ranges::find(items, findChild<QAction*>(QStringLiteral("mnu_Load")));
  file->insertMenu(load == items.end() ? nullptr : *std::next(load), recent_);
  connect(file, &QMenu::aboutToShow, this, [this] {
    recent_->Add(NamedArchive(*program_));
    recent_->menuAction()->setEnabled(!recent_->Paths().isEmpty());
  });
  connect(recent_, &RecentArchives::Chosen, this, [this](const std::string& path) {
    OpenArchive(*program_, path);
    recent_->Add(NamedArchive(*program_));
    RefreshPage();
  });
}

// What can be done with the selected savegames; the right mouse button or the Menu key shows it.
void Principale::BuildContextMenu() {
  for (const char* name : {"mnu_Examine", "mnu_PropSavegame", "mnu_Copy", "mnu_Move", "mnu_Delete",
                           "mnu_ShowInFolder", "mnu_CopyPath"}) {
    views_->AddCommand(findChild<QAction*>(QLatin1String(name)));
  }
}

void Principale::BuildCentre() {
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  splitter_ = new QSplitter(Qt::Horizontal, centre);
  splitter_->setChildrenCollapsible(false);
  views_ = new ArchiveViews(files_, splitter_);
  views_->setMinimumWidth(160);
  view_menu_ = new ViewMenu(*views_, this);
  menuBar()->insertMenu(findChild<QMenu*>(QStringLiteral("mnu_Tools"))->menuAction(), view_menu_);
  BuildContextMenu();
  BuildPage();
  splitter_->addWidget(views_);
  splitter_->addWidget(BuildDetails());
  splitter_->setStretchFactor(0, 1);
  splitter_->setStretchFactor(1, 0);
  const int details_width = std::min(350, width() * 2 / 5);
  splitter_->setSizes({width() - details_width, details_width});
  column->addWidget(splitter_, 1);
  column->addWidget(BuildPathLine());
  column->addWidget(BuildBottomLine());
  setCentralWidget(centre);
}

QWidget* Principale::BuildDetails() {
  auto* details = new QWidget(this);
  auto* column = new QVBoxLayout(details);
  column->setContentsMargins(0, 0, 0, 0);
  picture_ = Named(new ShotBox(files_, details), "Image1");
  note_ = Named(new QPlainTextEdit(details), "Text_Note");
  note_->setReadOnly(true);
  note_->viewport()->setBackgroundRole(QPalette::Window);
  note_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  note_->setTabChangesFocus(true);
  note_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  note_->setMinimumHeight(2 * note_->fontMetrics().lineSpacing());
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(Button("Pul_Zoom", details));
  buttons->addWidget(Button("Pul_CambiaProp", details));
  column->addWidget(picture_, 3);
  column->addLayout(buttons);
  column->addWidget(note_, 2);
  return details;
}

QWidget* Principale::BuildPathLine() {
  auto* line = new QWidget(this);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  path_ = new ReadOnlyField("Text_PathSavegame", line);
  row->addWidget(LabelFor("Label4", path_));
  row->addWidget(path_, 1);
  progress_ = Named<QProgressBar>("ProgressBar1", line);
  progress_->hide();
  row->addWidget(progress_, 1);
  return line;
}

QWidget* Principale::BuildBottomLine() {
  auto* line = new QWidget(this);
  auto* totals = new QWidget(line);
  total_savegames_ = NumberField("Text_TotSavegame", totals, QStringLiteral("10001"));
  total_folders_ = NumberField("Text_TotCartelle", totals, QStringLiteral("10001"));
  FillRow(totals, {LabelFor("Label6", total_savegames_), total_savegames_,
                   LabelFor("Label5", total_folders_), total_folders_});

  auto* search = new QWidget(line);
  found_ = NumberField("Text_Trovati", search, QStringLiteral(" 10001/10001"));
  auto* previous = Button("Pul_Precedente", search);
  previous->setText(QStringLiteral("<<"));
  auto* next = Button("Pul_Seguente", search);
  next->setText(QStringLiteral(">>"));
  for (QPushButton* step : {previous, next}) {
    step->setMaximumWidth(step->fontMetrics().horizontalAdvance(QStringLiteral("<<")) + 32);
  }
  FillRow(search, {Button("Pul_Cerca", search), previous, found_, next});

  auto* game = new QWidget(line);
  FillRow(game, {Button("Pul_Play", game), Button("Pul_StartTomb", game)});

  auto* row = new WrappingRow(line);
  for (QWidget* group : {totals, search, game}) row->addWidget(group);
  return line;
}

// The reading order: the list, the pictures or the page in their place, the details beside it, the
// lines below from left to right.
void Principale::SetTabOrder() {
  const char* const order[] = {
      "List1",        "Pictures1",         "Pul_PageAgain",    "Pul_PageNew",
      "Pul_PageOpen", "Pul_PageHelp",      "Pul_Zoom",         "Pul_CambiaProp",
      "Text_Note",    "Text_PathSavegame", "Text_TotSavegame", "Text_TotCartelle",
      "Pul_Cerca",    "Pul_Precedente",    "Text_Trovati",     "Pul_Seguente",
      "Pul_Play",     "Pul_StartTomb"};
  QWidget* previous = nullptr;
  for (const char* name : order) {
    auto* control = findChild<QWidget*>(QLatin1String(name));
    if (previous != nullptr) setTabOrder(previous, control);
    previous = control;
  }
}

void Principale::NameControlsWithoutCaption() {
  const auto message = [this](int number) { return ToQString(text_, LoadMessage(number)); };
  views_->List().setAccessibleName(message(kNameList));
  views_->Pictures().setAccessibleName(message(kNamePictures));
  const auto with_mark = [this](int number) {
    return ToDisplayLine(text_, LoadMessage(number, {std::string(1, kStoredLineBreak)}), 0);
  };
  views_->List().SetHeading(ToQString(text_, FormatListHeading()), with_mark(kListLegend),
                            with_mark(kListDescription));
  path_->setPlaceholderText(message(kNothingSelected));
  note_->setAccessibleName(message(kNameNote));
  picture_->setAccessibleName(message(kNamePicture));
  found_->setAccessibleName(message(kNamePosition));
  const struct {
    const char* button;
    int name;
  } steps[] = {{"Pul_Precedente", kNamePrevious}, {"Pul_Seguente", kNameNext}};
  for (const auto& step : steps) {
    auto* button = findChild<QPushButton*>(QLatin1String(step.button));
    button->setAccessibleName(message(step.name));
    button->setToolTip(message(step.name));
  }
}

// Wires a command to its menu item and its button; one that cannot be carried out is disabled.
void Principale::Connect(const Command& command) {
  const bool can_run = command.run != nullptr;
  if (command.item != nullptr) {
    if (auto* action = findChild<QAction*>(QLatin1String(command.item))) {
      const bool exits = action->objectName() == QLatin1String("mnu_Exit");
      action->setEnabled(can_run || exits);
      if (exits) {
        connect(action, &QAction::triggered, this, &QWidget::close);
      } else {
        connect(action, &QAction::triggered, this, [this, &command] { Run(command); });
      }
    }
  }
  if (command.button != nullptr) {
    auto* button = findChild<QPushButton*>(QLatin1String(command.button));
    button->setEnabled(can_run);
    connect(button, &QPushButton::clicked, this, [this, &command] { Run(command); });
    if (command.item == nullptr && *command.shortcut != '\0') {
      auto* shortcut = new QShortcut(QKeySequence(QLatin1String(command.shortcut)), this);
      connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
  }
}

void Principale::Run(const Command& command) {
  recent_->Add(NamedArchive(*program_));
  command.run(*program_);
  recent_->Add(NamedArchive(*program_));
  RefreshPage();
}

void Principale::BuildPage() {
  page_ = new FirstPageView(text_, views_);
  views_->addWidget(page_);
  const struct {
    void (FirstPageView::*chosen)();
    const char* command;
  } buttons[] = {{&FirstPageView::NewChosen, "mnu_New"},
                 {&FirstPageView::OpenChosen, "mnu_Load"},
                 {&FirstPageView::HelpChosen, "mnu_ShowHelp"}};
  for (const auto& button : buttons) {
    connect(page_, button.chosen, findChild<QAction*>(QLatin1String(button.command)),
            &QAction::trigger);
  }
  connect(page_, &FirstPageView::LookAgainChosen, this, [this] {
    LookAgain(*program_);
    RefreshPage();
  });
}

void Principale::RefreshPage() {
  if (program_->working) return;  // what has been found so far is not what there is
  const auto page = DescribeFirstPage(*program_);
  if (page) page_->Describe(*page);
  views_->ShowInstead(page ? page_ : nullptr);
}

void Principale::showEvent(QShowEvent* event) {
  if (program_ != nullptr) RefreshPage();
  views_->setFocus();
  QMainWindow::showEvent(event);
}

// The window as the last run left it.
void Principale::Recall() {
  const WindowMemory memory = ReadWindowMemory(files_, program_->paths.ProgramFolder);
  RestorePlace(*this, memory);
  if (memory.details_width) {
    splitter_->setSizes({std::max(1, width() - *memory.details_width), *memory.details_width});
  }
  if (memory.pictures) views_->Choose(ArchiveView::kPictures);
  if (memory.tile_size && *memory.tile_size <= static_cast<int>(TileSize::kLarge)) {
    views_->Pictures().SetSize(static_cast<TileSize>(*memory.tile_size));
  }
  viewer_line_ = memory.viewer_line;
  recent_->SetPaths(memory.archives);
}

void Principale::Remember() {
  if (!isVisible()) return;  // it ends before it began
  recent_->Add(NamedArchive(*program_));
  WindowMemory memory;
  RememberPlace(*this, memory);
  memory.details_width = splitter_->sizes().constLast();
  memory.pictures = views_->Chosen() == ArchiveView::kPictures;
  memory.tile_size = static_cast<int>(views_->Pictures().Size());
  memory.viewer_line = viewer_line_;
  memory.archives = recent_->Paths();
  WriteWindowMemory(files_, program_->paths.ProgramFolder, memory);
}

void Principale::ShowLines(std::vector<std::string> lines) {
  QStringList shown;
  shown.reserve(static_cast<qsizetype>(lines.size()));
  for (const std::string& line : lines) shown.append(ToDisplayLine(text_, line, kNoteColumn));
  // At once: a question may follow before the command has ended.
  if (!lines.empty()) views_->ShowInstead(nullptr);
  views_->SetLines(std::move(shown));
}

void Principale::ReplaceLine(int index, const std::string& line) {
  views_->ReplaceLine(index, ToDisplayLine(text_, line, kNoteColumn));
}

std::vector<int> Principale::SelectedLines() const { return views_->SelectedLines(); }

// Note and picture stay when nothing is selected any more; they must not look like the next line's.
void Principale::DimWhatIsNotSelected() {
  const bool dimmed = views_->SelectedLines().size() != 1;
  picture_->SetDimmed(dimmed);
  QPalette palette;
  if (dimmed) palette.setBrush(QPalette::Text, palette.placeholderText());
  note_->setPalette(palette);
}

void Principale::SelectLine(int index) { views_->SelectLine(index); }

void Principale::SetField(Field field, const std::string& text) {
  const QString shown = ToDisplayText(text_, text);
  switch (field) {
    case Field::kTotSavegame:
      return total_savegames_->setText(shown);
    case Field::kTotCartelle:
      return total_folders_->setText(shown);
    case Field::kPathSavegame:
      return path_->setText(shown);
    case Field::kTrovati:
      return found_->setText(shown);
    case Field::kNote:
      return note_->setPlainText(shown);
  }
}

void Principale::ShowPicture(const std::string& path) { picture_->ShowFile(path); }

void Principale::ShowViewer(const ViewedShot& shot) {
  if (viewer_ == nullptr) {
    viewer_ = new ScreenShotViewer(files_, this);
    SetCaptions(WindowId::kDialogScreenShot);
    viewer_->SetShowsLine(viewer_line_);
    connect(viewer_, &QDialog::finished, this, [this] { program_->details.ViewerOpen = false; });
    connect(viewer_, &ScreenShotViewer::PreviousWanted, this,
            [this] { ShowPreviousScreenShot(*program_); });
    connect(viewer_, &ScreenShotViewer::NextWanted, this,
            [this] { ShowNextScreenShot(*program_); });
    connect(viewer_, &ScreenShotViewer::LineToggled, this,
            [this](bool shows) { viewer_line_ = shows; });
  }
  viewer_->ShowPicture(shot.picture, ToDisplayLine(text_, shot.line, 0));
}

void Principale::SetCaptions(WindowId window) {
  if (window == WindowId::kPrincipale) {
    SetWindowCaptions(*this, window, text_);
  } else if (window == WindowId::kDialogScreenShot && viewer_ != nullptr) {
    SetWindowCaptions(*viewer_, window, text_);
  }
}

void Principale::ShowModal(WindowId dialog) {
  const std::unique_ptr<ModalDialog> window = MakeModalDialog(dialog, *program_);
  if (window == nullptr) return;
  open_dialogs_[dialog] = window.get();
  window->ImpostaValori();
  window->exec();
  // A box and the dialog below it that close at once may take the input focus along.
  if (QWidget* below = ModalOpener()) below->activateWindow();
}

void Principale::ShowModeless(WindowId dialog) {
  if (dialog != WindowId::kDialogCattura || IsOpen(dialog)) return;
  auto* window = new CaptureDialog(*program_);
  open_dialogs_[dialog] = window;
  window->ImpostaValori();
  window->Appear();
}

void Principale::CloseDialog(WindowId window) {
  if (window == WindowId::kDialogScreenShot && viewer_ != nullptr) viewer_->close();
  if (IsOpen(window)) open_dialogs_[window]->reject();
}

void Principale::ShowBusy(bool busy) {
  if (!busy) {
    ReplaceWidget(progress_, path_);
    return QApplication::restoreOverrideCursor();
  }
  QApplication::setOverrideCursor(Qt::WaitCursor);
  painted_.start();
  working_.start();
}

void Principale::ShowProgress(int done, int all) {
  if (!program_->working || !painted_.hasExpired(kPaintInterval)) return;
  if (working_.hasExpired(kProgressDelay)) {
    progress_->setRange(0, all);
    progress_->setValue(done);
    progress_->setFixedHeight(path_->height());
    ReplaceWidget(path_, progress_);
  }
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                  QEventLoop::ExcludeSocketNotifiers);
  painted_.start();
}

bool Principale::SessionEnds() { return HasEndSignal(); }

// A dialog that has closed may take a moment until it is gone.
bool Principale::IsOpen(WindowId dialog) {
  const QPointer<QDialog>& window = open_dialogs_[dialog];
  return window != nullptr && window->isVisible();
}

void Principale::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  // Not before all windows have taken the new colours.
  QMetaObject::invokeMethod(this, &KeepQuietTextReadable, Qt::QueuedConnection);
}

void Principale::closeEvent(QCloseEvent* event) {
  // The end of the session may come while files are copied.
  if (program_->working) return event->ignore();
  event->accept();
  if (std::exchange(closing_, true)) return;
  MainWindowClosing(*program_);
  Remember();
  timer_.stop();
  emit Closed();
}

}  // namespace vellumark
