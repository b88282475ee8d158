#include "platform/qt/qt_sound_player.h"

#include <utility>

namespace vellumark {

QtSoundPlayer::QtSoundPlayer(const QString& program_folder)
    : module_(program_folder + QStringLiteral("/libvellumark_sound")) {}

void QtSoundPlayer::Play(const std::string& host_path) {
  if (!std::exchange(tried_, true)) {
    play_ = reinterpret_cast<PlayFunction>(module_.resolve("VellumarkPlaySound"));
  }
  if (play_ != nullptr) play_(host_path.c_str());
}

}  // namespace vellumark
