// Where the capture of screen-shots stands.
#ifndef VELLUMARK_GAME_CAPTURE_STATE_H_
#define VELLUMARK_GAME_CAPTURE_STATE_H_

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/clipboard.h"

namespace vellumark {

struct CaptureState {
  bool CaptureArmed = false;  // the timer reacts to a picture on the clipboard
  bool CaptureDialogOpen = false;
  bool ShotLinkedNotImported = false;  // a screen-shot was linked to a slot not yet archived

  // The capture dialog's own, from its opening on.
  std::shared_ptr<const Picture> picture{};  // what the timer took from the clipboard
  std::int16_t SelectedSlot = -1;            // the line that is chosen; -1 for none
  std::string SelectedLevelName{};
  std::string typed_note{};  // what the user has made of the note; empty while it is as shown
  std::int16_t SelectedCounter = 0;
  std::string game_folder{};              // whose slots the lines show
  std::vector<std::string> slot_lines{};  // as the dialog shows them; line k is slot k
  std::vector<std::string> slot_bytes{};  // what the slots held then; empty for an empty one
};

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_STATE_H_
