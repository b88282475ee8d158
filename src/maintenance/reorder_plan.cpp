#include "maintenance/reorder_plan.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

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

class Planning {
 public:
  Planning(const Catalogue& catalogue, const ReorderSettings& settings)
      : catalogue_(catalogue), settings_(settings) {}

  ReorderPlan Plan() {
    std::vector<std::int16_t> counters;
    counters.reserve(catalogue_.entries.size());
    for (const SavegameEntry& entry : catalogue_.entries) counters.push_back(entry.InternalCounter);
    CounterOrder order = SortByCounter(counters);
    plan_.order = std::move(order.indices);
    plan_.re_sorted = order.re_sorted;
    plan_.fates.resize(catalogue_.entries.size());
    for (const std::size_t index : plan_.order) Place(index);
    return std::move(plan_);
  }

 private:
  void Place(std::size_t index) {
    const SavegameEntry& entry = catalogue_.entries[index];
    const bool archived = entry.FolderNumber != 0;
    SavegameFate& fate = plan_.fates[index];
    const std::pair key(entry.LevelName, entry.InternalCounter);
    if (const auto known = copied_.find(key); settings_.RemoveEquals && known != copied_.end()) {
      ++plan_.equals;
      if (!archived) return;
      fate = plan_.fates[known->second];
      fate.kind = SavegameFate::Kind::kDropped;
      fate.equal = known->second;
      return;
    }
    // The game's savegames are never copied, so none may be left out for one of them.
    if (!archived) return;
    if (NeedsNewFolder(entry.LevelName)) {
      ++plan_.folders;
      next_slot_ = 0;
    }
    fate = {SavegameFate::Kind::kCopied, plan_.folders, next_slot_++, index};
    last_level_ = entry.LevelName;
    copied_.emplace(key, index);
    ++plan_.copied;
  }

  bool NeedsNewFolder(const std::string& level) const {
    if (plan_.folders == 0) return true;
    if (settings_.KeepLevelsApart && level != last_level_) return true;
    if (next_slot_ > settings_.MaxSlot) return true;
    return settings_.MaxPerFolder > 0 && next_slot_ >= settings_.MaxPerFolder;
  }

  const Catalogue& catalogue_;
  const ReorderSettings& settings_;
  ReorderPlan plan_;
  int next_slot_ = 0;
  std::string last_level_;
  std::map<std::pair<std::string, std::int16_t>, std::size_t> copied_;
};

int RoundedQuotient(int number, int divisor) {
  const int quotient = number / divisor;
  const int rest = 2 * (number % divisor);
  const bool up = rest > divisor || (rest == divisor && quotient % 2 != 0);
  return up ? quotient + 1 : quotient;
}

}  // namespace

ReorderPlan PlanReorder(const Catalogue& catalogue, const ReorderSettings& settings) {
  return Planning(catalogue, settings).Plan();
}

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

int CopyingPercent(int position, int count, bool deletes_old) {
  const int percent = RoundedQuotient((position + 1) * 100, count);
  return deletes_old ? RoundedQuotient(percent, 2) : percent;
}

int DeletingPercent(int number, int count) {
  const int percent = number < count ? RoundedQuotient(number * 100, count) : 100;
  return RoundedQuotient(percent + 100, 2);
}

}  // namespace vellumark
