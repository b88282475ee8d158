#include "maintenance/target_savegames.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "foundation/work_scope.h"
#include "program.h"
#include "savegames/backup_list.h"

namespace vellumark {
namespace {

using Identities = std::vector<std::pair<std::uint64_t, std::uint64_t>>;

std::pair<std::uint64_t, std::uint64_t> AsPair(const FileIdentity& identity) {
  return {identity.device, identity.index};
}

// The selected savegame files, sorted for looking one up. Nothing when it cannot be told which
// files they are.
std::optional<Identities> IdentitiesOf(FileSystem& files,
                                       const std::vector<SavegameFiles>& selected) {
  Identities identities;
  for (const SavegameFiles& savegame : selected) {
    if (const auto identity = files.Identity(savegame.savegame)) {
      identities.push_back(AsPair(*identity));
    } else if (files.Attributes(savegame.savegame).error != FileError::kNotFound) {
      return std::nullopt;
    }
  }
  std::ranges::sort(identities);
  return identities;
}

void DeleteSavegames(Program& program, const std::string& folder,
                     const std::vector<SavegameFiles>& selected,
                     std::vector<Failure>& not_deleted) {
  FileSystem& files = program.files;
  const Listing listing = files.List(folder + LoadMessage(311));
  if (listing.error != FileError::kNone) not_deleted.push_back({folder, listing.error});
  const auto kept = IdentitiesOf(files, selected);
  for (const FolderEntry& entry : listing.entries) {
    if (!entry.plain) continue;
    const std::string path = InFolder(folder, entry.name);
    const auto identity = files.Identity(path);
    FileError error = FileError::kInputOutput;
    if (kept && identity) {
      if (std::ranges::binary_search(*kept, AsPair(*identity))) continue;
      error = files.Delete(path);
    }
    if (error == FileError::kNone) ForgetBackedUp(program, path);
    if (error != FileError::kNone && error != FileError::kNotFound) {
      not_deleted.push_back({path, error});
    }
  }
}

}  // namespace

bool KeepTargetSavegames(Program& program, const std::string& folder,
                         const std::vector<SavegameFiles>& selected,
                         std::vector<Failure>& not_deleted) {
  if (!FileExists(program.files, folder + LoadMessage(309))) return false;

  const std::string quoted = Quoted(folder);
  if (AskWhich(program, LoadMessage(310, {quoted, kCarriageReturn, kCarriageReturn, quoted}))) {
    return true;
  }
  const WorkScope working(program);
  DeleteSavegames(program, folder, selected, not_deleted);
  return false;
}

}  // namespace vellumark
