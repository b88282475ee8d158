#include "game/slot_contents.h"

#include <algorithm>

#include "foundation/paths.h"
#include "foundation/strings.h"
#include "program.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

// What a file holds; nothing when it cannot be read.
std::optional<std::string> ContentOf(Program& program, const std::string& path) {
  ReadResult read = program.files.Read(path, FileSystem::kWholeFile);
  if (read.error != FileError::kNone) return std::nullopt;
  return std::move(read.bytes);
}

// The counter is the one thing of an archived savegame that the user can change.
std::string WithoutCounter(std::string bytes) {
  constexpr std::size_t kCounterSize = 2;
  if (bytes.size() >= kSavegameHeaderSize) {
    bytes.replace(kSavegameHeaderSize - kCounterSize, kCounterSize, kCounterSize, '\0');
  }
  return bytes;
}

}  // namespace

std::optional<int> ExaminedEntry(Program& program, int slot) {
  const PlayState& play = program.play;
  if (!play.ExaminedInGameFolder || slot < 0 || slot >= play.ExaminedCount()) return std::nullopt;

  const std::string& path = play.examined_paths[static_cast<std::size_t>(slot)];
  const auto& entries = program.catalogue.entries;
  const auto entry = std::ranges::find_if(entries, [&](const SavegameEntry& candidate) {
    return candidate.FolderNumber != 0 && SamePath(program.text, candidate.SavegamePath, path);
  });
  if (entry == entries.end()) return std::nullopt;

  const std::string name = SavegameFileName(slot);
  const auto placed = std::ranges::find(play.placed, name, &PlacedFile::name);
  if (placed == play.placed.end()) return std::nullopt;
  const std::string game_folder = Trimmed(program.archive.settings.GameFolder);
  if (ContentOf(program, InFolder(game_folder, name)) != placed->bytes) return std::nullopt;
  const auto archived = ContentOf(program, path);
  if (!archived || WithoutCounter(*archived) != WithoutCounter(placed->bytes)) return std::nullopt;
  return static_cast<int>(entry - entries.begin());
}

}  // namespace vellumark
