#include "savegames/copy_selected.h"

#include <algorithm>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "program.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

int LowestFreeNumber(FileSystem& files, const std::string& folder) {
  int number = 0;
  while (FileExists(files, InFolder(folder, SavegameFileName(number)))) ++number;
  return number;
}

void CopyInto(FileSystem& files, const std::string& from, const std::string& to,
              SelectedCopies& copies) {
  FileError why = files.Attributes(from).error;
  if (why == FileError::kNone && CopyFileReplacing(files, from, to, &why)) {
    copies.targets.push_back(to);
  } else {
    copies.not_copied.push_back({from, why});
  }
}

}  // namespace

SelectedCopies CopySelectedSavegames(Program& program, const std::vector<std::int16_t>& indices,
                                     const std::string& folder, bool renumber, CopyMode /*mode*/) {
  FileSystem& files = program.files;
  SelectedCopies copies;
  const bool probe = renumber && FileExists(files, folder + LoadMessage(308));
  int position = 0;
  for (const std::int16_t index : indices) {
    const SavegameEntry& entry = program.catalogue.entries[static_cast<std::size_t>(index)];
    int slot = renumber ? position : entry.SlotNumber;
    if (probe) slot = LowestFreeNumber(files, folder);
    CopyInto(files, entry.SavegamePath, InFolder(folder, SavegameFileName(slot)), copies);
    if (FileExists(files, entry.NotePath)) {
      CopyInto(files, entry.NotePath, InFolder(folder, NoteFileName(slot)), copies);
    }
    if (FileExists(files, entry.ShotPath)) {
      CopyInto(files, entry.ShotPath, InFolder(folder, ShotFileName(slot)), copies);
    }
    ++position;
  }
  return copies;
}

}  // namespace vellumark
