// Which sub-folder and slot of the new archive each savegame takes.
#ifndef VELLUMARK_MAINTENANCE_REORDER_PLAN_H_
#define VELLUMARK_MAINTENANCE_REORDER_PLAN_H_

#include <string>

#include "maintenance/reorder_settings.h"

namespace vellumark {

class SubfolderPlan {
 public:
  explicit SubfolderPlan(const ReorderSettings& settings) : settings_(settings) {}

  // True when a savegame of this level must begin a new sub-folder.
  bool NeedsNewFolder(const std::string& level) const;

  // Goes on to the next sub-folder.
  void BeginFolder();

  // Takes the next slot of the sub-folder for a savegame of this level and answers its number.
  int TakeSlot(const std::string& level);

  int folders() const { return folders_; }

 private:
  const ReorderSettings& settings_;
  int folders_ = 0;
  int next_slot_ = 0;
  std::string last_level_;
};

// The percentages that a run shows. A half is rounded to the even neighbour.

// After the savegame at `position`, from 0, of `count`: up to 100, or to 50 when deleting follows.
int CopyingPercent(int position, int count, bool deletes_old);
// At old sub-folder `number`, from 1, of `count`: from 50 to 100; 100 when the count is 0.
int DeletingPercent(int number, int count);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_PLAN_H_
