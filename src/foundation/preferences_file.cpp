#include "foundation/preferences_file.h"

#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/record.h"
#include "foundation/strings.h"
#include "foundation/talk.h"
#include "program.h"

namespace vellumark {
namespace {

template <typename Value>
void Take(const std::optional<Value>& read, Value& field) {
  if (read) field = *read;
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
  DecodePreferences(read.bytes, program.preferences);

  program.preferences_file.read_whole =
      read.error == FileError::kNone && read.bytes.size() == kPreferencesRecordSize;
  if (!program.preferences_file.read_whole) {
    Tell(program, LoadMessage(kPreferencesNotReadWhole, {Quoted(path), ReasonFor(read.error)}),
         BoxIcon::kExclamation);
  }
}

void WritePreferencesFile(Program& program) {
  const std::string& path = program.paths.PreferencesPath;
  FileError error = FileError::kNone;
  if (!program.preferences_file.read_whole && FileExists(program.files, path) &&
      !KeepBackupOf(program.files, path)) {
    error = FileError::kInputOutput;
  } else {
    error = WriteRecordFile(program.files, path, EncodePreferences(program.preferences));
  }
  if (error != FileError::kNone) {
    Tell(program, LoadMessage(kPreferencesNotWritten, {Quoted(path), ReasonFor(error)}),
         BoxIcon::kCritical);
  }
}

}  // namespace vellumark
