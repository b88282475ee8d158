#include "game/import.h"

#include <gtest/gtest.h>

#include "support/every_call.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::Files;
using testing::SavegameBytes;

TEST(HasNewSavegamesTest, ComparesWithTheLastArchivedSavegameOrTheFirstOfTheGame) {
  const auto has_new = [](const std::vector<std::pair<int, int>>& folders_and_counters) {
    Catalogue catalogue;
    for (const auto& [folder, counter] : folders_and_counters) {
      SavegameEntry& entry = catalogue.entries.emplace_back();
      entry.FolderNumber = static_cast<std::int16_t>(folder);
      entry.InternalCounter = static_cast<std::int16_t>(counter);
    }
    return HasNewSavegames(catalogue);
  };
  EXPECT_TRUE(has_new({{1, 120}, {0, 100}, {0, 121}}));
  EXPECT_FALSE(has_new({{1, 120}, {0, 100}, {0, 120}}));
  EXPECT_FALSE(has_new({{1, 1}, {1, 120}}));
  EXPECT_FALSE(has_new({{1, 7}, {0, -7}}));

  EXPECT_FALSE(has_new({}));
  EXPECT_FALSE(has_new({{0, 5}}));
  EXPECT_TRUE(has_new({{0, 5}, {0, 6}}));
  EXPECT_FALSE(has_new({{0, 5}, {0, 5}}));
}

// An archive of one savegame and a game folder of three, two of them new.
class ImportWorld : public testing::OpenWorld {
 public:
  ImportWorld() {
    AddSavegame("Archive/Slot1", 0, "Old", 10);
    AddSavegame("Game", 0, "Old", 10);
    AddSavegame("Game", 2, "Tower", 11);
    AddSavegame("Game", 5, "Tower", 12);
    disk.Write("Game/note2.txt", "two\r\n");
    disk.Write("Game/note3.txt", "three\r\n");
    disk.Write("Game/shot5.jpg", "picture five");
    Rescan();
  }
};

class ImportTest : public ::testing::Test, public ImportWorld {};

TEST_F(ImportTest, TakesEverySlotAndLeavesTheHighestAsTheFirst) {
  disk.Write("Archive/Slot2", "a file that keeps its number");
  AddSavegame("Game", 16, "Beyond the maximum", 13);
  program.archive.settings.MainFolder = "T:\\Archive\\";
  program.capture.ShotLinkedNotImported = true;
  const Files before = disk.AllFiles();
  ImportSavegames(program);

  const Files after = disk.AllFiles();
  for (const std::string name : {"savegame.0", "savegame.2", "savegame.5", "note2.txt"}) {
    EXPECT_EQ(after.at("Archive/Slot3/" + name), before.at("Game/" + name));
  }
  EXPECT_EQ(after.at("Archive/Slot3/shot5.jpg"), "picture five");
  EXPECT_EQ(disk.Names("Archive/Slot3").size(), 5U);
  EXPECT_EQ(disk.Listed("Game"), "note3.txt|savegame.0|savegame.16|tomb4.exe|");
  EXPECT_EQ(after.at("Game/savegame.0"), before.at("Game/savegame.5"));
  EXPECT_TRUE(after.at("Archive/info.txt").starts_with("T:\\ARCHIVE\\SLOT3\r\n"));

  EXPECT_EQ(boxes.AllTexts(), "Imported  3 savegames.\n");
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\Archive");
  EXPECT_EQ(program.catalogue.FolderCount, 3);
  EXPECT_FALSE(program.capture.ShotLinkedNotImported);
  EXPECT_TRUE(sounds.Take().starts_with("s6|"));
}

TEST_F(ImportTest, OfSlotZeroAloneTakesItsNoteAndPictureAway) {
  disk.Remove({"Game/savegame.2", "Game/savegame.5", "Game/note2.txt", "Game/shot5.jpg"});
  AddSavegame("Game", 0, "New", 30);
  disk.Write("Game/NOTE0.TXT", "zero\r\n");
  Rescan();
  ImportSavegames(program);
  EXPECT_EQ(disk.Listed("Game"), "note3.txt|savegame.0|tomb4.exe|");
  EXPECT_EQ(disk.Read("Archive/Slot2/note0.txt"), "zero\r\n");
}

TEST_F(ImportTest, RefusesWithoutChangingAnything) {
  const Files before = disk.AllFiles();
  const auto refusal = [this] {
    boxes.shown.clear();
    ImportSavegames(program);
    EXPECT_EQ(boxes.shown.size(), 1U);
    return boxes.AllTexts();
  };

  program.play.ExaminedInGameFolder = true;
  boxes.answers = {BoxAnswer::kNo};
  EXPECT_TRUE(refusal().starts_with("Warning: in tomb raider folder there are old examined"));
  program.play.ExaminedInGameFolder = false;

  program.archive.settings.GameFolder = "T:\\Nowhere";
  EXPECT_EQ(refusal(), "Mising tomb raider path [T:\\Nowhere\n");
  program.archive.settings.MainFolder = "T:\\Archive\\Slot1\\savegame.0";
  EXPECT_EQ(refusal(), "Missing main archive path \"T:\\Archive\\Slot1\\savegame.0\"\n");
  program.catalogue.entries.clear();
  EXPECT_EQ(refusal(), "There are no new savegame to archive in Tomb Raider folder\n");
  EXPECT_EQ(disk.AllFiles(), before);

  ImportCommand(program);
  EXPECT_TRUE(program.archive.ArchiveChanged);
}

TEST_F(ImportTest, OfAGameFolderThatHasBecomeEmptyLeavesTheNewFolder) {
  disk.Remove({"Game/savegame.0", "Game/savegame.2", "Game/savegame.5"});
  ImportSavegames(program);
  EXPECT_EQ(boxes.shown.back().text, "Warning there are no savegames in folder \"T:\\Game\"");
  EXPECT_EQ(boxes.shown.back().icon, BoxIcon::kCritical);
  EXPECT_EQ(disk.Listed("Archive/Slot2"), "");
}

TEST_F(ImportTest, AFailedCopyStaysInTheGameFolderAndIsNamed) {
  program.capture.ShotLinkedNotImported = true;
  files.FailAlways("Copy", "savegame.0", FileError::kDiskFull);
  ImportSavegames(program);
  EXPECT_EQ(disk.Listed("Game"), "note3.txt|savegame.0|savegame.5|tomb4.exe|");
  EXPECT_TRUE(program.capture.ShotLinkedNotImported);
  EXPECT_EQ(boxes.shown[0].text, "Imported  3 savegames.") << "failed copies count";
  const std::string& report = boxes.shown.back().text;
  EXPECT_TRUE(Contains(report, "\"T:\\Game\\savegame.0\": the disk is full"));
  EXPECT_TRUE(Contains(report, "is still savegame.5"));
}

TEST_F(ImportTest, ANoteNeverBecomesThatOfAnotherSavegame) {
  disk.Write("Game/note0.txt", "of slot 0\r\n");
  disk.MakeReadOnly("Game/note0.txt");
  ImportSavegames(program);
  EXPECT_EQ(disk.Listed("Game"), "note3.txt|savegame.0|tomb4.exe|") << "a read-only one goes too";

  disk.Write("Game/note0.txt", "of slot 0\r\n");
  AddSavegame("Game", 4, "Tower", 40);
  Rescan();
  files.FailAlways("Delete", "note0.txt", FileError::kInUse);
  ImportSavegames(program);
  EXPECT_EQ(disk.Listed("Game"), "note0.txt|note3.txt|savegame.4|tomb4.exe|");
  EXPECT_TRUE(Contains(boxes.shown.back().text, "is still savegame.4: the note or"));
}

TEST_F(ImportTest, ASlotWithANameThatStandsTwiceStaysAndIsNamed) {
  if (!testing::DiskTellsCaseApart()) GTEST_SKIP() << "no folder can hold such names";
  disk.Write("Game/SAVEGAME.2", "other");
  disk.Write("Game/Shot5.JPG", "other");
  ImportSavegames(program);
  EXPECT_EQ(disk.Names("Game").size(), 8U) << "all but savegame.0";
  const std::string& report = boxes.shown.back().text;
  EXPECT_TRUE(report.starts_with("Warning: not everything could be imported.")) << report;
  EXPECT_TRUE(Contains(report, "SAVEGAME.2\": the name exists twice"));
  EXPECT_FALSE(Contains(report, "could not be deleted")) << report;
}

TEST_F(ImportTest, ASavegameThatTheGameWritesMeanwhileIsNotDeleted) {
  const std::string newer = SavegameBytes("Tower", 13);
  files.meanwhile = [&](const std::string& operation) {
    if (operation == "Flush") disk.Write("Game/savegame.2", newer);
  };
  ImportSavegames(program);
  EXPECT_EQ(disk.Read("Game/savegame.2"), newer);
  EXPECT_TRUE(Contains(boxes.shown.back().text, "\"T:\\Game\\savegame.2\""));
}

TEST_F(ImportTest, NothingIsDeletedBeforeTheCopiesAreFlushed) {
  files.FailAlways("Flush", "", FileError::kInputOutput);
  ImportSavegames(program);
  EXPECT_EQ(disk.Names("Game").size(), 7U);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "nothing has been deleted"));
}

void Import(ImportWorld& world) { ImportSavegames(world.program); }

TEST_F(ImportTest, NoFailingCallLosesAnythingOrPassesInSilence) {
  const Files before = disk.AllFiles();
  const auto check = [&before](ImportWorld& world) {
    ExpectNothingLost(before, world.disk);
    const Files after = world.disk.AllFiles();
    if (after == before) return;  // refused before anything was touched
    // A savegame that is not where a whole import puts it is where the last message says.
    for (const std::string slot : {"savegame.0", "savegame.2", "savegame.5"}) {
      const auto archived = after.find("Archive/Slot2/" + slot);
      if (archived != after.end() && archived->second == before.at("Game/" + slot)) continue;
      EXPECT_TRUE(Contains(world.boxes.shown.back().text, "T:\\Game")) << slot;
      bool is_savegame = false;
      for (const auto& [name, bytes] : after) {
        is_savegame |= Contains(name, "savegame.") && bytes == before.at("Game/" + slot);
      }
      EXPECT_TRUE(is_savegame) << slot;
    }
  };
  for (const FileError error : {FileError::kDiskFull, FileError::kAccessDenied}) {
    testing::FailEveryCall<ImportWorld>(error, Import, check);
  }
}

TEST_F(ImportTest, DyingAtAnyCallLosesNothing) {
  const Files before = disk.AllFiles();
  testing::DieAtEveryCall<ImportWorld>(
      Import, [&](ImportWorld& world) { ExpectNothingLost(before, world.disk); });
}

}  // namespace
}  // namespace vellumark
