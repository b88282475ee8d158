#include "archive/scan.h"

#include <utility>

#include "archive/catalogue_builder.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "program.h"
#include "savegames/details.h"
#include "savegames/list_line.h"
#include "savegames/main_window_interface.h"

namespace vellumark {
namespace {

using Field = MainWindow::Field;

void EmptyCatalogue(Program& program) {
  program.main_window.ShowLines({});
  program.catalogue = {};
  program.search = {};
}

ScannedCatalogue ReadFolders(Program& program) {
  ArchiveSettings& settings = program.archive.settings;
  settings.MainFolder = Trimmed(settings.MainFolder);
  settings.SubfolderBaseName = Trimmed(settings.SubfolderBaseName);
  settings.GameFolder = Trimmed(settings.GameFolder);

  // While archived savegames occupy the game's slots, the player's own lie in the backup folder.
  const std::string& game_folder = program.play.ExaminedInGameFolder && !program.play.given_back
                                       ? program.play.BackupFolder
                                       : settings.GameFolder;
  return BuildCatalogue(
      program.files, program.text,
      {.settings = settings,
       .game_folder = game_folder,
       .all_subfolders = program.preferences.ScanAllSubfolders,
       .show = [&program](int done, int all) { program.windows.ShowProgress(done, all); }});
}

void ShowCatalogue(Program& program, const std::vector<bool>& has_shot) {
  std::vector<std::string> lines;
  lines.reserve(program.catalogue.entries.size());
  for (const SavegameEntry& entry : program.catalogue.entries) {
    lines.push_back(FormatEntryLine(entry, has_shot[lines.size()]));
  }
  MainWindow& window = program.main_window;
  window.ShowLines(std::move(lines));
  window.SetField(Field::kTotCartelle, std::to_string(program.catalogue.FolderCount));
  window.SetField(Field::kTotSavegame, std::to_string(program.catalogue.EntryCount()));
  window.SetField(Field::kPathSavegame, "");
  window.SetField(Field::kNote, "");
  program.selection = {};
  if (program.catalogue.EntryCount() > 0) SelectOnly(program, 0);
}

// A line for each, in UTF-8.
std::vector<std::string> DescribeUnusable(const std::vector<UnusableName>& names) {
  std::vector<std::string> lines;
  for (const UnusableName& name : names) {
    const bool characters = name.reason == UnusableName::Reason::kNotInCodePage;
    const std::string reason = LoadMessage(characters ? kUnusableCharacters : kUnusableName);
    lines.push_back(LoadMessage(kFailureLine, {reason, Quoted(name.shown)}));
  }
  return lines;
}

void ReportProblems(Program& program, const ScannedCatalogue& scanned) {
  std::string text;
  const auto add = [&text](const std::string& paragraph) {
    if (!text.empty()) text += std::string(kLineBreak) + kLineBreak;
    text += paragraph;
  };
  if (scanned.table_full) {
    add(LoadMessage(kTableFull, {static_cast<int>(Catalogue::kMostEntries)}));
  }
  if (!scanned.ambiguous.empty()) {
    std::vector<Failure> names;
    for (const std::string& path : scanned.ambiguous) {
      names.push_back({path, FileError::kAmbiguous});
    }
    add(LoadMessage(kAmbiguousNames) + DescribeFailures(names));
  }
  if (!scanned.failures.empty()) {
    add(LoadMessage(kScanFailures) + DescribeFailures(scanned.failures));
  }
  if (!scanned.unusable.empty()) {
    add(LoadMessage(kUnusableFolders, {Quoted(program.archive.settings.MainFolder)}));
    TellNames(program, text, DescribeUnusable(scanned.unusable), BoxIcon::kExclamation);
  } else if (!text.empty()) {
    Tell(program, text, BoxIcon::kExclamation);
  }
}

void LookForFolders(Program& program) {
  ArchiveState& archive = program.archive;
  archive.main_folder_there = FolderExists(program.files, archive.settings.MainFolder);
  archive.game_folder_there = FolderExists(program.files, archive.settings.GameFolder);
}

}  // namespace

void ScanArchive(Program& program) {
  PlaySoundEffect(program, SoundEffect::kFinished);
  ScannedCatalogue scanned;
  {
    const WorkScope working(program);
    EmptyCatalogue(program);
    scanned = ReadFolders(program);
    program.catalogue = std::move(scanned.catalogue);
    for (const std::string& path : scanned.leftovers) program.files.Delete(path);
    ShowCatalogue(program, scanned.has_shot);
    if (program.catalogue.EntryCount() == 0) LookForFolders(program);
  }
  program.archive.ArchiveChanged = true;
  PlaySoundEffect(program, SoundEffect::kNotice);
  ReportProblems(program, scanned);
}

void RescanCommand(Program& program) {
  ScanArchive(program);
  program.archive.ArchiveChanged = true;
}

}  // namespace vellumark
