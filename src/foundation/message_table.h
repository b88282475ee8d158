// The two tables of texts that the program shows or builds file names from.
#ifndef VELLUMARK_FOUNDATION_MESSAGE_TABLE_H_
#define VELLUMARK_FOUNDATION_MESSAGE_TABLE_H_

#include <span>

namespace vellumark {

struct TableMessage {
  int number;
  const char* text;  // ASCII, with placeholders ~1, ~2, ...
};

// The messages 101 to 331, by rising number. This table is closed.
std::span<const TableMessage> MessageTable();

// The messages from 401 on, by rising number: what the closed table has no words for. Each has a
// name in own_messages.h.
std::span<const TableMessage> OwnMessageTable();

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_MESSAGE_TABLE_H_
