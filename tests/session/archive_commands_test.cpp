#include "session/archive_commands.h"

#include <gtest/gtest.h>

#include "archive/archive_file.h"
#include "archive/archive_settings_validation.h"
#include "foundation/preferences_file.h"
#include "session/session_end.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::OpenWorld;
using Field = MainWindow::Field;

class ArchiveCommandsTest : public ::testing::Test, public OpenWorld {
 protected:
  ArchiveCommandsTest() {
    WriteArchiveFile();
    AddSavegame("Archive/Slot1", 0, "A", 1);
    AddSavegame("Archive/Slot1", 2, "B", 2);
    AddSavegame("Game", 0, "C", 3);
    program.preferences.LastArchive = " T:\\Archive.vmk ";
    Rescan();
    program.archive.ArchiveChanged = true;
  }

  ArchiveSettings Stored(const std::string& file) const { return DecodeArchive(disk.Read(file)); }

  // What the archive properties dialog leaves after its OK.
  void AnswerWithOk() {
    program.archive.settings.MainFolder = "T:\\Fresh";
    program.archive.settings.GameFolder = "T:\\Game";
    program.archive.ArchivePropertiesOk = true;
  }
};

TEST_F(ArchiveCommandsTest, SaveIfChangedCountsArchivedSavegamesAndSaveAsCountsAll) {
  SaveArchiveIfChanged(program);
  EXPECT_EQ(Stored("Archive.vmk").SavegameCount, 2);
  program.archive.settings.SavegameCount = 9;
  SaveArchiveIfChanged(program);
  EXPECT_EQ(program.archive.settings.SavegameCount, 9) << "unchanged archives are left alone";

  dialogs.answers = {"T:\\New.vmk"};
  SaveArchiveAs(program);
  EXPECT_EQ(Stored("New.vmk").SavegameCount, 3);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\New.vmk");
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].start_folder, "T:");
  EXPECT_EQ(dialogs.requests[0].initial_name, "T:\\Archive.vmk");
  EXPECT_FALSE(dialogs.requests[0].confirm_overwrite);
}

TEST_F(ArchiveCommandsTest, SaveAsThatCannotWriteAsksAgainAndCancelledKeepsTheOldName) {
  program.preferences.LastArchive = "T:\\Archive.vmk";
  const auto before = disk.AllFiles();
  dialogs.answers = {"T:\\None\\x.vmk", "T:\\" + std::string(254, 'x'), std::nullopt};
  SaveArchiveAs(program);
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "the folder that it lay in is not there"));
}

TEST_F(ArchiveCommandsTest, SaveAsKeepsWhatAnotherFileOfThatNameHeld) {
  const std::string savegame = disk.Read("Archive/Slot1/savegame.0");
  dialogs.answers = {"T:\\Archive\\Slot1\\savegame.0"};
  SaveArchiveAs(program);
  EXPECT_EQ(disk.Read("Archive/Slot1/savegame.0.bak"), savegame);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "savegame.0.bak"));
}

TEST_F(ArchiveCommandsTest, ANeverNamedArchiveBringsUpTheSaveDialog) {
  program.preferences.LastArchive = "T:\\Program\\NoName.vmk";
  dialogs.answers = {"T:\\D.vmk"};
  SaveArchiveIfChanged(program);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\D.vmk");
  EXPECT_TRUE(disk.Exists("D.vmk"));
  program.archive.ArchiveChanged = true;
  SaveArchiveIfChanged(program);
  EXPECT_EQ(dialogs.requests.size(), 1U) << "later saves ask nothing";
}

TEST_F(ArchiveCommandsTest, AFailedSaveIsToldAndOffersAnotherName) {
  disk.MakeReadOnly("Archive.vmk");
  const std::string before = disk.Read("Archive.vmk");
  program.archive.settings.MaxSavegame = 10;
  SaveArchive(program);
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "access is denied"));

  dialogs.answers = {"T:\\Else.vmk"};
  SaveArchiveIfChanged(program);
  EXPECT_TRUE(disk.Exists("Else.vmk"));
  EXPECT_EQ(disk.Read("Archive.vmk"), before);
}

TEST_F(ArchiveCommandsTest, WithoutAnArchiveSaveAsksForANameAndSaveIfChangedStaysQuiet) {
  program.preferences.LastArchive = "";
  program.archive.settings = {};
  SaveArchiveIfChanged(program);
  EXPECT_TRUE(dialogs.requests.empty());
  SaveArchive(program);
  EXPECT_EQ(dialogs.requests.size(), 1U);
}

TEST_F(ArchiveCommandsTest, LoadOpensTheChosenArchive) {
  ArchiveSettings other = program.archive.settings;
  other.MainFolder = "T:\\Other";
  other.GameFolder = "t:\\GAME";
  disk.Write("Other.vmk", EncodeArchive(other));
  AddSavegame("Other/Slot1", 0, "Other", 1);
  dialogs.answers = {" T:\\Other.vmk"};
  LoadArchive(program);

  EXPECT_EQ(Stored("Archive.vmk").SavegameCount, 2) << "the changed archive was saved first";
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Other.vmk");
  EXPECT_EQ(program.archive.settings, other);
  ASSERT_EQ(program.catalogue.EntryCount(), 2);
  EXPECT_EQ(program.catalogue.entries[0].LevelName, "Other");
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_EQ(dialogs.requests[0].start_folder, "T:\\Program");
}

TEST_F(ArchiveCommandsTest, LoadRefusesWhatIsNoWholeArchiveAndLeavesEverything) {
  SaveArchiveIfChanged(program);
  const ArchiveSettings before = program.archive.settings;
  disk.Write("short.vmk", std::string(1029, ' '));
  disk.Write("foreign.vmk", std::string(5000, '\7'));
  dialogs.answers = {"T:\\short.vmk", "T:\\foreign.vmk", "T:\\missing.vmk",
                     "T:\\" + std::string(260, 'x'), std::nullopt};
  for (std::size_t refused = 1; refused <= 4; ++refused) {
    LoadArchive(program);
    EXPECT_EQ(boxes.shown.size(), refused);
    EXPECT_EQ(program.archive.settings, before);
    EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
    EXPECT_EQ(windows.lines.size(), 3U);
    EXPECT_FALSE(program.archive.ArchiveChanged);
  }
  LoadArchive(program);
  EXPECT_EQ(boxes.shown.size(), 4U) << "cancelling says nothing";
}

TEST_F(ArchiveCommandsTest, NewStartsFromItsDefaultsAndTakesTheDialogsOk) {
  ArchiveSettings prepared_with;
  std::string prepared_path;
  windows.in_dialog = [&](WindowId dialog) {
    EXPECT_EQ(dialog, WindowId::kDialogSetNewArc);
    prepared_with = program.archive.settings;
    prepared_path = program.preferences.LastArchive;
    AnswerWithOk();
  };
  NewArchive(program);
  EXPECT_EQ(Stored("Archive.vmk").SavegameCount, 2) << "the changed archive was saved first";
  EXPECT_EQ(prepared_with, (ArchiveSettings{"Slot", "", "", "", 15, 0}));
  EXPECT_EQ(prepared_path, "T:\\Program\\NoName.vmk");
  EXPECT_EQ(program.catalogue.EntryCount(), 1) << "the game folder's savegame";
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ArchiveCommandsTest, ANewArchiveKeepsTheFileOfAnOlderOneWithoutAName) {
  const std::string older = disk.Read("Archive.vmk");
  disk.Write("Program/NoName.vmk", older);
  windows.in_dialog = [this](WindowId) { AnswerWithOk(); };
  NewArchive(program);
  SaveArchive(program);
  SaveArchive(program);
  EXPECT_EQ(Stored("Program/NoName.vmk").MainFolder, "T:\\Fresh");
  EXPECT_EQ(disk.Read("Program/NoName.vmk.bak"), older);
  EXPECT_EQ(boxes.shown.size(), 1U) << "from then on the file is its own";
}

TEST_F(ArchiveCommandsTest, NewWithNothingToListTriesToImport) {
  disk.Remove({"Game/savegame.0"});
  windows.in_dialog = [this](WindowId) { AnswerWithOk(); };
  NewArchive(program);
  EXPECT_EQ(boxes.AllTexts(), "There are no new savegame to archive in Tomb Raider folder\n");
}

TEST_F(ArchiveCommandsTest, NewCancelledPutsTheArchiveBack) {
  const ArchiveSettings before = program.archive.settings;
  windows.in_dialog = [this](WindowId) { program.archive.ArchivePropertiesOk = false; };
  NewArchive(program);
  EXPECT_EQ(program.archive.settings.MainFolder, before.MainFolder);
  EXPECT_EQ(program.archive.settings.SubfolderBaseName, before.SubfolderBaseName);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_EQ(program.catalogue.EntryCount(), 3);
}

TEST_F(ArchiveCommandsTest, WhenTheSessionEndsTheArchiveInUseIsSavedWhateverIsOpen) {
  program.session.settings_read = true;
  const auto stored = [this](const std::string& file) {
    Preferences preferences;
    DecodePreferences(disk.Read("Program/manager.prf"), preferences);
    EXPECT_EQ(preferences.LastArchive, "T:\\" + file);
    return DecodeArchive(disk.Read(file)).MainFolder;
  };
  program.paths.PreferencesPath = "T:\\Program\\manager.prf";
  windows.in_dialog = [this](WindowId) { SaveForSessionEnd(program); };
  NewArchive(program);
  EXPECT_EQ(stored("Archive.vmk"), "T:\\Archive");

  disk.Write("Other.vmk", EncodeArchive({"Other", "T:\\Other", "T:\\Elsewhere", "", 9, 0}));
  program.play.ExaminedInGameFolder = program.play.backup_whole = true;
  program.archive.ArchiveChanged = true;
  boxes.while_waiting = [this] { SaveForSessionEnd(program); };
  boxes.answers = {BoxAnswer::kNo};
  dialogs.answers = {"T:\\Archive.vmk", "T:\\Other.vmk"};
  LoadArchive(program);
  EXPECT_EQ(stored("Archive.vmk"), "T:\\Archive");
  EXPECT_EQ(DecodeArchive(disk.Read("Other.vmk")).MainFolder, "T:\\Other");

  disk.Write("Program/NoName.vmk", "another's");
  program.preferences.LastArchive.clear();
  program.archive.ArchiveChanged = true;
  EndSession(program);
  EXPECT_EQ(DecodeArchive(disk.Read("Program/NoName.vmk")).MainFolder, "T:\\Archive");
  EXPECT_EQ(disk.Read("Program/NoName.vmk.bak"), "another's");
}

TEST_F(ArchiveCommandsTest, ValidationNamesTheFirstMissingSetting) {
  EXPECT_TRUE(ValidateArchiveSettings(program));

  ArchiveSettings& settings = program.archive.settings;
  const auto refusal = [this] {
    boxes.shown.clear();
    EXPECT_FALSE(ValidateArchiveSettings(program));
    return boxes.AllTexts();
  };
  settings.MaxSavegame = 0;
  EXPECT_NE(refusal(), "");
  settings.GameExecutable = "T:\\Game\\gone.exe";
  EXPECT_TRUE(Contains(refusal(), "application path"));
  settings.GameFolder = "  ";
  EXPECT_TRUE(Contains(refusal(), "application folder"));
  settings.MainFolder = "";
  EXPECT_TRUE(Contains(refusal(), "main folder"));
  settings.SubfolderBaseName = "";
  EXPECT_TRUE(Contains(refusal(), "sub-folder name"));
}

TEST_F(ArchiveCommandsTest, AnArchiveThatIsNamedOpensAsOneThatIsChosen) {
  ArchiveSettings other = testing::WorldSettings();
  other.SubfolderBaseName = "Other";
  disk.Write("Other.vmk", EncodeArchive(other));
  program.archive.settings.SubfolderBaseName = "Slot";
  const std::string before = disk.Read("Archive.vmk");
  program.archive.settings.MaxSavegame = 9;
  OpenArchive(program, " T:\\Other.vmk ");
  EXPECT_NE(disk.Read("Archive.vmk"), before) << "the changed one is saved first";
  EXPECT_EQ(NamedArchive(program), "T:\\Other.vmk");
  EXPECT_EQ(program.archive.settings.SubfolderBaseName, "Other");
  EXPECT_EQ(program.catalogue.EntryCount(), 1) << "the game's";
  EXPECT_TRUE(dialogs.requests.empty());

  for (const char* refused : {"T:\\None.vmk", "T:\\Game", "T:\\Game\\savegame.0"}) {
    boxes.shown.clear();
    OpenArchive(program, refused);
    EXPECT_EQ(boxes.shown.size(), 1U) << refused;
    EXPECT_EQ(NamedArchive(program), "T:\\Other.vmk");
  }
  program.preferences.LastArchive = "T:\\Program\\NoName.vmk";
  EXPECT_EQ(NamedArchive(program), "");
}

}  // namespace
}  // namespace vellumark
