#include "demo_records.h"

#include <cstdint>

namespace vellumark::demo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kBlankLine = "\r\r\n";

std::string TextField(std::string_view text) {
  std::string field(text);
  field.resize(kTextFieldWidth, ' ');
  return field;
}

std::string LittleEndian(std::int32_t number, int bytes) {
  std::string field;
  for (int i = 0; i < bytes; ++i) {
    field += static_cast<char>((static_cast<std::uint32_t>(number) >> (8U * unsigned(i))) & 0xFFU);
  }
  return field;
}

std::string Switch(bool on) { return LittleEndian(on ? -1 : 0, 2); }

std::string UpperCase(std::string_view ascii) {
  std::string upper(ascii);
  for (char& letter : upper) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return upper;
}

}  // namespace

std::string ArchiveRecord(const ArchivePaths& paths, int savegame_count) {
  return TextField(kSubfolderBaseName) + TextField(paths.main_folder) +
         TextField(paths.game_folder) + TextField(paths.game_executable) +
         LittleEndian(kMaxSavegame, 2) + LittleEndian(savegame_count, 4);
}

std::string PreferencesRecord(std::string_view archive_file, std::string_view shot_folder) {
  const std::string reserved = LittleEndian(0, 2);
  const std::string search_in_notes = Switch(true);
  const std::string search_in_level_name = Switch(true);
  const std::string scan_all_subfolders = Switch(false);
  const std::string sound_effects = Switch(false);
  const std::string auto_capture = Switch(true);
  return TextField(archive_file) + reserved + TextField(shot_folder) + search_in_notes +
         search_in_level_name + scan_all_subfolders + sound_effects + auto_capture;
}

std::string InfoSection(std::string_view folder, const std::vector<StorySavegame>& savegames) {
  std::string section = UpperCase(folder);
  section += kLineEnd;
  section.append(folder.size() + 1, '-');
  section += kLineEnd;
  section += kBlankLine;

  for (const StorySavegame& savegame : savegames) {
    section += "savegame." + std::to_string(savegame.slot);
    section += savegame.slot < 10 ? "  " : " ";
    section += std::to_string(savegame.counter) + "  ";
    section += savegame.level;
    section += kLineEnd;
  }

  section += kBlankLine;
  return section;
}

}  // namespace vellumark::demo
