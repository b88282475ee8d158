#include "platform/common/wildcard.h"

#include <cstddef>

namespace vellumark {
namespace {

bool IsWildcard(char character) { return character == '*' || character == '?'; }

// Matches the one pattern character at `at` (never `*`) against the name from `*position` on and
// moves the position behind what it took.
bool TakeOne(std::string_view name, std::string_view pattern, std::size_t at,
             std::size_t* position) {
  const bool at_end = *position == name.size();
  const char wanted = pattern[at];

  if (wanted == '?') {
    if (!at_end && name[*position] != '.') ++*position;
    return true;
  }
  if (at_end) return wanted == '.' && at + 1 < pattern.size() && IsWildcard(pattern[at + 1]);

  if (name[*position] != wanted) return false;
  ++*position;
  return true;
}

}  // namespace

bool MatchesWildcard(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;

  // Only `*` can match in several ways. It is enough to let the last one grow: what stands
  // before it is best matched as early as possible.
  constexpr std::size_t kNoStar = std::string_view::npos;
  std::size_t after_star = kNoStar;
  std::size_t star_end = 0;
  std::size_t at = 0;
  std::size_t position = 0;

  while (at < pattern.size() || position < name.size()) {
    if (at < pattern.size() && pattern[at] == '*') {
      after_star = ++at;
      star_end = position;
      continue;
    }
    if (at < pattern.size() && TakeOne(name, pattern, at, &position)) {
      ++at;
      continue;
    }
    if (after_star == kNoStar || star_end == name.size()) return false;
    at = after_star;
    position = ++star_end;
  }
  return true;
}

}  // namespace vellumark
