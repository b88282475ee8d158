#include "savegames/copy_selected.h"

#include <gtest/gtest.h>

#include "support/open_world.h"
#include "support/test_drives.h"

namespace vellumark {
namespace {

using testing::OpenWorld;
using testing::SavegameBytes;

// Savegames in two sub-folders and a folder to copy them into; no catalogue.
class CopySavegamesTest : public ::testing::Test, public OpenWorld {
 protected:
  CopySavegamesTest() {
    AddWhole("Archive/Slot1", 2);
    AddWhole("Archive/Slot1", 5);
    AddWhole("Archive/Slot2", 5);
    disk.MakeFolder("Target");
  }

  void AddWhole(const std::string& folder, int slot) {
    const std::string number = std::to_string(slot);
    AddSavegame(folder, slot, folder, static_cast<std::int16_t>(slot));
    disk.Write(folder + "/note" + number + ".txt", "note of " + folder + number);
    disk.Write(folder + "/shot" + number + ".jpg", "shot of " + folder + number);
  }

  // In lower case, as the catalogue names them.
  static SavegameFiles Files(const std::string& folder, int slot) {
    const std::string number = std::to_string(slot);
    return {static_cast<std::int16_t>(slot), "t:\\" + folder + "\\savegame." + number,
            "t:\\" + folder + "\\note" + number + ".txt",
            "t:\\" + folder + "\\shot" + number + ".jpg"};
  }

  SelectedCopies Copy(const std::vector<SavegameFiles>& savegames, const std::string& folder,
                      bool renumber, CopyMode mode = CopyMode::kCopy) {
    return CopySavegames(program, savegames, "T:\\" + folder, renumber, mode);
  }

  void ExpectWhole(const std::string& folder, int slot, const std::string& old_folder,
                   int old_slot) {
    const std::string number = std::to_string(slot);
    const std::string place = old_folder + std::to_string(old_slot);
    const auto counter = static_cast<std::int16_t>(old_slot);
    EXPECT_EQ(disk.Read(folder + "/savegame." + number),
              SavegameBytes(old_folder, counter, old_slot));
    EXPECT_EQ(disk.Read(folder + "/note" + number + ".txt"), "note of " + place);
    EXPECT_EQ(disk.Read(folder + "/shot" + number + ".jpg"), "shot of " + place);
  }

  const SavegameFiles two = Files("archive\\slot1", 2);
  const SavegameFiles five = Files("archive\\slot1", 5);
  const SavegameFiles other_five = Files("archive\\slot2", 5);
};

// T:\Archive\Same leads to Slot1.
class LinkedFolderTest : public CopySavegamesTest {
 protected:
  void SetUp() override {
    if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
    std::filesystem::create_symlink("Slot1", disk.path() / "Archive/Same");
  }
};

TEST_F(CopySavegamesTest, NumbersThemInSelectionOrderOrKeepsTheirNumbers) {
  const auto before = disk.AllFiles();
  EXPECT_EQ(Copy({five, other_five, two}, "Target", true).targets.size(), 9U);
  ExpectWhole("Target", 0, "Archive/Slot1", 5);
  ExpectWhole("Target", 1, "Archive/Slot2", 5);
  ExpectWhole("Target", 2, "Archive/Slot1", 2);
  ExpectUntouched(before, disk);

  disk.Remove({"Archive/Slot1/note2.txt", "Archive/Slot1/shot2.jpg"});
  disk.Write("Kept/note2.txt", "an older note");
  Copy({two, five}, "Kept", false);
  EXPECT_EQ(disk.Listed("Kept"), "note2.txt|note5.txt|savegame.2|savegame.5|shot5.jpg|");
  EXPECT_EQ(disk.Read("Kept/note2.txt"), "an older note");
}

TEST_F(CopySavegamesTest, FillsTheFreeNumbersOfAFolderWithSavegames) {
  disk.Write("Target/SAVEGAME.1", "one");
  disk.Write("Target/savegame.bak", "a kept one");
  const SelectedCopies copies = Copy({two, five, other_five}, "Target", true);
  ExpectWhole("Target", 0, "Archive/Slot1", 2);
  ExpectWhole("Target", 2, "Archive/Slot1", 5);
  ExpectWhole("Target", 3, "Archive/Slot2", 5);
  EXPECT_EQ(disk.Read("Target/SAVEGAME.1"), "one");
  EXPECT_TRUE(copies.set_aside.empty());
}

TEST_F(CopySavegamesTest, WhatACopyReplacesIsSetAsideInOneFolder) {
  disk.Write("Target/savegame.2", "another savegame");
  disk.Write("Target/note2.txt", "another note");
  disk.Write("Target/shot5.jpg", disk.Read("Archive/Slot1/shot5.jpg"));
  const SelectedCopies copies = Copy({two, five}, "Target", false);
  EXPECT_EQ(copies.set_aside.size(), 2U) << "an equal file is no loss";
  EXPECT_EQ(copies.rescue_folder, "T:\\Program\\rescued\\1");
  EXPECT_EQ(disk.Read("Program/rescued/1/savegame.2"), "another savegame");
  EXPECT_EQ(disk.Read("Program/rescued/1/note2.txt"), "another note");
  ExpectWhole("Target", 2, "Archive/Slot1", 2);
  ExpectWhole("Target", 5, "Archive/Slot1", 5);
}

TEST_F(CopySavegamesTest, AMissingSavegameIsNamedAndTheNextTakesItsNumber) {
  disk.Remove({"Archive/Slot1/savegame.2", "Archive/Slot1/note5.txt"});
  disk.Write("Target/savegame.0", "zero");
  const SelectedCopies copies = Copy({two, five}, "Target", true);
  ASSERT_EQ(copies.not_copied.size(), 1U);
  EXPECT_EQ(copies.not_copied[0].path, two.savegame);
  EXPECT_EQ(copies.not_copied[0].why, FileError::kNotFound);
  EXPECT_EQ(disk.Listed("Target"), "savegame.0|savegame.1|shot1.jpg|")
      << "no note of another savegame";
}

TEST_F(CopySavegamesTest, AMoveFlushesOnceAndDeletesTheSources) {
  int flushes = 0;
  files.meanwhile = [&](const std::string& operation) { flushes += operation == "Flush" ? 1 : 0; };
  disk.MakeReadOnly("Archive/Slot1/savegame.5");
  const SelectedCopies copies = Copy({two, five, other_five}, "Target", true, CopyMode::kMove);
  EXPECT_EQ(flushes, 1);
  EXPECT_TRUE(copies.not_deleted.empty());
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "");
  EXPECT_EQ(disk.Listed("Archive/Slot2"), "");
  ExpectWhole("Target", 0, "Archive/Slot1", 2);
  ExpectWhole("Target", 2, "Archive/Slot2", 5);
}

TEST_F(LinkedFolderTest, AMoveIntoASourceFolderReusesTheNumbersThatItFrees) {
  AddWhole("Archive/Slot1", 0);
  const SavegameFiles zero = Files("archive\\slot1", 0);
  Copy({zero, other_five, five}, "Archive\\Same", true, CopyMode::kMove);
  // 0 goes to 1 and frees 0 for the foreign 5; 2 stays; 5 takes 3.
  ExpectWhole("Archive/Slot1", 1, "Archive/Slot1", 0);
  ExpectWhole("Archive/Slot1", 0, "Archive/Slot2", 5);
  ExpectWhole("Archive/Slot1", 2, "Archive/Slot1", 2);
  ExpectWhole("Archive/Slot1", 3, "Archive/Slot1", 5);
  EXPECT_EQ(disk.Names("Archive/Slot1").size(), 12U);
  EXPECT_EQ(disk.Listed("Archive/Slot2"), "");
}

TEST_F(LinkedFolderTest, AMoveOntoItselfChangesNothing) {
  const auto before = disk.AllFiles();
  for (const char* folder : {"Archive\\Slot1", "archive\\SLOT1", "Archive\\Same"}) {
    const SelectedCopies copies = Copy({two, five}, folder, false, CopyMode::kMove);
    EXPECT_TRUE(copies.not_copied.empty() && copies.not_deleted.empty());
    EXPECT_EQ(disk.AllFiles(), before);
  }
}

TEST_F(CopySavegamesTest, AMoveBehindALinkKeepsTheOnlyFile) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  const std::string saved = disk / "Archive/Slot1/savegame.";
  std::filesystem::create_hard_link(saved + '2', disk / "Target/savegame.2");
  disk.MakeFolder("Links");
  std::filesystem::create_symlink(saved + '5', disk / "Links/savegame.5");
  Copy({two, Files("links", 5)}, "Target", false, CopyMode::kMove);
  EXPECT_EQ(disk.Read("Target/savegame.2"), SavegameBytes("Archive/Slot1", 2, 2));
  ExpectWhole("Archive/Slot1", 5, "Archive/Slot1", 5);

  std::filesystem::create_symlink(saved + '5', disk / "Links/savegame.5");
  Copy({five}, "Links", false, CopyMode::kMove);
  EXPECT_EQ(disk.Read("Links/savegame.5"), SavegameBytes("Archive/Slot1", 5, 5));
}

TEST_F(LinkedFolderTest, ASavegameThatIsListedTwiceIsMovedOnce) {
  const SavegameFiles again = Files("archive\\same", 2);
  const SelectedCopies copies = Copy({two, again, two}, "Target", true, CopyMode::kMove);
  EXPECT_TRUE(copies.not_copied.empty() && copies.not_deleted.empty());
  ExpectWhole("Target", 0, "Archive/Slot1", 2);
  EXPECT_EQ(disk.Names("Target").size(), 3U);
}

TEST_F(CopySavegamesTest, TheCopyOfAnotherIsNotTakenForAMissingSavegame) {
  disk.Remove({"Archive/Slot1/savegame.2"});
  disk.Write("Archive/Slot1/savegame.0", "zero");
  disk.Write("Archive/Slot1/savegame.1", "one");
  const SelectedCopies copies = Copy({other_five, two}, "Archive\\Slot1", true, CopyMode::kMove);
  ExpectWhole("Archive/Slot1", 2, "Archive/Slot2", 5);
  ASSERT_EQ(copies.not_copied.size(), 1U);
  EXPECT_EQ(copies.not_copied[0].path, two.savegame);
  EXPECT_EQ(disk.Read("Program/rescued/1/note2.txt"), "note of Archive/Slot12");
}

TEST_F(CopySavegamesTest, WhatChangesDuringAMoveIsNotDeleted) {
  files.meanwhile = [&](const std::string& operation) {
    if (operation == "Flush") disk.Write("Archive/Slot1/note2.txt", "a newer note");
  };
  const SelectedCopies copies = Copy({two, five}, "Target", false, CopyMode::kMove);
  EXPECT_EQ(copies.not_deleted.size(), 3U);
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "note2.txt|savegame.2|shot2.jpg|");
}

TEST_F(CopySavegamesTest, NothingIsDeletedWhenTheDiskDoesNotConfirm) {
  files.FailAlways("Flush", "", FileError::kInputOutput);
  EXPECT_EQ(Copy({two, five}, "Target", false, CopyMode::kMove).not_deleted.size(), 6U);
  ExpectWhole("Archive/Slot1", 2, "Archive/Slot1", 2);
  EXPECT_EQ(Copy({two}, "Archive\\Slot1", true, CopyMode::kMove).not_deleted.size(), 3U);
  ExpectWhole("Archive/Slot1", 2, "Archive/Slot1", 2);
}

TEST_F(CopySavegamesTest, AMoveOutOfTheBackupFolderIsRemembered) {
  program.play.BackupFolder = "T:\\Archive\\Slot1";
  program.play.backed_up = {"savegame.2", "NOTE2.TXT", "savegame.5"};
  Copy({two}, "Target", false, CopyMode::kMove);
  EXPECT_EQ(program.play.backed_up, (std::vector<std::string>{"savegame.5"}));
}

}  // namespace
}  // namespace vellumark
