// What a reorder will do: the order of the savegames, which are left out as equals, and which
// sub-folder and slot each of the others takes. Made before anything is written.
#ifndef VELLUMARK_MAINTENANCE_REORDER_PLAN_H_
#define VELLUMARK_MAINTENANCE_REORDER_PLAN_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "maintenance/reorder_settings.h"
#include "savegames/catalogue_state.h"

namespace vellumark {

// What happens to a savegame of the catalogue.
struct SavegameFate {
  enum class Kind { kLeft, kDropped, kCopied };

  Kind kind = Kind::kLeft;  // kLeft: it stays where it is, as those of the game folder do
  // Where its copy goes; of one that is dropped, the copy of its equal.
  int folder = 0;  // number of the new sub-folder, from 1
  int slot = 0;
  std::size_t equal = 0;  // of one that is dropped: the catalogue index of its equal
};

struct ReorderPlan {
  std::vector<std::size_t> order;   // all catalogue indices, by rising counter
  bool re_sorted = false;           // the counters did not rise before
  std::vector<SavegameFate> fates;  // for each entry of the catalogue
  int folders = 0;
  int copied = 0;
  int equals = 0;  // savegames for which an equal one, by level name and counter, is copied
};

ReorderPlan PlanReorder(const Catalogue& catalogue, const ReorderSettings& settings);

struct CounterOrder {
  std::vector<std::size_t> indices;  // of the counters, so that these rise
  bool re_sorted = false;            // they did not rise before
};

// Sorts by exchanging each counter with every later one that is smaller. The order that this leaves
// among equal counters is part of the result; it is not that of a stable sort. At most 65536
// counters.
CounterOrder SortByCounter(const std::vector<std::int16_t>& counters);

// The percentages that a run shows. A half is rounded to the even neighbour.

// After the savegame at `position`, from 0, of `count`: up to 100, or to 50 when deleting follows.
int CopyingPercent(int position, int count, bool deletes_old);
// At old sub-folder `number`, from 1, of `count`: from 50 to 100; 100 when the count is 0.
int DeletingPercent(int number, int count);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_PLAN_H_
