// The clipboard by Qt, and its pictures.
#ifndef VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_
#define VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_

#include <QImage>
#include <QObject>
#include <QStringList>
#include <future>
#include <optional>
#include <string>

#include "platform/clipboard.h"

namespace vellumark {

// A picture whose JPEG file is being made on another thread from the first.
class QtPicture final : public Picture {
 public:
  // Takes long for a very large one.
  explicit QtPicture(const QImage& image);

  std::optional<std::string> ToJpeg() const override;

  // The picture, not larger than a large screen.
  const QImage& Preview() const { return preview_; }

 private:
  QImage preview_;
  std::shared_future<std::optional<std::string>> jpeg_;
};

class QtClipboard final : public QObject, public Clipboard {
  Q_OBJECT

 public:
  QtClipboard();

  // Decodes on another thread, for which it waits a fifth of a second at most: kBusy then.
  ClipboardRead ReadPicture() override;
  void Empty() override;
  void PutText(const std::string& text) override;

 private:
  using Decoded = std::shared_ptr<const QtPicture>;  // null: no picture that can be read

  void Forget();
  void Begin();
  bool BeginNext();
  void BeginDecoding(const QByteArray& bytes);

  // Of what is on the clipboard now.
  bool begun_ = false;    // `decoding_` stands for it
  bool refused_ = false;  // it was said to be unreadable
  int attempts_ = 0;
  QStringList formats_;  // those still to be tried
  std::shared_future<Decoded> decoding_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_CLIPBOARD_H_
