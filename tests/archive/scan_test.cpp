#include "archive/scan.h"

#include <gtest/gtest.h>

#include <thread>

#include "archive/catalogue_builder.h"
#include "savegames/notes.h"
#include "savegames/savegame_header.h"
#include "support/host_paths.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::DiskTellsCaseApart;
using testing::OpenWorld;
using testing::SavegameBytes;
using Field = MainWindow::Field;

class ScanTest : public ::testing::Test, public OpenWorld {
 protected:
  std::vector<std::string> Paths() const {
    std::vector<std::string> paths;
    for (const SavegameEntry& entry : program.catalogue.entries) {
      paths.push_back(entry.SavegamePath);
    }
    return paths;
  }
};

TEST_F(ScanTest, TakesNumberedSubfoldersUpToTheFirstGapAndFilesKeepTheirNumbers) {
  program.archive.settings.MainFolder = " T:\\Archive ";
  program.archive.settings.GameFolder = " T:\\Game ";
  disk.Write("Archive/slot1/SAVEGAME.3", SavegameBytes("Tower", 12));
  disk.Write("Archive/slot1/NOTE3.TXT", "a note\r\n");
  disk.Write("Archive/slot1/SaveGame.12", SavegameBytes("Tower", 13));
  disk.Write("Archive/Slot2", "a file");
  AddSavegame("Archive/Slot3", 0, "Beta", 14);
  AddSavegame("Archive/Slot3", 16, "Beyond the maximum", 15);
  AddSavegame("Archive/Slot5", 0, "After the gap", 16);
  AddSavegame("Game", 5, "Gamma", 20);
  disk.Write("Game/shot5.jpg", "x");
  ScanArchive(program);

  EXPECT_EQ(program.catalogue.FolderCount, 3);
  ASSERT_EQ(Paths(), (std::vector<std::string>{
                         "t:\\archive\\slot1\\savegame.3", "t:\\archive\\slot1\\savegame.12",
                         "t:\\archive\\slot3\\savegame.0", "t:\\game\\savegame.5"}));
  const SavegameEntry& first = program.catalogue.entries[0];
  EXPECT_EQ(first.LevelName, "Tower");
  EXPECT_EQ(first.InternalCounter, 12);
  EXPECT_EQ(first.FolderNumber, 1);
  EXPECT_EQ(first.SlotNumber, 3);
  EXPECT_EQ(first.NoteText, "a note");
  EXPECT_EQ(first.NotePath, "t:\\archive\\slot1\\note3.txt");
  EXPECT_EQ(first.ShotPath, "t:\\archive\\slot1\\shot3.jpg");
  EXPECT_EQ(program.catalogue.entries[2].FolderNumber, 3);
  EXPECT_EQ(program.catalogue.entries[3].FolderNumber, 0);
  EXPECT_EQ(program.catalogue.entries[3].NotePath, "T:\\Game\\note5.txt");

  ASSERT_EQ(windows.lines.size(), 4U);
  EXPECT_EQ(windows.lines[3].substr(0, 13), "TI   20 Gamma");
  EXPECT_EQ(windows.fields[Field::kTotCartelle], "3");
  EXPECT_EQ(windows.fields[Field::kTotSavegame], "4");
  EXPECT_EQ(windows.selected, std::vector<int>{0});
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\Archive") << "stored back trimmed";
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_EQ(sounds.Take(), "s6|s2|");
}

TEST_F(ScanTest, TakesAllBareSubfoldersInTheOtherMode) {
  program.preferences.ScanAllSubfolders = true;
  AddSavegame("Archive/Slot4", 0, "A", 1);
  AddSavegame("Archive/old ones", 1, "B", 2);
  AddSavegame("Archive/.hidden", 2, "C", 3);
  AddSavegame("Archive/Locked", 3, "D", 4);
  AddSavegame("Archive/Slot4/deeper", 4, "E", 5);
  testing::MakeBareNoMore(testing::ToUtf8(disk.path() / "Archive/Locked"));
  ScanArchive(program);

  EXPECT_EQ(program.catalogue.FolderCount, 2);
  ASSERT_EQ(Paths(), (std::vector<std::string>{"t:\\archive\\old ones\\savegame.1",
                                               "t:\\archive\\slot4\\savegame.0"}));
  EXPECT_EQ(program.catalogue.entries[1].NotePath, "T:\\Archive\\Slot4\\note0.txt");
}

TEST_F(ScanTest, ListsTheBackupFolderWhileTheGameHoldsArchivedSavegames) {
  AddSavegame("Game", 0, "Examined", 1);
  AddSavegame("Program/temp", 2, "Own", 2);
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
  EXPECT_EQ(windows.fields[Field::kTotSavegame], "0");
  EXPECT_TRUE(windows.selected.empty());
  EXPECT_TRUE(program.archive.ArchiveChanged);
}

TEST_F(ScanTest, ListsAShortSavegameInSilenceAndNamesOneThatCannotBeRead) {
  disk.Write("Archive/Slot1/savegame.0", "Tow");
  AddSavegame("Archive/Slot1", 1, "Locked", 7);
  ScanArchive(program);
  EXPECT_EQ(boxes.AllTexts(), "") << "it is the same at every scan";
  files.FailAlways("Read", "savegame.1", FileError::kAccessDenied);
  ScanArchive(program);
  ASSERT_EQ(program.catalogue.EntryCount(), 2);
  EXPECT_EQ(program.catalogue.entries[0].LevelName, "Tow");
  EXPECT_EQ(program.catalogue.entries[0].InternalCounter, 0);
  EXPECT_EQ(program.catalogue.entries[1].LevelName, "");
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(Contains(boxes.shown[0].text, "\"t:\\archive\\slot1\\savegame.1\": it is read-only"));
}

TEST_F(ScanTest, PathsLeadToTheListedFilesAlsoBesideAFolderThatDiffersByCaseOnly) {
  if (!testing::DiskTellsCaseApart()) GTEST_SKIP() << "no folder can hold such names";
  AddSavegame("Archive/Slot1", 0, "A", 1);
  disk.Write("Archive/Slot1/note0.txt", "A\r\n");
  AddSavegame("archive/slot1", 0, "Another", 2);
  AddSavegame("Game", 0, "G", 3);
  disk.MakeFolder("GAME");
  for (const bool all_subfolders : {false, true}) {
    program.preferences.ScanAllSubfolders = all_subfolders;
    ScanArchive(program);
    ASSERT_EQ(program.catalogue.EntryCount(), 2);
    for (const SavegameEntry& entry : program.catalogue.entries) {
      EXPECT_EQ(ReadSavegameHeader(files, entry.SavegamePath).level_name, entry.LevelName);
    }
    EXPECT_EQ(ReadNoteFile(files, program.catalogue.entries[0].NotePath), "A");
  }
}

TEST_F(ScanTest, LeavesOutAndReportsNamesThatDifferByCaseOnly) {
  if (!testing::DiskTellsCaseApart()) GTEST_SKIP() << "no folder can hold such names";
  AddSavegame("Archive/Slot1", 0, "A", 1);
  AddSavegame("Archive/SLOT2", 0, "B", 2);
  AddSavegame("Archive/slot2", 0, "C", 3);
  AddSavegame("Archive/Slot3", 1, "D", 4);
  disk.Write("Archive/Slot3/SAVEGAME.1", "E");
  ScanArchive(program);
  EXPECT_EQ(Paths(), std::vector<std::string>{"t:\\archive\\slot1\\savegame.0"});
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(Contains(boxes.shown[0].text, "slot2"));
  EXPECT_TRUE(Contains(boxes.shown[0].text, "savegame.1"));
}

TEST_F(ScanTest, NamesTheSubfoldersToWhichNoPathLeads) {
  std::vector<std::string> names{"\xD0\x96\xD0\x96", "\xE6\x97\xA5\xE6\x9C\xAC"};
  if (testing::DiskTellsCaseApart()) {  // and takes names that Windows could not hold
    names.insert(names.end(), {"trail ", "dot.", "a\\b", "co:lon", "star*", "q?", "CON", "a\tb"});
    AddSavegame("Archive/no\xFF", 0, "F", 1);
  }
  for (const std::string& name : names) AddSavegame("Archive/" + name, 0, "E", 1);
  AddSavegame("Archive/Slot1", 0, "A", 1);
  ScanArchive(program);
  EXPECT_TRUE(boxes.shown.empty()) << "they are no numbered sub-folders";

  program.preferences.ScanAllSubfolders = true;
  ScanArchive(program);
  EXPECT_EQ(program.catalogue.EntryCount(), 1);
  ASSERT_EQ(boxes.shown.size(), 1U);
  for (const std::string& name : names) EXPECT_TRUE(Contains(boxes.shown[0].text, name + "\": "));
  EXPECT_EQ(Contains(boxes.shown[0].text, "no\xEF\xBF\xBD\": "), testing::DiskTellsCaseApart());
}

TEST_F(ScanTest, StopsWhenTheTableIsFullAndSaysSo) {
  program.archive.settings.MaxSavegame = 10100;
  for (int slot = 0; slot < 10050; ++slot) {
    disk.Write("Archive/Slot1/savegame." + std::to_string(slot), "x");
  }
  AddSavegame("Game", 0, "Game", 1);
  ScanArchive(program);
  EXPECT_EQ(program.catalogue.EntryCount(), 10001);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(Contains(boxes.shown[0].text, "Only the first 10001"));
}

// The decorated file system of the tests is read by one thread, the disk itself by many.
TEST_F(ScanTest, ManyThreadsFindWhatOneFinds) {
  ASSERT_TRUE(!files.WorksOnThreads() && drives.files().WorksOnThreads());
  for (int folder = 1; folder <= 40; ++folder) {
    const std::string name = "Archive/Slot" + std::to_string(folder);
    disk.MakeFolder(name);
    for (int slot = folder % 3; slot <= folder % 7; ++slot) {
      AddSavegame(name, slot, "Level " + std::to_string(folder), static_cast<std::int16_t>(slot));
      disk.Write(name + "/note" + std::to_string(slot) + ".txt", std::string(10U * slot, 'n'));
    }
    if (folder % 5 == 0) disk.Write(name + "/savegame.9", "short");
    if (folder % 6 == 0) disk.Write(name + "/~vm~savegame.1", "half");
    if (folder % 8 == 0) disk.MakeFolder(name + "/savegame.10");
  }
  if (DiskTellsCaseApart()) {
    disk.Write("Archive/Slot3/SAVEGAME.1", "twin");
    disk.MakeFolder("Archive/sLOT7");
    disk.Write("Archive/Slot9/shot1.JPG", "x");
  }
  AddSavegame("Game", 0, "Game", 1);
  ArchiveSettings settings = testing::WorldSettings();
  for (const std::int16_t most : {std::int16_t{15}, std::int16_t{10100}}) {
    settings.MaxSavegame = most;
    // More than a catalogue holds, with the limit in the midst of a folder.
    for (int slot = 20; most > 15 && slot < 5120; ++slot) {
      disk.Write("Archive/Slot20/savegame." + std::to_string(slot), "x");
      disk.Write("Archive/Slot30/savegame." + std::to_string(slot), "x");
    }
    for (const bool all : {false, most == 15}) {
      int shown = 0;
      const auto show = [&, caller = std::this_thread::get_id()](int done, int of) {
        EXPECT_TRUE(done <= of && std::this_thread::get_id() == caller);
        ++shown;
      };
      const CatalogueRequest request{settings, "T:\\Game", all, show};
      const ScannedCatalogue one = BuildCatalogue(files, text, request);
      const ScannedCatalogue many = BuildCatalogue(drives.files(), text, request);
      EXPECT_GT(shown, 0) << "how far the threads are";
      EXPECT_GT(one.catalogue.entries.size(), 50U);
      EXPECT_EQ(one.table_full, most > 15);
      EXPECT_EQ(many.table_full, one.table_full);
      EXPECT_TRUE(many.catalogue.entries == one.catalogue.entries);
      EXPECT_EQ(many.catalogue.FolderCount, one.catalogue.FolderCount);
      EXPECT_EQ(many.has_shot, one.has_shot);
      EXPECT_TRUE(many.failures == one.failures);
      EXPECT_EQ(many.ambiguous, one.ambiguous);
      EXPECT_EQ(many.leftovers, one.leftovers);
    }
  }
}

TEST_F(ScanTest, SurvivesTheFailureOfAnyCall) {
  AddSavegame("Archive/Slot1", 0, "A", 1);
  disk.Write("Archive/Slot1/note0.txt", "note\r\n");
  AddSavegame("Game", 0, "B", 2);
  for (int call = 1;; ++call) {
    files.Reset();
    boxes.shown.clear();
    files.FailCall(call, FileError::kAccessDenied);
    ScanArchive(program);
    if (files.calls() < call) break;
    const bool all_read = program.catalogue.EntryCount() == 2 &&
                          program.catalogue.entries[0].LevelName == "A" &&
                          program.catalogue.entries[0].NoteText == "note" &&
                          program.catalogue.entries[1].LevelName == "B";
    EXPECT_TRUE(all_read || !boxes.shown.empty()) << "a silent gap at call " << call;
  }
}

TEST_F(ScanTest, RemovesTemporaryFilesOfARunThatWasCutOff) {
  AddSavegame("Archive/Slot1", 0, "A", 1);
  disk.Write("Archive/Slot1/~vm~savegame.1", "half");
  ScanArchive(program);
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "savegame.0|");
}

}  // namespace
}  // namespace vellumark
