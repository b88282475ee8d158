#include "archive/archive_file.h"

#include <algorithm>

#include "foundation/record.h"

namespace vellumark {
namespace {

// The text fields of an archive file hold paths and a name: printable characters, and perhaps NULs
// where a field was never set. Anything else was written by something else.
bool LooksLikeArchive(std::string_view record) {
  return std::ranges::none_of(record.substr(0, 4 * kTextFieldSize), [](char byte) {
    return static_cast<unsigned char>(byte) < 0x20 && byte != '\0';
  });
}

}  // namespace

ArchiveSettings DecodeArchive(std::string_view bytes) {
  RecordReader reader(bytes);
  ArchiveSettings settings;
  settings.SubfolderBaseName = reader.Text().value_or("");
  settings.MainFolder = reader.Text().value_or("");
  settings.GameFolder = reader.Text().value_or("");
  settings.GameExecutable = reader.Text().value_or("");
  settings.MaxSavegame = static_cast<std::int16_t>(reader.Word().value_or(0));
  settings.SavegameCount = reader.Long().value_or(0);
  return settings;
}

std::string EncodeArchive(const ArchiveSettings& settings) {
  RecordWriter writer;
  writer.Text(settings.SubfolderBaseName);
  writer.Text(settings.MainFolder);
  writer.Text(settings.GameFolder);
  writer.Text(settings.GameExecutable);
  writer.Word(static_cast<std::uint16_t>(settings.MaxSavegame));
  writer.Long(settings.SavegameCount);
  return writer.bytes();
}

ArchiveRead ReadArchiveFile(FileSystem& files, const std::string& path) {
  const ReadResult read = files.Read(path, kArchiveRecordSize);
  ArchiveRead result;
  result.error = read.error;
  result.settings = DecodeArchive(read.bytes);
  if (read.error != FileError::kNone || read.bytes.size() < kArchiveRecordSize) {
    result.state = ArchiveReadState::kInPart;
  } else if (!LooksLikeArchive(read.bytes)) {
    result.state = ArchiveReadState::kNotArchive;
  }
  return result;
}

}  // namespace vellumark
