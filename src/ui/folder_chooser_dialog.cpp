#include "ui/folder_chooser_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "maintenance/folder_chooser.h"
#include "program.h"
#include "ui/controls.h"
#include "ui/folder_list.h"

namespace vellumark {
namespace {

QChar DriveOf(const std::string& folder) { return QChar(QLatin1Char(folder[0])).toUpper(); }

}  // namespace

FolderChooserDialog::FolderChooserDialog(Program& program)
    : ModalDialog(WindowId::kDialogGetDir, program),
      drives_(Named(new QComboBox(this), "Drive1")),
      folders_(Named(new FolderList(program.text, this), "Dir1")),
      path_(Named(new QLineEdit(this), "Text_Path")),
      create_(Named(new QPushButton(this), "Pul_NuovaCartella")),
      name_(Named(new QLineEdit(this), "Text_NomeCartella")),
      ok_(Named(new QPushButton(this), "OKButton")),
      cancel_(Named(new QPushButton(this), "CancelButton")) {
  path_->installEventFilter(this);
  name_->installEventFilter(this);
  ok_->setDefault(true);
  BuildLayout();
  SetCaptions();
  NameControlsWithoutCaption();
  folders_->setFocus();

  connect(drives_, &QComboBox::activated, this, &FolderChooserDialog::GoToDrive);
  connect(folders_, &FolderList::FolderPicked, this, &FolderChooserDialog::GoTo);
  connect(folders_, &FolderList::RereadWanted, this, &FolderChooserDialog::Reread);
  connect(create_, &QPushButton::clicked, this, &FolderChooserDialog::MakeFolder);
  connect(ok_, &QPushButton::clicked, this, &FolderChooserDialog::Take);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void FolderChooserDialog::BuildLayout() {
  // A label may be a long path of this system.
  drives_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  drives_->setMinimumContentsLength(20);
  folders_->setMinimumHeight(120);

  auto* new_folder = new QHBoxLayout;
  new_folder->addWidget(create_);
  new_folder->addWidget(name_, 1);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(ok_, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel_, QDialogButtonBox::RejectRole);
  auto* column = new QVBoxLayout(this);
  column->addWidget(drives_);
  column->addWidget(folders_, 1);
  column->addWidget(path_);
  column->addLayout(new_folder);
  column->addSpacing(8);
  column->addWidget(buttons);
  resize(460, 480);

  SetTabSequence({drives_, folders_, path_, create_, name_, ok_, cancel_});
}

void FolderChooserDialog::NameControlsWithoutCaption() {
  drives_->setAccessibleName(ToText(LoadMessage(kNameDrives)));
  folders_->setAccessibleName(ToText(LoadMessage(kNameFolders)));
  path_->setAccessibleName(ToText(LoadMessage(kNameFolderPath)));
  name_->setAccessibleName(ToText(LoadMessage(kNameNewFolder)));
  name_->setPlaceholderText(ToText(LoadMessage(kNameNewFolder)));
}

void FolderChooserDialog::ImpostaValori() {
  ChooserOpening opening = OpenChooser(program());
  setWindowTitle(ToText(LoadMessage(opening.title)));
  FillDrives();
  ShowFolder(std::move(opening.folder));
  if (opening.shows_path) path_->setText(ToText(folders_->Folder()));
}

// While the user types a name, Enter makes the folder instead of taking the one that is shown;
// after a path it goes there.
bool FolderChooserDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == path_) {
    if (event->type() != QEvent::KeyPress || !path_->isModified()) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    GoToTyped();
    return true;
  }
  if (event->type() == QEvent::FocusIn) create_->setDefault(true);
  if (event->type() == QEvent::FocusOut) ok_->setDefault(true);
  return ModalDialog::eventFilter(watched, event);
}

void FolderChooserDialog::FillDrives() {
  drives_->clear();
  for (const Drive& drive : program().files.Drives()) {
    const QChar letter = QLatin1Char(drive.letter);
    const QString label = QString::fromStdString(drive.label);
    drives_->addItem(QStringLiteral("%1:   %2").arg(letter, label).trimmed(), letter);
    drives_->setItemData(drives_->count() - 1, label, Qt::ToolTipRole);
  }
}

void FolderChooserDialog::ChangeFolder(FolderLines folder) {
  const bool another = folder.folder != folders_->Folder();
  ShowFolder(std::move(folder));
  if (another) path_->setText(ToText(folders_->Folder()));
}

void FolderChooserDialog::ShowFolder(FolderLines folder) {
  folders_->SetLines(std::move(folder));
  ShowDriveOfFolder();
}

void FolderChooserDialog::ShowDriveOfFolder() {
  drives_->setCurrentIndex(drives_->findData(DriveOf(folders_->Folder())));
}

void FolderChooserDialog::GoTo(const std::string& path) {
  if (auto folder = EnterFolder(program(), path)) ChangeFolder(std::move(*folder));
}

// False when the path that was typed leads nowhere, which the user was told.
bool FolderChooserDialog::GoToTyped() {
  auto folder = EnterTypedFolder(program(), program().text.FromUtf8(path_->text().toStdString()));
  if (!folder) {
    path_->setFocus();
    return false;
  }
  ShowFolder(std::move(*folder));
  path_->setText(ToText(folders_->Folder()));
  return true;
}

void FolderChooserDialog::GoToDrive(int index) {
  const QChar letter = drives_->itemData(index).toChar();
  if (letter == DriveOf(folders_->Folder())) return;
  ChangeFolder(ChangeDrive(program(), letter.toLatin1(), folders_->Folder()));
}

void FolderChooserDialog::Reread() {
  FillDrives();
  ShowDriveOfFolder();
  GoTo(folders_->Folder());
}

void FolderChooserDialog::MakeFolder() {
  const EncodedText name = program().text.FromUtf8(name_->text().toStdString());
  if (!name.missing.empty()) MarkCharacter(name.missing.front());
  const auto made = CreateSubfolder(program(), folders_->Folder(), name);
  if (!made) return name_->setFocus();

  name_->clear();
  Reread();
  folders_->ShowFolder(*made);
  folders_->setFocus();
}

void FolderChooserDialog::MarkCharacter(const std::string& character) {
  const QString marked = QString::fromStdString(character);
  name_->setSelection(static_cast<int>(name_->text().indexOf(marked)),
                      static_cast<int>(marked.size()));
}

void FolderChooserDialog::Take() {
  if (path_->isModified() && !GoToTyped()) return;
  if (TakeFolder(program(), folders_->Folder())) accept();
}

}  // namespace vellumark
