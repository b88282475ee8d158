// Short sound effects.
#ifndef VELLUMARK_PLATFORM_SOUND_PLAYER_H_
#define VELLUMARK_PLATFORM_SOUND_PLAYER_H_

#include <string>

namespace vellumark {

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;

  // Starts playing a WAV file, given as a host path (FileSystem::HostPath), and returns at once;
  // a sound that is still playing is cut off. A missing file, an unplayable one and a machine
  // without sound mean silence, never a message.
  virtual void Play(const std::string& host_path) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_SOUND_PLAYER_H_
