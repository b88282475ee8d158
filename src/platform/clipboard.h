// The clipboard: its picture, and a text of ours.
#ifndef VELLUMARK_PLATFORM_CLIPBOARD_H_
#define VELLUMARK_PLATFORM_CLIPBOARD_H_

#include <memory>
#include <optional>
#include <string>

namespace vellumark {

// A picture that was taken from the clipboard; it stays what it is when the clipboard changes.
class Picture {
 public:
  virtual ~Picture() = default;

  // The picture as the bytes of a JPEG file; nothing when it cannot be encoded.
  virtual std::optional<std::string> ToJpeg() const = 0;
};

enum class ClipboardAnswer {
  kNoPicture,
  kPicture,
  kBusy,        // not just now: it could not be opened, or a large picture is still being read
  kUnreadable,  // the picture is none that can be read; said once for each change of the clipboard
};

struct ClipboardRead {
  ClipboardAnswer answer = ClipboardAnswer::kNoPicture;
  std::shared_ptr<const Picture> picture{};  // set when answer is kPicture
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  // Takes the picture, in whichever picture format the clipboard offers. The conversion costs
  // time, so callers ask only when they want one.
  virtual ClipboardRead ReadPicture() = 0;

  // Empties the clipboard, whatever it holds.
  virtual void Empty() = 0;

  // Puts a text (UTF-8) in the place of whatever it holds.
  virtual void PutText(const std::string& text) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_CLIPBOARD_H_
