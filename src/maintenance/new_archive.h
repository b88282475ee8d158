// The sub-folders that a reorder makes, from the first look at the disk to their names.
#ifndef VELLUMARK_MAINTENANCE_NEW_ARCHIVE_H_
#define VELLUMARK_MAINTENANCE_NEW_ARCHIVE_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/failures.h"
#include "maintenance/reorder_plan.h"
#include "maintenance/reorder_settings.h"

namespace vellumark {

struct Program;

// Shows how far a run has come, in percent. It must not let anything else run meanwhile.
using ShowPercent = std::function<void(int percent)>;

// The sub-folders are made under temporary names, which no scan lists, and get their own when all
// of them are whole and flushed. Up to then the run can be taken back; the sources always stay as
// they are. The plan and the target must outlive this.
class NewArchive {
 public:
  NewArchive(Program& program, const ReorderTarget& target, const ReorderPlan& plan);

  // ---- Looking, before anything is written ----

  // Finds the files that are to be copied. Answers their size in bytes.
  std::uint64_t FindSources();
  // Deletes what a run with this target that was cut off has left under temporary names, as far as
  // it is seen to be the beginning of the file that is to be copied there.
  void RemoveLeftovers();
  // The new sub-folders whose names are taken already.
  std::vector<std::string> TakenNames();

  // ---- Making ----

  // Copies all that the plan copies, read back and compared, and flushes it. A savegame whose copy
  // fails is replaced by its next equal one; its note and screen-shot stay behind with it. Ends
  // early when a sub-folder cannot be made, which `stopped` tells.
  void Copy(bool deletes_old, const ShowPercent& show);
  // Gives the sub-folders their names, the first one last: a part of them is no archive. False
  // when one did not get its name, which `stopped` tells.
  bool GiveNames();
  // Deletes what was made. Answers the folders that could not be deleted.
  std::vector<std::string> TakeBack();
  // Writes the list of savegames into each named sub-folder. Answers the files that could not be
  // written.
  std::vector<Failure> WriteInfoFiles();

  bool IsWhole() const { return !stopped && not_copied.empty() && flush == FileError::kNone; }
  std::string Folder(int number) const { return target_.Subfolder(number); }
  const ReorderPlan& plan() const { return plan_; }

  std::optional<Failure> stopped;   // the sub-folder that could not be made or named
  std::vector<Failure> not_copied;  // source files whose copy did not arrive
  FileError flush = FileError::kNone;

 private:
  struct File {
    std::string source;
    std::string name;  // of the copy
  };
  // The savegame first, then what belongs to it.
  using Files = std::vector<File>;

  Files FilesOf(std::size_t index);
  bool IsThere(const std::string& path);
  void RemoveLeftover(const File& file, const std::string& folder);
  std::string DiskSpelling(const std::string& path);
  std::string FolderNow(int number) const;
  bool HasFolder(int number);
  std::vector<CopyGroup> CopyInBulk(const std::function<bool(int)>& go_on);
  CopyGroup GroupOf(const Files& files, int folder) const;
  void TakeResults(const std::vector<CopyGroup>& groups);
  void TakeResult(std::size_t index, const CopyGroup& group);

  Program& program_;
  const ReorderTarget& target_;
  const ReorderPlan& plan_;
  std::vector<Files> files_;  // by catalogue index, of those that are to be copied
  std::uint64_t size_ = 0;
  std::vector<bool> arrived_;  // by catalogue index: it, or an equal one in its place
  std::vector<std::vector<std::string>> made_;  // the names of the files in each folder made
  int first_named_;                             // from here on the folders have their names
  std::string spelled_from_;
  std::string spelled_;
};

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_NEW_ARCHIVE_H_
