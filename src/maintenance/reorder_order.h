// The order of the new archive, and which savegames it holds already.
#ifndef VELLUMARK_MAINTENANCE_REORDER_ORDER_H_
#define VELLUMARK_MAINTENANCE_REORDER_ORDER_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vellumark {

struct CounterOrder {
  std::vector<std::size_t> indices;  // of the counters, so that these rise
  bool re_sorted = false;            // they did not rise before
};

// Sorts by exchanging each counter with every later one that is smaller. The order that this leaves
// among equal counters is part of the result; it is not that of a stable sort. At most 65536
// counters.
CounterOrder SortByCounter(const std::vector<std::int16_t>& counters);

// Catalogue indices of savegames by level name and counter.
class KnownSavegames {
 public:
  // Empty when none was added.
  std::optional<std::size_t> Find(const std::string& level, std::int16_t counter) const;
  void Add(const std::string& level, std::int16_t counter, std::size_t index);

 private:
  std::unordered_map<std::string, std::size_t> known_;
};

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_ORDER_H_
