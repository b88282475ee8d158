#include "savegames/info_file.h"

#include <limits>
#include <string_view>
#include <vector>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "platform/text.h"
#include "program.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr const char* kBlankLine = "\r\r\n";

struct Section {
  FileError error = FileError::kNone;  // why the folder could not be listed
  std::string heading;
  std::vector<std::string> lines;  // one for each savegame
};

Section MakeSection(Program& program, const std::string& folder, int max_savegame) {
  const auto reader = program.files.OpenFolder(folder);
  Section section;
  section.error = reader->Contents().error;
  section.heading = program.text.Upper(folder) + kLineEnd + std::string(folder.size() + 1, '-') +
                    kLineEnd + kBlankLine;
  for (const Slot& slot : SlotsOf(reader->Contents(), max_savegame).slots) {
    const SavegameHeader header =
        DecodeSavegameHeader(reader->Read(*slot.savegame, kSavegameHeaderSize).bytes);
    section.lines.push_back(SavegameFileName(slot.number) + (slot.number < 10 ? "  " : " ") +
                            std::to_string(header.counter) + "  " + Trimmed(header.level_name) +
                            kLineEnd);
  }
  return section;
}

}  // namespace

InfoResult WriteInfoSection(Program& program, const std::string& folder,
                            const std::string& info_file, InfoMode mode) {
  const Section section = MakeSection(program, folder, program.archive.settings.MaxSavegame);
  // A list without savegames would tell that the folder has none.
  if (section.error != FileError::kNone && section.error != FileError::kNotFound) {
    return {0, section.error};
  }
  std::string bytes = section.heading;
  for (const std::string& line : section.lines) bytes += line;
  bytes += kBlankLine;
  const FileError error = mode == InfoMode::kCreate ? ReplaceFile(program.files, info_file, bytes)
                                                    : program.files.Append(info_file, bytes);
  return {static_cast<std::int16_t>(section.lines.size()), error};
}

bool HoldsInfoSection(Program& program, const std::string& folder, const std::string& info_file) {
  const ReadResult read = program.files.Read(info_file, FileSystem::kWholeFile);
  const Section section = MakeSection(program, folder, std::numeric_limits<int>::max());
  std::string_view rest = read.bytes;
  if (read.error != FileError::kNone || !rest.starts_with(section.heading)) return false;
  rest.remove_prefix(section.heading.size());
  // It was written with the highest slot number of its time.
  for (const std::string& line : section.lines) {
    if (!rest.starts_with(line)) break;
    rest.remove_prefix(line.size());
  }
  return rest == kBlankLine;
}

}  // namespace vellumark
