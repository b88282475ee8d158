// What the core asks of the windows as a whole.
#ifndef VELLUMARK_FOUNDATION_WINDOWS_INTERFACE_H_
#define VELLUMARK_FOUNDATION_WINDOWS_INTERFACE_H_

#include "foundation/caption_map.h"

namespace vellumark {

class Windows {
 public:
  virtual ~Windows() = default;

  // Sets a window's title, captions and tool tips from CaptionsOf. A dialog that is made only
  // when it is needed takes them then.
  virtual void SetCaptions(WindowId window) = 0;

  // Makes a modal dialog, prepares it from the program's state and shows it over the window that is
  // modal at that moment; returns when it has closed. What its OK did stands in the program's
  // state.
  virtual void ShowModal(WindowId dialog) = 0;

  // Makes a dialog that does not block the others, prepares it and shows it as a child of the
  // window that is modal at that moment, so that it takes input; nothing when it is open already.
  virtual void ShowModeless(WindowId dialog) = 0;

  // Closes a dialog and releases it; nothing when it is not open.
  virtual void CloseDialog(WindowId window) = 0;

  // Shows by the pointer whether an operation works without waiting for the user.
  virtual void ShowBusy(bool busy) = 0;

  // Lets the windows paint themselves while an operation works, and shows how far it is when that
  // has taken half a second; no input gets through. Cheap enough to be called for every savegame.
  virtual void ShowProgress(int done, int all) = 0;

  // True once the system has asked the program to end, also while an operation works.
  virtual bool SessionEnds() = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_WINDOWS_INTERFACE_H_
