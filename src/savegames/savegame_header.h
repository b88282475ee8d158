// The two fields of a savegame file that the program knows.
#ifndef VELLUMARK_SAVEGAMES_SAVEGAME_HEADER_H_
#define VELLUMARK_SAVEGAMES_SAVEGAME_HEADER_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace vellumark {

// All that has to be read of a savegame file.
constexpr std::size_t kSavegameHeaderSize = 77;

struct SavegameHeader {
  std::string level_name;
  std::int16_t counter = 0;

  // False when the file is shorter than a header or could not be read. The level name is then what
  // the file holds of it, and the counter 0.
  bool whole = false;
};

// Decodes the first bytes of a savegame file. The level name lies before the counter: it skips
// leading blanks and ends before the first NUL, comma or carriage return.
SavegameHeader DecodeSavegameHeader(std::string_view bytes);

// Opens a savegame file for reading only.
SavegameHeader ReadSavegameHeader(FileSystem& files, const std::string& path);

// Changes exactly the two bytes of the counter, in place. A file too short to hold them is
// kInputOutput and stays as it is.
FileError WriteInternalCounter(FileSystem& files, const std::string& path, std::int16_t value);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SAVEGAME_HEADER_H_
