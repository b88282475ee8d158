#include "maintenance/reorder_order.h"

#include <algorithm>
#include <array>

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

constexpr std::size_t kPassesAtOnce = 4;

void ExchangeIfGreater(std::uint32_t& earlier, std::uint32_t& later) {
  const bool exchange = HasGreaterCounter(earlier, later);
  const std::uint32_t lower = exchange ? later : earlier;
  later = exchange ? earlier : later;
  earlier = lower;
}

// The passes that settle positions `first` and those behind it, in one sweep: each compares what
// the pass before it has left, as it would if they ran one after the other.
void RunPasses(std::vector<std::uint32_t>& words, std::size_t first) {
  std::array<std::uint32_t, kPassesAtOnce> settled = {};
  const std::size_t passes = std::min(kPassesAtOnce, words.size() - first);
  for (std::size_t pass = 0; pass < passes; ++pass) {
    settled[pass] = words[first + pass];
    for (std::size_t before = 0; before < pass; ++before) {
      ExchangeIfGreater(settled[before], settled[pass]);
    }
  }
  for (std::size_t j = first + passes; j < words.size(); ++j) {
    for (std::uint32_t& lowest : settled) ExchangeIfGreater(lowest, words[j]);
  }
  for (std::size_t pass = 0; pass < passes; ++pass) words[first + pass] = settled[pass];
}

std::string KeyOf(const std::string& level, std::int16_t counter) {
  return level + '\0' + std::to_string(counter);
}

}  // namespace

CounterOrder SortByCounter(const std::vector<std::int16_t>& counters) {
  std::vector<std::uint32_t> words;
  words.reserve(counters.size());
  for (const std::int16_t counter : counters) words.push_back(Packed(counter, words.size()));
  for (std::size_t first = 0; first < words.size(); first += kPassesAtOnce) {
    RunPasses(words, first);
  }

  CounterOrder result;
  result.re_sorted = !std::ranges::is_sorted(counters);
  result.indices.reserve(words.size());
  for (const std::uint32_t word : words) result.indices.push_back(word & kIndexMask);
  return result;
}

std::optional<std::size_t> KnownSavegames::Find(const std::string& level,
                                                std::int16_t counter) const {
  const auto found = known_.find(KeyOf(level, counter));
  return found == known_.end() ? std::nullopt : std::optional(found->second);
}

void KnownSavegames::Add(const std::string& level, std::int16_t counter, std::size_t index) {
  known_.emplace(KeyOf(level, counter), index);
}

}  // namespace vellumark
