#include "game/capture_rescue.h"

#include "foundation/failures.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/strings.h"
#include "game/capture_picture.h"
#include "program.h"
#include "savegames/notes.h"

namespace vellumark {

std::string SetTypedNoteAside(Program& program) {
  const CaptureState& capture = program.capture;
  const std::string note = Trimmed(capture.typed_note);
  if (!capture.CaptureDialogOpen || note.empty()) return {};

  // Without a slot the names have no number.
  const std::string slot = capture.SelectedSlot < 0 ? "" : std::to_string(capture.SelectedSlot);
  Rescue rescue(program);
  FileError error = rescue.MakeFolder(kWhyNotLinked);
  const std::string folder =
      error == FileError::kNone ? rescue.folder() : rescue.failures().back().path;
  if (error == FileError::kNone) {
    error = WriteNoteFile(program.files, InFolder(folder, LoadMessage(306, {slot})), note);
  }
  if (error != FileError::kNone) {
    return LoadMessage(kTypedNoteNotKept, {Quoted(folder), ReasonFor(error)}) + kLineBreak +
           NoteForTextBox(note);
  }
  const std::string text = LoadMessage(kTypedNoteKept, {Quoted(folder)});
  const std::string shot = InFolder(folder, LoadMessage(307, {slot}));
  const bool saved = SaveClipboardAsJpeg(program, shot);
  return saved ? text : text + kLineBreak + LoadMessage(110) + shot;
}

}  // namespace vellumark
