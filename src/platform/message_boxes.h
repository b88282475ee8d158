// Message boxes: how the program talks to the user.
#ifndef VELLUMARK_PLATFORM_MESSAGE_BOXES_H_
#define VELLUMARK_PLATFORM_MESSAGE_BOXES_H_

#include <string>
#include <vector>

namespace vellumark {

enum class BoxButtons {
  kOk,
  kOkCancel,
  kYesNo,
  kYesNoFromNo,   // Yes and No, No being the default
  kYesNoBothAct,  // Yes and No, each of which does something: there is no other way out
};
enum class BoxIcon { kNone, kCritical, kExclamation };
enum class BoxAnswer { kOk, kCancel, kYes, kNo };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  // Shows `text` (code page; carriage return, line feed or both break the line) over the window
  // that is modal at that moment and waits for the answer; the program's name is the title and
  // the first button the default, unless `buttons` says otherwise. The program's timer and events
  // run meanwhile. Closing the box or Escape answers kOk, kCancel or kNo, and of kYesNoBothAct it
  // does nothing.
  virtual BoxAnswer Show(const std::string& text, BoxButtons buttons, BoxIcon icon) = 0;

  // Shows a text with an OK button, and below it lines that the code page may not hold (UTF-8).
  virtual void ShowNames(const std::string& text, const std::vector<std::string>& lines,
                         BoxIcon icon) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_MESSAGE_BOXES_H_
