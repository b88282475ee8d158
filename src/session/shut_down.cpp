#include "session/shut_down.h"

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/preferences_file.h"
#include "foundation/sound_effects.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "game/capture_rescue.h"
#include "game/own_slots_in_play.h"
#include "game/restore.h"
#include "program.h"
#include "session/archive_commands.h"
#include "session/session_end.h"

namespace vellumark {

void MainWindowClosing(Program& program) {
  ShutDown(program);
  for (const WindowId dialog :
       {WindowId::kDialogCattura, WindowId::kDialogCerca, WindowId::kDialogGetDir,
        WindowId::kDialogNote, WindowId::kDialogPref, WindowId::kDialogRiordina,
        WindowId::kDialogScreenShot, WindowId::kDialogSetNewArc, WindowId::kDialogRescued}) {
    program.windows.CloseDialog(dialog);
  }
  if (IsEnding(program)) EndSession(program);
  program.session.ended = true;
}

void ShutDown(Program& program) {
  if (program.details.ViewerOpen) program.windows.CloseDialog(WindowId::kDialogScreenShot);
  const std::string kept_note = SetTypedNoteAside(program);
  if (program.capture.CaptureDialogOpen) program.windows.CloseDialog(WindowId::kDialogCattura);
  SaveArchiveIfChanged(program);
  WritePreferencesFile(program);
  RestoreOriginalSavegames(program);
  if (program.capture.ShotLinkedNotImported) {
    PlaySoundEffect(program, SoundEffect::kNotice);
    Tell(program, LoadMessage(285, {kCarriageReturn}), BoxIcon::kExclamation);
  }
  if (program.play.ExaminedInGameFolder) ReleaseBackup(program);
  if (!kept_note.empty()) Tell(program, kept_note, BoxIcon::kExclamation);
}

}  // namespace vellumark
