#include "maintenance/delete_selected.h"

#include <gtest/gtest.h>

#include "archive/scan.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;

class DeleteSelectedTest : public ::testing::Test {
 protected:
  DeleteSelectedTest() {
    for (const int slot : {0, 1, 2}) world.AddSavegame("Archive/Slot1", slot, "Tower", 1);
    world.AddSavegame("Game", 4, "Tower", 2);
    world.disk.Write("Archive/Slot1/note1.txt", "one\r\n");
    world.disk.Write("Archive/Slot1/shot1.jpg", "one");
    world.disk.Write("Archive/Slot1/note2.txt", "two\r\n");
    program.archive.settings = {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
    program.preferences.SoundEffects = true;
    ScanArchive(program);
    program.archive.ArchiveChanged = false;
    world.boxes.shown.clear();
    world.sounds.played.clear();
  }

  void Delete(std::vector<std::int16_t> lines, BoxAnswer answer = BoxAnswer::kYes) {
    program.selection.indices = std::move(lines);
    world.boxes.answers = {answer};
    DeleteSelectedSavegames(program);
  }

  TestWorld world;
  Program program = world.NewProgram();
};

TEST_F(DeleteSelectedTest, DeletesWithNoteAndPictureAfterAskingAndScans) {
  // A capture selects another savegame while the question waits.
  world.boxes.while_waiting = [this] { program.selection.indices = {2}; };
  Delete({0, 1, 3});
  EXPECT_EQ(world.disk.Names("Archive/Slot1"),
            (std::vector<std::string>{"note2.txt", "savegame.2"}));
  EXPECT_EQ(world.disk.Names("Game"), (std::vector<std::string>{"tomb4.exe"}));
  ASSERT_EQ(world.boxes.shown.size(), 2U) << world.boxes.AllTexts();
  EXPECT_EQ(world.boxes.shown[0].text, "Remove permanently3 selected savegames?");
  EXPECT_EQ(world.boxes.shown[0].buttons, BoxButtons::kYesNo);
  EXPECT_EQ(world.boxes.shown[0].icon, BoxIcon::kNone);
  EXPECT_EQ(world.boxes.shown[1].text, "Removed 3 savegames");
  EXPECT_TRUE(world.sounds.played.front().ends_with("s6.wav"));
  EXPECT_EQ(program.catalogue.EntryCount(), 1);
  EXPECT_TRUE(program.archive.ArchiveChanged);
}

TEST_F(DeleteSelectedTest, DoesNothingWithoutASelectionOrAfterNo) {
  const auto before = world.disk.AllFiles();
  Delete({0, 1}, BoxAnswer::kNo);
  EXPECT_TRUE(world.sounds.played.empty());
  Delete({});
  EXPECT_EQ(world.boxes.shown.back().text, "No selected savegame");
  EXPECT_EQ(world.boxes.shown.back().icon, BoxIcon::kCritical);
  EXPECT_TRUE(world.sounds.played.back().ends_with("s5.wav"));
  EXPECT_EQ(world.disk.AllFiles(), before);
  EXPECT_FALSE(program.archive.ArchiveChanged);
}

TEST_F(DeleteSelectedTest, SkipsWhatIsMissingAndTakesWhatIsReadOnly) {
  std::filesystem::remove(world.disk.path() / "Archive/Slot1/savegame.1");
  world.disk.MakeReadOnly("Archive/Slot1/savegame.2");
  world.disk.MakeReadOnly("Archive/Slot1/note2.txt");
  Delete({1, 2});
  EXPECT_EQ(world.disk.Names("Archive/Slot1"), (std::vector<std::string>{"savegame.0"}));
  EXPECT_EQ(world.boxes.shown.back().text, "Removed 2 savegames");
}

TEST_F(DeleteSelectedTest, NamesWhatCannotBeDeletedAndListsItStill) {
  world.files.FailAlways("Delete", "savegame.1", FileError::kInUse);
  Delete({0, 1, 2});
  EXPECT_EQ(world.disk.Names("Archive/Slot1"), (std::vector<std::string>{"savegame.1"}));
  EXPECT_EQ(program.catalogue.EntryCount(), 2);
  ASSERT_EQ(world.boxes.shown.size(), 3U);
  EXPECT_EQ(world.boxes.shown[1].text, "Removed 3 savegames");
  EXPECT_NE(world.boxes.shown[2].text.find(
                "\"t:\\archive\\slot1\\savegame.1\": another program is using it"),
            std::string::npos)
      << world.boxes.shown[2].text;
}

TEST_F(DeleteSelectedTest, ARestoreNoLongerExpectsWhatIsDeletedFromTheBackup) {
  program.play.BackupFolder = "T:\\Game";
  program.play.backed_up = {"Savegame.4", "savegame.5"};
  Delete({3});
  EXPECT_EQ(program.play.backed_up, (std::vector<std::string>{"savegame.5"}));
}

}  // namespace
}  // namespace vellumark
