#include "platform/qt/qt_sound_player.h"

#include <utility>

namespace vellumark {

QtSoundPlayer::QtSoundPlayer(QString program_folder) : program_folder_(std::move(program_folder)) {}

void QtSoundPlayer::Play(const std::string& host_path) {
  if (!std::exchange(tried_, true)) {
    for (const char* place :
         {"/libvellumark_sound", "/../lib/vellumark/plugins/libvellumark_sound"}) {
      module_.setFileName(program_folder_ + QLatin1String(place));
      if (module_.load()) break;
    }
    play_ = reinterpret_cast<PlayFunction>(module_.resolve("VellumarkPlaySound"));
  }
  if (play_ != nullptr) play_(host_path.c_str());
}

}  // namespace vellumark
