#include "savegames/slot_listing.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "foundation/strings.h"

namespace vellumark {
namespace {

enum class SlotFileKind { kSavegame, kNote, kShot };

struct SlotFile {
  int number;
  SlotFileKind kind;
  const FolderEntry* entry;
};

// The number between a prefix and an ending, when it is written as slot numbers are.
std::optional<int> NumberIn(std::string_view name, std::string_view prefix,
                            std::string_view ending) {
  if (name.size() <= prefix.size() + ending.size()) return std::nullopt;
  const std::string_view digits =
      name.substr(prefix.size(), name.size() - prefix.size() - ending.size());
  if (digits.front() < '0' || digits.front() > '9') return std::nullopt;
  if (digits.front() == '0' && digits.size() > 1) return std::nullopt;
  int number = 0;
  const auto [end, error] = std::from_chars(digits.begin(), digits.end(), number);
  if (error != std::errc() || end != digits.end()) return std::nullopt;

  if (!EqualsIgnoringAsciiCase(name.substr(0, prefix.size()), prefix)) return std::nullopt;
  if (!EqualsIgnoringAsciiCase(name.substr(name.size() - ending.size()), ending)) {
    return std::nullopt;
  }
  return number;
}

std::optional<SlotFile> Recognise(const FolderEntry& entry) {
  static constexpr struct {
    std::string_view prefix;
    std::string_view ending;
    SlotFileKind kind;
  } kForms[] = {{"savegame.", "", SlotFileKind::kSavegame},
                {"note", ".txt", SlotFileKind::kNote},
                {"shot", ".jpg", SlotFileKind::kShot}};
  for (const auto& form : kForms) {
    if (const auto number = NumberIn(entry.name, form.prefix, form.ending)) {
      return SlotFile{*number, form.kind, &entry};
    }
  }
  return std::nullopt;
}

}  // namespace

SlotListing SlotsOf(const Listing& listing, int max_savegame) {
  SlotListing result;
  std::vector<SlotFile> found;
  found.reserve(listing.entries.size());
  for (const FolderEntry& entry : listing.entries) {
    if (!entry.plain) continue;
    const auto file = Recognise(entry);
    if (!file || file->number > max_savegame) continue;
    if (entry.ambiguous) {
      result.ambiguous.push_back(entry.name);
    } else {
      found.push_back(*file);
    }
  }
  std::ranges::sort(found, [](const SlotFile& a, const SlotFile& b) {
    return a.number != b.number ? a.number < b.number : a.kind < b.kind;
  });

  for (const SlotFile& file : found) {
    if (file.kind == SlotFileKind::kSavegame) {
      result.slots.push_back({file.number, file.entry, nullptr, nullptr});
    } else if (!result.slots.empty() && result.slots.back().number == file.number) {
      Slot& slot = result.slots.back();
      (file.kind == SlotFileKind::kNote ? slot.note : slot.shot) = file.entry;
    }
  }
  return result;
}

}  // namespace vellumark
