#include "game/import.h"

#include <algorithm>
#include <string>

#include "archive/scan.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/operation_report.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "game/next_subfolder.h"
#include "game/slot_release.h"
#include "program.h"
#include "savegames/info_file.h"

namespace vellumark {
namespace {

std::string MissingMainFolder(const std::string& folder) {
  return LoadMessage(323) + Quoted(folder);
}

// Shows why the import cannot begin, after the sound of a refusal.
void Refuse(Program& program, const std::string& text, BoxIcon icon = BoxIcon::kNone) {
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, text, icon);
}

bool MayImport(Program& program) {
  if (!HasNewSavegames(program.catalogue)) {
    Tell(program, LoadMessage(322));
    return false;
  }
  const std::string main_folder = Trimmed(program.archive.settings.MainFolder);
  if (main_folder.empty() || !FolderExists(program.files, main_folder)) {
    Refuse(program, MissingMainFolder(main_folder));
    return false;
  }
  const std::string game_folder = Trimmed(program.archive.settings.GameFolder);
  if (game_folder.empty() || !FolderExists(program.files, game_folder)) {
    Refuse(program, LoadMessage(324) + game_folder);
    return false;
  }
  if (program.play.ExaminedInGameFolder) {
    PlaySoundEffect(program, SoundEffect::kFinished);
    return AskYesNo(program, LoadMessage(325, {kCarriageReturn}));
  }
  return true;
}

// What an import could not do, for the one message at its end.
struct ImportProblems {
  std::vector<Failure> not_copied;
  SlotRelease release;
  FileError info = FileError::kNone;
  std::string info_file;
};

void ReportProblems(Program& program, const std::string& game_folder,
                    const ImportProblems& problems) {
  Report report;
  if (!problems.not_copied.empty()) {
    report.Add(LoadMessage(kImportNotCopied, {Quoted(game_folder)}) +
               DescribeFailures(problems.not_copied));
  }
  if (problems.release.flush != FileError::kNone) {
    report.Add(
        LoadMessage(kImportNotFlushed, {ReasonFor(problems.release.flush), Quoted(game_folder)}));
  }
  if (!problems.release.not_deleted.empty()) {
    report.Add(LoadMessage(kImportNotDeleted, {Quoted(game_folder)}) +
               DescribeFailures(problems.release.not_deleted));
  }
  if (problems.release.rename != FileError::kNone || problems.release.first_taken) {
    const std::string why = problems.release.first_taken ? LoadMessage(kReasonCompanionLeft)
                                                         : ReasonFor(problems.release.rename);
    report.Add(LoadMessage(kImportNotRenamed, {FileNameOf(problems.release.highest_file), why}));
  }
  if (problems.info != FileError::kNone) {
    report.Add(
        LoadMessage(kInfoNotWritten, {Quoted(problems.info_file), ReasonFor(problems.info)}));
  }
  report.Show(program);
}

}  // namespace

bool HasNewSavegames(const Catalogue& catalogue) {
  const auto& entries = catalogue.entries;
  if (entries.size() < 2) return false;

  const auto first = std::find_if(entries.begin() + 1, entries.end(),
                                  [](const auto& entry) { return entry.FolderNumber == 0; });
  if (first == entries.end()) return false;
  const std::int16_t reference = std::prev(first)->InternalCounter;
  return std::any_of(first, entries.end(), [reference](const SavegameEntry& entry) {
    return entry.InternalCounter > reference;
  });
}

void ImportSavegames(Program& program) {
  if (!MayImport(program)) return;

  ArchiveSettings& settings = program.archive.settings;
  std::string main_folder = Trimmed(settings.MainFolder);
  if (main_folder.ends_with('\\')) {
    main_folder.pop_back();
    settings.MainFolder = main_folder;
  }
  const std::string game_folder = Trimmed(settings.GameFolder);
  std::string subfolder;
  const FileError not_made = MakeNextSubfolder(program, subfolder);
  if (not_made != FileError::kNone) {
    Refuse(program,
           LoadMessage(kSubfolderNotMade,
                       {Quoted(subfolder), ReasonFor(not_made), kLineBreak, Quoted(game_folder)}),
           BoxIcon::kCritical);
    return;
  }

  ImportProblems problems;
  SlotCopies copies;
  {
    const WorkScope working(program);
    copies = CopySlots(program.files, game_folder, subfolder, settings.MaxSavegame,
                       [&](int done, int all) { program.windows.ShowProgress(done, all); });
    if (copies.count > 0) {
      problems.release = ReleaseCopiedSlots(program.files, game_folder, subfolder, copies);
      problems.not_copied = copies.failures;
      problems.info_file = main_folder + LoadMessage(328);
      problems.info =
          WriteInfoSection(program, subfolder, problems.info_file, InfoMode::kAppend).error;
    }
  }
  if (copies.count == 0) {
    Refuse(program, LoadMessage(326) + Quoted(game_folder), BoxIcon::kCritical);
    return;
  }
  // Before the first message: another screen-shot may be linked while it is shown.
  if (problems.not_copied.empty()) program.capture.ShotLinkedNotImported = false;
  PlaySoundEffect(program, SoundEffect::kFinished);
  Tell(program, LoadMessage(329, {WithLeadingBlank(copies.count)}));
  ScanArchive(program);
  ReportProblems(program, game_folder, problems);
}

void ImportCommand(Program& program) {
  ImportSavegames(program);
  program.archive.ArchiveChanged = true;
}

}  // namespace vellumark
