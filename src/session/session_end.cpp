#include "session/session_end.h"

#include <string>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/preferences_file.h"
#include "game/capture_rescue.h"
#include "game/own_slots_in_play.h"
#include "program.h"
#include "session/archive_commands.h"

namespace vellumark {
namespace {

std::string UntoldFile(const Program& program) {
  return program.paths.ProgramFolder + LoadMessage(kUntoldFile);
}

// What an earlier end has left there comes first.
std::string ReadUntold(Program& program) {
  constexpr std::size_t kMost = 65536;
  return program.files.Read(UntoldFile(program), kMost).bytes;
}

void WriteUntold(Program& program) {
  const std::string& untold = program.session.untold;
  if (!untold.empty()) {
    ReplaceFile(program.files, UntoldFile(program), ReadUntold(program) + untold);
  }
}

void TellLater(Program& program, const std::string& text) {
  if (!text.empty()) Tell(program, text, BoxIcon::kExclamation);
}

}  // namespace

void SaveForSessionEnd(Program& program) {
  if (!program.session.settings_read || program.session.ended) return;
  const bool was_ending = std::exchange(program.session.ending, true);
  UndoNewArchive(program);
  SaveArchiveIfChanged(program);
  WritePreferencesFile(program);
  program.session.ending = was_ending;
}

bool EndSession(Program& program) {
  SessionState& session = program.session;
  if (session.ended) return false;
  session.ending = true;
  SaveForSessionEnd(program);
  session.ended = true;
  TellLater(program, SetTypedNoteAside(program));
  if (program.capture.ShotLinkedNotImported) TellLater(program, LoadMessage(285, {kLineBreak}));
  if (program.play.ExaminedInGameFolder && !program.working) ReleaseBackup(program);
  WriteUntold(program);
  return true;
}

void TellWhatWasUntold(Program& program) {
  const std::string text = ReadUntold(program);
  if (text.empty()) return;
  Tell(program, LoadMessage(kUntold) + kLineBreak + kLineBreak + text, BoxIcon::kExclamation);
  if (!program.session.ending) DeleteFileForced(program.files, UntoldFile(program));
}

}  // namespace vellumark
