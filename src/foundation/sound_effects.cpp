#include "foundation/sound_effects.h"

#include "foundation/companion_files.h"
#include "foundation/messages.h"
#include "platform/file_system.h"
#include "platform/sound_player.h"
#include "program.h"

namespace vellumark {

void PlaySoundEffect(Program& program, SoundEffect sound) {
  if (!program.preferences.SoundEffects) return;

  const std::string file = LoadMessage(292 + static_cast<int>(sound));
  program.sounds.Play(
      program.files.HostPath(CompanionFile(program.files, program.paths, "\\" + file)));
}

}  // namespace vellumark
