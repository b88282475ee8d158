#include "maintenance/copy_move.h"

#include <bitset>

#include "archive/scan.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "game/own_slots_in_play.h"
#include "maintenance/target_savegames.h"
#include "program.h"

namespace vellumark {
namespace {

// The messages of a copy and of a move.
struct Wording {
  int nothing_selected;
  int same_names;
  int renumber;
  int report;
};

Wording WordingOf(CopyMode mode) {
  return mode == CopyMode::kMove ? Wording{268, 145, 146, 147} : Wording{259, 142, 143, 144};
}

void ChooseTarget(Program& program, CopyMode mode) {
  // A capture may change the selection while the chooser or a question waits.
  program.chooser.savegames = FilesOf(program.catalogue, program.selection.indices);
  if (program.chooser.savegames.empty()) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    Tell(program, LoadMessage(WordingOf(mode).nothing_selected), BoxIcon::kCritical);
    return;
  }
  program.chooser.FolderChooserMode =
      mode == CopyMode::kMove ? ChooserMode::kMove : ChooserMode::kCopy;
  program.windows.ShowModal(WindowId::kDialogGetDir);
  program.chooser.savegames.clear();
}

void ReportProblems(Program& program, CopyMode mode, const std::string& folder,
                    const SelectedCopies& copies, const std::vector<Failure>& old_not_deleted) {
  std::string text;
  const auto add = [&text](const std::string& paragraph) {
    if (!text.empty()) text += std::string(kLineBreak) + kLineBreak;
    text += paragraph;
  };
  if (!copies.not_copied.empty()) {
    const int text_of_mode = mode == CopyMode::kMove ? kNotAllMoved : kNotAllCopied;
    add(LoadMessage(text_of_mode, {Quoted(folder)}) + DescribeFailures(copies.not_copied));
  }
  if (!copies.not_deleted.empty()) {
    add(LoadMessage(kMovedNotDeleted) + DescribeFailures(copies.not_deleted));
  }
  if (!old_not_deleted.empty()) {
    add(LoadMessage(kTargetNotDeleted) + DescribeFailures(old_not_deleted));
  }
  if (!copies.set_aside.empty()) {
    add(LoadMessage(kTargetSetAside, {Quoted(folder), Quoted(copies.rescue_folder)}));
  }
  if (!text.empty()) Tell(program, text, BoxIcon::kExclamation);
}

}  // namespace

void CopySelection(Program& program) { ChooseTarget(program, CopyMode::kCopy); }

void MoveSelection(Program& program) { ChooseTarget(program, CopyMode::kMove); }

bool CopyOrMoveInto(Program& program, const std::string& folder, CopyMode mode) {
  const std::vector<SavegameFiles>& savegames = program.chooser.savegames;
  const Wording wording = WordingOf(mode);
  bool renumber = true;
  if (SelectionHasSameSlot(savegames)) {
    if (!AskOkCancel(program, LoadMessage(wording.same_names, {kCarriageReturn}))) return false;
  } else {
    renumber = AskWhich(program, LoadMessage(wording.renumber));
  }
  std::vector<Failure> old_not_deleted;
  if (KeepTargetSavegames(program, folder, savegames, old_not_deleted)) renumber = true;

  // Nothing is in front of the progress.
  program.windows.CloseDialog(WindowId::kDialogGetDir);
  SelectedCopies copies;
  {
    const WorkScope working(program);
    copies = CopySavegames(program, savegames, folder, renumber, mode);
    RememberBrought(program, folder, copies.targets);
  }
  if (mode == CopyMode::kMove) {
    ScanArchive(program);
  } else {
    PlaySoundEffect(program, SoundEffect::kFinished);
  }
  const auto count = static_cast<int>(savegames.size());
  Tell(program, LoadMessage(wording.report, {count}) + Quoted(folder));
  ReportProblems(program, mode, folder, copies, old_not_deleted);
  return true;
}

bool SelectionHasSameSlot(const std::vector<SavegameFiles>& savegames) {
  std::bitset<1U << 16U> seen;
  for (const SavegameFiles& savegame : savegames) {
    const auto slot = static_cast<std::uint16_t>(savegame.slot);
    if (seen.test(slot)) return true;
    seen.set(slot);
  }
  return false;
}

}  // namespace vellumark
