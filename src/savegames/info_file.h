// Plain-text listings of a folder's savegames, for people to read.
#ifndef VELLUMARK_SAVEGAMES_INFO_FILE_H_
#define VELLUMARK_SAVEGAMES_INFO_FILE_H_

#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace vellumark {

struct Program;

enum class InfoMode { kCreate, kAppend };

struct InfoResult {
  std::int16_t listed = 0;  // savegames in the section
  FileError error = FileError::kNone;
};

// Writes the section of one folder into an info file: over an older file, or at its end. Nothing is
// written when the folder is there but cannot be listed.
InfoResult WriteInfoSection(Program& program, const std::string& folder,
                            const std::string& info_file, InfoMode mode);

// True when an info file holds the folder's section as it is now, for any highest slot number, and
// nothing else: nobody would miss it.
bool HoldsInfoSection(Program& program, const std::string& folder, const std::string& info_file);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_INFO_FILE_H_
