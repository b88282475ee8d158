// Every text that the user sees goes through LoadMessage.
#ifndef VELLUMARK_FOUNDATION_MESSAGES_H_
#define VELLUMARK_FOUNDATION_MESSAGES_H_

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace vellumark {

// A value for a placeholder: a text as it is, or a number in plain decimal.
class MessageValue {
 public:
  MessageValue(std::string text) : text_(std::move(text)) {}   // NOLINT: meant to convert
  MessageValue(std::string_view text) : text_(text) {}         // NOLINT
  MessageValue(const char* text) : text_(text) {}              // NOLINT
  MessageValue(int number) : text_(std::to_string(number)) {}  // NOLINT

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// The text of a message with its placeholders filled. In the numbered table, value i goes to the
// first ~i of the text as it stands then, so a value that holds a later placeholder's characters
// takes that value in; in the program's other texts every value stays as it is. A placeholder
// without a value stays. The number must be one of the tables'.
std::string LoadMessage(int number, std::initializer_list<MessageValue> values = {});

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_MESSAGES_H_
