#include "maintenance/folder_chooser.h"

#include <algorithm>

#include "foundation/failures.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "game/restore.h"
#include "maintenance/copy_move.h"
#include "maintenance/export_shots.h"
#include "program.h"

namespace vellumark {
namespace {

void Refuse(Program& program, const std::string& text) {
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, text, BoxIcon::kCritical);
}

void RefuseFolder(Program& program, const std::string& folder, FileError why) {
  Refuse(program, LoadMessage(kFolderNotOpened, {Quoted(folder), ReasonFor(why)}));
}

bool TakesSavegames(ChooserMode mode) {
  return mode == ChooserMode::kCopy || mode == ChooserMode::kMove ||
         mode == ChooserMode::kNewArchiveFolder || mode == ChooserMode::kExportShots;
}

// True for the folders of the backup and of what was set aside, and all below them.
bool IsOwnFolder(Program& program, const std::string& folder) {
  for (const std::string& own : {program.play.BackupFolder, RescueRoot(program)}) {
    const auto identity = program.files.Identity(own);
    for (std::string path = folder; path.size() > 2; path = FolderOf(path)) {
      if (SamePath(program.text, path, own)) return true;
      if (identity && program.files.Identity(path) == identity) return true;
    }
  }
  return false;
}

int TitleOf(ChooserMode mode) {
  switch (mode) {
    case ChooserMode::kPlain:
      return 174;
    case ChooserMode::kMainFolder:
      return 131;
    case ChooserMode::kGameFolder:
      return 132;
    case ChooserMode::kCopy:
      return 134;
    case ChooserMode::kMove:
      return 135;
    case ChooserMode::kNewArchiveFolder:
      return 136;
    case ChooserMode::kExportShots:
      return 137;
  }
  return 127;
}

// The text that names the start folder; empty for the current folder.
std::string StartText(const Program& program) {
  switch (program.chooser.FolderChooserMode) {
    case ChooserMode::kMainFolder:
    case ChooserMode::kGameFolder:
      return Trimmed(program.chooser.field);
    case ChooserMode::kNewArchiveFolder:
      return Trimmed(program.archive.settings.MainFolder);
    case ChooserMode::kExportShots:
      return Trimmed(program.preferences.ShotFolder);
    default:
      return {};
  }
}

std::string CurrentFolder(Program& program) { return AsShownFolder(program.files.CurrentFolder()); }

std::string StartFolder(Program& program) {
  const std::string text = AsShownFolder(StartText(program));
  if (text.empty()) return CurrentFolder(program);

  const std::string folder = AsShownFolder(program.files.FromCommandLine(text));
  if (folder.size() < 3 || folder[1] != ':') return CurrentFolder(program);
  // The spelling stays, so that OK on the start folder gives back what was there.
  return SamePath(program.text, text, folder) ? text : folder;
}

std::string WithoutDoubleBackslashes(std::string path) {
  const auto both = [](char a, char b) { return a == '\\' && b == '\\'; };
  path.erase(std::unique(path.begin(), path.end(), both), path.end());
  return path;
}

// What the folder is wanted for. False when the user thinks better of it.
bool UseChosenFolder(Program& program) {
  FolderChooserState& chooser = program.chooser;
  switch (chooser.FolderChooserMode) {
    case ChooserMode::kMainFolder:
    case ChooserMode::kNewArchiveFolder:
      chooser.field = chooser.ChosenFolder;
      break;
    case ChooserMode::kGameFolder:
      TakeGameFolder(program, chooser.ChosenFolder);
      chooser.field = chooser.ChosenFolder;
      break;
    case ChooserMode::kCopy:
      return CopyOrMoveInto(program, chooser.ChosenFolder, CopyMode::kCopy);
    case ChooserMode::kMove:
      return CopyOrMoveInto(program, chooser.ChosenFolder, CopyMode::kMove);
    case ChooserMode::kExportShots:
      program.windows.CloseDialog(WindowId::kDialogGetDir);
      ExportLinkedShots(program, chooser.ChosenFolder);
      program.preferences.ShotFolder = chooser.ChosenFolder;
      break;
    case ChooserMode::kPlain:
      break;
  }
  return true;
}

}  // namespace

ChooserOpening OpenChooser(Program& program) {
  const ChooserMode mode = program.chooser.FolderChooserMode;
  const bool prepared = mode != ChooserMode::kPlain;
  if (prepared) PlaySoundEffect(program, SoundEffect::kOpening);
  program.chooser.Confirmed = false;

  FolderLines folder = ReadFolderLines(program, StartFolder(program));
  if (folder.error != FileError::kNone) folder = ReadFolderLines(program, CurrentFolder(program));
  return {.title = TitleOf(mode), .shows_path = prepared, .folder = std::move(folder)};
}

std::optional<FolderLines> EnterFolder(Program& program, const std::string& folder) {
  FolderLines entered = ReadFolderLines(program, folder);
  if (entered.error == FileError::kNone) return entered;
  RefuseFolder(program, folder, entered.error);
  return std::nullopt;
}

std::optional<FolderLines> EnterTypedFolder(Program& program, const EncodedText& typed) {
  if (!typed.missing.empty()) {
    Refuse(program, LoadMessage(kPathNotExpressible));
    return std::nullopt;
  }
  const std::string folder = AsShownFolder(program.files.FromCommandLine(Trimmed(typed.bytes)));
  if (folder.size() < 3 || folder[1] != ':') {
    RefuseFolder(program, typed.bytes, FileError::kNotFound);
    return std::nullopt;
  }
  return EnterFolder(program, folder);
}

FolderLines ChangeDrive(Program& program, char letter, const std::string& folder) {
  const std::string root{letter, ':', '\\'};
  const std::string current = CurrentFolder(program);
  FolderLines picked = ReadFolderLines(program, current[0] == letter ? current : root);
  if (picked.error != FileError::kNone && picked.folder != root) {
    picked = ReadFolderLines(program, root);
  }
  if (picked.error == FileError::kNone) return picked;

  if (picked.error == FileError::kNotReady || picked.error == FileError::kNotFound) {
    Refuse(program, LoadMessage(138));
  } else {
    RefuseFolder(program, root, picked.error);
  }
  return ReadFolderLines(program, folder);
}

std::optional<std::string> CreateSubfolder(Program& program, const std::string& folder,
                                           const EncodedText& name) {
  if (name.bytes.empty()) {
    Refuse(program, LoadMessage(150));
    return std::nullopt;
  }
  if (!name.missing.empty()) {
    Refuse(program, LoadMessage(kFolderNameNotExpressible));
    return std::nullopt;
  }

  std::string path = WithoutDoubleBackslashes(InFolder(folder, Trimmed(name.bytes)));
  if (program.files.Attributes(path).error == FileError::kNone) {
    Refuse(program, Quoted(path) + LoadMessage(151));
    return std::nullopt;
  }
  // The list could not give it as an answer.
  if (path.size() > kTextFieldSize) {
    Refuse(program, LoadMessage(kPathTooLong, {Quoted(path)}));
    return std::nullopt;
  }

  const FileError error = program.files.CreateFolder(path);
  if (error == FileError::kNotFound) {
    RefuseFolder(program, FolderOf(path), error);
    return std::nullopt;
  }
  if (error != FileError::kNone) {
    Refuse(program, LoadMessage(kFolderNotMade, {Quoted(path), ReasonFor(error)}));
    return std::nullopt;
  }
  PlaySoundEffect(program, SoundEffect::kNotice);
  return path;
}

void TakeGameFolder(Program& program, const std::string& folder) {
  // While the settings still name the old game folder: the player's slots belong there.
  if (folder != Trimmed(program.archive.settings.GameFolder)) RestoreOriginalSavegames(program);
  program.archive.ArchiveChanged = true;
}

bool TakeFolder(Program& program, const std::string& folder) {
  const AttributesResult found = program.files.Attributes(folder);
  const bool exists = found.error == FileError::kNone && found.attributes.folder;
  if (!exists) {
    const bool file = found.error == FileError::kNone;
    RefuseFolder(program, folder, file ? FileError::kNotFound : found.error);
    return false;
  }
  if (folder.size() > kTextFieldSize) {
    Refuse(program, LoadMessage(kPathTooLong, {Quoted(folder)}));
    return false;
  }

  if (TakesSavegames(program.chooser.FolderChooserMode) && IsOwnFolder(program, folder)) {
    Refuse(program, LoadMessage(kFolderIsOwn, {Quoted(folder)}));
    return false;
  }

  const bool root = folder.size() < 4;
  program.chooser.ChosenFolder = root ? folder.substr(0, folder.find('\\')) : folder;
  if (!UseChosenFolder(program)) return false;
  program.chooser.Confirmed = true;
  return true;
}

}  // namespace vellumark
