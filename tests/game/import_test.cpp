#include "game/import.h"

#include <gtest/gtest.h>

#include <set>

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "support/host_paths.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::Killed;
using testing::SavegameBytes;
using testing::TestWorld;

Catalogue CatalogueOf(const std::vector<std::pair<int, int>>& folders_and_counters) {
  Catalogue catalogue;
  for (const auto& [folder, counter] : folders_and_counters) {
    SavegameEntry& entry = catalogue.entries.emplace_back();
    entry.FolderNumber = static_cast<std::int16_t>(folder);
    entry.InternalCounter = static_cast<std::int16_t>(counter);
  }
  return catalogue;
}

TEST(HasNewSavegamesTest, ComparesWithTheLastArchivedSavegame) {
  EXPECT_TRUE(HasNewSavegames(CatalogueOf({{1, 120}, {0, 100}, {0, 121}})));
  EXPECT_FALSE(HasNewSavegames(CatalogueOf({{1, 120}, {0, 100}, {0, 120}})));
  EXPECT_FALSE(HasNewSavegames(CatalogueOf({{1, 1}, {1, 120}})));
  EXPECT_FALSE(HasNewSavegames(CatalogueOf({{1, 7}, {0, -7}})));
}

TEST(HasNewSavegamesTest, TakesTheFirstGameSavegameAsReferenceWhenNothingIsArchived) {
  EXPECT_FALSE(HasNewSavegames(CatalogueOf({})));
  EXPECT_FALSE(HasNewSavegames(CatalogueOf({{0, 5}})));
  EXPECT_TRUE(HasNewSavegames(CatalogueOf({{0, 5}, {0, 6}})));
  EXPECT_FALSE(HasNewSavegames(CatalogueOf({{0, 5}, {0, 5}})));
}

// A world with an archive of one savegame and a game folder of three, one of them new.
class ImportWorld : public TestWorld {
 public:
  ImportWorld() {
    AddSavegame("Archive/Slot1", 0, "Old", 10);
    AddSavegame("Game", 0, "Old", 10);
    AddSavegame("Game", 2, "Tower", 11);
    AddSavegame("Game", 5, "Tower", 12);
    disk.Write("Game/note2.txt", "two\r\n");
    disk.Write("Game/note3.txt", "three\r\n");
    disk.Write("Game/shot5.jpg", "picture five");
    program.archive.settings = {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
    ScanArchive(program);
    boxes.shown.clear();
    files.Reset();
  }

  Program program = NewProgram();
};

TEST(ImportTest, TakesEverySlotAndLeavesTheHighestAsTheFirst) {
  ImportWorld world;
  world.disk.Write("Archive/Slot2", "a file that keeps its number");
  world.program.archive.settings.MainFolder = "T:\\Archive\\";
  world.program.capture.ShotLinkedNotImported = true;
  world.program.preferences.SoundEffects = true;
  const auto before = world.disk.AllFiles();
  ImportSavegames(world.program);

  const auto after = world.disk.AllFiles();
  for (const char* name : {"savegame.0", "savegame.2", "savegame.5", "note2.txt", "shot5.jpg"}) {
    EXPECT_EQ(after.at(std::string("Archive/Slot3/") + name),
              before.at(std::string("Game/") + name));
  }
  EXPECT_EQ(world.disk.Names("Archive/Slot3").size(), 5U);
  EXPECT_EQ(world.disk.Names("Game"),
            (std::vector<std::string>{"note3.txt", "savegame.0", "tomb4.exe"}));
  EXPECT_EQ(after.at("Game/savegame.0"), before.at("Game/savegame.5"));
  EXPECT_TRUE(after.at("Archive/info.txt").starts_with("T:\\ARCHIVE\\SLOT3\r\n"));

  ASSERT_EQ(world.boxes.shown.size(), 1U) << world.boxes.AllTexts();
  EXPECT_EQ(world.boxes.shown[0].text, "Imported  3 savegames.");
  EXPECT_EQ(world.program.archive.settings.MainFolder, "T:\\Archive");
  EXPECT_EQ(world.program.catalogue.FolderCount, 3);
  EXPECT_FALSE(world.program.capture.ShotLinkedNotImported);
  EXPECT_TRUE(world.sounds.played.front().ends_with("s6.wav"));
}

TEST(ImportTest, OfSlotZeroAloneTakesItsNoteAndPictureAway) {
  ImportWorld world;
  for (const char* name : {"savegame.2", "savegame.5", "note2.txt", "shot5.jpg"}) {
    std::filesystem::remove(world.disk.path() / "Game" / name);
  }
  world.AddSavegame("Game", 0, "New", 30);
  world.disk.Write("Game/NOTE0.TXT", "zero\r\n");
  ScanArchive(world.program);
  ImportSavegames(world.program);
  EXPECT_EQ(world.disk.Names("Game"),
            (std::vector<std::string>{"note3.txt", "savegame.0", "tomb4.exe"}));
  EXPECT_EQ(world.disk.Read("Archive/Slot2/note0.txt"), "zero\r\n");
}

TEST(ImportTest, WorksWhateverTheLetterCaseOnTheDisk) {
  ImportWorld world;
  std::filesystem::rename(world.disk.path() / "Game/savegame.5",
                          world.disk.path() / "Game/SAVEGAME.5");
  std::filesystem::rename(world.disk.path() / "Game/shot5.jpg",
                          world.disk.path() / "Game/Shot5.JPG");
  std::filesystem::rename(world.disk.path() / "Archive", world.disk.path() / "ARCHIVE");
  ScanArchive(world.program);
  ImportSavegames(world.program);
  EXPECT_EQ(world.disk.Names("Game"),
            (std::vector<std::string>{"note3.txt", "savegame.0", "tomb4.exe"}));
  EXPECT_EQ(world.disk.Names("ARCHIVE/Slot2").size(), 5U);
}

TEST(ImportTest, RefusesWithoutChangingAnything) {
  ImportWorld world;
  const auto before = world.disk.AllFiles();
  const auto refusal = [&world] {
    ImportSavegames(world.program);
    return world.boxes.shown.back();
  };

  world.program.play.ExaminedInGameFolder = true;
  world.boxes.answers = {BoxAnswer::kNo};
  EXPECT_TRUE(refusal().text.starts_with("Warning: in tomb raider folder there are old examined"));
  EXPECT_EQ(world.boxes.shown.back().buttons, BoxButtons::kYesNo);
  world.program.play.ExaminedInGameFolder = false;

  world.program.archive.settings.GameFolder = "T:\\Nowhere";
  EXPECT_EQ(refusal().text, "Mising tomb raider path [T:\\Nowhere");
  world.program.archive.settings.MainFolder = "T:\\Archive\\Slot1\\savegame.0";
  EXPECT_EQ(refusal().text, "Missing main archive path \"T:\\Archive\\Slot1\\savegame.0\"");
  world.program.catalogue.entries.clear();
  EXPECT_EQ(refusal().text, "There are no new savegame to archive in Tomb Raider folder");
  EXPECT_EQ(world.disk.AllFiles(), before);
  EXPECT_EQ(world.boxes.shown.size(), 4U);

  ImportCommand(world.program);
  EXPECT_TRUE(world.program.archive.ArchiveChanged);
}

TEST(ImportTest, OfAGameFolderThatHasBecomeEmptyLeavesTheNewFolder) {
  ImportWorld world;
  for (const char* name : {"savegame.0", "savegame.2", "savegame.5"}) {
    std::filesystem::remove(world.disk.path() / "Game" / name);
  }
  ImportSavegames(world.program);
  EXPECT_EQ(world.boxes.shown.back().text, "Warning there are no savegames in folder \"T:\\Game\"");
  EXPECT_EQ(world.boxes.shown.back().icon, BoxIcon::kCritical);
  EXPECT_TRUE(world.disk.Names("Archive/Slot2").empty());
}

TEST(ImportTest, AFailedCopyStaysInTheGameFolderAndIsNamed) {
  ImportWorld world;
  world.files.FailAlways("Copy", "savegame.0", FileError::kDiskFull);
  ImportSavegames(world.program);
  EXPECT_EQ(world.disk.Names("Game"),
            (std::vector<std::string>{"note3.txt", "savegame.0", "savegame.5", "tomb4.exe"}));
  EXPECT_EQ(world.boxes.shown[0].text, "Imported  3 savegames.") << "failed copies count";
  const std::string& report = world.boxes.shown.back().text;
  EXPECT_NE(report.find("\"T:\\Game\\savegame.0\": the disk is full"), std::string::npos) << report;
  EXPECT_NE(report.find("is still savegame.5"), std::string::npos) << report;
}

TEST(ImportTest, AScreenShotThatIsNotInTheArchiveIsStillRemembered) {
  ImportWorld linked_meanwhile;
  linked_meanwhile.boxes.while_waiting = [&linked_meanwhile] {
    linked_meanwhile.program.capture.ShotLinkedNotImported = true;
  };
  ImportSavegames(linked_meanwhile.program);
  EXPECT_TRUE(linked_meanwhile.program.capture.ShotLinkedNotImported);

  ImportWorld not_copied;
  not_copied.program.capture.ShotLinkedNotImported = true;
  not_copied.files.FailAlways("Copy", "shot5.jpg", FileError::kDiskFull);
  ImportSavegames(not_copied.program);
  EXPECT_TRUE(not_copied.program.capture.ShotLinkedNotImported);
}

TEST(ImportTest, ASlotThatWasNotCopiedWholeKeepsItsNumberNoteAndPicture) {
  for (const std::string failing : {"savegame.2", "note2.txt", "savegame.5", "shot5.jpg"}) {
    ImportWorld world;
    world.files.FailAlways("Copy", failing, FileError::kDiskFull);
    ImportSavegames(world.program);
    const bool second = failing.find('2') != std::string::npos;
    EXPECT_TRUE(world.disk.Exists(second ? "Game/savegame.2" : "Game/savegame.5")) << failing;
    EXPECT_TRUE(world.disk.Exists(second ? "Game/note2.txt" : "Game/shot5.jpg")) << failing;
  }
}

TEST(ImportTest, ASlotWithANameThatStandsTwiceStaysAndIsNamed) {
  if (!testing::DiskTellsCaseApart()) GTEST_SKIP() << "no folder can hold such names";
  ImportWorld world;
  world.disk.Write("Game/SAVEGAME.2", "other");
  world.disk.Write("Game/Shot5.JPG", "other");
  ImportSavegames(world.program);
  EXPECT_EQ(world.disk.Names("Game").size(), 8U) << "all but savegame.0";
  const std::string& report = world.boxes.shown.back().text;
  EXPECT_TRUE(report.starts_with("Warning: not everything could be imported.")) << report;
  EXPECT_NE(report.find("SAVEGAME.2\": the name exists twice"), std::string::npos) << report;
  EXPECT_EQ(report.find("could not be deleted"), std::string::npos) << report;
}

TEST(ImportTest, ASavegameThatTheGameWritesMeanwhileIsNotDeleted) {
  ImportWorld world;
  const std::string newer = SavegameBytes("Tower", 13);
  world.files.meanwhile = [&](const std::string& operation) {
    if (operation == "Flush") world.disk.Write("Game/savegame.2", newer);
  };
  ImportSavegames(world.program);
  EXPECT_EQ(world.disk.Read("Game/savegame.2"), newer);
  EXPECT_NE(world.boxes.shown.back().text.find("\"T:\\Game\\savegame.2\""), std::string::npos);
}

TEST(ImportTest, NothingIsDeletedBeforeTheCopiesAreFlushed) {
  ImportWorld world;
  world.files.FailAlways("Flush", "", FileError::kInputOutput);
  ImportSavegames(world.program);
  EXPECT_EQ(world.disk.Names("Game").size(), 7U);
  EXPECT_NE(world.boxes.AllTexts().find("nothing has been deleted"), std::string::npos);
}

std::multiset<std::string> SavegameContents(const TestWorld& world) {
  std::multiset<std::string> contents;
  for (const auto& [name, bytes] : world.disk.AllFiles()) {
    if (name.find("savegame.") != std::string::npos) contents.insert(bytes);
  }
  return contents;
}

// Everything that was there is there still, under whatever name.
void ExpectNothingLost(const std::map<std::string, std::string>& before, const TestWorld& world,
                       const std::string& when) {
  std::set<std::string> contents;
  for (const auto& [name, bytes] : world.disk.AllFiles()) contents.insert(bytes);
  for (const auto& [name, bytes] : before) {
    EXPECT_TRUE(contents.contains(bytes)) << name << " is lost " << when;
  }
}

TEST(ImportTest, NoFailingCallLosesAnythingOrPassesInSilence) {
  for (const FileError error : {FileError::kDiskFull, FileError::kAccessDenied}) {
    for (int call = 1;; ++call) {
      ImportWorld world;
      const auto before = world.disk.AllFiles();
      const std::string when = "at call " + std::to_string(call);
      world.files.FailCall(call, error);
      ImportSavegames(world.program);
      if (world.files.calls() < call) break;

      ExpectNothingLost(before, world, when);
      if (world.disk.AllFiles() == before) continue;  // refused before anything was touched
      // A savegame that is not where a whole import puts it is where the last message says.
      const std::string said = world.boxes.shown.back().text;
      for (const char* slot : {"savegame.0", "savegame.2", "savegame.5"}) {
        const std::string& bytes = before.at(std::string("Game/") + slot);
        const std::string in_archive = std::string("Archive/Slot2/") + slot;
        if (world.disk.Exists(in_archive) && world.disk.Read(in_archive) == bytes) continue;
        EXPECT_NE(said.find("T:\\Game"), std::string::npos) << slot << ' ' << when << ": " << said;
        EXPECT_TRUE(SavegameContents(world).contains(bytes));
      }
    }
  }
}

TEST(ImportTest, DyingAtAnyCallLosesNothing) {
  for (const bool after : {false, true}) {
    for (int call = 1;; ++call) {
      ImportWorld world;
      const auto before = world.disk.AllFiles();
      world.files.KillAtCall(call, after);
      try {
        ImportSavegames(world.program);
        break;
      } catch (const Killed&) {
        ExpectNothingLost(before, world, "after dying at call " + std::to_string(call));
      }
    }
  }
}

}  // namespace
}  // namespace vellumark
