// Which message is the caption of which control: the captions of all nine windows.
#ifndef VELLUMARK_FOUNDATION_CAPTION_MAP_H_
#define VELLUMARK_FOUNDATION_CAPTION_MAP_H_

#include <span>

namespace vellumark {

// In the order in which the windows get their captions.
enum class WindowId {
  kDialogCattura,
  kDialogCerca,
  kDialogGetDir,
  kDialogNote,
  kDialogPref,
  kDialogRiordina,
  kDialogSetNewArc,
  kDialogScreenShot,
  kDialogRescued,
  kPrincipale,
};

// The window's own name, for example Dialog_Cerca.
const char* NameOf(WindowId window);

struct Caption {
  const char* control;  // the control's object name; empty for the window's title
  int message;
  int tool_tip;  // 0: the control has none
};

std::span<const Caption> CaptionsOf(WindowId window);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_CAPTION_MAP_H_
