#include "archive/scan.h"

#include <gtest/gtest.h>

#include "savegames/notes.h"
#include "savegames/savegame_header.h"
#include "support/host_paths.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::SavegameBytes;
using testing::TestWorld;
using Field = MainWindow::Field;

class ScanTest : public ::testing::Test {
 protected:
  ScanTest() {
    ArchiveSettings& settings = program.archive.settings;
    settings.MainFolder = " T:\\Archive ";
    settings.SubfolderBaseName = "Slot";
    settings.GameFolder = "T:\\Game";
    settings.MaxSavegame = 15;
  }

  std::vector<std::string> Paths() const {
    std::vector<std::string> paths;
    for (const SavegameEntry& entry : program.catalogue.entries) {
      paths.push_back(entry.SavegamePath);
    }
    return paths;
  }

  TestWorld world;
  Program program = world.NewProgram();
};

TEST_F(ScanTest, TakesNumberedSubfoldersUpToTheFirstGapWhateverTheirCase) {
  world.disk.Write("Archive/slot1/SAVEGAME.3", SavegameBytes("Tower", 12));
  world.disk.Write("Archive/slot1/NOTE3.TXT", "a note\r\n");
  world.disk.Write("Archive/slot1/SaveGame.12", SavegameBytes("Tower", 13));
  world.AddSavegame("Archive/Slot2", 0, "Beta", 14);
  world.AddSavegame("Archive/Slot2", 16, "Beyond the maximum", 15);
  world.AddSavegame("Archive/Slot4", 0, "After the gap", 16);
  world.AddSavegame("Game", 5, "Gamma", 20);
  world.disk.Write("Game/shot5.jpg", "x");
  ScanArchive(program);

  EXPECT_EQ(program.catalogue.FolderCount, 2);
  ASSERT_EQ(Paths(), (std::vector<std::string>{
                         "t:\\archive\\slot1\\savegame.3", "t:\\archive\\slot1\\savegame.12",
                         "t:\\archive\\slot2\\savegame.0", "t:\\game\\savegame.5"}));
  const SavegameEntry& first = program.catalogue.entries[0];
  EXPECT_EQ(first.LevelName, "Tower");
  EXPECT_EQ(first.InternalCounter, 12);
  EXPECT_EQ(first.FolderNumber, 1);
  EXPECT_EQ(first.SlotNumber, 3);
  EXPECT_EQ(first.NoteText, "a note");
  EXPECT_EQ(first.NotePath, "t:\\archive\\slot1\\note3.txt");
  EXPECT_EQ(first.ShotPath, "t:\\archive\\slot1\\shot3.jpg");
  EXPECT_EQ(program.catalogue.entries[3].FolderNumber, 0);
  EXPECT_EQ(program.catalogue.entries[3].NotePath, "T:\\Game\\note5.txt");

  ASSERT_EQ(world.windows.lines.size(), 4U);
  EXPECT_EQ(world.windows.lines[3].substr(0, 13), "TI   20 Gamma");
  EXPECT_EQ(world.windows.fields[Field::kTotCartelle], "2");
  EXPECT_EQ(world.windows.fields[Field::kTotSavegame], "4");
  EXPECT_EQ(world.windows.selected, std::vector<int>{0});
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\Archive") << "stored back trimmed";
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_F(ScanTest, TakesAllBareSubfoldersInTheOtherMode) {
  program.preferences.ScanAllSubfolders = true;
  world.AddSavegame("Archive/Slot4", 0, "A", 1);
  world.AddSavegame("Archive/old ones", 1, "B", 2);
  world.AddSavegame("Archive/.hidden", 2, "C", 3);
  world.AddSavegame("Archive/Locked", 3, "D", 4);
  world.AddSavegame("Archive/Slot4/deeper", 4, "E", 5);
  testing::MakeBareNoMore(testing::ToUtf8(world.disk.path() / "Archive/Locked"));
  ScanArchive(program);

  EXPECT_EQ(program.catalogue.FolderCount, 2);
  ASSERT_EQ(Paths(), (std::vector<std::string>{"t:\\archive\\old ones\\savegame.1",
                                               "t:\\archive\\slot4\\savegame.0"}));
  EXPECT_EQ(program.catalogue.entries[1].NotePath, "T:\\Archive\\Slot4\\note0.txt");
}

TEST_F(ScanTest, AFileKeepsItsNumberAmongTheSubfolders) {
  world.AddSavegame("Archive/Slot1", 0, "A", 1);
  world.disk.Write("Archive/Slot2", "a file");
  world.AddSavegame("Archive/Slot3", 0, "C", 3);
  ScanArchive(program);
  EXPECT_EQ(program.catalogue.FolderCount, 3);
  ASSERT_EQ(program.catalogue.EntryCount(), 2);
  EXPECT_EQ(program.catalogue.entries[1].FolderNumber, 3);
}

TEST_F(ScanTest, ListsTheBackupFolderWhileTheGameHoldsArchivedSavegames) {
  world.AddSavegame("Game", 0, "Examined", 1);
  world.AddSavegame("Program/temp", 2, "Own", 2);
  program.play.ExaminedInGameFolder = true;
  program.play.BackupFolder = "T:\\Program\\temp";
  ScanArchive(program);
  EXPECT_EQ(Paths(), std::vector<std::string>{"t:\\program\\temp\\savegame.2"});
}

TEST_F(ScanTest, OfNothingIsAnEmptyList) {
  program.search.FoundList = {1, 2};
  program.search.FoundPosition = 1;
  program.archive.settings = {};
  ScanArchive(program);
  EXPECT_EQ(program.catalogue.EntryCount(), 0);
  EXPECT_EQ(program.search.FoundCount(), 0);
  EXPECT_EQ(world.windows.fields[Field::kTotSavegame], "0");
  EXPECT_TRUE(world.windows.selected.empty());
  EXPECT_TRUE(program.archive.ArchiveChanged);
}

TEST_F(ScanTest, ShowsWhatCanBeReadOfAShortSavegame) {
  world.disk.Write("Archive/Slot1/savegame.0", "Tow");
  world.AddSavegame("Archive/Slot1", 1, "Whole", 7);
  ScanArchive(program);
  ASSERT_EQ(program.catalogue.EntryCount(), 2);
  EXPECT_EQ(program.catalogue.entries[0].LevelName, "Tow");
  EXPECT_EQ(program.catalogue.entries[0].InternalCounter, 0);
  EXPECT_TRUE(world.boxes.shown.empty()) << "it is the same at every scan";
}

TEST_F(ScanTest, ListsAndNamesASavegameThatCannotBeRead) {
  world.AddSavegame("Archive/Slot1", 0, "Locked", 7);
  world.files.FailAlways("Read", "savegame.0", FileError::kAccessDenied);
  ScanArchive(program);
  ASSERT_EQ(program.catalogue.EntryCount(), 1);
  EXPECT_EQ(program.catalogue.entries[0].LevelName, "");
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_NE(world.boxes.shown[0].text.find("\"t:\\archive\\slot1\\savegame.0\": it is read-only"),
            std::string::npos)
      << world.boxes.shown[0].text;
}

TEST_F(ScanTest, PathsLeadToTheListedFilesAlsoBesideAFolderThatDiffersByCaseOnly) {
  if (!testing::DiskTellsCaseApart()) GTEST_SKIP() << "no folder can hold such names";
  world.AddSavegame("Archive/Slot1", 0, "A", 1);
  world.disk.Write("Archive/Slot1/note0.txt", "A\r\n");
  world.AddSavegame("archive/slot1", 0, "Another", 2);
  world.AddSavegame("Game", 0, "G", 3);
  world.disk.MakeFolder("GAME");
  for (const bool all_subfolders : {false, true}) {
    program.preferences.ScanAllSubfolders = all_subfolders;
    ScanArchive(program);
    ASSERT_EQ(program.catalogue.EntryCount(), 2);
    for (const SavegameEntry& entry : program.catalogue.entries) {
      EXPECT_EQ(ReadSavegameHeader(world.files, entry.SavegamePath).level_name, entry.LevelName);
    }
    EXPECT_EQ(ReadNoteFile(world.files, program.catalogue.entries[0].NotePath), "A");
  }
}

TEST_F(ScanTest, LeavesOutAndReportsNamesThatDifferByCaseOnly) {
  if (!testing::DiskTellsCaseApart()) GTEST_SKIP() << "no folder can hold such names";
  world.AddSavegame("Archive/Slot1", 0, "A", 1);
  world.AddSavegame("Archive/SLOT2", 0, "B", 2);
  world.AddSavegame("Archive/slot2", 0, "C", 3);
  world.AddSavegame("Archive/Slot3", 1, "D", 4);
  world.disk.Write("Archive/Slot3/SAVEGAME.1", "E");
  ScanArchive(program);
  EXPECT_EQ(Paths(), std::vector<std::string>{"t:\\archive\\slot1\\savegame.0"});
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_NE(world.boxes.shown[0].text.find("slot2"), std::string::npos);
  EXPECT_NE(world.boxes.shown[0].text.find("savegame.1"), std::string::npos);
}

TEST_F(ScanTest, StopsWhenTheTableIsFullAndSaysSo) {
  program.archive.settings.MaxSavegame = 10100;
  for (int slot = 0; slot < 10050; ++slot) {
    world.disk.Write("Archive/Slot1/savegame." + std::to_string(slot), "x");
  }
  world.AddSavegame("Game", 0, "Game", 1);
  ScanArchive(program);
  EXPECT_EQ(program.catalogue.EntryCount(), 10001);
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_NE(world.boxes.shown[0].text.find("Only the first 10001"), std::string::npos);
}

TEST_F(ScanTest, SurvivesTheFailureOfAnyCall) {
  world.AddSavegame("Archive/Slot1", 0, "A", 1);
  world.disk.Write("Archive/Slot1/note0.txt", "note\r\n");
  world.AddSavegame("Game", 0, "B", 2);
  for (int call = 1;; ++call) {
    world.files.Reset();
    world.boxes.shown.clear();
    world.files.FailCall(call, FileError::kAccessDenied);
    ScanArchive(program);
    if (world.files.calls() < call) break;
    const bool all_read = program.catalogue.EntryCount() == 2 &&
                          program.catalogue.entries[0].LevelName == "A" &&
                          program.catalogue.entries[0].NoteText == "note" &&
                          program.catalogue.entries[1].LevelName == "B";
    EXPECT_TRUE(all_read || !world.boxes.shown.empty()) << "a silent gap at call " << call;
  }
}

TEST_F(ScanTest, RemovesTemporaryFilesOfARunThatWasCutOff) {
  world.AddSavegame("Archive/Slot1", 0, "A", 1);
  world.disk.Write("Archive/Slot1/~vm~savegame.1", "half");
  ScanArchive(program);
  EXPECT_EQ(world.disk.Names("Archive/Slot1"), std::vector<std::string>{"savegame.0"});
}

TEST_F(ScanTest, PlaysASoundAtItsStartAndAtItsEnd) {
  program.preferences.SoundEffects = true;
  ScanArchive(program);
  EXPECT_EQ(world.sounds.played,
            (std::vector<std::string>{world.files.HostPath("T:\\Program\\s6.wav"),
                                      world.files.HostPath("T:\\Program\\s2.wav")}));
}

}  // namespace
}  // namespace vellumark
