// Which slots a folder holds, answered from one listing of the folder.
#ifndef VELLUMARK_SAVEGAMES_SLOT_LISTING_H_
#define VELLUMARK_SAVEGAMES_SLOT_LISTING_H_

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vellumark {

// The files of one slot. The pointers look into the listing; null where there is no such file.
struct Slot {
  int number = 0;
  const FolderEntry* savegame = nullptr;
  const FolderEntry* note = nullptr;
  const FolderEntry* shot = nullptr;
};

struct SlotListing {
  std::vector<Slot> slots;  // those that have a savegame file, by rising number

  // Names of slot files that stand in the folder twice, in different letter case. They count as
  // missing everywhere.
  std::vector<std::string> ambiguous;
};

// The slots 0 to `max_savegame` of a listing, as testing each number for plain files would find
// them. `listing` must outlive the answer.
SlotListing SlotsOf(const Listing& listing, int max_savegame);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SLOT_LISTING_H_
