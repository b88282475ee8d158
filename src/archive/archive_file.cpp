#include "archive/archive_file.h"

#include <optional>

#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {

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
  result.bytes = read.bytes;
  if (read.error != FileError::kNone || read.bytes.size() < kArchiveRecordSize) {
    result.state = ArchiveReadState::kInPart;
  } else if (!AreFieldText(std::string_view(read.bytes).substr(0, 4 * kTextFieldSize))) {
    result.state = ArchiveReadState::kNotArchive;
  }
  return result;
}

FileError WriteArchiveFile(Program& program, const std::string& path) {
  ArchiveState& archive = program.archive;
  const std::string record = EncodeArchive(archive.settings);
  const bool is_own_file =
      !archive.never_written && SamePath(program.text, path, program.preferences.LastArchive);
  const bool changed = is_own_file && !archive.read_in_part &&
                       IsChangedBehind(program.files, path, archive.file_bytes, record);
  std::optional<std::string> kept;
  if ((!is_own_file || changed || archive.read_in_part) && FileExists(program.files, path)) {
    kept = KeepBackupOf(program.files, path);
    if (!kept) return FileError::kInputOutput;
  }
  const FileError error = WriteRecordFile(program.files, path, record);
  if (error != FileError::kNone) return error;

  program.preferences.LastArchive = path;
  archive.file_bytes = record;
  archive.read_in_part.reset();
  archive.never_written = false;
  archive.ArchiveChanged = false;
  if ((!is_own_file || changed) && kept) {
    const int message = changed ? kChangedFileKept : kOldFileKept;
    Tell(program, LoadMessage(message, {Quoted(path), Quoted(*kept)}));
  }
  return FileError::kNone;
}

}  // namespace vellumark
