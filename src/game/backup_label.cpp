#include "game/backup_label.h"

#include <string_view>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"

namespace vellumark {
namespace {

constexpr std::string_view kFolder = "Folder: ";
constexpr std::string_view kFile = "File: ";
constexpr std::string_view kWhole = "Whole";
constexpr std::string_view kPlaced = "Placed: ";
constexpr std::string_view kGivenBack = "Given back";
constexpr std::string_view kCopyOf = " <- ";
constexpr std::string_view kLineEnd = "\r\n";

std::string LabelIn(const std::string& backup_folder) {
  return InFolder(backup_folder, LoadMessage(kBackupLabelName));
}

std::string Line(std::string_view label, std::string_view value) {
  return std::string(label).append(value).append(kLineEnd);
}

}  // namespace

FileError WriteBackupLabel(FileSystem& files, const std::string& backup_folder,
                           const BackupLabel& label) {
  std::string text = Line(LoadMessage(kBackupLabelHead), "") + Line(kFolder, label.home);
  for (const std::string& name : label.files) text += Line(kFile, name);
  return ReplaceFile(files, LabelIn(backup_folder), text + Line(kWhole, ""));
}

void AddPlacedToLabel(FileSystem& files, const std::string& backup_folder,
                      const std::vector<BackupLabel::Placed>& placed) {
  std::string text;
  for (const BackupLabel::Placed& file : placed) {
    text += Line(kPlaced, file.name + std::string(kCopyOf) + file.source);
  }
  if (!text.empty()) files.Append(LabelIn(backup_folder), text);
}

void MarkGivenBack(FileSystem& files, const std::string& backup_folder) {
  const FileError error = files.Append(LabelIn(backup_folder), Line(kGivenBack, ""));
  if (error != FileError::kNone) RemoveBackupLabel(files, backup_folder);
}

std::optional<BackupLabel> ReadBackupLabel(FileSystem& files, const std::string& backup_folder) {
  const ReadResult read = files.Read(LabelIn(backup_folder), FileSystem::kWholeFile);
  if (read.error != FileError::kNone) return std::nullopt;
  BackupLabel label;
  bool whole = false;
  std::string_view rest = read.bytes;
  while (!rest.empty()) {
    const std::size_t end = rest.find(kLineEnd);
    if (end == std::string_view::npos) break;  // cut off
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end + kLineEnd.size());
    if (line.starts_with(kFolder)) {
      label.home = line.substr(kFolder.size());
    } else if (line.starts_with(kFile)) {
      label.files.emplace_back(line.substr(kFile.size()));
    } else if (line.starts_with(kPlaced)) {
      line.remove_prefix(kPlaced.size());
      if (const auto at = line.find(kCopyOf); at != std::string_view::npos) {
        label.placed.push_back(
            {std::string(line.substr(0, at)), std::string(line.substr(at + kCopyOf.size()))});
      }
    } else {
      whole = whole || line == kWhole;
      label.given_back = label.given_back || line == kGivenBack;
    }
  }
  if (!whole || label.home.empty()) return std::nullopt;
  return label;
}

void RemoveBackupLabel(FileSystem& files, const std::string& backup_folder) {
  files.Delete(LabelIn(backup_folder));
}

}  // namespace vellumark
