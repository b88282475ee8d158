#include "maintenance/reorder_order.h"

namespace vellumark {
namespace {

constexpr std::uint32_t kIndexMask = 0xFFFF;

// The counter above its index in one word, so that an exchange moves both; the sign bit is turned
// over, so that unsigned words compare as the counters do.
std::uint32_t Packed(std::int16_t counter, std::size_t index) {
  const auto unsigned_counter = static_cast<std::uint16_t>(counter) ^ 0x8000U;
  return unsigned_counter << 16U | static_cast<std::uint32_t>(index);
}

bool HasGreaterCounter(std::uint32_t a, std::uint32_t b) { return a > (b | kIndexMask); }

std::string KeyOf(const std::string& level, std::int16_t counter) {
  return level + '\0' + std::to_string(counter);
}

}  // namespace

CounterOrder SortByCounter(const std::vector<std::int16_t>& counters) {
  std::vector<std::uint32_t> words;
  words.reserve(counters.size());
  for (const std::int16_t counter : counters) words.push_back(Packed(counter, words.size()));

  CounterOrder result;
  for (std::size_t i = 0; i < words.size(); ++i) {
    // Position i, held apart while the others are compared with it.
    std::uint32_t lowest = words[i];
    for (std::size_t j = i + 1; j < words.size(); ++j) {
      const std::uint32_t other = words[j];
      const bool exchange = HasGreaterCounter(lowest, other);
      words[j] = exchange ? lowest : other;
      lowest = exchange ? other : lowest;
    }
    if (lowest != words[i]) result.re_sorted = true;
    words[i] = lowest;
  }

  result.indices.reserve(words.size());
  for (const std::uint32_t word : words) result.indices.push_back(word & kIndexMask);
  return result;
}

bool KnownSavegames::Contains(const std::string& level, std::int16_t counter) const {
  return known_.contains(KeyOf(level, counter));
}

void KnownSavegames::Add(const std::string& level, std::int16_t counter) {
  known_.insert(KeyOf(level, counter));
}

}  // namespace vellumark
