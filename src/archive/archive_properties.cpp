#include "archive/archive_properties.h"

#include <cstdint>

#include "archive/subfolder_name.h"
#include "archive/trusted_programs.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/number_reading.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "platform/file_dialogs.h"
#include "program.h"

namespace vellumark {
namespace {

bool Refuse(Program& program, const std::string& text) {
  Tell(program, text, BoxIcon::kCritical);
  return false;
}

bool Refuse(Program& program, int message) { return Refuse(program, LoadMessage(message)); }

// The number that a maximum begins with; nothing when a slot number cannot be that large.
std::optional<std::int16_t> SlotNumberIn(const std::string& text) {
  const std::int64_t number = ReadLeadingNumber(text);
  return FitsInt16(number) ? std::optional(static_cast<std::int16_t>(number)) : std::nullopt;
}

std::string ChooseFolder(Program& program, ChooserMode mode, const std::string& shown) {
  program.chooser.FolderChooserMode = mode;
  program.chooser.field = shown;
  program.windows.ShowModal(WindowId::kDialogGetDir);
  return program.chooser.field;
}

// For a new archive, unless the slots hold archived savegames of another one.
const FoundGame* GameToPropose(const Program& program) {
  const bool is_new = program.archive.before_new != nullptr;
  const auto& games = program.game_search.games;
  return is_new && !games.empty() && !program.play.ExaminedInGameFolder ? &games.front() : nullptr;
}

}  // namespace

ArchivePropertiesFields PrepareArchiveProperties(Program& program) {
  ArchiveSettings& settings = program.archive.settings;
  settings.MainFolder = Trimmed(settings.MainFolder);
  settings.GameFolder = Trimmed(settings.GameFolder);
  settings.GameExecutable = Trimmed(settings.GameExecutable);
  settings.SubfolderBaseName = Trimmed(settings.SubfolderBaseName);
  program.archive.ArchivePropertiesOk = false;
  PlaySoundEffect(program, SoundEffect::kOpening);
  ArchivePropertiesFields fields{.main_folder = settings.MainFolder,
                                 .base_name = settings.SubfolderBaseName,
                                 .game_folder = settings.GameFolder,
                                 .executable = settings.GameExecutable,
                                 .max_savegame = std::to_string(settings.MaxSavegame)};
  if (const FoundGame* game = GameToPropose(program)) {
    fields.game_folder = game->folder;
    fields.executable = game->executable;
    fields.max_savegame = std::to_string(game->max_savegame);
  }
  return fields;
}

std::string ArchivePropertiesTitle(const Program& program) {
  return LoadMessage(216) + Trimmed(program.preferences.LastArchive);
}

bool AcceptArchiveProperties(Program& program, const ArchivePropertiesFields& fields) {
  const std::string base_name = Trimmed(fields.base_name);
  if (Trimmed(fields.max_savegame).empty()) return Refuse(program, 217);
  if (fields.main_folder.empty()) return Refuse(program, 218);
  if (base_name.empty()) return Refuse(program, 219);
  if (fields.game_folder.empty()) return Refuse(program, 220);
  if (fields.executable.empty()) return Refuse(program, 221);
  const auto max_savegame = SlotNumberIn(fields.max_savegame);
  if (!max_savegame) return Refuse(program, 217);
  const std::string problem = SubfolderNameProblem(fields.main_folder, base_name, *max_savegame);
  if (!problem.empty()) return Refuse(program, problem);

  ArchiveSettings& settings = program.archive.settings;
  // Leaving the program of somebody else's archive as it is does not choose it.
  const bool chosen = !SamePath(program.text, fields.executable, Trimmed(settings.GameExecutable));
  if (chosen) TrustProgram(program, fields.executable);
  settings.MainFolder = fields.main_folder;
  settings.SubfolderBaseName = base_name;
  settings.MaxSavegame = *max_savegame;
  settings.GameFolder = fields.game_folder;
  settings.GameExecutable = fields.executable;
  program.archive.ArchiveChanged = true;
  program.archive.ArchivePropertiesOk = true;
  return true;
}

std::optional<std::string> ChooseGameExecutable(Program& program, const std::string& game_folder) {
  PlaySoundEffect(program, SoundEffect::kOpening);
  auto chosen = program.file_dialogs.Open({.title = LoadMessage(222),
                                           .filter = LoadMessage(223),
                                           .start_folder = game_folder,
                                           .initial_name = ""});
  if (!chosen || chosen->size() <= kTextFieldSize) return chosen;

  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(kPathTooLong, {Quoted(*chosen)}), BoxIcon::kCritical);
  return std::nullopt;
}

std::string ChooseMainFolder(Program& program, const std::string& shown) {
  return ChooseFolder(program, ChooserMode::kMainFolder, shown);
}

std::string ChooseGameFolder(Program& program, const std::string& shown) {
  return ChooseFolder(program, ChooserMode::kGameFolder, shown);
}

}  // namespace vellumark
