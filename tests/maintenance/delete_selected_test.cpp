#include "maintenance/delete_selected.h"

#include <gtest/gtest.h>

#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::OpenWorld;

class DeleteSelectedTest : public ::testing::Test, public OpenWorld {
 protected:
  DeleteSelectedTest() {
    for (const int slot : {0, 1, 2}) AddSavegame("Archive/Slot1", slot, "Tower", 1);
    AddSavegame("Game", 4, "Tower", 2);
    disk.Write("Archive/Slot1/note1.txt", "one\r\n");
    disk.Write("Archive/Slot1/shot1.jpg", "one");
    disk.Write("Archive/Slot1/note2.txt", "two\r\n");
    Rescan();
  }

  void Delete(std::vector<std::int16_t> lines, BoxAnswer answer = BoxAnswer::kYes) {
    program.selection.indices = std::move(lines);
    boxes.answers = {answer};
    DeleteSelectedSavegames(program);
  }
};

TEST_F(DeleteSelectedTest, DeletesWithNoteAndPictureAfterAskingAndScans) {
  // A capture selects another savegame while the question waits.
  boxes.while_waiting = [this] { program.selection.indices = {2}; };
  Delete({0, 1, 3});
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "note2.txt|savegame.2|");
  EXPECT_EQ(disk.Listed("Game"), "tomb4.exe|");
  EXPECT_EQ(boxes.AllTexts(), "Remove permanently3 selected savegames?\nRemoved 3 savegames\n");
  EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kYesNoFromNo);
  EXPECT_EQ(boxes.shown[0].icon, BoxIcon::kNone);
  EXPECT_TRUE(sounds.Take().starts_with("s6|"));
  EXPECT_EQ(program.catalogue.EntryCount(), 1);
  EXPECT_TRUE(program.archive.ArchiveChanged);
}

TEST_F(DeleteSelectedTest, DoesNothingWithoutASelectionOrAfterNo) {
  const auto before = disk.AllFiles();
  Delete({0, 1}, BoxAnswer::kNo);
  boxes.shown.clear();
  Delete({});
  EXPECT_EQ(TakeRefusal(), "No selected savegame");
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_FALSE(program.archive.ArchiveChanged);
}

TEST_F(DeleteSelectedTest, NamesWhatCannotBeDeletedAndListsItStill) {
  files.FailAlways("Delete", "savegame.1", FileError::kInUse);
  Delete({0, 1, 2});
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "savegame.1|");
  EXPECT_EQ(program.catalogue.EntryCount(), 2);
  ASSERT_EQ(boxes.shown.size(), 3U);
  EXPECT_EQ(boxes.shown[1].text, "Removed 3 savegames");
  EXPECT_TRUE(Contains(boxes.shown[2].text,
                       "\"t:\\archive\\slot1\\savegame.1\": another program is using it"));
}

TEST_F(DeleteSelectedTest, ARestoreNoLongerExpectsWhatIsDeletedFromTheBackup) {
  program.play.BackupFolder = "T:\\Game";
  program.play.backed_up = {"Savegame.4", "savegame.5"};
  Delete({3});
  EXPECT_EQ(program.play.backed_up, (std::vector<std::string>{"savegame.5"}));
}

}  // namespace
}  // namespace vellumark
