#include "savegames/viewer.h"

#include <algorithm>
#include <optional>
#include <string>

#include "foundation/file_utilities.h"
#include "foundation/sound_effects.h"
#include "program.h"
#include "savegames/list_line.h"
#include "savegames/main_window_interface.h"

namespace vellumark {
namespace {

std::optional<int> IndexOf(const Program& program, const std::string& savegame) {
  const auto& entries = program.catalogue.entries;
  const auto found = std::ranges::find(entries, savegame, &SavegameEntry::SavegamePath);
  if (savegame.empty() || found == entries.end()) return std::nullopt;
  return static_cast<int>(found - entries.begin());
}

std::string LineOf(const SavegameEntry& entry) {
  return std::to_string(entry.InternalCounter) + "  " + entry.LevelName + "  " +
         entry.NoteText.substr(0, kNoteInLine);
}

void Step(Program& program, int by) {
  const auto& entries = program.catalogue.entries;
  SavegamePlace& viewed = program.details.viewed;
  const int count = program.catalogue.EntryCount();
  const auto at = IndexOf(program, viewed.savegame);
  // What followed one that is gone has taken its place.
  const int from = at ? *at : std::min(viewed.index, count) - (by > 0 ? 1 : 0);
  for (int i = from + by; i >= 0 && i < count; i += by) {
    const SavegameEntry& entry = entries[static_cast<std::size_t>(i)];
    if (!FileExists(program.files, entry.ShotPath)) continue;
    viewed = {entry.SavegamePath, i};
    return program.main_window.ShowViewer({entry.ShotPath, LineOf(entry)});
  }
  PlaySoundEffect(program, SoundEffect::kRefusal);
}

}  // namespace

void ShowScreenShot(Program& program) {
  DetailsState& details = program.details;
  details.ViewerOpen = true;
  details.viewed = details.shown;
  const auto index = IndexOf(program, details.shown.savegame);
  const std::string line =
      index ? LineOf(program.catalogue.entries[static_cast<std::size_t>(*index)]) : "";
  program.main_window.ShowViewer({details.CurrentShotPath, line});
}

void ShowNextScreenShot(Program& program) { Step(program, +1); }

void ShowPreviousScreenShot(Program& program) { Step(program, -1); }

}  // namespace vellumark
