#include "session/start_up.h"

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "foundation/captions.h"
#include "foundation/companion_files.h"
#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/preferences_file.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "game/backup_folder.h"
#include "game/import.h"
#include "game/restore.h"
#include "platform/text.h"
#include "program.h"
#include "session/session_end.h"

namespace vellumark {
namespace {

constexpr std::int16_t kDefaultMaxSavegame = 15;

void FindDefaultShot(Program& program) {
  std::string& path = program.paths.DefaultShotPath;
  path = CompanionFile(program.files, program.paths, LoadMessage(286));
  if (FileExists(program.files, path)) return;

  const std::string text = LoadMessage(287, {Quoted(FileNameOf(path))});
  Tell(program, text + program.paths.ProgramFolder, BoxIcon::kCritical);
  path.clear();
}

// The command line's one path when it ends in `extension`, made absolute; empty otherwise.
std::string ArgumentWithEnding(Program& program, const std::string& extension) {
  const std::string argument = Trimmed(program.argument_text);
  if (argument.size() < extension.size()) return {};
  const std::string ending = argument.substr(argument.size() - extension.size());
  if (!EqualsIgnoringAsciiCase(ending, extension)) return {};
  return program.files.FromCommandLine(argument);
}

void ChoosePreferencesFile(Program& program) {
  program.paths.PreferencesPath = program.paths.ProgramFolder + LoadMessage(289);
  const std::string named = ArgumentWithEnding(program, LoadMessage(290));
  if (FileExists(program.files, named)) program.paths.PreferencesPath = named;
}

void ResetSharedState(Program& program) {
  program.catalogue = {};
  program.selection = {};
  program.details = {};
  program.search = {};
  program.capture = {};
  program.play = {};
}

void TakeDefaults(Program& program) {
  program.preferences = {};
  program.preferences.ShotFolder = program.paths.ProgramFolder;
  program.archive.settings = {};
  program.archive.settings.MaxSavegame = kDefaultMaxSavegame;
}

// A file of which nobody can tell whether it is there must not count as missing: the defaults would
// be written over it.
bool HasPreferencesFile(Program& program) {
  const AttributesResult found = program.files.Attributes(program.paths.PreferencesPath);
  return found.error == FileError::kNone ? found.attributes.IsPlainFile()
                                         : found.error != FileError::kNotFound;
}

void ReadPreferences(Program& program, const std::string& named_archive) {
  TakeDefaults(program);
  if (!HasPreferencesFile(program)) {
    if (program.text.IsSubstitute()) {
      Tell(program, LoadMessage(kCodePageSubstitute, {program.text.CodePage()}),
           BoxIcon::kExclamation);
    }
    return;
  }
  program.archive.settings = {};
  ReadPreferencesFile(program);
  if (!named_archive.empty()) program.preferences.LastArchive = named_archive;
}

// Reads the archive that was in use last, as far as it can be read.
void ReadLastArchive(Program& program) {
  std::string& last = program.preferences.LastArchive;
  last = Trimmed(last);
  if (last.empty()) return;
  if (!FileExists(program.files, last)) {
    program.session.missing_archive = last;
    last.clear();
    return;
  }
  const ArchiveRead read = ReadArchiveFile(program.files, last);
  if (read.state == ArchiveReadState::kNotArchive) {
    Tell(program, LoadMessage(kArchiveRefused, {Quoted(last), LoadMessage(kReasonNotAnArchive)}),
         BoxIcon::kCritical);
    last.clear();
    return;
  }
  program.archive.settings = read.settings;
  program.archive.file_bytes = read.bytes;
  if (read.state == ArchiveReadState::kInPart) {
    program.archive.read_in_part = read.settings;
    Tell(program, LoadMessage(kArchiveNotReadWhole, {Quoted(last), ReasonFor(read.error)}),
         BoxIcon::kExclamation);
  }
}

void OfferImport(Program& program) {
  if (program.catalogue.EntryCount() == 0) return;

  const bool nothing_archived = program.catalogue.entries.front().FolderNumber == 0;
  if (nothing_archived || (HasNewSavegames(program.catalogue) &&
                           AskYesNo(program, LoadMessage(299, {kLineBreak, kLineBreak})))) {
    ImportSavegames(program);
  }
}

}  // namespace

void MainWindowLoaded(Program& program) {
  LoadCaptions(program.windows);
  StartUp(program);
  PlaySoundEffect(program, SoundEffect::kOpening);
}

void StartUp(Program& program) {
  FindDefaultShot(program);
  const std::string named_archive = ArgumentWithEnding(program, LoadMessage(288));
  ChoosePreferencesFile(program);
  ResetSharedState(program);
  PrepareBackupFolder(program);
  ReadPreferences(program, named_archive);
  ReadLastArchive(program);
  OfferBackupOfEndedRun(program);
  program.archive.ArchiveChanged = false;
  program.session.settings_read = true;
  TellWhatWasUntold(program);

  if (program.preferences.LastArchive.empty()) return;
  ScanArchive(program);
  OfferImport(program);
}

}  // namespace vellumark
