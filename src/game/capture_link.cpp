#include "game/capture_link.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "game/capture_picture.h"
#include "game/capture_slots.h"
#include "game/running_game.h"
#include "game/slot_contents.h"
#include "program.h"
#include "savegames/details.h"
#include "savegames/list_line.h"
#include "savegames/main_window_interface.h"
#include "savegames/notes.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

void Refuse(Program& program, int message) {
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(message), BoxIcon::kCritical);
}

class Linker {
 public:
  Linker(Program& program, std::string note)
      : program_(program),
        slot_(program.capture.SelectedSlot),
        folder_(Trimmed(program.archive.settings.GameFolder)),
        note_(std::move(note)),
        archived_(ExaminedEntry(program, slot_)) {}

  LinkAnswer Link() {
    WriteShots();
    if (!note_.empty()) WriteNotes();
    if (!program_.play.ExaminedInGameFolder) program_.capture.ShotLinkedNotImported = true;
    if (const auto index = archived_ ? archived_ : GameEntry()) Refresh(*index);
    TellFailures();
    TellWhatIsNotReached();
    if (note_failed_) return LinkAnswer::kNoteNotWritten;
    ActivateRunningGame(program_);
    return LinkAnswer::kLinked;
  }

 private:
  void WriteShots() {
    const std::string name = ShotFileName(slot_);
    const std::string path = InFolder(folder_, name);
    if (!SaveClipboardAsJpeg(program_, path)) {
      Tell(program_, LoadMessage(110) + path, BoxIcon::kCritical);
    }
    if (!archived_) return;

    const std::string archived = Entry(*archived_).ShotPath;
    FileError why = FileError::kNone;
    if (!SaveClipboardAsJpeg(program_, archived, &why)) failures_.push_back({archived, why});
    RememberPlaced(name, archived);
  }

  void WriteNotes() {
    const std::string name = NoteFileName(slot_);
    list_has_note_ = WriteNote(InFolder(folder_, name));
    if (!archived_) return;

    const std::string archived = Entry(*archived_).NotePath;
    list_has_note_ = WriteNote(archived);
    RememberPlaced(name, archived);
  }

  bool WriteNote(const std::string& path) {
    const FileError error = WriteNoteFile(program_.files, path, note_);
    if (error == FileError::kNone) return true;
    failures_.push_back({path, error});
    note_failed_ = true;
    return false;
  }

  // A file of the game folder that the archive holds byte for byte is no unsaved work of the
  // player: a later play or restore may clear it.
  void RememberPlaced(const std::string& name, const std::string& archived) {
    ReadResult in_game = program_.files.Read(InFolder(folder_, name), FileSystem::kWholeFile);
    const ReadResult in_archive = program_.files.Read(archived, FileSystem::kWholeFile);
    if (in_game.error != FileError::kNone || in_archive.error != FileError::kNone ||
        in_game.bytes != in_archive.bytes) {
      return;
    }
    auto& placed = program_.play.placed;
    const auto old = std::ranges::find(placed, name, &PlacedFile::name);
    if (old == placed.end()) {
      placed.push_back({name, std::move(in_game.bytes)});
    } else {
      old->bytes = std::move(in_game.bytes);
    }
  }

  // The entry that lists the slot itself. While a play has put the player's own slots aside, the
  // game folder's entries name the copies, and there is none.
  std::optional<int> GameEntry() const {
    const std::string path = InFolder(folder_, SavegameFileName(slot_));
    const auto& entries = program_.catalogue.entries;
    const auto found = std::ranges::find_if(entries, [&](const SavegameEntry& entry) {
      return SamePath(program_.text, entry.SavegamePath, path);
    });
    if (found == entries.end()) return std::nullopt;
    return static_cast<int>(found - entries.begin());
  }

  void Refresh(int index) {
    if (list_has_note_) Entry(index).NoteText = NoteToStore(note_);
    program_.main_window.ReplaceLine(index, FormatListLine(program_, index));
    SelectOnly(program_, index);
  }

  void TellFailures() {
    if (failures_.empty()) return;
    std::string text = LoadMessage(kChangesNotWritten) + DescribeFailures(failures_);
    if (note_failed_) text += kLineBreak + LoadMessage(kNoteStillShown);
    PlaySoundEffect(program_, SoundEffect::kRefusal);
    Tell(program_, text, BoxIcon::kExclamation);
  }

  // A slot beyond those that the play filled holds what the game has saved since, as its player
  // knows.
  void TellWhatIsNotReached() {
    if (archived_ || !program_.play.ExaminedInGameFolder) return;
    if (slot_ >= program_.play.ExaminedCount()) return;
    Tell(program_, LoadMessage(kLinkedInGameOnly, {slot_}), BoxIcon::kExclamation);
  }

  SavegameEntry& Entry(int index) {
    return program_.catalogue.entries[static_cast<std::size_t>(index)];
  }

  Program& program_;
  const int slot_;
  const std::string folder_;
  const std::string note_;             // stored form, without blanks around it
  const std::optional<int> archived_;  // the archived savegame that is in the slot
  std::vector<Failure> failures_;
  bool note_failed_ = false;
  bool list_has_note_ = true;  // the file of the savegame that the list shows holds the note
};

}  // namespace

LinkAnswer LinkCapture(Program& program, const TypedNote& note) {
  const CaptureState& capture = program.capture;
  if (capture.SelectedSlot == -1) {
    Refuse(program, 109);
    return LinkAnswer::kRefused;
  }
  // The dialog does not block the commands that change slots, nor the game.
  if (!ChosenSlotIsAsShown(program)) {
    Refuse(program, kSlotsChanged);
    ReadCaptureSlots(program);
    return LinkAnswer::kSlotsChanged;
  }
  if (!FileExists(program.files,
                  InFolder(capture.game_folder, SavegameFileName(capture.SelectedSlot)))) {
    Refuse(program, kSlotEmpty);
    return LinkAnswer::kRefused;
  }
  if (!CanBeStored(program, note)) return LinkAnswer::kNoteRefused;
  return Linker(program, Trimmed(note.stored)).Link();
}

}  // namespace vellumark
