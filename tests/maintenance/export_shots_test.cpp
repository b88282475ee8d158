#include "maintenance/export_shots.h"

#include <gtest/gtest.h>

#include "maintenance/folder_chooser.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
// An archive whose savegames all have a screen-shot that tells its slot. T:\Shots is empty.
class ExportShotsTest : public ::testing::Test, public testing::OpenWorld {
 protected:
  ExportShotsTest() { disk.MakeFolder("Shots"); }

  void Add(const std::string& folder, int slot, const std::string& level, std::int16_t counter) {
    AddSavegame(folder, slot, level, counter);
    disk.Write(folder + "/shot" + std::to_string(slot) + ".jpg",
               folder + ' ' + std::to_string(slot));
  }

  void Export() {
    Rescan();
    ExportLinkedShots(program, "T:\\Shots");
  }
};

TEST_F(ExportShotsTest, NamesEachPictureByLevelAndCounterAndCountsEveryAttempt) {
  Add("Archive/Slot1", 0, "Tower", 3);
  Add("Archive/Slot1", 1, "Tower", -3);
  Add("Archive/Slot1", 2, "Tower", 3);
  Add("Game", 0, "Maze.", 1);
  AddSavegame("Game", 1, "Without", 2);
  disk.Write("Shots/tower_3.jpg", "an older one");
  Export();
  EXPECT_EQ(disk.Listed("Shots"), "Maze._1.jpg|Tower_-3.jpg|tower_3.jpg|");
  EXPECT_EQ(disk.Read("Shots/tower_3.jpg"), "Archive/Slot1 2") << "the later one stays";
  EXPECT_EQ(boxes.AllTexts(), "Copied 4 screenshots in folder\"T:\\Shots\"\n");
  EXPECT_EQ(boxes.shown[0].icon, BoxIcon::kNone);
  EXPECT_EQ(sounds.Take(), "s6|");
}

TEST_F(ExportShotsTest, ReplacesWhatAFileNameCannotHold) {
  Add("Archive/Slot1", 0, "What?", 1);
  Add("Archive/Slot1", 1, "What_", 1);
  Add("Archive/Slot1", 2, "What*", 1);
  Add("Archive/Slot1", 3, "a/b\\c:d\x01", 2);
  Add("Archive/Slot1", 4, "con.x", 3);
  Add("Archive/Slot1", 5, "..\\..\\up", 4);
  Export();
  EXPECT_EQ(
      disk.Listed("Shots"),
      ".._.._up_4.jpg|What__1 (2).jpg|What__1 (3).jpg|What__1.jpg|a_b_c_d__2.jpg|con_x_3.jpg|");
  EXPECT_EQ(disk.Read("Shots/What__1.jpg"), "Archive/Slot1 1") << "its name needs no change";
  EXPECT_EQ(disk.Read("Shots/What__1 (2).jpg"), "Archive/Slot1 0");
}

TEST_F(ExportShotsTest, ALinkedScreenShotIsNeverWrittenOver) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  Add("Archive/Slot1", 0, "Tower", 3);
  Add("Archive/Slot1", 1, "Maze", 4);
  disk.Write("Shots/Tower_3.jpg", "linked by Maze");
  disk.Remove({"Archive/Slot1/shot1.jpg"});
  std::filesystem::create_symlink(disk.path() / "Shots/Tower_3.jpg",
                                  disk.path() / "Archive/Slot1/shot1.jpg");
  Export();
  EXPECT_EQ(disk.Read("Archive/Slot1/shot1.jpg"), "linked by Maze");
  EXPECT_EQ(disk.Read("Shots/Tower_3 (2).jpg"), "Archive/Slot1 0");
  EXPECT_EQ(disk.Read("Shots/Maze_4.jpg"), "linked by Maze");
}

TEST_F(ExportShotsTest, FailuresCountAndAreNamedOnceAtTheEnd) {
  Add("Archive/Slot1", 0, "Tower", 3);
  Add("Archive/Slot1", 1, "Maze", 4);
  disk.MakeFolder("Shots/Tower_3.jpg");
  Export();
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_EQ(boxes.shown[0].text, "Copied 2 screenshots in folder\"T:\\Shots\"");
  EXPECT_TRUE(Contains(boxes.shown[1].text, "\\shot0.jpg\": "));
  EXPECT_TRUE(disk.Exists("Shots/Maze_4.jpg"));
}

TEST_F(ExportShotsTest, AScreenShotThatCannotBeLookedUpIsNamed) {
  Add("Archive/Slot1", 0, "Tower", 3);
  Add("Archive/Slot1", 1, "Maze", 4);
  Rescan();
  files.FailAlways("Attributes", "\\shot1.jpg", FileError::kNotReady);
  ExportLinkedShots(program, "T:\\Shots");
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(Contains(boxes.shown[1].text, "\\shot1.jpg\": "));
  EXPECT_TRUE(disk.Exists("Shots/Tower_3.jpg"));
}

TEST_F(ExportShotsTest, StopsAlsoWhereScreenShotsAreReplaced) {
  for (int slot = 0; slot < 3; ++slot) {
    Add("Archive/Slot1", slot, "Tower", static_cast<std::int16_t>(slot));
  }
  Export();
  for (int slot = 0; slot < 3; ++slot) {
    disk.Write("Shots/Tower_" + std::to_string(slot) + ".jpg", "old");
  }
  windows.ends_after_painting = windows.painted_busy + 2;
  Export();
  EXPECT_EQ(disk.Read("Shots/Tower_0.jpg"), "Archive/Slot1 0");
  EXPECT_EQ(disk.Read("Shots/Tower_1.jpg"), "old");
  EXPECT_EQ(disk.Read("Shots/Tower_2.jpg"), "old");
}

TEST_F(ExportShotsTest, TheChooserExportsIntoItsFolderAndKeepsItForTheNextTime) {
  Add("Archive/Slot1", 0, "Tower", 3);
  Rescan();
  windows.in_dialog = [this](WindowId dialog) {
    EXPECT_EQ(dialog, WindowId::kDialogGetDir);
    EXPECT_TRUE(TakeFolder(program, "T:\\Shots"));
  };
  ChooseExportFolder(program);
  EXPECT_TRUE(disk.Exists("Shots/Tower_3.jpg"));
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Shots");
}

}  // namespace
}  // namespace vellumark
