#include "archive/catalogue_builder.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "platform/common/parallel.h"
#include "platform/text.h"
#include "savegames/notes.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

// A slot's file names, made once for the whole scan.
struct SlotFileNames {
  std::string savegame;
  std::string note;
  std::string shot;
};

// A folder whose slots are to be read.
struct FolderJob {
  const FolderEntry* entry = nullptr;  // of the parent's listing; null: `folder` by itself
  std::string folder{};
  std::string lower_folder{};
  std::int16_t number = 0;
  bool ambiguous = false;  // not to be read: another name differs by case only
};

// What the files of one slot say.
struct ReadSlot {
  bool gone = false;  // since the folder was listed
  bool has_shot = false;
  FileError savegame_error = FileError::kNone;
  FileError note_error = FileError::kNone;
  SavegameEntry entry;
};

// What a folder holds.
struct ReadFolder {
  FileError listing_error = FileError::kNone;
  std::vector<std::string> ambiguous{};
  std::vector<std::string> leftovers{};
  std::vector<ReadSlot> slots{};
};

// Reads folders one by one; several threads may use it at once.
class SlotReader {
 public:
  explicit SlotReader(std::int16_t max_savegame) : max_savegame_(max_savegame) {
    for (int slot = 0; slot <= max_savegame; ++slot) {
      names_.push_back(
          {'\\' + SavegameFileName(slot), '\\' + NoteFileName(slot), '\\' + ShotFileName(slot)});
    }
  }

  // At most `most_slots` are read; one more is only counted.
  ReadFolder Read(FolderReader& reader, const FolderJob& job, std::size_t most_slots) const {
    ReadFolder read;
    const Listing& listing = reader.Contents();
    read.listing_error = listing.error;
    const SlotListing found = SlotsOf(listing, max_savegame_);
    for (const std::string& name : found.ambiguous) {
      read.ambiguous.push_back(InFolder(job.folder, name));
    }
    for (const FolderEntry& entry : listing.entries) {
      if (entry.name.front() == '~' && entry.plain && IsTemporaryName(entry.name)) {
        read.leftovers.push_back(InFolder(job.folder, entry.name));
      }
    }
    for (const Slot& slot : found.slots) {
      ReadSlot& result = read.slots.emplace_back();
      if (read.slots.size() > most_slots) break;
      ReadOneSlot(reader, slot, job, result);
      if (result.gone) ++most_slots;
    }
    return read;
  }

 private:
  void ReadOneSlot(FolderReader& reader, const Slot& slot, const FolderJob& job,
                   ReadSlot& result) const {
    const SlotFileNames& names = names_[static_cast<std::size_t>(slot.number)];
    const ReadResult head = reader.Read(*slot.savegame, kSavegameHeaderSize);
    result.gone = head.error == FileError::kNotFound;
    if (result.gone) return;

    SavegameEntry& entry = result.entry;
    SavegameHeader header = DecodeSavegameHeader(head.bytes);
    entry.LevelName = std::move(header.level_name);
    entry.InternalCounter = header.counter;
    entry.FolderNumber = job.number;
    entry.SlotNumber = static_cast<std::int16_t>(slot.number);
    entry.SavegamePath = job.lower_folder + names.savegame;
    entry.NotePath = job.folder + names.note;
    entry.ShotPath = job.folder + names.shot;
    result.has_shot = slot.shot != nullptr;
    result.savegame_error = head.error;

    if (slot.note == nullptr) return;
    ReadResult note = reader.Read(*slot.note, FileSystem::kWholeFile);
    if (note.error != FileError::kNotFound) result.note_error = note.error;
    note.bytes.resize(std::min(note.bytes.find('\r'), note.bytes.size()));
    entry.NoteText = std::move(note.bytes);
  }

  const std::int16_t max_savegame_;
  std::vector<SlotFileNames> names_;
};

class Builder {
 public:
  Builder(FileSystem& files, const Text& text, const CatalogueRequest& request)
      : files_(files), text_(text), request_(request), reader_(request.settings.MaxSavegame) {}

  ScannedCatalogue Build() {
    result_.catalogue.entries.reserve(Catalogue::kMostEntries);
    if (request_.all_subfolders) {
      TakeAllSubfolders();
    } else {
      TakeNumberedSubfolders();
    }
    if (!request_.game_folder.empty()) {
      const FolderJob job{.folder = request_.game_folder,
                          .lower_folder = Lowered(request_.game_folder)};
      Take(reader_.Read(*files_.OpenFolder(job.folder), job, Room()), job);
    }
    return std::move(result_);
  }

 private:
  // A folder in lower case, unless that is another one: on a disk that tells letter case apart, a
  // folder on the way may stand beside one that differs from it by case only.
  std::string Lowered(const std::string& folder) {
    std::string lower = text_.LowerPath(folder);
    return files_.Identity(lower) == files_.Identity(folder) ? lower : folder;
  }

  // Counts a folder of the archive; false when the table of folders is full.
  bool CountFolder() {
    Catalogue& catalogue = result_.catalogue;
    if (static_cast<std::size_t>(catalogue.FolderCount) == Catalogue::kMostFolders) {
      result_.table_full = true;
      return false;
    }
    ++catalogue.FolderCount;
    return true;
  }

  void TakeAllSubfolders() {
    const std::string& main_folder = request_.settings.MainFolder;
    if (main_folder.empty()) return;
    const auto main = files_.OpenFolder(main_folder);
    NoteListingFailure(main->Contents().error, main_folder);
    std::ranges::copy_if(
        main->Contents().unusable, std::back_inserter(result_.unusable),
        [](const UnusableName& name) { return name.folder && !name.shown.starts_with('.'); });
    const std::string lower_main = Lowered(main_folder);
    std::vector<FolderJob> jobs;
    for (const FolderEntry& entry : main->Contents().entries) {
      if (!entry.folder || entry.name.starts_with('.') || IsTemporaryName(entry.name)) continue;
      const std::string folder = InFolder(main_folder, entry.name);
      if (entry.ambiguous) {
        jobs.push_back({.folder = folder, .ambiguous = true});
        continue;
      }
      const AttributesResult found = files_.Attributes(folder);
      if (found.error != FileError::kNone || !found.attributes.IsBareFolder()) continue;
      if (!CountFolder()) break;
      jobs.push_back({&entry, folder, InFolder(lower_main, text_.LowerPath(entry.name)),
                      result_.catalogue.FolderCount});
    }
    TakeFolders(*main, jobs);
  }

  // Sub-folders 1, 2, 3, ... up to the first number that is missing.
  void TakeNumberedSubfolders() {
    const std::string first =
        InFolder(request_.settings.MainFolder, request_.settings.SubfolderBaseName);
    const auto parent = files_.OpenFolder(FolderOf(first));
    NoteListingFailure(parent->Contents().error, FolderOf(first));
    std::unordered_map<std::string, const FolderEntry*> by_name;
    for (const FolderEntry& entry : parent->Contents().entries) {
      by_name.emplace(text_.LowerPath(entry.name), &entry);
    }

    const std::string main_folder = FolderOf(first);
    const std::string stem =
        Lowered(main_folder) + text_.LowerPath(first).substr(main_folder.size());
    std::vector<FolderJob> jobs;
    for (int k = 1;; ++k) {
      const std::string folder = stem + std::to_string(k);
      const auto found = by_name.find(FileNameOf(folder));
      if (found == by_name.end()) break;
      if (found->second->ambiguous) {
        jobs.push_back({.folder = folder, .ambiguous = true});
        continue;
      }
      if (!CountFolder()) break;
      if (!found->second->folder) continue;  // a file of that name keeps its number
      jobs.push_back({found->second, folder, folder, result_.catalogue.FolderCount});
    }
    TakeFolders(*parent, jobs);
  }

  // Reads on several threads where that can be; the result is that of one after the other.
  void TakeFolders(FolderReader& parent, const std::vector<FolderJob>& jobs) {
    const auto read_one = [&](const FolderJob& job, std::size_t room) {
      if (job.ambiguous) return ReadFolder{.ambiguous = {job.folder}};
      return reader_.Read(*parent.OpenFolder(*job.entry), job, room);
    };
    if (!files_.WorksOnThreads()) {
      for (const FolderJob& job : jobs) Take(read_one(job, Room()), job);
      return;
    }
    std::vector<ReadFolder> read(jobs.size());
    std::function<void(std::size_t)> show;
    if (request_.show) {
      show = [&](std::size_t done) {
        request_.show(static_cast<int>(done), static_cast<int>(jobs.size()));
      };
    }
    const auto read_job = [&](std::size_t i) {
      read[i] = read_one(jobs[i], Catalogue::kMostEntries);
    };
    ForEachIndex(jobs.size(), kThreads, read_job, show);
    for (std::size_t i = 0; i < jobs.size(); ++i) Take(std::move(read[i]), jobs[i]);
  }

  std::size_t Room() const { return Catalogue::kMostEntries - result_.catalogue.entries.size(); }

  void Take(ReadFolder read, const FolderJob& job) {
    NoteListingFailure(read.listing_error, job.folder);
    std::ranges::move(read.ambiguous, std::back_inserter(result_.ambiguous));
    std::ranges::move(read.leftovers, std::back_inserter(result_.leftovers));
    for (ReadSlot& slot : read.slots) {
      if (Room() == 0) {
        result_.table_full = true;
        return;
      }
      if (slot.gone) continue;
      NoteFailure(slot.savegame_error, slot.entry.SavegamePath);
      NoteFailure(slot.note_error, slot.entry.NotePath);
      result_.has_shot.push_back(slot.has_shot);
      result_.catalogue.entries.push_back(std::move(slot.entry));
    }
  }

  void NoteFailure(FileError error, const std::string& path) {
    if (error != FileError::kNone) result_.failures.push_back({path, error});
  }

  // A folder that is missing is simply empty; one that cannot be read is told.
  void NoteListingFailure(FileError error, const std::string& folder) {
    if (error != FileError::kNotFound) NoteFailure(error, folder);
  }

  // More than there are processors: a disk with empty caches gives more to many who wait for it.
  static constexpr std::size_t kThreads = 16;

  FileSystem& files_;
  const Text& text_;
  const CatalogueRequest& request_;
  const SlotReader reader_;
  ScannedCatalogue result_;
};

}  // namespace

ScannedCatalogue BuildCatalogue(FileSystem& files, const Text& text,
                                const CatalogueRequest& request) {
  return Builder(files, text, request).Build();
}

}  // namespace vellumark
