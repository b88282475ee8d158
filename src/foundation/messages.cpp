#include "foundation/messages.h"

#include <algorithm>
#include <cassert>
#include <span>

#include "foundation/message_table.h"

namespace vellumark {
namespace {

std::string TextOf(int number) {
  const std::span<const TableMessage> table = number <= 331 ? MessageTable() : OwnMessageTable();
  const auto found = std::ranges::lower_bound(table, number, {}, &TableMessage::number);
  const bool exists = found != table.end() && found->number == number;
  assert(exists);
  return exists ? found->text : std::string();
}

}  // namespace

std::string LoadMessage(int number, std::initializer_list<MessageValue> values) {
  std::string text = TextOf(number);
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
