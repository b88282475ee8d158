#include "foundation/start_up.h"

#include <gtest/gtest.h>

#include <set>

#include "archive/archive_file.h"
#include "foundation/preferences_file.h"
#include "foundation/shut_down.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;

class StartUpTest : public ::testing::Test {
 protected:
  // A new run of the program with this command line, up to the end of start-up.
  Program Started(const std::string& arguments = "") {
    Program program = world.NewProgram();
    program.argument_text = arguments;
    StartUp(program);
    return program;
  }

  Preferences StoredPreferences(const std::string& file = "Program/manager.prf") const {
    Preferences preferences;
    DecodePreferences(world.disk.Read(file), preferences);
    return preferences;
  }

  TestWorld world;
};

TEST_F(StartUpTest, AFirstRunTakesTheDefaultsAndLeavesAPreferencesFile) {
  world.WriteArchiveFile();
  Program program = Started("T:\\Archive.vmk");
  EXPECT_EQ(program.preferences.LastArchive, "") << "without preferences it is not used";
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Program");
  EXPECT_TRUE(program.preferences.AutoCapture);
  EXPECT_FALSE(program.preferences.SoundEffects);
  EXPECT_EQ(program.archive.settings.MaxSavegame, 15);
  EXPECT_TRUE(world.disk.Exists("Program/temp"));
  EXPECT_FALSE(program.archive.ArchiveChanged);
  EXPECT_TRUE(world.boxes.shown.empty());

  ShutDown(program);
  EXPECT_EQ(world.disk.Read("Program/manager.prf").size(), 524U);
  EXPECT_TRUE(world.dialogs.requests.empty());
  EXPECT_EQ(Started().archive.settings.MaxSavegame, 0) << "the empty record from now on";
}

TEST_F(StartUpTest, TheCommandLinesArchiveReplacesTheLastOne) {
  world.WriteArchiveFile();
  world.WritePreferences();
  world.AddSavegame("Archive/Slot1", 0, "A", 1);
  world.disk.Write("Other/Tower.vmk", world.disk.Read("Archive.vmk"));

  Program program = Started("  T:\\Other\\Tower.VMK ");
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Other\\Tower.VMK");
  EXPECT_EQ(program.catalogue.EntryCount(), 1);
  ShutDown(program);
  EXPECT_EQ(StoredPreferences().LastArchive, "T:\\Other\\Tower.VMK");

  world.WritePreferences();
  EXPECT_EQ(Started("\"T:\\Other\\Tower.vmk\"").preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_EQ(Started(world.files.HostPath("T:\\Other\\Tower.vmk")).preferences.LastArchive,
            "T:\\Other\\Tower.vmk")
      << "a path of the host";
  EXPECT_EQ(Started("T:\\gone.vmk").preferences.LastArchive, "");
}

TEST_F(StartUpTest, TheCommandLinesPreferencesFileIsReadAndWrittenBack) {
  world.WriteArchiveFile();
  world.WritePreferences();
  world.disk.Write("My.PRF", world.disk.Read("Program/manager.prf") + "beyond");
  std::filesystem::remove(world.disk.path() / "Program/manager.prf");

  Program program = Started("T:\\my.prf");
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  program.preferences.SoundEffects = true;
  ShutDown(program);
  EXPECT_TRUE(StoredPreferences("My.PRF").SoundEffects);
  EXPECT_TRUE(world.disk.Read("My.PRF").ends_with("beyond"));
  EXPECT_FALSE(world.disk.Exists("Program/manager.prf"));
  EXPECT_EQ(Started("T:\\none.prf").paths.PreferencesPath, "T:\\Program\\manager.prf");
}

TEST_F(StartUpTest, AMissingDefaultPictureIsToldEveryTime) {
  std::filesystem::remove(world.disk.path() / "Program/default_shot.jpg");
  Program program = Started();
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_EQ(world.boxes.shown[0].text,
            "Warning: missing default screenshot image \"default_shot.jpg\" in application folder: "
            "T:\\Program");
  EXPECT_EQ(world.boxes.shown[0].icon, BoxIcon::kCritical);
  EXPECT_EQ(program.paths.DefaultShotPath, "");
}

TEST_F(StartUpTest, AskIsFollowedByAnImportOnYesOnly) {
  world.WriteArchiveFile();
  world.WritePreferences();
  world.AddSavegame("Archive/Slot1", 0, "A", 10);
  world.AddSavegame("Game", 3, "B", 11);
  world.boxes.answers = {BoxAnswer::kNo};
  Started();
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_EQ(world.boxes.shown[0].text,
            "There are new savegame to archive in Tomb Raider folder\r\nDo you want move savegames "
            "from Tomb Raider folder to current archive?\r\n(Note: will be moved all savegames  "
            "except last (most recent) that will be renamed as 'first slot' savegame)");
  EXPECT_EQ(world.boxes.shown[0].buttons, BoxButtons::kYesNo);
  EXPECT_FALSE(world.disk.Exists("Archive/Slot2"));

  Started();
  EXPECT_EQ(world.disk.Names("Archive/Slot2"), std::vector<std::string>{"savegame.3"});
  Started();
  EXPECT_EQ(world.boxes.shown.size(), 3U) << "question, question, report; then nothing is new";
}

TEST_F(StartUpTest, AnEmptyArchiveImportsWithoutAQuestion) {
  world.WriteArchiveFile();
  world.WritePreferences();
  world.AddSavegame("Game", 0, "A", 1);
  Started();
  EXPECT_TRUE(world.boxes.shown.back().text.starts_with("There are no new savegame"));
  world.AddSavegame("Game", 1, "B", 2);
  Started();
  EXPECT_EQ(world.boxes.shown.back().text, "Imported  2 savegames.");
}

TEST_F(StartUpTest, SlotsLeftInTheBackupFolderAreSetAside) {
  world.disk.Write("Program/temp/savegame.3", "own savegame");
  world.disk.Write("Program/temp/note3.txt", "own note");
  world.disk.Write("Program/temp/other.txt", "no slot file");
  world.disk.Write("Program/rescued/1/savegame.0", "older");
  Started();
  EXPECT_EQ(world.disk.Names("Program/temp"), std::vector<std::string>{"other.txt"});
  EXPECT_EQ(world.disk.Read("Program/rescued/2/savegame.3"), "own savegame");
  EXPECT_EQ(world.disk.Read("Program/rescued/2/note3.txt"), "own note");
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_NE(world.boxes.shown[0].text.find("\"T:\\Program\\rescued\\2\""), std::string::npos);
}

TEST_F(StartUpTest, OfBackedUpSlotsThatCannotBeMovedNothingIsSaidToHaveBeen) {
  world.disk.Write("Program/temp/savegame.3", "own savegame");
  world.files.meanwhile = [this](const std::string& operation) {
    world.files.FailAlways(operation == "Delete" ? "Delete" : "Rename", "temp\\savegame.3",
                           FileError::kInUse);
  };
  Started();
  EXPECT_TRUE(world.disk.Exists("Program/temp/savegame.3"));
  EXPECT_FALSE(world.disk.Exists("Program/rescued/1/savegame.3"));
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_TRUE(world.boxes.shown[0].text.starts_with("Warning: savegames left by a previous run"));
}

TEST_F(StartUpTest, BackedUpSlotsThatCannotBeMovedStay) {
  for (int call = 1;; ++call) {
    TestWorld other;
    other.disk.Write("Program/temp/savegame.3", "own savegame");
    other.disk.Write("Program/temp/shot3.jpg", "own picture");
    Program program = other.NewProgram();
    other.files.FailCall(call, FileError::kAccessDenied);
    StartUp(program);
    if (other.files.calls() < call) break;
    std::string all;
    for (const auto& [name, bytes] : other.disk.AllFiles()) all += bytes;
    EXPECT_NE(all.find("own savegame"), std::string::npos) << "call " << call;
    EXPECT_NE(all.find("own picture"), std::string::npos) << "call " << call;
  }
}

TEST_F(StartUpTest, AShortPreferencesFileIsToldAndKeptBeforeItIsWritten) {
  world.WriteArchiveFile();
  world.WritePreferences();
  const std::string damaged = world.disk.Read("Program/manager.prf").substr(0, 300);
  world.disk.Write("Program/manager.prf", damaged);
  Program program = Started();
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Program") << "the default";
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  ShutDown(program);
  EXPECT_EQ(world.disk.Read("Program/manager.prf.bak"), damaged);
  EXPECT_EQ(world.disk.Read("Program/manager.prf").size(), 524U);
}

TEST_F(StartUpTest, AForeignPreferencesFileIsKeptBeforeItIsWritten) {
  const std::string foreign = "[General]\r\n" + std::string(3000, 'x');
  world.disk.Write("My.prf", foreign);
  Program program = Started("T:\\My.prf");
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Program") << "the default";
  EXPECT_EQ(world.boxes.shown.size(), 1U);
  ShutDown(program);
  EXPECT_EQ(world.disk.Read("My.prf.bak"), foreign);
}

TEST_F(StartUpTest, AShortArchiveFileIsWrittenOnlyWhenItWasChangedAndKeptThen) {
  world.WriteArchiveFile();
  world.WritePreferences();
  const std::string damaged = world.disk.Read("Archive.vmk").substr(0, 600);
  world.disk.Write("Archive.vmk", damaged);
  Program program = Started();
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\Archive");
  EXPECT_EQ(world.boxes.shown.size(), 1U);
  ShutDown(program);
  EXPECT_EQ(world.disk.Read("Archive.vmk"), damaged);

  Program second = Started();
  second.archive.settings.GameFolder = "T:\\Game";
  ShutDown(second);
  EXPECT_EQ(world.disk.Read("Archive.vmk.bak"), damaged);
  EXPECT_EQ(world.disk.Read("Archive.vmk").size(), 1030U);
}

TEST_F(StartUpTest, ForeignContentIsNotTakenForAnArchive) {
  world.WritePreferences();
  const std::string foreign(3000, '\1');
  world.disk.Write("Archive.vmk", foreign);
  Program program = Started();
  EXPECT_EQ(program.preferences.LastArchive, "");
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  ShutDown(program);
  EXPECT_EQ(world.disk.Read("Archive.vmk"), foreign);
}

TEST_F(StartUpTest, CaptionsComeFirstAndTheOpeningSoundLast) {
  world.WritePreferences(/*sounds=*/true);
  Program program = world.NewProgram();
  MainWindowLoaded(program);
  EXPECT_EQ(world.windows.events.size(), 9U);
  ASSERT_EQ(world.sounds.played.size(), 1U);
  EXPECT_EQ(world.sounds.played[0], world.files.HostPath("T:\\Program\\s7.wav"));
}

TEST_F(StartUpTest, NoFailingCallStopsARunOrCostsAFile) {
  world.WriteArchiveFile();
  world.WritePreferences(/*sounds=*/true);
  world.AddSavegame("Archive/Slot1", 0, "A", 10);
  world.disk.Write("Program/temp/savegame.0", "left");
  const auto before = world.disk.AllFiles();
  for (int call = 1;; ++call) {
    world.files.Reset();
    world.files.FailCall(call, FileError::kAccessDenied);
    Program program = Started();
    ShutDown(program);
    if (world.files.calls() < call) break;
    std::multiset<std::string> contents;
    for (const auto& [name, bytes] : world.disk.AllFiles()) contents.insert(bytes);
    for (const char* name : {"Archive/Slot1/savegame.0", "Program/temp/savegame.0"}) {
      EXPECT_TRUE(contents.contains(before.at(name))) << name << " at call " << call;
    }
    const ArchiveSettings stored = DecodeArchive(world.disk.Read("Archive.vmk"));
    EXPECT_EQ(stored.MainFolder, "T:\\Archive") << "call " << call;
    EXPECT_TRUE(StoredPreferences().SoundEffects ||
                std::filesystem::remove(world.disk.path() / "Program/manager.prf.bak"))
        << "call " << call;
    world.WritePreferences(/*sounds=*/true);
  }
}

class ShutDownTest : public StartUpTest {};

TEST_F(ShutDownTest, SavesTheArchiveThenThePreferencesThenWarns) {
  world.WriteArchiveFile();
  world.WritePreferences();
  world.AddSavegame("Archive/Slot1", 0, "A", 10);
  Program program = Started();
  program.preferences.SoundEffects = true;
  program.capture.ShotLinkedNotImported = true;
  program.capture.CaptureDialogOpen = true;
  program.capture.typed_note = "typed\x8Dtoo";
  program.details.ViewerOpen = true;
  world.boxes.while_waiting = [this] {
    EXPECT_EQ(DecodeArchive(world.disk.Read("Archive.vmk")).SavegameCount, 1);
    EXPECT_TRUE(StoredPreferences().SoundEffects);
  };
  MainWindowClosing(program);

  ASSERT_EQ(world.boxes.shown.size(), 2U);
  EXPECT_NE(world.boxes.shown[1].text.find("Program\\rescued\\1\""), std::string::npos);
  EXPECT_EQ(world.disk.Read("Program/rescued/1/note.txt"), "typed\x8Dtoo\r\n");
  EXPECT_EQ(world.boxes.shown[0].text,
            "Warning: Screen-shot you have linked at slot/savegame has not yet imported in "
            "archive.\rYou can import it later with [Import savegames] command");
  EXPECT_EQ(world.boxes.shown[0].icon, BoxIcon::kExclamation);
  EXPECT_TRUE(world.sounds.played.back().ends_with("s2.wav"));

  std::vector<WindowId> closed;
  for (const auto& [event, window] : world.windows.events) closed.push_back(window);
  EXPECT_EQ(closed, (std::vector<WindowId>{
                        WindowId::kDialogScreenShot, WindowId::kDialogCattura,
                        WindowId::kDialogCattura, WindowId::kDialogCerca, WindowId::kDialogGetDir,
                        WindowId::kDialogNote, WindowId::kDialogPref, WindowId::kDialogRiordina,
                        WindowId::kDialogScreenShot, WindowId::kDialogSetNewArc}));
}

TEST_F(ShutDownTest, FilesThatCannotBeWrittenAreToldAndStay) {
  world.WriteArchiveFile();
  world.WritePreferences();
  world.AddSavegame("Archive/Slot1", 0, "A", 10);
  Program program = Started();
  program.preferences.SearchInNotes = false;
  world.disk.MakeReadOnly("Archive.vmk");
  world.disk.MakeReadOnly("Program/manager.prf");
  const auto before = world.disk.AllFiles();
  world.boxes.answers = {BoxAnswer::kNo};
  ShutDown(program);
  EXPECT_EQ(world.boxes.shown.size(), 2U) << world.boxes.AllTexts();
  EXPECT_EQ(world.disk.AllFiles(), before);
}

}  // namespace
}  // namespace vellumark
