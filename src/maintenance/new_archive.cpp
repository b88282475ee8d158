#include "maintenance/new_archive.h"

#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/work_scope.h"
#include "program.h"
#include "savegames/info_file.h"
#include "savegames/slot_names.h"

namespace vellumark {

NewArchive::NewArchive(Program& program, const ReorderTarget& target, const ReorderPlan& plan)
    : program_(program),
      target_(target),
      plan_(plan),
      files_(plan.fates.size()),
      arrived_(plan.fates.size()),
      first_named_(plan.folders + 1) {}

std::uint64_t NewArchive::FindSources() {
  const auto hold = program_.files.HoldFolders();
  for (std::size_t index = 0; index < plan_.fates.size(); ++index) {
    if (plan_.fates[index].kind == SavegameFate::Kind::kCopied) files_[index] = FilesOf(index);
  }
  return size_;
}

NewArchive::Files NewArchive::FilesOf(std::size_t index) {
  const SavegameEntry& entry = program_.catalogue.entries[index];
  const int slot = plan_.fates[index].slot;
  Files files{{DiskSpelling(entry.SavegamePath), SavegameFileName(slot)}};
  size_ += program_.files.Attributes(files[0].source).size;
  for (File file : {File{DiskSpelling(entry.NotePath), NoteFileName(slot)},
                    File{DiskSpelling(entry.ShotPath), ShotFileName(slot)}}) {
    if (IsThere(file.source)) files.push_back(std::move(file));
  }
  return files;
}

// One of which the disk does not tell whether it is there must not count as missing.
bool NewArchive::IsThere(const std::string& path) {
  const AttributesResult found = program_.files.Attributes(path);
  size_ += found.size;
  if (found.error == FileError::kNone) return found.attributes.IsPlainFile();
  if (found.error != FileError::kNotFound && found.error != FileError::kAmbiguous) {
    not_copied.push_back({path, found.error});
  }
  return false;
}

void NewArchive::RemoveLeftovers() {
  std::vector<bool> left(static_cast<std::size_t>(plan_.folders) + 1);
  for (int number = 1; number <= plan_.folders; ++number) {
    left[static_cast<std::size_t>(number)] = FolderExists(program_.files, FolderNow(number));
  }
  for (std::size_t index = 0; index < files_.size(); ++index) {
    const int folder = plan_.fates[index].folder;
    if (!left[static_cast<std::size_t>(folder)]) continue;
    for (const File& file : files_[index]) RemoveLeftover(file, FolderNow(folder));
  }
  for (int number = 1; number <= plan_.folders; ++number) {
    if (left[static_cast<std::size_t>(number)]) program_.files.RemoveFolder(FolderNow(number));
  }
}

void NewArchive::RemoveLeftover(const File& file, const std::string& folder) {
  const std::string path = InFolder(folder, file.name);
  const ReadResult copy = program_.files.Read(path, FileSystem::kWholeFile);
  if (copy.error != FileError::kNone) return;
  const ReadResult source = program_.files.Read(file.source, copy.bytes.size());
  if (source.error == FileError::kNone && source.bytes == copy.bytes) program_.files.Delete(path);
}

std::vector<std::string> NewArchive::TakenNames() {
  const auto hold = program_.files.HoldFolders();
  std::vector<std::string> taken;
  for (int number = 1; number <= plan_.folders; ++number) {
    for (const std::string& name : {Folder(number), FolderNow(number)}) {
      if (program_.files.Attributes(name).error != FileError::kNotFound) taken.push_back(name);
    }
  }
  return taken;
}

// A catalogue's paths are in lower case: a file is found much faster by the disk's spelling.
std::string NewArchive::DiskSpelling(const std::string& path) {
  const std::string folder = FolderOf(path);
  if (folder != spelled_from_) {
    spelled_from_ = folder;
    spelled_ = program_.files.FromHostPath(program_.files.HostPath(folder)).value_or(folder);
  }
  return InFolder(spelled_, FileNameOf(path));
}

std::string NewArchive::FolderNow(int number) const {
  return number < first_named_ ? target_.TemporarySubfolder(number) : Folder(number);
}

void NewArchive::Copy(bool deletes_old, const ShowPercent& show) {
  {
    const auto hold = program_.files.HoldFolders();
    const auto count = static_cast<int>(plan_.order.size());
    const std::vector<CopyGroup> groups = CopyInBulk([&](int position) {
      show(CopyingPercent(position, count, deletes_old));
      if (!IsEnding(program_)) return true;
      stopped = {Folder(static_cast<int>(made_.size()) + 1), FileError::kStopped};
      return false;
    });
    TakeResults(groups);
  }
  std::vector<std::string> written;
  for (std::size_t i = 0; i < made_.size() && !stopped; ++i) {
    const std::string folder = FolderNow(static_cast<int>(i) + 1);
    written.push_back(folder);
    for (const std::string& name : made_[i]) written.push_back(InFolder(folder, name));
  }
  if (!written.empty()) flush = program_.files.Flush(written);
}

// A group for each position of the plan's order; an empty one where nothing is to be copied.
std::vector<CopyGroup> NewArchive::CopyInBulk(const std::function<bool(int)>& go_on) {
  std::vector<CopyGroup> groups;
  groups.reserve(plan_.order.size());
  for (const std::size_t index : plan_.order) {
    groups.push_back(GroupOf(files_[index], plan_.fates[index].folder));
  }
  program_.files.CopyAllVerified(groups, [&](std::size_t position) {
    if (!go_on(static_cast<int>(position))) return false;
    return groups[position].empty() || HasFolder(plan_.fates[plan_.order[position]].folder);
  });
  return groups;
}

// Without the savegame, what belongs to it would belong to the slot's next one. Nothing is
// replaced, so it needs no detour over a temporary name.
CopyGroup NewArchive::GroupOf(const Files& files, int folder) const {
  CopyGroup group;
  for (const File& file : files) {
    group.push_back({file.source, InFolder(FolderNow(folder), file.name)});
  }
  return group;
}

void NewArchive::TakeResults(const std::vector<CopyGroup>& groups) {
  for (std::size_t position = 0; position < groups.size(); ++position) {
    const std::size_t index = plan_.order[position];
    const SavegameFate& fate = plan_.fates[index];
    if (fate.kind == SavegameFate::Kind::kCopied) TakeResult(index, groups[position]);
    const bool dropped = fate.kind == SavegameFate::Kind::kDropped;
    if (!dropped || arrived_[fate.equal] || stopped) continue;
    std::vector<CopyGroup> group{GroupOf(FilesOf(index), fate.folder)};
    program_.files.CopyAllVerified(group, [](std::size_t) { return true; });
    TakeResult(index, group[0]);
  }
}

void NewArchive::TakeResult(std::size_t index, const CopyGroup& group) {
  const SavegameFate& fate = plan_.fates[index];
  for (const CopyJob& job : group) {
    const std::string name = FileNameOf(job.target);
    if (job.error == FileError::kNone) {
      made_[static_cast<std::size_t>(fate.folder) - 1].push_back(name);
      continue;
    }
    if (job.error == FileError::kStopped) return;
    const std::string shown = InFolder(Folder(fate.folder), name);
    not_copied.push_back(FailureOfCopy(program_.files, job.source, shown, job.error));
    if (&job == &group[0]) return;
  }
  arrived_[fate.equal] = true;
}

// The folders come one after the other.
bool NewArchive::HasFolder(int number) {
  if (static_cast<std::size_t>(number) <= made_.size()) return true;
  const std::string folder = FolderNow(number);
  const FileError error = program_.files.CreateFolder(folder);
  if (error == FileError::kNone) {
    made_.emplace_back();
  } else {
    stopped = {Folder(number), error};
  }
  return error == FileError::kNone;
}

bool NewArchive::GiveNames() {
  while (first_named_ > 1 && !stopped) {
    const int number = first_named_ - 1;
    const FileError error =
        program_.files.Rename(FolderNow(number), Folder(number), RenameMode::kRefuseExisting);
    if (error == FileError::kNone) {
      first_named_ = number;
    } else {
      stopped = {Folder(number), error};
    }
  }
  if (stopped) return false;
  // The folder that holds the names is flushed along.
  if (plan_.folders > 0 && flush == FileError::kNone) flush = program_.files.Flush({Folder(1)});
  return true;
}

std::vector<std::string> NewArchive::TakeBack() {
  std::vector<std::string> left;
  for (std::size_t i = 0; i < made_.size(); ++i) {
    const std::string folder = FolderNow(static_cast<int>(i) + 1);
    std::vector<std::string> files;
    for (const std::string& name : made_[i]) files.push_back(InFolder(folder, name));
    program_.files.DeleteAll(files);
    if (program_.files.RemoveFolder(folder) != FileError::kNone) left.push_back(folder);
  }
  return left;
}

std::vector<Failure> NewArchive::WriteInfoFiles() {
  std::vector<Failure> failures;
  for (int number = 1; number <= plan_.folders; ++number) {
    const std::string info_file = Folder(number) + LoadMessage(195);
    const FileError error =
        WriteInfoSection(program_, Folder(number), info_file, InfoMode::kCreate).error;
    if (error != FileError::kNone) failures.push_back({info_file, error});
  }
  return failures;
}

}  // namespace vellumark
