// The clipboard by Qt, and its pictures.
#ifndef VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_
#define VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_

#include <QImage>

#include "platform/clipboard.h"

namespace vellumark {

class QtPicture final : public Picture {
 public:
  // Of 100: a 4K screen-shot full of detail and noise keeps more than 35 dB, at a fraction of a
  // PNG's size.
  static constexpr int kJpegQuality = 92;

  explicit QtPicture(QImage image) : image_(std::move(image)) {}

  // What is transparent becomes black.
  std::optional<std::string> ToJpeg() const override;
  const QImage& Image() const { return image_; }

 private:
  QImage image_;
};

class QtClipboard final : public Clipboard {
 public:
  ClipboardRead ReadPicture() override;
  void Empty() override;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_
