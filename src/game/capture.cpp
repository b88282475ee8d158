#include "game/capture.h"

#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "game/running_game.h"
#include "program.h"

namespace vellumark {
namespace {

bool HasSlotsToLink(Program& program) {
  const ArchiveSettings& settings = program.archive.settings;
  const std::string folder = Trimmed(settings.GameFolder);
  return !folder.empty() && settings.MaxSavegame != 0 && FolderExists(program.files, folder);
}

// The picture is not kept: one that lay on the clipboard would be refused again at every tick.
void RefusePicture(Program& program) {
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(280), BoxIcon::kCritical);
  program.clipboard.Empty();
  program.capture.CaptureArmed = true;
}

// Any other window that has come to the front meanwhile gets no key that its user did not press.
void PressEnterInGame(Program& program) {
  std::string title = LoadMessage(330);
  const WindowHandle game = FindWindowByTitle(program, title, false);
  if (game != 0 && program.desktop.ActiveWindow() == game) program.desktop.PressEnter();
}

}  // namespace

void OnTimer(Program& program) {
  CaptureState& capture = program.capture;
  if (!capture.CaptureArmed || !program.preferences.AutoCapture || program.working) return;
  // A play or a start of the game arms the capture also under the open dialog, which keeps the
  // picture that it shows.
  if (capture.CaptureDialogOpen) return;

  ClipboardRead read = program.clipboard.ReadPicture();
  if (read.answer == ClipboardAnswer::kUnreadable) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    return Tell(program, LoadMessage(kClipboardUnreadable), BoxIcon::kExclamation);
  }
  if (read.answer != ClipboardAnswer::kPicture) return;
  capture.CaptureArmed = false;
  if (!HasSlotsToLink(program)) return RefusePicture(program);

  capture.picture = std::move(read.picture);
  PressEnterInGame(program);
  program.windows.ShowModeless(WindowId::kDialogCattura);
}

void EndCapture(Program& program) {
  CaptureState& capture = program.capture;
  capture.CaptureDialogOpen = false;
  capture.picture = nullptr;
  capture.typed_note.clear();
  program.clipboard.Empty();
  capture.CaptureArmed = true;
}

}  // namespace vellumark
