#include "platform/common/wildcard.h"

#include <gtest/gtest.h>

namespace vellumark {
namespace {

TEST(WildcardTest, StarDotStarFindsEveryName) {
  EXPECT_TRUE(MatchesWildcard("savegame.1", "*.*"));
  EXPECT_TRUE(MatchesWildcard("notes", "*.*"));
  EXPECT_TRUE(MatchesWildcard("notes", "*"));
}

TEST(WildcardTest, DotStarAtTheEndAlsoFindsTheNameWithoutExtension) {
  EXPECT_TRUE(MatchesWildcard("tower", "tower.*"));
  EXPECT_TRUE(MatchesWildcard("tower.vmk", "tower.*"));
  EXPECT_TRUE(MatchesWildcard("tower.a.b", "t*.*"));
  EXPECT_FALSE(MatchesWildcard("towers", "tower.*"));
  EXPECT_FALSE(MatchesWildcard("tower", "tower.vmk"));
}

TEST(WildcardTest, QuestionMarkTakesOneCharacterAtMostAndNoDot) {
  EXPECT_TRUE(MatchesWildcard("savegame.7", "savegame.?"));
  EXPECT_FALSE(MatchesWildcard("savegame.12", "savegame.?"));
  EXPECT_TRUE(MatchesWildcard("savegame.7", "savegame.??"));
  EXPECT_TRUE(MatchesWildcard("save.x", "save??.x"));
  EXPECT_FALSE(MatchesWildcard("save.x", "save?x"));
  EXPECT_FALSE(MatchesWildcard("sve.x", "s?ave.x"));
}

TEST(WildcardTest, AStarGrowsAsFarAsTheRestNeeds) {
  EXPECT_TRUE(MatchesWildcard("a.vmk.vmk", "*.vmk"));
  EXPECT_TRUE(MatchesWildcard("xabcabd", "*ab?"));
  EXPECT_TRUE(MatchesWildcard("abcbcd", "a*bc*d"));
  EXPECT_FALSE(MatchesWildcard("a.vmk.old", "*.vmk"));
  EXPECT_FALSE(MatchesWildcard("abd", "a*bc*d"));
}

TEST(WildcardTest, ANameWithoutWildcardsFindsOnlyItself) {
  EXPECT_TRUE(MatchesWildcard("tower.vmk", "tower.vmk"));
  EXPECT_FALSE(MatchesWildcard("tower.vmk2", "tower.vmk"));
  EXPECT_FALSE(MatchesWildcard("tower.vm", "tower.vmk"));
}

}  // namespace
}  // namespace vellumark
