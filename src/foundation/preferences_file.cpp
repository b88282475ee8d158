#include "foundation/preferences_file.h"

#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {
namespace {

template <typename Value>
void Take(const std::optional<Value>& read, Value& field) {
  if (read) field = *read;
}

// As long as a record, but written by something else.
bool IsForeign(std::string_view bytes) {
  constexpr std::size_t kShotFolderOffset = 258;
  return bytes.size() == kPreferencesRecordSize &&
         !(AreFieldText(bytes.substr(0, kTextFieldSize)) &&
           AreFieldText(bytes.substr(kShotFolderOffset, kTextFieldSize)));
}

}  // namespace

void DecodePreferences(std::string_view bytes, Preferences& preferences) {
  RecordReader reader(bytes);
  Take(reader.Text(), preferences.LastArchive);
  Take(reader.Word(), preferences.reserved);
  Take(reader.Text(), preferences.ShotFolder);
  Take(reader.Boolean(), preferences.SearchInNotes);
  Take(reader.Boolean(), preferences.SearchInLevelName);
  Take(reader.Boolean(), preferences.ScanAllSubfolders);
  Take(reader.Boolean(), preferences.SoundEffects);
  Take(reader.Boolean(), preferences.AutoCapture);
}

std::string EncodePreferences(const Preferences& preferences) {
  RecordWriter writer;
  writer.Text(preferences.LastArchive);
  writer.Word(preferences.reserved);
  writer.Text(preferences.ShotFolder);
  writer.Boolean(preferences.SearchInNotes);
  writer.Boolean(preferences.SearchInLevelName);
  writer.Boolean(preferences.ScanAllSubfolders);
  writer.Boolean(preferences.SoundEffects);
  writer.Boolean(preferences.AutoCapture);
  return writer.bytes();
}

void ReadPreferencesFile(Program& program) {
  const std::string& path = program.paths.PreferencesPath;
  const ReadResult read = program.files.Read(path, kPreferencesRecordSize);
  const bool foreign = IsForeign(read.bytes);
  if (!foreign) DecodePreferences(read.bytes, program.preferences);

  program.preferences_file.bytes = read.bytes;
  program.preferences_file.read_whole =
      !foreign && read.error == FileError::kNone && read.bytes.size() == kPreferencesRecordSize;
  if (!program.preferences_file.read_whole) {
    const std::string reason = foreign ? LoadMessage(kReasonNotPreferences) : ReasonFor(read.error);
    Tell(program, LoadMessage(kPreferencesNotReadWhole, {Quoted(path), reason}),
         BoxIcon::kExclamation);
  }
}

void WritePreferencesFile(Program& program) {
  const std::string& path = program.paths.PreferencesPath;
  const std::string record = EncodePreferences(program.preferences);
  PreferencesFileState& file = program.preferences_file;
  const bool changed = file.read_whole && IsChangedBehind(program.files, path, file.bytes, record);
  std::optional<std::string> kept;
  FileError error = FileError::kNone;
  if ((!file.read_whole || changed) && FileExists(program.files, path)) {
    kept = KeepBackupOf(program.files, path);
    if (!kept) error = FileError::kInputOutput;
  }
  if (error == FileError::kNone) error = WriteRecordFile(program.files, path, record);
  if (error != FileError::kNone) {
    return Tell(program, LoadMessage(kPreferencesNotWritten, {Quoted(path), ReasonFor(error)}),
                BoxIcon::kCritical);
  }
  file.bytes = record;
  if (changed) Tell(program, LoadMessage(kChangedFileKept, {Quoted(path), Quoted(*kept)}));
}

}  // namespace vellumark
