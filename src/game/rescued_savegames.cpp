#include "game/rescued_savegames.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <set>

#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/operation_report.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/work_scope.h"
#include "game/next_subfolder.h"
#include "game/own_slots_in_play.h"
#include "program.h"
#include "savegames/copy_selected.h"
#include "savegames/info_file.h"
#include "savegames/notes.h"
#include "savegames/savegame_files.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

// What the list of a rescue says of a file that lies in it; nothing when it says nothing.
const RescuedFrom* OriginOf(const Program& program, const RescueList& list,
                            const std::string& name) {
  const auto found = std::ranges::find_if(
      list.files, [&](const RescuedFrom& file) { return SamePath(program.text, file.name, name); });
  return found == list.files.end() ? nullptr : &*found;
}

RescuedSavegame ReadSavegame(Program& program, FolderReader& reader, const Slot& slot,
                             const std::string& folder) {
  RescuedSavegame savegame;
  SavegameEntry& entry = savegame.entry;
  const SavegameHeader header =
      DecodeSavegameHeader(reader.Read(*slot.savegame, kSavegameHeaderSize).bytes);
  entry.LevelName = header.level_name;
  entry.InternalCounter = header.counter;
  entry.SlotNumber = static_cast<std::int16_t>(slot.number);
  entry.FolderNumber = 1;
  entry.SavegamePath = InFolder(folder, slot.savegame->name);
  entry.NotePath = InFolder(folder, NoteFileName(slot.number));
  entry.ShotPath = InFolder(folder, ShotFileName(slot.number));
  savegame.has_note = slot.note != nullptr;
  savegame.has_shot = slot.shot != nullptr;
  if (savegame.has_note) entry.NoteText = ReadNoteFile(program.files, entry.NotePath);
  return savegame;
}

// Reads a folder of rescued\ and adds it, and then its sub-folders. `inside` is where it lies in
// the folder of the rescue, as the list spells it.
void AddFolder(Program& program, FolderReader& reader, const std::string& path,
               const std::string& inside, const RescueList& list,
               std::vector<RescuedFolder>& folders, std::vector<Failure>& failures) {
  const Listing& listing = reader.Contents();
  if (listing.error != FileError::kNone) failures.push_back({path, listing.error});
  RescuedFolder folder{.path = path, .when = list.when, .savegames = {}, .loose = {}};
  const SlotListing found = SlotsOf(listing, std::numeric_limits<std::int16_t>::max());
  std::set<const FolderEntry*> taken;
  for (const Slot& slot : found.slots) {
    RescuedSavegame savegame = ReadSavegame(program, reader, slot, path);
    if (const RescuedFrom* from = OriginOf(program, list, inside + slot.savegame->name)) {
      savegame.origin = from->origin;
      savegame.why = from->why;
    }
    folder.savegames.push_back(std::move(savegame));
    taken.insert({slot.savegame, slot.note, slot.shot});
  }
  for (const FolderEntry& entry : listing.entries) {
    if (entry.folder || taken.contains(&entry)) continue;
    if (inside.empty() && EqualsIgnoringAsciiCase(entry.name, RescueListName())) continue;
    folder.loose.push_back(InFolder(path, entry.name));
  }
  const bool holds_something = !folder.savegames.empty() || !folder.loose.empty();
  if (holds_something) folders.push_back(std::move(folder));
  // What the program sets aside lies one sub-folder deep at most.
  if (!inside.empty()) return;
  for (const FolderEntry& entry : listing.entries) {
    if (!entry.folder || entry.ambiguous) continue;
    AddFolder(program, *reader.OpenFolder(entry), InFolder(path, entry.name), entry.name + '\\',
              list, folders, failures);
  }
}

// The number that a folder has for its name; nothing for a foreign one.
std::optional<int> NumberOf(const std::string& name) {
  int number = 0;
  const char* end = name.data() + name.size();
  const auto read = std::from_chars(name.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

SavegameFiles AsFiles(const RescuedSavegame& savegame) {
  const SavegameEntry& entry = savegame.entry;
  return {entry.SlotNumber, entry.SavegamePath, entry.NotePath, entry.ShotPath};
}

// True when these can stand side by side under their own numbers.
bool FitTogether(const std::vector<SavegameFiles>& savegames, int max_savegame) {
  std::set<int> slots;
  return std::ranges::all_of(savegames, [&](const SavegameFiles& savegame) {
    return savegame.slot <= max_savegame && slots.insert(savegame.slot).second;
  });
}

// Removes the folders of rescued\ that these paths lay in, as far as nothing but the list is left.
void RemoveEmptied(Program& program, const std::vector<std::string>& paths) {
  const std::string root = RescueRoot(program);
  std::set<std::string> folders;
  for (const std::string& path : paths) folders.insert(FolderOf(path));
  for (std::string folder : folders) {
    while (!folder.empty() && !SamePath(program.text, folder, root)) {
      const Listing listing = program.files.List(InFolder(folder, "*"));
      const bool only_list = listing.entries.size() == 1 &&
                             EqualsIgnoringAsciiCase(listing.entries[0].name, RescueListName());
      if (listing.error != FileError::kNone || !listing.unusable.empty()) break;
      if (!listing.entries.empty() && !only_list) break;
      if (only_list) program.files.Delete(InFolder(folder, RescueListName()));
      if (program.files.RemoveFolder(folder) != FileError::kNone) break;
      folder = FolderOf(folder);
    }
  }
}

// Moves a sub-folder's worth of savegames into the archive. Answers how many arrived.
int ArchiveOneSubfolder(Program& program, const std::vector<SavegameFiles>& savegames,
                        Report& report) {
  std::string folder;
  const FileError error = MakeNextSubfolder(program, folder);
  if (error != FileError::kNone) {
    report.Add(LoadMessage(kRescuedNotArchived) + DescribeFailures({{folder, error}}));
    return 0;
  }
  const bool renumber = !FitTogether(savegames, program.archive.settings.MaxSavegame);
  const SelectedCopies copies =
      CopySavegames(program, savegames, folder, renumber, CopyMode::kMove);
  if (!copies.not_copied.empty()) {
    report.Add(LoadMessage(kRescuedNotArchived) + DescribeFailures(copies.not_copied));
  }
  if (!copies.not_deleted.empty()) {
    report.Add(LoadMessage(kMovedNotDeleted) + DescribeFailures(copies.not_deleted));
  }
  if (copies.targets.empty()) {
    program.files.RemoveFolder(folder);
    return 0;
  }
  const std::string info_file = Trimmed(program.archive.settings.MainFolder) + LoadMessage(328);
  const FileError info = WriteInfoSection(program, folder, info_file, InfoMode::kAppend).error;
  if (info != FileError::kNone) {
    report.Add(LoadMessage(kInfoNotWritten, {Quoted(info_file), ReasonFor(info)}));
  }
  return static_cast<int>(savegames.size() - copies.not_copied.size());
}

}  // namespace

std::vector<RescuedFolder> ListRescued(Program& program, std::vector<Failure>& failures) {
  const auto root = program.files.OpenFolder(RescueRoot(program));
  const Listing& listing = root->Contents();
  if (listing.error != FileError::kNone && listing.error != FileError::kNotFound) {
    failures.push_back({RescueRoot(program), listing.error});
  }
  std::vector<std::pair<int, const FolderEntry*>> numbered;
  for (const FolderEntry& entry : listing.entries) {
    const auto number = NumberOf(entry.name);
    if (entry.folder && !entry.ambiguous && number) numbered.emplace_back(*number, &entry);
  }
  std::ranges::sort(numbered);
  std::vector<RescuedFolder> folders;
  for (const auto& [number, entry] : numbered) {
    const std::string path = InFolder(RescueRoot(program), entry->name);
    AddFolder(program, *root->OpenFolder(*entry), path, {}, ReadRescueList(program.files, path),
              folders, failures);
  }
  return folders;
}

bool CanArchiveRescued(Program& program) {
  const ArchiveSettings& settings = program.archive.settings;
  const std::string main_folder = Trimmed(settings.MainFolder);
  return !main_folder.empty() && !Trimmed(settings.SubfolderBaseName).empty() &&
         settings.MaxSavegame > 0 && FolderExists(program.files, main_folder);
}

void ArchiveRescued(Program& program, const std::vector<RescuedSavegame>& savegames) {
  if (!CanArchiveRescued(program)) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    return Tell(program, LoadMessage(kNoArchiveForRescued), BoxIcon::kExclamation);
  }
  Report report;
  int archived = 0;
  {
    const WorkScope working(program);
    const auto room = static_cast<std::size_t>(program.archive.settings.MaxSavegame) + 1;
    std::vector<std::string> paths;
    for (std::size_t begin = 0; begin < savegames.size(); begin += room) {
      std::vector<SavegameFiles> part;
      for (std::size_t i = begin; i < std::min(begin + room, savegames.size()); ++i) {
        part.push_back(AsFiles(savegames[i]));
        paths.push_back(savegames[i].entry.SavegamePath);
      }
      archived += ArchiveOneSubfolder(program, part, report);
    }
    RemoveEmptied(program, paths);
  }
  program.archive.ArchiveChanged = true;
  PlaySoundEffect(program, SoundEffect::kFinished);
  Tell(program, LoadMessage(kRescuedArchived, {archived}));
  report.Show(program);
}

void ArchiveWholeRescue(Program& program, const std::string& folder) {
  std::vector<Failure> failures;
  std::vector<RescuedSavegame> savegames;
  for (const RescuedFolder& rescued : ListRescued(program, failures)) {
    const bool is_inside = SamePath(program.text, rescued.path, folder) ||
                           SamePath(program.text, FolderOf(rescued.path), folder);
    if (is_inside) std::ranges::copy(rescued.savegames, std::back_inserter(savegames));
  }
  ArchiveRescued(program, savegames);
}

void PutRescuedIntoGame(Program& program, const std::vector<RescuedSavegame>& savegames) {
  const std::string game_folder = Trimmed(program.archive.settings.GameFolder);
  if (game_folder.empty() || !FolderExists(program.files, game_folder)) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    Tell(program, LoadMessage(324) + game_folder);
    return;
  }
  Report report;
  int put = 0;
  {
    const WorkScope working(program);
    std::vector<SavegameFiles> free;
    std::vector<Failure> taken;
    std::set<int> slots;
    std::vector<std::string> paths;
    for (const RescuedSavegame& savegame : savegames) {
      const int slot = savegame.entry.SlotNumber;
      const bool is_free =
          slot <= program.archive.settings.MaxSavegame && slots.insert(slot).second &&
          std::ranges::all_of(
              std::vector{SavegameFileName(slot), NoteFileName(slot), ShotFileName(slot)},
              [&](const std::string& name) {
                return program.files.Attributes(InFolder(game_folder, name)).error ==
                       FileError::kNotFound;
              });
      if (is_free) {
        free.push_back(AsFiles(savegame));
        paths.push_back(savegame.entry.SavegamePath);
      } else {
        taken.push_back({savegame.entry.SavegamePath, FileError::kAlreadyExists});
      }
    }
    const SelectedCopies copies = CopySavegames(program, free, game_folder, false, CopyMode::kMove);
    RememberBrought(program, game_folder, copies.targets);
    RemoveEmptied(program, paths);
    put = static_cast<int>(free.size() - copies.not_copied.size());
    if (!taken.empty()) report.Add(LoadMessage(kSlotsNotFree) + DescribeFailures(taken));
    if (!copies.not_copied.empty()) {
      report.Add(LoadMessage(kNotAllMoved, {Quoted(game_folder)}) +
                 DescribeFailures(copies.not_copied));
    }
    if (!copies.not_deleted.empty()) {
      report.Add(LoadMessage(kMovedNotDeleted) + DescribeFailures(copies.not_deleted));
    }
  }
  PlaySoundEffect(program, SoundEffect::kFinished);
  Tell(program, LoadMessage(kRescuedInGame, {put, Quoted(game_folder)}));
  report.Show(program);
}

bool DeleteRescuedFiles(Program& program, const std::vector<std::string>& paths) {
  const auto count = static_cast<int>(paths.size());
  if (!AskFromNo(program, LoadMessage(kDeleteRescued, {count}))) return false;
  std::vector<Failure> failures;
  {
    const WorkScope working(program);
    for (const std::string& path : paths) {
      FileError error = FileError::kNone;
      if (!DeleteFileForced(program.files, path, &error)) failures.push_back({path, error});
    }
    RemoveEmptied(program, paths);
  }
  if (!failures.empty()) {
    Tell(program, LoadMessage(kNotAllRemoved) + DescribeFailures(failures), BoxIcon::kExclamation);
  }
  return true;
}

void ShowRescuedFolder(Program& program, const std::string& path) {
  const std::string folder = FolderOf(path);
  if (OpenWithShell(program.files, program.text, program.shell, folder, "", false, "")) return;
  Tell(program, LoadMessage(kNothingOpens, {Quoted(folder)}), BoxIcon::kExclamation);
}

std::vector<std::string> FilesOf(const RescuedSavegame& savegame) {
  const SavegameEntry& entry = savegame.entry;
  std::vector<std::string> paths{entry.SavegamePath};
  if (savegame.has_note) paths.push_back(entry.NotePath);
  if (savegame.has_shot) paths.push_back(entry.ShotPath);
  return paths;
}

}  // namespace vellumark
