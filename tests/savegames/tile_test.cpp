#include "savegames/tile.h"

#include <gtest/gtest.h>

#include <string>

namespace vellumark {
namespace {

SavegameEntry Entry(const std::string& level, const std::string& note = "") {
  SavegameEntry entry;
  entry.LevelName = level;
  entry.NoteText = note;
  entry.InternalCounter = 7;
  entry.FolderNumber = 1;
  return entry;
}

std::string Lines(int count) {
  std::string note;
  for (int i = 1; i <= count; ++i) note += (i > 1 ? "\x8D\n" : "") + std::to_string(i);
  return note;
}

TEST(TileTest, ATipHasTheFirstTenLinesOfANote) {
  EXPECT_EQ(NoteInTip(Entry("A")), "");
  EXPECT_EQ(NoteInTip(Entry("A", "one")), "one");
  EXPECT_EQ(NoteInTip(Entry("A", Lines(10))).find("..."), std::string::npos);
  const std::string eleven = NoteInTip(Entry("A", Lines(11)));
  EXPECT_EQ(eleven, NoteInTip(Entry("A", Lines(10))) + " ...");
  // A line without an end has an end in the tip.
  const std::string endless = NoteInTip(Entry("A", std::string(50'000, 'n')));
  EXPECT_LT(endless.size(), 2000U);
  EXPECT_TRUE(endless.ends_with(" ..."));
}

TEST(TileTest, SpeaksOfEverythingThatATileShows) {
  SavegameEntry entry = Entry("Angkor ~1 Wat", "mind\x8D\nthe boars");
  EXPECT_EQ(SpokenTile(entry, true).substr(0, 44), "7, Angkor ~1 Wat, with screen-shot, note: mi");
  entry = Entry("");
  entry.FolderNumber = 0;
  entry.InternalCounter = -3;
  EXPECT_EQ(SpokenTile(entry, false),
            "-3, No level name, in the Tomb Raider folder, no screen-shot");
}

TEST(TileTest, LevelsStandWhereTheyChangeAndAreCountedWhereverTheyStand) {
  Catalogue catalogue;
  EXPECT_TRUE(LevelRuns(catalogue).empty());
  EXPECT_TRUE(LevelsOf(catalogue).empty());
  for (const char* level : {"A", "A", "B", "", "A", ""}) catalogue.entries.push_back(Entry(level));

  std::string runs;
  for (const LevelRun& run : LevelRuns(catalogue)) {
    runs += std::to_string(run.first) + "+" + std::to_string(run.count) + " ";
  }
  EXPECT_EQ(runs, "0+2 2+1 3+1 4+1 5+1 ");
  std::string levels;
  for (const Level& level : LevelsOf(catalogue)) {
    levels += level.heading + " " + std::to_string(level.first) + " " +
              std::to_string(level.count) + ", ";
  }
  EXPECT_EQ(levels, "A 0 3, B 2 1, No level name 3 2, ");
}

}  // namespace
}  // namespace vellumark
