#include "foundation/messages.h"

#include <algorithm>
#include <cassert>
#include <span>

#include "foundation/message_table.h"

namespace vellumark {
namespace {

constexpr int kLastOfTable = 331;

std::string TextOf(int number) {
  const std::span<const TableMessage> table =
      number <= kLastOfTable ? MessageTable() : OwnMessageTable();
  const auto found = std::ranges::lower_bound(table, number, {}, &TableMessage::number);
  const bool exists = found != table.end() && found->number == number;
  assert(exists);
  return exists ? found->text : std::string();
}

// Fills all placeholders at once: a path such as C:\PROGRA~2 stays as it is.
std::string FilledAtOnce(std::string_view text, std::initializer_list<MessageValue> values) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char digit = text[i] == '~' && i + 1 < text.size() ? text[i + 1] : '0';
    const auto index = static_cast<std::size_t>(digit - '1');
    if (index < values.size()) {
      filled += values.begin()[index].text();
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace

std::string LoadMessage(int number, std::initializer_list<MessageValue> values) {
  std::string text = TextOf(number);
  if (number > kLastOfTable) return FilledAtOnce(text, values);

  int index = 0;
  for (const MessageValue& value : values) {
    const std::string placeholder = std::string("~").append(std::to_string(++index));
    if (const auto at = text.find(placeholder); at != std::string::npos) {
      text.replace(at, placeholder.size(), value.text());
    }
  }
  return text;
}

}  // namespace vellumark
