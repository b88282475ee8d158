// The clipboard by Qt, and its pictures.
#ifndef VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_
#define VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_

#include <QImage>

#include "platform/clipboard.h"

namespace vellumark {

class QtPicture final : public Picture {
 public:
  explicit QtPicture(QImage image) : image_(std::move(image)) {}

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
