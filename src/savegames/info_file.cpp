#include "savegames/info_file.h"

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

}  // namespace

InfoResult WriteInfoSection(Program& program, const std::string& folder,
                            const std::string& info_file, InfoMode mode) {
  InfoResult result;
  const auto reader = program.files.OpenFolder(folder);
  // A list without savegames would tell that the folder has none.
  result.error = reader->Contents().error;
  if (result.error != FileError::kNone && result.error != FileError::kNotFound) return result;

  std::string section = program.text.Upper(folder) + kLineEnd;
  section += std::string(folder.size() + 1, '-') + kLineEnd + kBlankLine;
  const int max_savegame = program.archive.settings.MaxSavegame;
  for (const Slot& slot : SlotsOf(reader->Contents(), max_savegame).slots) {
    ++result.listed;
    const SavegameHeader header =
        DecodeSavegameHeader(reader->Read(*slot.savegame, kSavegameHeaderSize).bytes);
    section += SavegameFileName(slot.number) + (slot.number < 10 ? "  " : " ") +
               std::to_string(header.counter) + "  " + Trimmed(header.level_name) + kLineEnd;
  }
  section += kBlankLine;

  result.error = mode == InfoMode::kCreate ? ReplaceFile(program.files, info_file, section)
                                           : program.files.Append(info_file, section);
  return result;
}

}  // namespace vellumark
