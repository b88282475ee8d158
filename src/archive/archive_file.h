// The archive file: the archive settings as a record of 1030 bytes.
#ifndef VELLUMARK_ARCHIVE_ARCHIVE_FILE_H_
#define VELLUMARK_ARCHIVE_ARCHIVE_FILE_H_

#include <string>
#include <string_view>

#include "archive/archive_state.h"
#include "platform/file_system.h"

namespace vellumark {

struct Program;

constexpr std::size_t kArchiveRecordSize = 1030;

// Fields that the bytes do not hold whole are empty or 0.
ArchiveSettings DecodeArchive(std::string_view bytes);
std::string EncodeArchive(const ArchiveSettings& settings);

enum class ArchiveReadState {
  kWhole,
  kInPart,      // shorter than the record, or reading failed part way
  kNotArchive,  // as long as a record, but these are no archive settings
};

struct ArchiveRead {
  ArchiveReadState state = ArchiveReadState::kWhole;
  ArchiveSettings settings;            // what could be read
  std::string bytes;                   // the record in the file
  FileError error = FileError::kNone;  // why it is kInPart; kNone when the file is too short
};

ArchiveRead ReadArchiveFile(FileSystem& files, const std::string& path);

// Writes the settings in use to a file, which becomes LastArchive. Writing overwrites without a
// question, so what another archive's file of that name held, one that was not read whole, or what
// another program has written there meanwhile, is kept first, and the user is told.
FileError WriteArchiveFile(Program& program, const std::string& path);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_ARCHIVE_FILE_H_
