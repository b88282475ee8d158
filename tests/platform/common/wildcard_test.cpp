#include "platform/common/wildcard.h"

#include <gtest/gtest.h>

#include <vector>

namespace vellumark {
namespace {

TEST(WildcardTest, FindsTheNamesThatWindowsWouldFind) {
  struct Case {
    const char* pattern;
    std::vector<const char*> found;
    std::vector<const char*> missed;
  };
  const std::vector<Case> cases = {
      // A dot and a star at the end are nothing that a name must have.
      {"*.*", {"savegame.1", "notes"}, {}},
      {"tower.*", {"tower", "tower.vmk"}, {"towers"}},
      {"t*.*", {"tower.a.b"}, {}},
      // A question mark is one character at most, and no dot.
      {"savegame.?", {"savegame.7"}, {"savegame.12"}},
      {"savegame.??", {"savegame.7"}, {}},
      {"save??.x", {"save.x"}, {}},
      {"save?x", {}, {"save.x"}},
      {"s?ave.x", {}, {"sve.x"}},
      // A star grows as far as the rest needs.
      {"*", {"notes"}, {}},
      {"*.vmk", {"a.vmk.vmk"}, {"a.vmk.old"}},
      {"*ab?", {"xabcabd"}, {}},
      {"a*bc*d", {"abcbcd"}, {"abd"}},
      {"tower.vmk", {"tower.vmk"}, {"tower.vmk2", "tower.vm", "tower"}},
  };
  for (const auto& [pattern, found, missed] : cases) {
    for (const char* name : found) EXPECT_TRUE(MatchesWildcard(name, pattern)) << name << pattern;
    for (const char* name : missed) EXPECT_FALSE(MatchesWildcard(name, pattern)) << name << pattern;
  }
}

}  // namespace
}  // namespace vellumark
