#include "game/rescued_savegames.h"

#include <gtest/gtest.h>

#include <functional>

#include "archive/scan.h"
#include "support/every_call.h"
#include "support/expectations.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::SavegameBytes;

// Two folders of what was set aside, one of them from before there were lists, in it a note
// without a savegame; and an archive with one sub-folder.
class RescuedWorld : public testing::OpenWorld {
 public:
  RescuedWorld() {
    AddSavegame("Archive/Slot1", 0, "Old", 1);
    AddSavegame("Game", 2, "Own", 9);
    AddSavegame("Program/rescued/2", 3, "North", 10);
    disk.Write("Program/rescued/2/note3.txt", "a note\r\n");
    disk.Write("Program/rescued/2/shot3.jpg", "a picture");
    disk.Write("Program/rescued/2/rescued.txt",
               "Set aside by somebody\r\nWhen: yesterday\r\nWhy: no room\r\n"
               "savegame.3 <- T:\\Game\\savegame.3\r\nedited\r\n");
    AddSavegame("Program/rescued/10/Slot7", 2, "South", 11);
    disk.Write("Program/rescued/10/note5.txt", "loose\r\n");
    disk.Write("Program/rescued/keep/savegame.0", "in no numbered folder");
    ScanArchive(program);
    before = disk.AllFiles();
    boxes.shown.clear();
    files.Reset();
  }

  std::vector<RescuedSavegame> All() {
    std::vector<RescuedSavegame> all;
    std::vector<Failure> failures;
    for (const RescuedFolder& folder : ListRescued(program, failures)) {
      all.insert(all.end(), folder.savegames.begin(), folder.savegames.end());
    }
    return all;
  }

  testing::Files before;
};

class RescuedTest : public ::testing::Test, public RescuedWorld {};

TEST_F(RescuedTest, ListsWhatLiesInTheNumberedFoldersAndWhatTheirListsSay) {
  std::vector<Failure> failures;
  const auto folders = ListRescued(program, failures);
  ASSERT_EQ(folders.size(), 3U);
  EXPECT_TRUE(failures.empty());
  EXPECT_EQ(folders[0].when, "yesterday");
  const RescuedSavegame& north = folders[0].savegames.at(0);
  EXPECT_EQ(north.entry.LevelName, "North");
  EXPECT_EQ(north.entry.NoteText, "a note");
  EXPECT_TRUE(north.has_shot);
  EXPECT_EQ(north.origin, "T:\\Game\\savegame.3");
  EXPECT_EQ(north.why, "no room");
  EXPECT_EQ(folders[1].loose, std::vector<std::string>{"T:\\Program\\rescued\\10\\note5.txt"});
  EXPECT_EQ(folders[2].savegames.at(0).entry.InternalCounter, 11);
  EXPECT_EQ(folders[2].savegames.at(0).origin, "");
}

TEST_F(RescuedTest, TheyBecomeTheNextSubfolderOfTheArchiveAndEmptiedFoldersGo) {
  ArchiveRescued(program, All());
  EXPECT_EQ(disk.Listed("Archive/Slot2"), "note3.txt|savegame.2|savegame.3|shot3.jpg|");
  EXPECT_EQ(disk.Read("Archive/Slot2/savegame.3"), before.at("Program/rescued/2/savegame.3"));
  EXPECT_TRUE(Contains(disk.Read("Archive/info.txt"), "SLOT2"));
  EXPECT_EQ(boxes.AllTexts(), "Savegames put into the archive: 2\n");
  EXPECT_EQ(disk.Listed("Program/rescued/10"), "note5.txt|");
  EXPECT_FALSE(disk.Exists("Program/rescued/2"));
  EXPECT_TRUE(program.archive.ArchiveChanged);

  AddSavegame("Program/rescued/1", 4, "Late", 30);
  disk.Remove({"Archive"});
  boxes.shown.clear();
  ArchiveRescued(program, All());
  EXPECT_TRUE(Contains(boxes.AllTexts(), "no archive to put savegames into"));
  EXPECT_TRUE(disk.Exists("Program/rescued/1/savegame.4"));
}

TEST_F(RescuedTest, OnlyFreeSlotsOfTheGameAreFilled) {
  PutRescuedIntoGame(program, All());
  EXPECT_EQ(disk.Read("Game/savegame.2"), before.at("Game/savegame.2"));
  EXPECT_EQ(disk.Read("Game/note3.txt"), "a note\r\n");
  EXPECT_TRUE(disk.Exists("Game/savegame.3"));
  EXPECT_FALSE(disk.Exists("Program/rescued/2"));
  EXPECT_TRUE(disk.Exists("Program/rescued/10/Slot7/savegame.2"));
  EXPECT_TRUE(Contains(boxes.AllTexts(), "put into folder \"T:\\Game\": 1"));
  EXPECT_TRUE(Contains(boxes.AllTexts(), "slot7\\savegame.2\": ") ||
              Contains(boxes.AllTexts(), "Slot7\\savegame.2\": "));
}

TEST_F(RescuedTest, DeletesOnlyAfterAYes) {
  disk.MakeReadOnly("Program/rescued/2/note3.txt");
  EXPECT_FALSE(DeleteRescuedFiles(program, FilesOf(All().at(0))));
  EXPECT_EQ(disk.AllFiles(), before);

  files.FailAlways("Delete", "shot3.jpg", FileError::kInUse);
  boxes.answers = {BoxAnswer::kYes};
  EXPECT_TRUE(DeleteRescuedFiles(program, FilesOf(All().at(0))));
  EXPECT_TRUE(Contains(boxes.shown.back().text, "\\2\\shot3.jpg\": ")) << boxes.AllTexts();
  EXPECT_FALSE(Contains(boxes.shown.back().text, "savegame.3"));
  files.Reset();
  boxes.answers = {BoxAnswer::kYes};
  EXPECT_TRUE(DeleteRescuedFiles(program, {"T:\\Program\\rescued\\2\\shot3.jpg"}));
  EXPECT_FALSE(disk.Exists("Program/rescued/2"));
}

TEST(RescuedSweep, WhateverFailsOrIsTheLastCallNothingIsLost) {
  const auto to_archive = [](RescuedWorld& world) { ArchiveRescued(world.program, world.All()); };
  const auto to_game = [](RescuedWorld& world) { PutRescuedIntoGame(world.program, world.All()); };
  const auto check = [](RescuedWorld& world) {
    world.before.erase("Program/rescued/2/rescued.txt");
    testing::ExpectNothingLost(world.before, world.disk);
  };
  for (const auto& run : {std::function<void(RescuedWorld&)>(to_archive), {to_game}}) {
    testing::FailEveryCall<RescuedWorld>(FileError::kDiskFull, run, check);
    testing::DieAtEveryCall<RescuedWorld>(run, check);
  }
}

}  // namespace
}  // namespace vellumark
