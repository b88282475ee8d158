#include "maintenance/reorder.h"

#include "archive/scan.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/talk.h"
#include "foundation/working.h"
#include "maintenance/old_archive.h"
#include "maintenance/reorder_deletion.h"
#include "maintenance/reorder_order.h"
#include "program.h"

namespace vellumark {
namespace {

// What a run has done.
struct Run {
  std::string old_main_folder;
  bool re_sorted = false;
  NewArchive made;
  FileError flush = FileError::kNone;
  OldArchive old;
  bool kept_old = false;  // its deletion was asked for, but something was not safe
  Deletion deletion;
};

CounterOrder OrderOf(const Catalogue& catalogue) {
  std::vector<std::int16_t> counters;
  counters.reserve(catalogue.entries.size());
  for (const SavegameEntry& entry : catalogue.entries) counters.push_back(entry.InternalCounter);
  return SortByCounter(counters);
}

Run DoRun(Program& program, const ReorderSettings& settings, const ReorderTarget& target,
          const ShowPercent& show) {
  const WorkScope working(program);
  Run run;
  run.old_main_folder = Trimmed(program.archive.settings.MainFolder);
  // Looked up before new sub-folders are made, whose names may go on where the old ones end.
  if (settings.DeleteOldArchive) run.old = FindOldArchive(program);

  const CounterOrder order = OrderOf(program.catalogue);
  run.re_sorted = order.re_sorted;
  run.made = CopyInOrder(program, settings, target, order.indices, show);
  if (run.made.stopped) return run;

  if (!run.made.written.empty()) run.flush = program.files.Flush(run.made.written);
  if (!settings.DeleteOldArchive) return run;
  run.kept_old = run.flush != FileError::kNone || !run.made.not_copied.empty() ||
                 run.old.error != FileError::kNone;
  if (!run.kept_old) run.deletion = DeleteOldArchive(program, run.old, run.made, show);
  return run;
}

void TellStopped(Program& program, const NewArchive& made) {
  std::string text = LoadMessage(
      kReorderStopped, {Quoted(made.stopped->path), ReasonFor(made.stopped->why), kLineBreak});
  if (!made.folders.empty()) {
    text += std::string(kLineBreak) + kLineBreak +
            LoadMessage(kReorderMadeSoFar, {made.copied, static_cast<int>(made.folders.size()),
                                            Quoted(made.folders.front())});
    if (!made.not_copied.empty()) {
      text += std::string(kLineBreak) + kLineBreak + LoadMessage(kReorderNotCopied) +
              DescribeFailures(made.not_copied);
    }
  }
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, text, BoxIcon::kCritical);
}

void Report(Program& program, const ReorderTarget& target, const Run& run) {
  const auto line = [](const std::string& value) { return value + kCarriageReturn; };
  std::string text = LoadMessage(
      198, {line(Quoted(target.main_folder)), line(Quoted(target.base_name)),
            line(std::to_string(run.made.copied)), line(std::to_string(run.made.folders.size()))});
  text += line(std::to_string(run.made.equals)) + LoadMessage(run.re_sorted ? 196 : 197);
  Tell(program, text);
}

void UseNewArchive(Program& program, const ReorderTarget& target, std::int16_t max_slot) {
  ArchiveSettings& settings = program.archive.settings;
  settings.MainFolder = target.main_folder;
  settings.SubfolderBaseName = target.base_name;
  settings.MaxSavegame = max_slot;
  program.archive.ArchiveChanged = true;
  ScanArchive(program);
}

std::string DescribeKept(const std::vector<KeptFolder>& folders) {
  std::string text;
  for (const KeptFolder& folder : folders) {
    text += kLineBreak + LoadMessage(kFailureLine, {folder.reason, Quoted(folder.path)});
  }
  return text;
}

void ReportProblems(Program& program, const Run& run) {
  std::string text;
  const auto add = [&text](const std::string& paragraph) {
    if (!text.empty()) text += std::string(kLineBreak) + kLineBreak;
    text += paragraph;
  };
  const NewArchive& made = run.made;
  if (!made.not_copied.empty()) {
    add(LoadMessage(kReorderNotCopied) + DescribeFailures(made.not_copied));
  }
  if (run.flush != FileError::kNone) add(LoadMessage(kReorderNotFlushed, {ReasonFor(run.flush)}));
  if (run.old.error != FileError::kNone) {
    add(LoadMessage(kFolderNotOpened, {Quoted(run.old_main_folder), ReasonFor(run.old.error)}));
  }
  if (run.kept_old) add(LoadMessage(kReorderOldKept, {Quoted(run.old_main_folder)}));
  if (!run.deletion.kept.empty()) {
    add(LoadMessage(kReorderFoldersKept) + DescribeKept(run.deletion.kept));
  }
  if (!run.deletion.set_aside.empty()) {
    std::string folders;
    for (const std::string& folder : run.deletion.set_aside) folders += kLineBreak + Quoted(folder);
    add(LoadMessage(kReorderSetAside) + folders);
  }
  if (!made.not_listed.empty()) {
    add(LoadMessage(kReorderNotListed) + DescribeFailures(made.not_listed));
  }
  if (!text.empty()) Tell(program, text, BoxIcon::kExclamation);
}

}  // namespace

bool ReorderArchive(Program& program, const ReorderSettings& settings, const ShowPercent& show) {
  const auto target = ValidateReorder(program, settings);
  if (!target) return false;

  if (program.catalogue.EntryCount() == 0) ScanArchive(program);
  const Run run = DoRun(program, settings, *target, show);
  if (run.made.stopped) {
    TellStopped(program, run.made);
    return false;
  }
  Report(program, *target, run);
  UseNewArchive(program, *target, settings.MaxSlot);
  ReportProblems(program, run);
  return true;
}

}  // namespace vellumark
