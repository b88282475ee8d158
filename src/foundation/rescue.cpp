#include "foundation/rescue.h"

#include <ctime>
#include <string_view>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::string_view kWhen = "When: ";
constexpr std::string_view kWhy = "Why: ";
constexpr std::string_view kCameFrom = " <- ";
constexpr const char* kLineEnd = "\r\n";

// Moves one file: by renaming it, or, where that cannot be done, by a verified and flushed copy.
FileError Move(FileSystem& files, const std::string& from, const std::string& to) {
  FileError error = files.Rename(from, to, RenameMode::kRefuseExisting);
  if (error == FileError::kNone || error == FileError::kAlreadyExists) return error;
  if (!CopyFileReplacing(files, from, to, &error)) return error;
  error = files.Flush({to});
  if (error == FileError::kNone) error = files.Delete(from);
  // What stays where it was is not kept twice.
  if (error != FileError::kNone && files.SameContent(from, to)) files.Delete(to);
  return error;
}

// In the user's time, to the minute.
std::string TimeOfDay() {
  const std::time_t now = std::time(nullptr);
  char text[32] = {};
  const std::tm* local = std::localtime(&now);
  if (local != nullptr) std::strftime(std::begin(text), std::size(text), "%Y-%m-%d %H:%M", local);
  return text;
}

// The part of a line behind `label`; nothing when it begins otherwise.
bool TakeLabel(std::string_view& line, std::string_view label) {
  if (!line.starts_with(label)) return false;
  line.remove_prefix(label.size());
  return true;
}

}  // namespace

std::string RescueRoot(const Program& program) {
  return program.paths.ProgramFolder + LoadMessage(kRescueFolder);
}

std::string RescueListName() { return LoadMessage(kRescueListName); }

bool Rescue::Take(const std::vector<std::string>& paths, OwnMessage why,
                  const std::string& subfolder) {
  if (paths.empty()) return true;
  FileError error = FindFolder();
  if (error == FileError::kNone && !subfolder.empty()) error = MakeSubfolder(subfolder);
  if (error != FileError::kNone) return false;

  WriteList(paths, why, subfolder);
  const std::string target = subfolder.empty() ? folder_ : InFolder(folder_, subfolder);
  const std::size_t failures_before = failures_.size();
  for (const std::string& path : paths) {
    error = Move(program_.files, path, InFolder(target, FileNameOf(path)));
    if (error == FileError::kNone) {
      any_moved_ = true;
    } else {
      failures_.push_back({path, error});
    }
  }
  if (!any_moved_) RemoveEmpty(subfolder);
  return failures_.size() == failures_before;
}

FileError Rescue::MakeFolder(OwnMessage why) {
  const FileError error = FindFolder();
  if (error == FileError::kNone) WriteList({}, why, {});
  return error;
}

FileError Rescue::FindFolder() {
  if (!folder_.empty()) return FileError::kNone;
  FileSystem& files = program_.files;
  std::string folder = RescueRoot(program_);
  const AttributesResult root = files.Attributes(folder);
  FileError error = root.error;
  if (error == FileError::kNotFound) error = files.CreateFolder(folder);
  if (root.error == FileError::kNone && !root.attributes.folder) error = FileError::kNotAFolder;
  const std::string parent = folder;
  for (int n = 1; error == FileError::kNone; ++n) {
    folder = InFolder(parent, std::to_string(n));
    error = files.Attributes(folder).error;
    if (error != FileError::kNotFound) continue;
    error = files.CreateFolder(folder);
    if (error != FileError::kNone) break;
    folder_ = folder;
    return FileError::kNone;
  }
  failures_.push_back({folder, error});
  return error;
}

FileError Rescue::MakeSubfolder(const std::string& name) {
  const std::string path = InFolder(folder_, name);
  FileError error = program_.files.CreateFolder(path);
  if (error == FileError::kAlreadyExists && FolderExists(program_.files, path)) {
    error = FileError::kNone;
  }
  if (error != FileError::kNone) {
    failures_.push_back({path, error});
    if (!any_moved_) RemoveEmpty({});
  }
  return error;
}

// Before the files come: a list that names one that is not there does no harm. Nor does a missing
// list, so that it never stands in the way of what it tells about.
void Rescue::WriteList(const std::vector<std::string>& paths, OwnMessage why,
                       const std::string& subfolder) {
  const std::string list = InFolder(folder_, RescueListName());
  std::string text;
  if (!FileExists(program_.files, list)) {
    text = LoadMessage(kRescueListHead) + kLineEnd + std::string(kWhen) + TimeOfDay() + kLineEnd;
  }
  text += kLineEnd + std::string(kWhy) + LoadMessage(why) + kLineEnd;
  for (const std::string& path : paths) {
    const std::string name = FileNameOf(path);
    text += (subfolder.empty() ? name : InFolder(subfolder, name)) + std::string(kCameFrom) + path +
            kLineEnd;
  }
  program_.files.Append(list, text);
}

void Rescue::RemoveEmpty(const std::string& subfolder) {
  if (!subfolder.empty()) program_.files.RemoveFolder(InFolder(folder_, subfolder));
  program_.files.Delete(InFolder(folder_, RescueListName()));
  program_.files.RemoveFolder(folder_);
  folder_.clear();
}

RescueList ReadRescueList(FileSystem& files, const std::string& folder) {
  RescueList list;
  const ReadResult read = files.Read(InFolder(folder, RescueListName()), FileSystem::kWholeFile);
  std::string_view rest = read.bytes;
  std::string why;
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (TakeLabel(line, kWhen)) {
      list.when = Trimmed(line);
    } else if (TakeLabel(line, kWhy)) {
      why = Trimmed(line);
    } else if (const auto at = line.find(kCameFrom); at != std::string_view::npos && at > 0) {
      list.files.push_back(
          {std::string(line.substr(0, at)), std::string(line.substr(at + kCameFrom.size())), why});
    }
  }
  return list;
}

}  // namespace vellumark
