#include "savegames/tile.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "savegames/notes.h"

namespace vellumark {

std::string LevelHeading(const SavegameEntry& entry) {
  return entry.LevelName.empty() ? LoadMessage(kLevelNone) : entry.LevelName;
}

std::string NoteInTip(const SavegameEntry& entry) {
  constexpr int kMostLines = 10;
  constexpr std::size_t kMostCharacters = 1000;
  const std::string_view note = entry.NoteText;
  std::size_t end = 0;
  for (int line = 0; line < kMostLines && end != std::string_view::npos; ++line) {
    end = note.find(kStoredLineBreak, line == 0 ? 0 : end + 1);
  }
  const bool whole = end == std::string_view::npos && note.size() <= kMostCharacters;
  const std::string shown = NoteForTextBox(note.substr(0, std::min(end, kMostCharacters)));
  return whole ? shown : shown + " ...";
}

std::string SpokenTile(const SavegameEntry& entry, bool has_shot) {
  std::string spoken = LoadMessage(kSpokenTile, {static_cast<int>(entry.InternalCounter)});
  // What may hold a placeholder of its own is not filled in.
  spoken += LevelHeading(entry);
  if (entry.FolderNumber == 0) spoken += LoadMessage(kSpokenInGame);
  spoken += LoadMessage(has_shot ? kSpokenShot : kSpokenNoShot);
  if (!entry.NoteText.empty()) spoken += LoadMessage(kSpokenNote) + NoteInTip(entry);
  return spoken;
}

std::vector<LevelRun> LevelRuns(const Catalogue& catalogue) {
  std::vector<LevelRun> runs;
  const std::vector<SavegameEntry>& entries = catalogue.entries;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const bool same = i > 0 && entries[i].LevelName == entries[i - 1].LevelName;
    if (!same) runs.push_back({.first = i});
    ++runs.back().count;
  }
  return runs;
}

std::vector<Level> LevelsOf(const Catalogue& catalogue) {
  std::vector<Level> levels;
  std::unordered_map<std::string_view, std::size_t> known;
  for (const LevelRun& run : LevelRuns(catalogue)) {
    const SavegameEntry& entry = catalogue.entries[run.first];
    const auto [at, is_new] = known.emplace(entry.LevelName, levels.size());
    if (is_new) levels.push_back({LevelHeading(entry), static_cast<int>(run.first)});
    levels[at->second].count += static_cast<int>(run.count);
  }
  return levels;
}

}  // namespace vellumark
