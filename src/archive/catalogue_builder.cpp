#include "archive/catalogue_builder.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
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

class Builder {
 public:
  Builder(FileSystem& files, const Text& text, const CatalogueRequest& request)
      : files_(files), text_(text), request_(request) {
    for (int slot = 0; slot <= request.settings.MaxSavegame; ++slot) {
      names_.push_back(
          {'\\' + SavegameFileName(slot), '\\' + NoteFileName(slot), '\\' + ShotFileName(slot)});
    }
  }

  ScannedCatalogue Build() {
    result_.catalogue.entries.reserve(Catalogue::kMostEntries);
    if (request_.all_subfolders) {
      TakeAllSubfolders();
    } else {
      TakeNumberedSubfolders();
    }
    if (!request_.game_folder.empty()) {
      TakeFolder(*files_.OpenFolder(request_.game_folder), request_.game_folder,
                 Lowered(request_.game_folder), 0);
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
    NoteListingFailure(main->Contents(), main_folder);
    std::ranges::copy_if(
        main->Contents().unusable, std::back_inserter(result_.unusable),
        [](const UnusableName& name) { return name.folder && !name.shown.starts_with('.'); });
    const std::string lower_main = Lowered(main_folder);
    for (const FolderEntry& entry : main->Contents().entries) {
      if (!entry.folder || entry.name.starts_with('.')) continue;
      const std::string folder = InFolder(main_folder, entry.name);
      if (entry.ambiguous) {
        result_.ambiguous.push_back(folder);
        continue;
      }
      const AttributesResult found = files_.Attributes(folder);
      if (found.error != FileError::kNone || !found.attributes.IsBareFolder()) continue;
      if (!CountFolder()) return;
      TakeFolder(*main->OpenFolder(entry), folder,
                 InFolder(lower_main, text_.LowerPath(entry.name)), result_.catalogue.FolderCount);
    }
  }

  // Sub-folders 1, 2, 3, ... up to the first number that is missing.
  void TakeNumberedSubfolders() {
    const std::string first =
        InFolder(request_.settings.MainFolder, request_.settings.SubfolderBaseName);
    const auto parent = files_.OpenFolder(FolderOf(first));
    NoteListingFailure(parent->Contents(), FolderOf(first));
    std::unordered_map<std::string, const FolderEntry*> by_name;
    for (const FolderEntry& entry : parent->Contents().entries) {
      by_name.emplace(text_.LowerPath(entry.name), &entry);
    }

    const std::string main_folder = FolderOf(first);
    const std::string stem =
        Lowered(main_folder) + text_.LowerPath(first).substr(main_folder.size());
    for (int k = 1;; ++k) {
      const std::string folder = stem + std::to_string(k);
      const auto found = by_name.find(FileNameOf(folder));
      if (found == by_name.end()) return;
      if (found->second->ambiguous) {
        result_.ambiguous.push_back(folder);
        continue;
      }
      if (!CountFolder()) return;
      if (!found->second->folder) continue;  // a file of that name keeps its number
      TakeFolder(*parent->OpenFolder(*found->second), folder, folder,
                 result_.catalogue.FolderCount);
    }
  }

  void TakeFolder(FolderReader& reader, const std::string& folder, const std::string& lower_folder,
                  std::int16_t folder_number) {
    const Listing& listing = reader.Contents();
    NoteListingFailure(listing, folder);
    const SlotListing found = SlotsOf(listing, request_.settings.MaxSavegame);
    for (const std::string& name : found.ambiguous) {
      result_.ambiguous.push_back(InFolder(folder, name));
    }
    for (const FolderEntry& entry : listing.entries) {
      if (entry.name.front() == '~' && entry.plain && IsTemporaryName(entry.name)) {
        result_.leftovers.push_back(InFolder(folder, entry.name));
      }
    }
    for (const Slot& slot : found.slots) {
      if (result_.catalogue.entries.size() == Catalogue::kMostEntries) {
        result_.table_full = true;
        return;
      }
      TakeSlot(reader, slot, folder, lower_folder, folder_number);
    }
  }

  void TakeSlot(FolderReader& reader, const Slot& slot, const std::string& folder,
                const std::string& lower_folder, std::int16_t folder_number) {
    const SlotFileNames& names = names_[static_cast<std::size_t>(slot.number)];
    const ReadResult head = reader.Read(*slot.savegame, kSavegameHeaderSize);
    if (head.error == FileError::kNotFound) return;  // gone since the folder was listed

    SavegameEntry& entry = result_.catalogue.entries.emplace_back();
    SavegameHeader header = DecodeSavegameHeader(head.bytes);
    entry.LevelName = std::move(header.level_name);
    entry.InternalCounter = header.counter;
    entry.FolderNumber = folder_number;
    entry.SlotNumber = static_cast<std::int16_t>(slot.number);
    entry.SavegamePath = lower_folder + names.savegame;
    entry.NotePath = folder + names.note;
    entry.ShotPath = folder + names.shot;
    result_.has_shot.push_back(slot.shot != nullptr);
    if (head.error != FileError::kNone) {
      result_.failures.push_back({entry.SavegamePath, head.error});
    }

    if (slot.note == nullptr) return;
    ReadResult note = reader.Read(*slot.note, FileSystem::kWholeFile);
    if (note.error != FileError::kNone && note.error != FileError::kNotFound) {
      result_.failures.push_back({entry.NotePath, note.error});
    }
    note.bytes.resize(std::min(note.bytes.find('\r'), note.bytes.size()));
    entry.NoteText = std::move(note.bytes);
  }

  // A folder that is missing is simply empty; one that cannot be read is told.
  void NoteListingFailure(const Listing& listing, const std::string& folder) {
    if (listing.error != FileError::kNone && listing.error != FileError::kNotFound) {
      result_.failures.push_back({folder, listing.error});
    }
  }

  FileSystem& files_;
  const Text& text_;
  const CatalogueRequest& request_;
  std::vector<SlotFileNames> names_;
  ScannedCatalogue result_;
};

}  // namespace

ScannedCatalogue BuildCatalogue(FileSystem& files, const Text& text,
                                const CatalogueRequest& request) {
  return Builder(files, text, request).Build();
}

}  // namespace vellumark
