// Message boxes by Qt.
#ifndef VELLUMARK_PLATFORM_QT_QT_MESSAGE_BOXES_H_
#define VELLUMARK_PLATFORM_QT_QT_MESSAGE_BOXES_H_

#include <QString>

#include "platform/message_boxes.h"
#include "platform/text.h"

namespace vellumark {

class QtMessageBoxes final : public MessageBoxes {
 public:
  explicit QtMessageBoxes(const Text& text) : text_(text) {}

  BoxAnswer Show(const std::string& text, BoxButtons buttons, BoxIcon icon) override;
  void ShowNames(const std::string& text, const std::vector<std::string>& lines,
                 BoxIcon icon) override;

 private:
  BoxAnswer ShowText(const QString& text, BoxButtons buttons, BoxIcon icon);

  const Text& text_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_MESSAGE_BOXES_H_
