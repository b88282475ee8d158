// Sounds by Windows itself.
#ifndef VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SOUND_PLAYER_H_
#define VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SOUND_PLAYER_H_

#include "platform/sound_player.h"

namespace vellumark {

class WindowsSoundPlayer final : public SoundPlayer {
 public:
  void Play(const std::string& host_path) override;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SOUND_PLAYER_H_
