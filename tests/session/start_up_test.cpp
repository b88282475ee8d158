#include "session/start_up.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "archive/archive_file.h"
#include "foundation/preferences_file.h"
#include "session/session_end.h"
#include "session/shut_down.h"
#include "support/every_call.h"
#include "support/expectations.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::Files;
using testing::TestWorld;

// Tells what the program has stored in it.
class StoredWorld : public TestWorld {
 public:
  Preferences StoredPreferences(const std::string& file = "Program/manager.prf") const {
    Preferences preferences;
    DecodePreferences(disk.Read(file), preferences);
    return preferences;
  }
};

class StartUpTest : public ::testing::Test, public StoredWorld {
 protected:
  // A new run of the program with this command line, up to the end of start-up.
  Program Started(const std::string& arguments = "") {
    Program program = NewProgram();
    program.argument_text = arguments;
    StartUp(program);
    return program;
  }
};

// Its preferences name an archive of one savegame.
class KnownArchiveTest : public StartUpTest {
 protected:
  KnownArchiveTest() {
    WriteArchiveFile();
    WritePreferences();
    AddSavegame("Archive/Slot1", 0, "A", 10);
  }
};

TEST_F(StartUpTest, AFirstRunTakesTheDefaultsAndLeavesAPreferencesFile) {
  WriteArchiveFile();
  Program program = Started("T:\\Archive.vmk");
  EXPECT_EQ(program.preferences.LastArchive, "") << "without preferences it is not used";
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Program");
  EXPECT_TRUE(program.preferences.AutoCapture);
  EXPECT_FALSE(program.preferences.SoundEffects);
  EXPECT_EQ(program.archive.settings.MaxSavegame, 15);
  EXPECT_TRUE(disk.Exists("Program/temp"));
  EXPECT_FALSE(program.archive.ArchiveChanged);
  EXPECT_TRUE(boxes.shown.empty());

  ShutDown(program);
  EXPECT_EQ(disk.Read("Program/manager.prf").size(), 524U);
  EXPECT_TRUE(dialogs.requests.empty());
  EXPECT_EQ(Started().archive.settings.MaxSavegame, 0) << "the empty record from now on";
}

TEST_F(KnownArchiveTest, TheCommandLinesArchiveReplacesTheLastOne) {
  disk.Write("Other/Tower.vmk", disk.Read("Archive.vmk"));

  Program program = Started("  T:\\Other\\Tower.VMK ");
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Other\\Tower.VMK");
  EXPECT_EQ(program.catalogue.EntryCount(), 1);
  ShutDown(program);
  EXPECT_EQ(StoredPreferences().LastArchive, "T:\\Other\\Tower.VMK");

  WritePreferences();
  EXPECT_EQ(Started("\"T:\\Other\\Tower.vmk\"").preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_EQ(Started(files.HostPath("T:\\Other\\Tower.vmk")).preferences.LastArchive,
            "T:\\Other\\Tower.vmk")
      << "a path of the host";
  EXPECT_EQ(Started("T:\\gone.vmk").preferences.LastArchive, "");
}

TEST_F(KnownArchiveTest, TheCommandLinesPreferencesFileIsReadAndWrittenBack) {
  disk.Write("My.PRF", disk.Read("Program/manager.prf") + "beyond");
  disk.Remove({"Program/manager.prf"});

  Program program = Started("T:\\my.prf");
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  program.preferences.SoundEffects = true;
  ShutDown(program);
  EXPECT_TRUE(StoredPreferences("My.PRF").SoundEffects);
  EXPECT_TRUE(disk.Read("My.PRF").ends_with("beyond"));
  EXPECT_FALSE(disk.Exists("Program/manager.prf"));
  EXPECT_EQ(Started("T:\\none.prf").paths.PreferencesPath, "T:\\Program\\manager.prf");
}

TEST_F(StartUpTest, AMissingDefaultPictureIsToldEveryTime) {
  disk.Remove({"Program/default_shot.jpg"});
  Program program = Started();
  EXPECT_TRUE(
      Contains(boxes.AllTexts(), "\"default_shot.jpg\" in application folder: T:\\Program"));
  EXPECT_EQ(program.paths.DefaultShotPath, "");
}

TEST_F(KnownArchiveTest, AskIsFollowedByAnImportOnYesOnly) {
  AddSavegame("Game", 3, "B", 11);
  boxes.answers = {BoxAnswer::kNo};
  Started();
  EXPECT_TRUE(boxes.AllTexts().starts_with("There are new savegame to archive"));
  EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kYesNo);
  EXPECT_FALSE(disk.Exists("Archive/Slot2"));

  Started();
  EXPECT_EQ(disk.Listed("Archive/Slot2"), "savegame.3|");
  Started();
  EXPECT_EQ(boxes.shown.size(), 3U) << "question, question, report; then nothing is new";
}

TEST_F(KnownArchiveTest, AnEmptyArchiveImportsWithoutAQuestion) {
  disk.Remove({"Archive/Slot1"});
  AddSavegame("Game", 0, "A", 1);
  Started();
  EXPECT_TRUE(boxes.shown.back().text.starts_with("There are no new savegame"));
  AddSavegame("Game", 1, "B", 2);
  Started();
  EXPECT_EQ(boxes.shown.back().text, "Imported  2 savegames.");
}

TEST_F(StartUpTest, SlotsLeftInTheBackupFolderAreSetAside) {
  disk.Write("Program/temp/savegame.3", "own savegame");
  disk.Write("Program/temp/note3.txt", "own note");
  disk.Write("Program/temp/other.txt", "no slot file");
  disk.Write("Program/rescued/1/savegame.0", "older");
  Started();
  EXPECT_EQ(disk.Listed("Program/temp"), "other.txt|");
  EXPECT_EQ(disk.Read("Program/rescued/2/savegame.3"), "own savegame");
  EXPECT_EQ(disk.Read("Program/rescued/2/note3.txt"), "own note");
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(Contains(boxes.shown[0].text, "\"T:\\Program\\rescued\\2\""));
}

TEST_F(StartUpTest, AFileInThePlaceOfAFolderIsNamed) {
  disk.Write("Program/temp", "a file");
  Started();
  EXPECT_TRUE(Contains(boxes.AllTexts(), "temp\" cannot be used: it is a file, not a folder"));

  boxes.shown.clear();
  disk.Remove({"Program/temp"});
  disk.Write("Program/rescued", "a file");
  AddSavegame("Program/temp", 3, "Left", 1);
  Started();
  EXPECT_TRUE(Contains(boxes.AllTexts(), "rescued\": it is a file, not a folder"));
  EXPECT_TRUE(disk.Exists("Program/temp/savegame.3"));
}

TEST_F(StartUpTest, OfBackedUpSlotsThatCannotBeMovedNothingIsSaidToHaveBeen) {
  disk.Write("Program/temp/savegame.3", "own savegame");
  files.FailAlways("Delete", "temp\\savegame.3", FileError::kInUse);
  files.FailAlways("Rename", "temp\\savegame.3", FileError::kInUse);
  Started();
  EXPECT_TRUE(disk.Exists("Program/temp/savegame.3"));
  EXPECT_FALSE(disk.Exists("Program/rescued/1/savegame.3"));
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(boxes.shown[0].text.starts_with("Warning: savegames left by a previous run"));
}

TEST_F(KnownArchiveTest, ADamagedPreferencesFileIsToldAndKeptBeforeItIsWritten) {
  const std::string cut_off = disk.Read("Program/manager.prf").substr(0, 300);
  const std::string foreign = "[General]\r\n" + std::string(3000, 'x');
  for (const auto& [damaged, archive] :
       {std::pair(cut_off, "T:\\Archive.vmk"), std::pair(foreign, "")}) {
    disk.Write("My.prf", damaged);
    boxes.shown.clear();
    Program program = Started("T:\\My.prf");
    EXPECT_EQ(program.preferences.LastArchive, archive);
    EXPECT_EQ(program.preferences.ShotFolder, "T:\\Program") << "the default";
    ASSERT_EQ(boxes.shown.size(), 1U);
    ShutDown(program);
    EXPECT_EQ(disk.Read(*archive == '\0' ? "My.prf.bak2" : "My.prf.bak"), damaged);
  }
}

TEST_F(KnownArchiveTest, AShortArchiveFileIsWrittenOnlyWhenItWasChangedAndKeptThen) {
  const std::string damaged = disk.Read("Archive.vmk").substr(0, 600);
  disk.Write("Archive.vmk", damaged);
  Program program = Started();
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\Archive");
  EXPECT_EQ(boxes.shown.size(), 1U);
  ShutDown(program);
  EXPECT_EQ(disk.Read("Archive.vmk"), damaged);

  Program second = Started();
  second.archive.settings.GameFolder = "T:\\Game";
  ShutDown(second);
  EXPECT_EQ(disk.Read("Archive.vmk.bak"), damaged);
  EXPECT_EQ(disk.Read("Archive.vmk").size(), 1030U);
}

TEST_F(StartUpTest, ForeignContentIsNotTakenForAnArchive) {
  WritePreferences();
  const std::string foreign(3000, '\1');
  disk.Write("Archive.vmk", foreign);
  Program program = Started();
  EXPECT_EQ(program.preferences.LastArchive, "");
  ASSERT_EQ(boxes.shown.size(), 1U);
  ShutDown(program);
  EXPECT_EQ(disk.Read("Archive.vmk"), foreign);
}

TEST_F(StartUpTest, CaptionsComeFirstAndTheOpeningSoundLast) {
  WritePreferences(/*sounds=*/true);
  Program program = NewProgram();
  MainWindowLoaded(program);
  EXPECT_EQ(windows.events.size(), 9U);
  EXPECT_EQ(sounds.played, std::vector{files.HostPath("T:\\Program\\s7.wav")});
}

// Savegames in the archive, and own slots that the last run has left in the backup folder.
class LeftBackup : public StoredWorld {
 public:
  LeftBackup() {
    WriteArchiveFile();
    WritePreferences(/*sounds=*/true);
    AddSavegame("Archive/Slot1", 0, "A", 10);
    disk.Write("Program/temp/savegame.3", "own savegame");
    disk.Write("Program/temp/shot3.jpg", "own picture");
  }

  void Run() {
    Program program = NewProgram();
    StartUp(program);
    ShutDown(program);
  }
};

TEST(StartUpFailureTest, NoFailingCallStopsARunOrCostsAFile) {
  Files savegames = LeftBackup().disk.AllFiles("Archive");
  savegames.merge(LeftBackup().disk.AllFiles("Program/temp"));
  testing::FailEveryCall<LeftBackup>(
      FileError::kAccessDenied, std::mem_fn(&LeftBackup::Run), [&](LeftBackup& world) {
        ExpectNothingLost(savegames, world.disk);
        EXPECT_EQ(DecodeArchive(world.disk.Read("Archive.vmk")).MainFolder, "T:\\Archive");
        EXPECT_TRUE(world.StoredPreferences().SoundEffects ||
                    world.disk.Exists("Program/manager.prf.bak"));
      });
}

using ShutDownTest = KnownArchiveTest;

TEST_F(ShutDownTest, SavesTheArchiveThenThePreferencesThenWarns) {
  Program program = Started();
  program.preferences.SoundEffects = true;
  program.capture.ShotLinkedNotImported = true;
  program.capture.CaptureDialogOpen = true;
  program.capture.typed_note = "typed\x8Dtoo";
  program.details.ViewerOpen = true;
  boxes.while_waiting = [this] {
    EXPECT_EQ(DecodeArchive(disk.Read("Archive.vmk")).SavegameCount, 1);
    EXPECT_TRUE(StoredPreferences().SoundEffects);
  };
  MainWindowClosing(program);

  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(Contains(boxes.shown[1].text, "Program\\rescued\\1\""));
  EXPECT_EQ(disk.Read("Program/rescued/1/note.txt"), "typed\x8Dtoo\r\n");
  EXPECT_TRUE(Contains(boxes.shown[0].text, "has not yet imported"));
  EXPECT_TRUE(sounds.played.back().ends_with("s2.wav"));

  std::vector<WindowId> closed;
  for (const auto& [event, window] : windows.events) closed.push_back(window);
  EXPECT_EQ(closed,
            (std::vector<WindowId>{
                WindowId::kDialogScreenShot, WindowId::kDialogCattura, WindowId::kDialogCattura,
                WindowId::kDialogCerca, WindowId::kDialogGetDir, WindowId::kDialogNote,
                WindowId::kDialogPref, WindowId::kDialogRiordina, WindowId::kDialogScreenShot,
                WindowId::kDialogSetNewArc, WindowId::kDialogRescued}));
}

TEST_F(ShutDownTest, WhatAnotherProgramWroteIntoTheRecordsMeanwhileIsKept) {
  Program program = Started();
  program.preferences.SoundEffects = true;
  const std::string preferences = disk.Read("Program/manager.prf").replace(0, 2, "\0\0", 2);
  const std::string archive = EncodeArchive({"Other", "T:\\Other", "T:\\Game", "", 9, 0});
  disk.Write("Program/manager.prf", preferences);
  disk.Write("Archive.vmk", archive);
  boxes.shown.clear();
  program.archive.ArchiveChanged = true;
  ShutDown(program);
  EXPECT_EQ(disk.Read("Program/manager.prf.bak"), preferences);
  EXPECT_EQ(disk.Read("Archive.vmk.bak"), archive);
  EXPECT_EQ(boxes.shown.size(), 2U) << boxes.AllTexts();
  EXPECT_TRUE(Contains(boxes.AllTexts(), "Archive.vmk\" was changed by another program"));

  program.archive.ArchiveChanged = true;
  ShutDown(program);
  EXPECT_EQ(boxes.shown.size(), 2U) << "what this run has written is no surprise";
}

TEST_F(ShutDownTest, WhenTheSessionEndsNothingIsAskedAndTheNextStartTells) {
  Program program = Started();
  program.preferences.SoundEffects = true;
  program.capture.ShotLinkedNotImported = true;
  program.capture.CaptureDialogOpen = true;
  program.capture.typed_note = "typed";
  program.play.ExaminedInGameFolder = program.play.backup_whole = true;
  disk.MakeReadOnly("Archive.vmk");
  boxes.shown.clear();
  SaveForSessionEnd(program);
  EXPECT_FALSE(program.session.ending) << "the session may go on";
  EXPECT_TRUE(EndSession(program));
  EXPECT_FALSE(EndSession(program));
  EXPECT_EQ(boxes.AllTexts(), "");
  EXPECT_TRUE(StoredPreferences().SoundEffects);
  EXPECT_EQ(disk.Read("Program/rescued/1/note.txt"), "typed\r\n");

  Started();
  for (const char* told : {"Archive.vmk\": it is read-only", "rescued\\1\"", "not yet imported"}) {
    EXPECT_TRUE(Contains(boxes.AllTexts(), told));
  }
  boxes.shown.clear();
  Started();
  EXPECT_EQ(boxes.AllTexts(), "") << "told once";
}

TEST_F(ShutDownTest, ASessionThatEndsDuringTheStartCostsNoSetting) {
  const auto before = disk.AllFiles("Program");
  disk.Remove({"Program/default_shot.jpg"});
  Program program = NewProgram();
  boxes.while_waiting = [&program] { EXPECT_TRUE(EndSession(program)); };
  StartUp(program);
  EXPECT_EQ(disk.Read("Program/manager.prf"), before.at("manager.prf"));
}

TEST_F(ShutDownTest, FilesThatCannotBeWrittenAreToldAndStay) {
  Program program = Started();
  program.preferences.SearchInNotes = false;
  disk.MakeReadOnly("Archive.vmk");
  disk.MakeReadOnly("Program/manager.prf");
  const auto before = disk.AllFiles();
  boxes.answers = {BoxAnswer::kNo};
  ShutDown(program);
  EXPECT_EQ(boxes.shown.size(), 2U) << boxes.AllTexts();
  EXPECT_EQ(disk.AllFiles(), before);
}

}  // namespace
}  // namespace vellumark
