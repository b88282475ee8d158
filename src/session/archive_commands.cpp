#include "session/archive_commands.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "game/import.h"
#include "game/restore.h"
#include "platform/file_dialogs.h"
#include "program.h"
#include "savegames/main_window_interface.h"

namespace vellumark {
namespace {

constexpr std::int16_t kNewArchiveMaxSavegame = 15;

bool HasNoNameOfItsOwn(const std::string& path) {
  return EqualsIgnoringAsciiCase(FileNameOf(path), LoadMessage(281));
}

std::string NoNamePath(const Program& program) {
  return program.paths.ProgramFolder + LoadMessage(270);
}

std::string NotWritten(Program& program, const std::string& path, FileError error) {
  const bool folder_gone =
      error == FileError::kNotFound && !FolderExists(program.files, FolderOf(path));
  const std::string reason = folder_gone ? LoadMessage(kReasonFolderGone) : ReasonFor(error);
  return LoadMessage(kArchiveNotWritten, {Quoted(path), reason});
}

// Says that a save has failed. True when the user wants to try another name: at shut-down there is
// no later chance.
bool AskForAnotherName(Program& program, const std::string& path, FileError error) {
  const std::string question =
      NotWritten(program, path, error) + kLineBreak + kLineBreak + LoadMessage(kSaveElsewhere);
  return AskYesNo(program, question, BoxIcon::kCritical);
}

// A path that comes from a file dialog must fit the record that remembers it.
bool FitsRecord(Program& program, const std::string& path) {
  if (path.size() <= kTextFieldSize) return true;
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(kPathTooLong, {Quoted(path)}), BoxIcon::kCritical);
  return false;
}

// Nothing that the user could miss is in settings without a folder.
bool HoldsNothing(const ArchiveSettings& settings) {
  return settings.MainFolder.empty() && settings.GameFolder.empty() &&
         settings.GameExecutable.empty();
}

// True while the settings are still what could be read of a damaged file: writing them would
// only make the damage look whole.
bool IsUnchangedDamage(const ArchiveState& archive) {
  if (!archive.read_in_part) return false;
  ArchiveSettings as_read = *archive.read_in_part;
  as_read.SavegameCount = archive.settings.SavegameCount;
  return as_read == archive.settings;
}

void ClearMainWindow(Program& program) {
  using Field = MainWindow::Field;
  program.main_window.ShowLines({});
  for (const Field field :
       {Field::kTotCartelle, Field::kTotSavegame, Field::kNote, Field::kPathSavegame}) {
    program.main_window.SetField(field, "");
  }
  program.catalogue = {};
  program.selection = {};
}

// What a file chosen with Load holds; nothing after telling the user why it is refused.
std::optional<ArchiveRead> ReadChosenArchive(Program& program, const std::string& path) {
  const ArchiveRead read = ReadArchiveFile(program.files, path);
  if (read.state == ArchiveReadState::kWhole) return read;

  PlaySoundEffect(program, SoundEffect::kRefusal);
  const std::string reason = read.state == ArchiveReadState::kNotArchive
                                 ? LoadMessage(kReasonNotAnArchive)
                                 : ReasonFor(read.error);
  Tell(program, LoadMessage(kArchiveRefused, {Quoted(path), reason}), BoxIcon::kCritical);
  return std::nullopt;
}

// Makes the archive of a file the one in use.
void TakeArchive(Program& program, const std::string& path) {
  if (!FitsRecord(program, path)) return;
  const auto read = ReadChosenArchive(program, path);
  if (!read) return;

  if (!SamePath(program.text, read->settings.GameFolder, program.archive.settings.GameFolder)) {
    RestoreOriginalSavegames(program);
  }
  // Only now: while the question waits, path and settings are those of one archive.
  program.preferences.LastArchive = path;
  program.archive.settings = read->settings;
  program.archive.file_bytes = read->bytes;
  program.archive.read_in_part.reset();
  program.archive.never_written = false;
  program.archive.ArchiveChanged = false;
  program.session.missing_archive.clear();
  ClearMainWindow(program);
  ScanArchive(program);
}

}  // namespace

void SaveArchive(Program& program) {
  std::string& last = program.preferences.LastArchive;
  last = Trimmed(last);
  if (last.empty()) {
    SaveArchiveAs(program);
    return;
  }
  if (const FileError error = WriteArchiveFile(program, last); error != FileError::kNone) {
    Tell(program, NotWritten(program, last, error), BoxIcon::kCritical);
  }
}

void SaveArchiveAs(Program& program) {
  program.archive.settings.SavegameCount = program.catalogue.EntryCount();
  PlaySoundEffect(program, SoundEffect::kOpening);

  std::string& last = program.preferences.LastArchive;
  last = Trimmed(last);
  const auto chosen = program.file_dialogs.Save({.title = LoadMessage(283),
                                                 .filter = LoadMessage(282),
                                                 .start_folder = FolderOf(last),
                                                 .initial_name = last});
  if (!chosen) return;
  const std::string path = Trimmed(*chosen);
  if (!FitsRecord(program, path)) return SaveArchiveAs(program);
  const FileError error = WriteArchiveFile(program, path);
  if (error != FileError::kNone && AskForAnotherName(program, path, error)) SaveArchiveAs(program);
}

void SaveArchiveIfChanged(Program& program) {
  if (!program.archive.ArchiveChanged) return;

  program.archive.settings.SavegameCount = static_cast<std::int32_t>(
      std::ranges::count_if(program.catalogue.entries,
                            [](const SavegameEntry& entry) { return entry.FolderNumber != 0; }));
  std::string& last = program.preferences.LastArchive;
  last = Trimmed(last);

  if (last.empty() && HoldsNothing(program.archive.settings)) return;
  const bool ending = IsEnding(program);
  if (!ending && (last.empty() || HasNoNameOfItsOwn(last))) {
    SaveArchiveAs(program);
    return;
  }
  if (IsUnchangedDamage(program.archive)) return;
  const std::string path = last.empty() ? NoNamePath(program) : last;
  const FileError error = WriteArchiveFile(program, path);
  if (error != FileError::kNone && ending) {
    return Tell(program, NotWritten(program, path, error), BoxIcon::kCritical);
  }
  if (error != FileError::kNone && AskForAnotherName(program, last, error)) SaveArchiveAs(program);
}

void UndoNewArchive(Program& program) {
  const auto before = program.archive.before_new;
  if (before == nullptr) return;
  program.archive = before->archive;
  program.preferences.LastArchive = before->path;
}

void NewArchive(Program& program) {
  SaveArchiveIfChanged(program);
  program.archive.before_new = std::make_shared<const ArchiveBefore>(
      ArchiveBefore{program.archive, Trimmed(program.preferences.LastArchive)});

  program.archive.settings = {};
  program.archive.settings.MaxSavegame = kNewArchiveMaxSavegame;
  program.archive.settings.SubfolderBaseName = LoadMessage(269);
  program.archive.file_bytes.clear();
  program.archive.read_in_part.reset();
  program.archive.never_written = true;
  program.preferences.LastArchive = NoNamePath(program);

  program.windows.ShowModal(WindowId::kDialogSetNewArc);
  if (!program.archive.ArchivePropertiesOk) return UndoNewArchive(program);
  program.archive.before_new.reset();
  program.archive.ArchiveChanged = true;
  ScanArchive(program);
  if (program.catalogue.EntryCount() == 0) ImportCommand(program);
}

void LoadArchive(Program& program) {
  SaveArchiveIfChanged(program);
  PlaySoundEffect(program, SoundEffect::kOpening);

  const auto chosen = program.file_dialogs.Open({.title = LoadMessage(266),
                                                 .filter = LoadMessage(267),
                                                 .start_folder = program.paths.ProgramFolder,
                                                 .initial_name = ""});
  if (chosen) TakeArchive(program, Trimmed(*chosen));
}

void OpenArchive(Program& program, const std::string& path) {
  SaveArchiveIfChanged(program);
  TakeArchive(program, Trimmed(path));
}

std::string NamedArchive(const Program& program) {
  const std::string path = Trimmed(program.preferences.LastArchive);
  return HasNoNameOfItsOwn(path) ? std::string() : path;
}

}  // namespace vellumark
