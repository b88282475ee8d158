// Sounds by the module that stands beside the program or is installed with it.
#ifndef VELLUMARK_PLATFORM_QT_QT_SOUND_PLAYER_H_
#define VELLUMARK_PLATFORM_QT_QT_SOUND_PLAYER_H_

#include <QLibrary>

#include "platform/sound_player.h"

namespace vellumark {

// Loads the module with the first sound, so that a run without sound never pays for it. Without
// the module there is silence.
class QtSoundPlayer final : public SoundPlayer {
 public:
  // `program_folder` is the executable's, a host path.
  explicit QtSoundPlayer(QString program_folder);

  void Play(const std::string& host_path) override;

 private:
  using PlayFunction = void (*)(const char* path);

  QString program_folder_;
  QLibrary module_;
  PlayFunction play_ = nullptr;
  bool tried_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_SOUND_PLAYER_H_
