#include "game/start_question.h"

#include "archive/trusted_programs.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "game/executable_kind.h"
#include "platform/file_system.h"
#include "program.h"

namespace vellumark {

bool MayStartProgram(Program& program, const std::string& path) {
  // A path that leads on from the current folder is another program in each.
  const auto whole = program.files.FromHostPath(program.files.HostPath(path));
  const std::string executable = whole && !whole->empty() ? *whole : path;
  if (IsTrustedProgram(program, executable)) return true;

  const std::string archive = Trimmed(program.preferences.LastArchive);
  std::string question = LoadMessage(kStartUnknownProgram, {Quoted(archive), Quoted(executable)});
  if (ReadProgramKind(program.files, executable) == ProgramKind::kForeign) {
    question += std::string(kLineBreak) + kLineBreak + LoadMessage(kProgramIsForeign);
  }
  question += std::string(kLineBreak) + kLineBreak + LoadMessage(kStartItAllTheSame);
  PlaySoundEffect(program, SoundEffect::kOpening);
  if (!AskFromNo(program, question, BoxIcon::kExclamation)) return false;
  TrustProgram(program, executable);
  return true;
}

}  // namespace vellumark
