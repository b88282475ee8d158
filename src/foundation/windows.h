// What the core asks of the windows as a whole.
#ifndef VELLUMARK_FOUNDATION_WINDOWS_H_
#define VELLUMARK_FOUNDATION_WINDOWS_H_

#include "foundation/caption_map.h"

namespace vellumark {

class Windows {
 public:
  virtual ~Windows() = default;

  // Sets a window's title, captions and tool tips from CaptionsOf. A dialog that is made only
  // when it is needed takes them then.
  virtual void SetCaptions(WindowId window) = 0;

  // Closes a dialog and releases it; nothing when it is not open.
  virtual void CloseDialog(WindowId window) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_WINDOWS_H_
