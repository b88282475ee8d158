#include "savegames/list_line.h"

#include <algorithm>
#include <charconv>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::size_t kMarkColumns = 2;
constexpr std::size_t kCounterEnd = 7;  // one past the counter's usual last column
constexpr std::size_t kLevelWidth = kNoteColumn - kLevelColumn;

}  // namespace

std::string FormatListHeading() {
  std::string line = LoadMessage(319) + LoadMessage(320);
  const auto add = [&line](std::size_t column, int message) {
    line.resize(column, ' ');
    line += LoadMessage(message);
  };
  add(kCounterEnd - LoadMessage(kHeadingCounter).size(), kHeadingCounter);
  add(kLevelColumn, kHeadingLevel);
  add(kNoteColumn, kHeadingNote);
  return line;
}

std::string FormatListLine(Program& program, int index) {
  const SavegameEntry& entry = program.catalogue.entries[static_cast<std::size_t>(index)];
  return FormatEntryLine(entry, FileExists(program.files, entry.ShotPath));
}

std::string FormatEntryLine(const SavegameEntry& entry, bool has_shot) {
  static const char game_mark = LoadMessage(319).front();
  static const char shot_mark = LoadMessage(320).front();

  std::string line;
  line.resize(kNoteColumn, ' ');
  if (entry.FolderNumber == 0) line[0] = game_mark;
  if (has_shot) line[kShotColumn] = shot_mark;

  char digits[8];
  const auto length = static_cast<std::size_t>(
      std::to_chars(std::begin(digits), std::end(digits), entry.InternalCounter).ptr - digits);
  const std::size_t start = std::max(kMarkColumns, kCounterEnd - std::min(length, kCounterEnd));
  std::copy_n(digits, length, line.begin() + static_cast<std::ptrdiff_t>(start));

  std::copy_n(entry.LevelName.begin(), std::min(entry.LevelName.size(), kLevelWidth),
              line.begin() + static_cast<std::ptrdiff_t>(kLevelColumn));
  line.append(entry.NoteText, 0, kNoteInLine);
  if (entry.NoteText.size() > kNoteInLine) line += "...";
  return line;
}

}  // namespace vellumark
