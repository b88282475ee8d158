#include "maintenance/reorder.h"

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/operation_report.h"
#include "foundation/own_messages.h"
#include "foundation/rescue.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/work_scope.h"
#include "maintenance/old_archive.h"
#include "program.h"

namespace vellumark {
namespace {

std::string Lines(const std::vector<std::string>& paths) {
  std::string text;
  for (const std::string& path : paths) text += kLineBreak + Quoted(path);
  return text;
}

class ReorderRun {
 public:
  ReorderRun(Program& program, const ReorderSettings& settings, const ReorderTarget& target,
             const ShowPercent& show)
      : program_(program),
        settings_(settings),
        target_(target),
        show_(show),
        plan_(PlanReorder(program.catalogue, settings)),
        made_(program, target, plan_),
        old_main_folder_(Trimmed(program.archive.settings.MainFolder)),
        rescue_(program) {}

  // The order that protects the player. Up to GiveNames everything can be taken back; nothing of
  // the old archive goes before the new one is whole, named, flushed and written down.
  bool Do() {
    const WorkScope working(program_);
    if (settings_.DeleteOldArchive) old_ = FindOldArchive(program_);
    if (!CanBegin()) return false;
    made_.Copy(settings_.DeleteOldArchive, show_);
    if (made_.stopped || !MayUse() || !made_.GiveNames()) return TakeBack();
    if (settings_.CreateInfoFiles) not_listed_ = made_.WriteInfoFiles();
    UseNewArchive();
    if (settings_.DeleteOldArchive) DeleteOld();
    TellResult();
    ScanArchive(program_);
    ReportProblems();
    return true;
  }

 private:
  bool CanBegin() {
    const std::uint64_t needed = made_.FindSources();
    made_.RemoveLeftovers();
    if (const auto taken = made_.TakenNames(); !taken.empty()) {
      Refuse(LoadMessage(kReorderNamesTaken) + Lines(taken));
      return false;
    }
    const auto room = program_.files.FreeRoom(target_.main_folder);
    if (!room || *room >= needed) return true;
    const auto megabytes = [](std::uint64_t bytes) { return std::to_string((bytes >> 20U) + 1); };
    return AskFromNo(
        program_, LoadMessage(kReorderNoRoom, {megabytes(needed), megabytes(*room), kLineBreak}));
  }

  bool MayUse() {
    if (made_.IsWhole()) return true;
    std::string question = LoadMessage(kReorderUseAllTheSame, {kLineBreak});
    if (made_.flush != FileError::kNone) {
      question += kLineBreak + LoadMessage(kReorderNotFlushed, {ReasonFor(made_.flush)});
    }
    if (!made_.not_copied.empty()) {
      question += kLineBreak + LoadMessage(kReorderNotCopied) + DescribeFailures(made_.not_copied);
    }
    return AskFromNo(program_, question);
  }

  bool TakeBack() {
    const std::vector<std::string> left = made_.TakeBack();
    Report report;
    if (made_.stopped) {
      report.Add(LoadMessage(kReorderStopped, {Quoted(made_.stopped->path),
                                               ReasonFor(made_.stopped->why), kLineBreak}));
    }
    if (!left.empty()) report.Add(LoadMessage(kReorderLeft) + Lines(left));
    if (!report.text().empty()) Refuse(report.text());
    return false;
  }

  void Refuse(const std::string& text) {
    PlaySoundEffect(program_, SoundEffect::kRefusal);
    Tell(program_, text, BoxIcon::kCritical);
  }

  void UseNewArchive() {
    ArchiveSettings& settings = program_.archive.settings;
    settings.MainFolder = target_.main_folder;
    settings.SubfolderBaseName = target_.base_name;
    settings.MaxSavegame = settings_.MaxSlot;
    settings.SavegameCount = plan_.copied;
    program_.archive.ArchiveChanged = true;
  }

  void DeleteOld() {
    const std::string file = Trimmed(program_.preferences.LastArchive);
    if (!made_.IsWhole()) {
      why_kept_ = LoadMessage(kReorderNotWhole);
    } else if (old_.error != FileError::kNone) {
      why_kept_ = LoadMessage(kFolderNotOpened, {Quoted(old_main_folder_), ReasonFor(old_.error)});
    } else if (const FileError error = WriteDown(file); error != FileError::kNone) {
      why_kept_ = LoadMessage(kArchiveNotWritten, {Quoted(file), ReasonFor(error)});
    } else {
      kept_ = DeleteOldArchive(program_, old_, made_, rescue_, show_);
    }
  }

  // An archive that has no file yet leads nobody to the old sub-folders.
  FileError WriteDown(const std::string& file) {
    return file.empty() ? FileError::kNone : WriteArchiveFile(program_, file);
  }

  void TellResult() {
    const auto line = [](const std::string& value) { return value + kCarriageReturn; };
    std::string text =
        LoadMessage(198, {line(Quoted(target_.main_folder)), line(Quoted(target_.base_name)),
                          line(std::to_string(plan_.copied)), line(std::to_string(plan_.folders))});
    text += line(std::to_string(plan_.equals)) + LoadMessage(plan_.re_sorted ? 196 : 197);
    Tell(program_, text);
  }

  void ReportProblems() {
    Report report;
    if (!why_kept_.empty()) {
      report.Add(why_kept_ + kLineBreak + LoadMessage(kReorderOldKept, {Quoted(old_main_folder_)}));
    }
    if (!kept_.empty()) {
      std::string lines;
      for (const KeptItem& item : kept_) {
        lines += kLineBreak + LoadMessage(kFailureLine, {item.reason, Quoted(item.path)});
      }
      report.Add(LoadMessage(kReorderFoldersKept) + lines);
    }
    if (!rescue_.folder().empty()) {
      report.Add(LoadMessage(kReorderSetAside, {Quoted(rescue_.folder())}));
    }
    if (!not_listed_.empty()) {
      report.Add(LoadMessage(kReorderNotListed) + DescribeFailures(not_listed_));
    }
    report.Show(program_);
  }

  Program& program_;
  const ReorderSettings& settings_;
  const ReorderTarget& target_;
  const ShowPercent& show_;
  const ReorderPlan plan_;
  NewArchive made_;
  const std::string old_main_folder_;
  OldArchive old_;
  Rescue rescue_;
  std::vector<KeptItem> kept_;
  std::string why_kept_;  // why the old archive, whose deletion was asked for, is still there
  std::vector<Failure> not_listed_;
};

}  // namespace

bool ReorderArchive(Program& program, const ReorderSettings& settings, const ShowPercent& show) {
  const auto target = ValidateReorder(program, settings);
  if (!target) return false;

  if (program.catalogue.EntryCount() == 0) ScanArchive(program);
  return ReorderRun(program, settings, *target, show).Do();
}

}  // namespace vellumark
