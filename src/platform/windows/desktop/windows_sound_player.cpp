#include "platform/windows/desktop/windows_sound_player.h"

#include <windows.h>
// Needs windows.h.
#include <mmsystem.h>

#include "platform/windows/wide_text.h"

namespace vellumark {

void WindowsSoundPlayer::Play(const std::string& host_path) {
  PlaySoundW(ToWide(host_path).c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
}

}  // namespace vellumark
