// Where the capture of screen-shots stands.
#ifndef VELLUMARK_GAME_CAPTURE_STATE_H_
#define VELLUMARK_GAME_CAPTURE_STATE_H_

namespace vellumark {

struct CaptureState {
  bool CaptureArmed = false;  // the timer reacts to a picture on the clipboard
  bool CaptureDialogOpen = false;
  bool ShotLinkedNotImported = false;  // a screen-shot was linked to a slot not yet archived
};

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_STATE_H_
