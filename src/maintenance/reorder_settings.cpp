#include "maintenance/reorder_settings.h"

#include "archive/subfolder_name.h"
#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/number_reading.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "maintenance/old_archive.h"
#include "platform/text.h"
#include "program.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

void Refuse(Program& program, const std::string& text) {
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, text, BoxIcon::kCritical);
}

void TypeNumber(Program& program, const std::string& typed, int not_a_number,
                std::int16_t& number) {
  if (typed.empty()) return;

  const auto read = ReadWholeNumber(typed);
  if (!read) {
    Refuse(program, LoadMessage(not_a_number));
  } else if (!FitsInt16(*read)) {
    Refuse(program, LoadMessage(kReorderNumberTooLarge));
  } else {
    number = static_cast<std::int16_t>(*read);
  }
}

bool HasDrive(const std::string& path) {
  return path.size() >= 2 && path[1] == ':' && (path.size() == 2 || path[2] == '\\');
}

// The archive file keeps the path, so it must mean the same whatever the current folder is.
ReorderTarget TargetOf(Program& program, const ReorderSettings& settings) {
  std::string folder = settings.BasePath;
  if (!HasDrive(folder)) folder = program.files.FromCommandLine(folder);
  if (folder.ends_with('\\')) folder.pop_back();
  return {folder, settings.FolderName};
}

// True when `folder` is the folder of that identity or lies in it.
bool LiesIn(FileSystem& files, std::string folder, const std::optional<FileIdentity>& outer) {
  if (!outer) return false;
  for (; !folder.empty(); folder = FolderOf(folder)) {
    if (files.Identity(folder) == outer) return true;
  }
  return false;
}

// Why no sub-folder can have this name; empty when one can.
std::string NameProblem(Program& program, const ReorderTarget& target, int max_slot) {
  const std::string& name = target.base_name;
  std::string problem = SubfolderNameProblem(target.main_folder, name, max_slot);
  if (!problem.empty()) return problem;

  const auto game = program.files.Identity(Trimmed(program.archive.settings.GameFolder));
  const bool in_game = game && program.files.Identity(target.main_folder) == game;
  const bool slot_name = program.text.LowerPath(name) == LoadMessage(305);
  return in_game && slot_name ? LoadMessage(kReorderSlotName) : std::string();
}

// Why the new archive cannot lie there; empty when it can.
std::string PlaceProblem(Program& program, const ReorderTarget& target, bool deletes_old) {
  FileSystem& files = program.files;
  const std::string parent = FolderOf(target.Subfolder(1));
  if (LiesIn(files, parent, files.Identity(program.play.BackupFolder))) {
    return LoadMessage(kReorderInBackup, {Quoted(parent)});
  }
  if (LiesIn(files, parent, files.Identity(RescueRoot(program)))) {
    return LoadMessage(kFolderIsOwn, {Quoted(parent)});
  }
  if (!deletes_old) return {};

  for (const OldSubfolder& old : FindOldArchive(program).folders) {
    if (LiesIn(files, parent, files.Identity(old.path))) {
      return LoadMessage(kReorderInOldArchive, {Quoted(parent), Quoted(old.path)});
    }
  }
  return {};
}

std::string ProblemOf(Program& program, const ReorderSettings& settings,
                      const ReorderTarget& target) {
  if (settings.BasePath.empty() || !FolderExists(program.files, target.main_folder)) {
    return LoadMessage(191);
  }
  if (Trimmed(settings.FolderName).empty()) return LoadMessage(192);
  if (settings.MaxSlot == 0) return LoadMessage(193);
  if (settings.MaxSlot < 0) return LoadMessage(kReorderSlotNegative);
  if (program.files.Attributes(target.Subfolder(1)).error == FileError::kNone) {
    return LoadMessage(194);
  }
  const std::string problem = NameProblem(program, target, settings.MaxSlot);
  return problem.empty() ? PlaceProblem(program, target, settings.DeleteOldArchive) : problem;
}

}  // namespace

std::string ReorderTarget::Subfolder(int number) const {
  return InFolder(main_folder, base_name) + std::to_string(number);
}

std::string ReorderTarget::TemporarySubfolder(int number) const {
  return TemporaryFolderFor(Subfolder(number));
}

ReorderSettings PrepareReorder(Program& program) {
  PlaySoundEffect(program, SoundEffect::kOpening);
  return {};
}

void TypeMaxSlot(Program& program, ReorderSettings& settings, const std::string& typed) {
  TypeNumber(program, typed, 200, settings.MaxSlot);
}

void TypeMaxPerFolder(Program& program, ReorderSettings& settings, const std::string& typed) {
  TypeNumber(program, typed, 199, settings.MaxPerFolder);
}

std::optional<std::string> ChooseNewMainFolder(Program& program) {
  program.chooser.FolderChooserMode = ChooserMode::kNewArchiveFolder;
  program.windows.ShowModal(WindowId::kDialogGetDir);
  if (!program.chooser.Confirmed) return std::nullopt;
  return program.chooser.field;
}

std::optional<ReorderTarget> ValidateReorder(Program& program, const ReorderSettings& settings) {
  ReorderTarget target = TargetOf(program, settings);
  const std::string problem = ProblemOf(program, settings, target);
  if (problem.empty()) return target;
  Refuse(program, problem);
  return std::nullopt;
}

}  // namespace vellumark
