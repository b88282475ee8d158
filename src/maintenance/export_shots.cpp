#include "maintenance/export_shots.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "platform/text.h"
#include "program.h"

namespace vellumark {
namespace {

// True when Windows takes a name's part before the first dot for a device.
bool IsDevice(std::string_view stem) {
  static constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL"};
  const std::string name = Trimmed(stem);
  const auto is_name = [&name](std::string_view device) {
    return EqualsIgnoringAsciiCase(name, device);
  };
  if (std::ranges::any_of(kDevices, is_name)) return true;
  if (name.size() != 4 || name[3] < '1' || name[3] > '9') return false;
  return EqualsIgnoringAsciiCase(name.substr(0, 3), "COM") ||
         EqualsIgnoringAsciiCase(name.substr(0, 3), "LPT");
}

// The text as a part of a file name that goes on after it.
std::string SafePart(std::string part) {
  for (char& letter : part) {
    const bool control = static_cast<unsigned char>(letter) < 0x20;
    if (control || std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos) {
      letter = '_';
    }
  }
  const std::size_t dot = part.find('.');
  if (dot != std::string::npos && IsDevice(std::string_view(part).substr(0, dot))) part[dot] = '_';
  return part;
}

std::string StemOf(const SavegameEntry& entry) {
  return entry.LevelName + '_' + std::to_string(entry.InternalCounter);
}

class Export {
 public:
  Export(Program& program, const std::string& folder)
      : program_(program), files_(program.files), folder_(folder) {}

  void Run() {
    const WorkScope working(program_);
    const auto hold = files_.HoldFolders();
    FindShots();
    // A name that needs no change is not pushed aside by a changed one.
    for (const SavegameEntry* entry : entries_) {
      const std::string stem = StemOf(*entry);
      if (SafePart(stem) == stem) NameFor(stem);
    }
    std::vector<CopyGroup> copies;
    copies.reserve(entries_.size());
    for (const SavegameEntry* entry : entries_) {
      copies.push_back({{entry->ShotPath, NameFor(StemOf(*entry))}});
    }
    CopyAllReplacing(files_, copies, [this](std::size_t i) {
      program_.windows.ShowProgress(static_cast<int>(i), count());
      return !IsEnding(program_);
    });
    for (const CopyGroup& copy : copies) {
      const CopyJob& shot = copy.front();
      if (shot.error == FileError::kStopped) {
        failures_.push_back({shot.source, FileError::kStopped});
      } else if (shot.error != FileError::kNone) {
        failures_.push_back(FailureOfCopy(files_, shot.source, shot.target, shot.error));
      }
    }
  }

  int count() const { return static_cast<int>(entries_.size()); }
  const std::vector<Failure>& failures() const { return failures_; }

 private:
  void FindShots() {
    for (const SavegameEntry& entry : program_.catalogue.entries) {
      const AttributesResult found = files_.Attributes(entry.ShotPath);
      const bool unknown = found.error != FileError::kNone && found.error != FileError::kNotFound &&
                           found.error != FileError::kAmbiguous;
      if (unknown) failures_.push_back({entry.ShotPath, found.error});
      if (found.error != FileError::kNone || !found.attributes.IsPlainFile()) continue;
      entries_.push_back(&entry);
      if (const auto identity = files_.Identity(entry.ShotPath)) {
        linked_.emplace(identity->device, identity->index);
      }
    }
  }

  // The path to which the screen-shots of this stem go.
  std::string NameFor(const std::string& stem) {
    const std::string key = program_.text.LowerPath(stem);
    if (const auto known = paths_.find(key); known != paths_.end()) return known->second;

    const std::string safe = SafePart(stem);
    std::string path;
    for (int number = 1;; ++number) {
      const std::string suffix = number == 1 ? "" : " (" + std::to_string(number) + ')';
      path = InFolder(folder_, safe + suffix + LoadMessage(148));
      if (IsLinkedShot(path)) continue;
      if (taken_.insert(program_.text.LowerPath(path)).second) break;
    }
    paths_.emplace(key, path);
    return path;
  }

  bool IsLinkedShot(const std::string& path) {
    const auto identity = files_.Identity(path);
    return identity && linked_.contains({identity->device, identity->index});
  }

  Program& program_;
  FileSystem& files_;
  const std::string& folder_;
  std::vector<const SavegameEntry*> entries_;  // those with a screen-shot
  std::set<std::tuple<std::uint64_t, std::uint64_t>> linked_;
  std::unordered_map<std::string, std::string> paths_;  // by stem in lower case
  std::unordered_set<std::string> taken_;               // in lower case
  std::vector<Failure> failures_;
};

}  // namespace

void ExportLinkedShots(Program& program, const std::string& folder) {
  Export work(program, folder);
  work.Run();
  PlaySoundEffect(program, SoundEffect::kFinished);
  Tell(program, LoadMessage(149, {work.count()}) + Quoted(folder));
  if (!work.failures().empty()) {
    Tell(program, LoadMessage(kExportNotCopied) + DescribeFailures(work.failures()),
         BoxIcon::kExclamation);
  }
}

void ChooseExportFolder(Program& program) {
  program.chooser.FolderChooserMode = ChooserMode::kExportShots;
  program.windows.ShowModal(WindowId::kDialogGetDir);
}

}  // namespace vellumark
