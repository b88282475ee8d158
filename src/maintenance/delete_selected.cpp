#include "maintenance/delete_selected.h"

#include <string>
#include <utility>
#include <vector>

#include "archive/scan.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/work_scope.h"
#include "program.h"
#include "savegames/file_removal.h"
#include "savegames/savegame_files.h"

namespace vellumark {
namespace {

std::vector<Failure> Remove(Program& program, std::vector<SavegameFiles> savegames) {
  std::vector<std::string> paths;
  paths.reserve(3 * savegames.size());
  for (SavegameFiles& savegame : savegames) {
    paths.push_back(std::move(savegame.savegame));
    paths.push_back(std::move(savegame.note));
    paths.push_back(std::move(savegame.shot));
  }
  const WorkScope working(program);
  return RemoveFiles(program, paths);
}

}  // namespace

void DeleteSelectedSavegames(Program& program) {
  // A capture may change the selection while the question waits.
  std::vector<SavegameFiles> savegames = FilesOf(program.catalogue, program.selection.indices);
  const auto count = static_cast<int>(savegames.size());
  if (count == 0) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    Tell(program, LoadMessage(260), BoxIcon::kCritical);
    return;
  }
  if (!AskFromNo(program, LoadMessage(261, {count}))) return;

  const std::vector<Failure> not_removed = Remove(program, std::move(savegames));
  PlaySoundEffect(program, SoundEffect::kFinished);
  Tell(program, LoadMessage(262, {count}));
  ScanArchive(program);
  program.archive.ArchiveChanged = true;
  if (not_removed.empty()) return;
  Tell(program, LoadMessage(kNotAllRemoved) + DescribeFailures(not_removed), BoxIcon::kExclamation);
}

}  // namespace vellumark
