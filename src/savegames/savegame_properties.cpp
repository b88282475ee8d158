#include "savegames/savegame_properties.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/number_reading.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "platform/file_dialogs.h"
#include "program.h"
#include "savegames/backup_list.h"
#include "savegames/details.h"
#include "savegames/list_line.h"
#include "savegames/main_window_interface.h"
#include "savegames/notes.h"
#include "savegames/savegame_header.h"
#include "savegames/shot_dialog_folder.h"

namespace vellumark {
namespace {

SavegameEntry& EntryAt(Program& program, int index) {
  return program.catalogue.entries[static_cast<std::size_t>(index)];
}

// A minus sign takes the place of the blank.
std::string WithSignPlace(int number) {
  return number < 0 ? std::to_string(number) : WithLeadingBlank(number);
}

// What is to become the screen-shot; nothing when the user does not want a file that is no picture.
// One that cannot be read fails when it is copied.
std::optional<std::string> ScreenShotFrom(Program& program, const ReadResult& chosen,
                                          const std::string& path, const PictureFormats& formats) {
  if (chosen.error != FileError::kNone) return std::string();
  auto jpeg = formats.as_jpeg(chosen.bytes);
  if (jpeg) return jpeg;
  const bool all_the_same =
      AskYesNo(program, LoadMessage(kNoPicture, {Quoted(path)}), BoxIcon::kExclamation);
  return all_the_same ? std::optional(chosen.bytes) : std::nullopt;
}

// A chosen file that has vanished must not cost the screen-shot that is linked.
bool CopyToScreenShot(Program& program, const std::string& chosen, const std::string& shot) {
  return program.files.Attributes(chosen).error == FileError::kNone &&
         CopyFileReplacing(program.files, chosen, shot);
}

bool ReplaceScreenShot(Program& program, const std::string& shot, const std::string& jpeg) {
  if (FileExists(program.files, shot)) program.files.ClearAttributes(shot);
  return ReplaceFile(program.files, shot, jpeg) == FileError::kNone;
}

// Puts a chosen file in the place of the savegame's screen-shot. False when nothing has changed; a
// failure was told.
bool LinkScreenShot(Program& program, int index, const std::string& chosen,
                    const PictureFormats& formats) {
  const std::string shot = EntryAt(program, index).ShotPath;
  const ReadResult read = program.files.Read(chosen, kMostPictureBytes + 1);
  if (read.bytes.size() > kMostPictureBytes) {
    Tell(program, LoadMessage(165, {chosen}) + shot + ": " + LoadMessage(kPictureFileTooLarge),
         BoxIcon::kCritical);
    return false;
  }
  const auto picture = ScreenShotFrom(program, read, chosen, formats);
  if (!picture) return false;
  // A picture that stays as it is is copied, with what the disk knows of it beside its bytes.
  const bool as_it_is = read.error != FileError::kNone || *picture == read.bytes;
  const bool done = as_it_is ? CopyToScreenShot(program, chosen, shot)
                             : ReplaceScreenShot(program, shot, *picture);
  if (done) return true;
  Tell(program, LoadMessage(165, {chosen}) + shot, BoxIcon::kCritical);
  return false;
}

// The list and the details show what a change has made of a savegame.
void ShowChanged(Program& program, int index) {
  program.main_window.ReplaceLine(index, FormatListLine(program, index));
  program.archive.ArchiveChanged = true;
  SelectOnly(program, index);
}

bool IsPossibleCounter(Program& program, std::optional<std::int64_t> counter) {
  if (!counter || FitsInt16(*counter)) return true;
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(kCounterOutOfRange), BoxIcon::kCritical);
  return false;
}

// Each of these changes one file and answers with the failure, which leaves both the file and the
// entry as they were.
using Failures = std::vector<Failure>;

// What the file holds beside the note that was shown goes before nothing that was typed: it is kept
// first. False when that failed.
bool KeepUnseen(Program& program, const SavegameChanges& changes, std::string_view bytes,
                std::string& story) {
  const std::string& path = EntryAt(program, changes.index).NotePath;
  const std::string note = DecodeNote(bytes);
  const bool goes_on = HoldsMoreThanANote(bytes);
  const bool foreign = !note.empty() && note != changes.shown_note && note != changes.note->stored;
  if (!foreign && !goes_on) return true;
  const auto backup = KeepBackupOf(program.files, path);
  if (!backup) return false;
  story = LoadMessage(foreign ? kUnseenNoteKept : kRestOfNoteKept, {Quoted(*backup)});
  return true;
}

// True when the file of a note that the user has not touched is to stay as it is: another program
// has changed it meanwhile, or it goes on after the note.
bool StaysAsItIs(const SavegameChanges& changes, const ReadResult& now, SavegameEntry& entry,
                 std::string& story) {
  if (now.error != FileError::kNone) return false;
  const std::string note = DecodeNote(now.bytes);
  if (note == changes.shown_note) return HoldsMoreThanANote(now.bytes);
  entry.NoteText = note;
  story = LoadMessage(kNoteChangedMeanwhile) + kLineBreak + BeginningForTextBox(note, 1000);
  return true;
}

bool StoreNote(Program& program, const SavegameChanges& changes, Failures& failures,
               std::string& story) {
  SavegameEntry& entry = EntryAt(program, changes.index);
  const ReadResult now = program.files.Read(entry.NotePath, FileSystem::kWholeFile);
  FileError error = now.error == FileError::kNotFound ? FileError::kNone : now.error;
  if (error == FileError::kNone) {
    if (!changes.note && StaysAsItIs(changes, now, entry, story)) return true;
    const std::string note = changes.note ? changes.note->stored : changes.shown_note;
    const bool safe = !changes.note || KeepUnseen(program, changes, now.bytes, story);
    error = safe ? WriteNoteFile(program.files, entry.NotePath, note) : FileError::kInputOutput;
    if (error == FileError::kNone) entry.NoteText = note;
  }
  if (error != FileError::kNone) failures.push_back({entry.NotePath, error});
  return error == FileError::kNone;
}

void RemoveScreenShot(Program& program, int index, Failures& failures) {
  const std::string shot = LinkedShot(program, index);
  if (shot.empty()) {
    Tell(program, LoadMessage(162));
    return;
  }
  FileError error = FileError::kNone;
  if (DeleteFileForced(program.files, shot, &error)) {
    ForgetBackedUp(program, shot);
  } else {
    failures.push_back({shot, error});
  }
}

void StoreCounter(Program& program, int index, std::int16_t counter, Failures& failures) {
  SavegameEntry& entry = EntryAt(program, index);
  if (counter == entry.InternalCounter) return;

  const FileError error = WriteInternalCounter(program.files, entry.SavegamePath, counter);
  if (error == FileError::kNone) {
    entry.InternalCounter = counter;
  } else {
    failures.push_back({entry.SavegamePath, error});
  }
}

void TellOutcome(Program& program, const Failures& failures, bool keeps_note,
                 const std::string& story) {
  if (!story.empty()) Tell(program, story, BoxIcon::kExclamation);
  if (failures.empty()) return;
  std::string text = LoadMessage(kChangesNotWritten) + DescribeFailures(failures);
  if (keeps_note) text += kLineBreak + LoadMessage(kNoteStillShown);
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, text, BoxIcon::kExclamation);
}

// Another program may have changed the note since the scan.
void ReadNoteAgain(Program& program, int index) {
  SavegameEntry& entry = EntryAt(program, index);
  const ReadResult now = program.files.Read(entry.NotePath, FileSystem::kWholeFile);
  if (now.error != FileError::kNone && now.error != FileError::kNotFound) return;
  std::string note = DecodeNote(now.bytes);
  if (note == entry.NoteText) return;
  entry.NoteText = std::move(note);
  program.main_window.ReplaceLine(index, FormatListLine(program, index));
  RefreshDetails(program);
}

}  // namespace

void ShowSavegameProperties(Program& program) {
  if (program.selection.Count() == 1) {
    program.windows.ShowModal(WindowId::kDialogNote);
    return;
  }
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(271), BoxIcon::kCritical);
}

SavegameProperties PrepareSavegameProperties(Program& program) {
  PlaySoundEffect(program, SoundEffect::kOpening);
  const int index = program.selection.indices.front();
  ReadNoteAgain(program, index);
  const SavegameEntry& entry = EntryAt(program, index);
  const std::string counter = WithSignPlace(entry.InternalCounter);
  return {.index = index,
          .note = entry.NoteText,
          .path = entry.SavegamePath,
          .level = counter + "  " + entry.LevelName,
          .counter = counter,
          .shot = LinkedShot(program, index)};
}

std::string LinkedShot(Program& program, int index) {
  const std::string& shot = EntryAt(program, index).ShotPath;
  return FileExists(program.files, shot) ? shot : std::string();
}

bool ChooseScreenShot(Program& program, int index, const PictureFormats& formats) {
  const auto chosen = program.file_dialogs.Open(
      {.title = LoadMessage(163),
       .filter = LoadMessage(164) + LoadMessage(kPicturesFilter, {formats.patterns}),
       .start_folder = ShotStartFolder(program)});
  return chosen && LinkScreenShot(program, index, *chosen, formats);
}

void LinkDroppedPicture(Program& program, int index, const std::string& chosen,
                        const PictureFormats& formats) {
  const std::string& savegame = EntryAt(program, index).SavegamePath;
  const std::string question = LoadMessage(kReplaceShot, {Quoted(savegame), Quoted(chosen)});
  if (!LinkedShot(program, index).empty() && !AskFromNo(program, question, BoxIcon::kExclamation)) {
    return;
  }
  if (!LinkScreenShot(program, index, chosen, formats)) return;
  ShowChanged(program, index);
}

ChangesAnswer ApplySavegameChanges(Program& program, const SavegameChanges& changes) {
  if (changes.note && !CanBeStored(program, *changes.note)) return ChangesAnswer::kRefused;
  const auto counter = ReadWholeNumber(changes.counter);
  if (!IsPossibleCounter(program, counter)) return ChangesAnswer::kRefused;

  Failures failures;
  std::string story;
  // Nothing else is done then: the user may still cancel.
  if (!StoreNote(program, changes, failures, story) && changes.note) {
    TellOutcome(program, failures, true, story);
    return ChangesAnswer::kNoteNotWritten;
  }
  if (changes.remove_shot) RemoveScreenShot(program, changes.index, failures);
  if (counter) {
    StoreCounter(program, changes.index, static_cast<std::int16_t>(*counter), failures);
  }

  ShowChanged(program, changes.index);
  TellOutcome(program, failures, false, story);
  return ChangesAnswer::kDone;
}

}  // namespace vellumark
