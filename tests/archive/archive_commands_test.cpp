#include "archive/archive_commands.h"

#include <gtest/gtest.h>

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "archive/validation.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;
using Field = MainWindow::Field;

class ArchiveCommandsTest : public ::testing::Test {
 protected:
  ArchiveCommandsTest() {
    world.WriteArchiveFile();
    world.AddSavegame("Archive/Slot1", 0, "A", 1);
    world.AddSavegame("Archive/Slot1", 2, "B", 2);
    world.AddSavegame("Game", 0, "C", 3);
    program.archive.settings = ReadArchiveFile(world.files, "T:\\Archive.vmk").settings;
    program.preferences.LastArchive = " T:\\Archive.vmk ";
    ScanArchive(program);
  }

  ArchiveSettings Stored(const std::string& file) const {
    return DecodeArchive(world.disk.Read(file));
  }

  // What the archive properties dialog leaves after its OK.
  void AnswerWithOk() {
    program.archive.settings.MainFolder = "T:\\Fresh";
    program.archive.settings.GameFolder = "T:\\Game";
    program.archive.ArchivePropertiesOk = true;
  }

  TestWorld world;
  Program program = world.NewProgram();
};

TEST_F(ArchiveCommandsTest, SaveWritesTheSettingsAsTheyAre) {
  program.archive.settings.SavegameCount = 77;
  program.archive.settings.SubfolderBaseName = "Other";
  SaveArchive(program);
  EXPECT_EQ(Stored("Archive.vmk"), program.archive.settings);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_FALSE(program.archive.ArchiveChanged);
  EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_F(ArchiveCommandsTest, SaveIfChangedCountsArchivedSavegamesAndSaveAsCountsAll) {
  SaveArchiveIfChanged(program);
  EXPECT_EQ(Stored("Archive.vmk").SavegameCount, 2);
  program.archive.settings.SavegameCount = 9;
  SaveArchiveIfChanged(program);
  EXPECT_EQ(program.archive.settings.SavegameCount, 9) << "unchanged archives are left alone";

  world.dialogs.answers = {"T:\\New.vmk"};
  SaveArchiveAs(program);
  EXPECT_EQ(Stored("New.vmk").SavegameCount, 3);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\New.vmk");
  ASSERT_EQ(world.dialogs.requests.size(), 1U);
  EXPECT_EQ(world.dialogs.requests[0].title, "Save savegames archive");
  EXPECT_EQ(world.dialogs.requests[0].start_folder, "T:");
  EXPECT_EQ(world.dialogs.requests[0].initial_name, "T:\\Archive.vmk");
  EXPECT_FALSE(world.dialogs.requests[0].confirm_overwrite);
}

TEST_F(ArchiveCommandsTest, SaveAsCancelledChangesNothingOnTheDisk) {
  const auto before = world.disk.AllFiles();
  SaveArchiveAs(program);
  EXPECT_EQ(world.disk.AllFiles(), before);
  EXPECT_TRUE(program.archive.ArchiveChanged);
}

TEST_F(ArchiveCommandsTest, SaveAsKeepsWhatAnotherFileOfThatNameHeld) {
  const std::string savegame = world.disk.Read("Archive/Slot1/savegame.0");
  world.dialogs.answers = {"T:\\Archive\\Slot1\\savegame.0"};
  SaveArchiveAs(program);
  EXPECT_EQ(world.disk.Read("Archive/Slot1/savegame.0.bak"), savegame);
  EXPECT_NE(world.boxes.AllTexts().find("savegame.0.bak"), std::string::npos);
}

TEST_F(ArchiveCommandsTest, SaveAsThatCannotWriteKeepsTheOldNameAndAsksAgain) {
  world.dialogs.answers = {"T:\\None\\x.vmk", "T:\\" + std::string(254, 'x'), std::nullopt};
  SaveArchiveAs(program);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_EQ(world.boxes.shown.size(), 2U);

  world.dialogs.answers = {"T:\\None\\x.vmk", "T:\\D.vmk"};
  SaveArchiveAs(program);
  EXPECT_TRUE(world.disk.Exists("D.vmk"));
}

TEST_F(ArchiveCommandsTest, ANeverNamedArchiveBringsUpTheSaveDialog) {
  program.preferences.LastArchive = "T:\\Program\\NoName.vmk";
  world.dialogs.answers = {"T:\\D.vmk"};
  SaveArchiveIfChanged(program);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\D.vmk");
  EXPECT_TRUE(world.disk.Exists("D.vmk"));
  program.archive.ArchiveChanged = true;
  SaveArchiveIfChanged(program);
  EXPECT_EQ(world.dialogs.requests.size(), 1U) << "later saves ask nothing";
}

TEST_F(ArchiveCommandsTest, AFailedSaveIsToldAndOffersAnotherName) {
  world.disk.MakeReadOnly("Archive.vmk");
  const std::string before = world.disk.Read("Archive.vmk");
  program.archive.settings.MaxSavegame = 10;
  SaveArchive(program);
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_NE(world.boxes.AllTexts().find("access is denied"), std::string::npos);

  world.dialogs.answers = {"T:\\Else.vmk"};
  SaveArchiveIfChanged(program);
  EXPECT_TRUE(world.disk.Exists("Else.vmk"));
  EXPECT_EQ(world.disk.Read("Archive.vmk"), before);
}

TEST_F(ArchiveCommandsTest, WithoutAnArchiveSaveAsksForANameAndSaveIfChangedStaysQuiet) {
  program.preferences.LastArchive = "";
  program.archive.settings = {};
  SaveArchiveIfChanged(program);
  EXPECT_TRUE(world.dialogs.requests.empty());
  SaveArchive(program);
  EXPECT_EQ(world.dialogs.requests.size(), 1U);
}

TEST_F(ArchiveCommandsTest, LoadOpensTheChosenArchive) {
  ArchiveSettings other = program.archive.settings;
  other.MainFolder = "T:\\Other";
  other.GameFolder = "t:\\GAME";
  world.disk.Write("Other.vmk", EncodeArchive(other));
  world.AddSavegame("Other/Slot1", 0, "Other", 1);
  world.dialogs.answers = {" T:\\Other.vmk"};
  LoadArchive(program);

  EXPECT_EQ(Stored("Archive.vmk").SavegameCount, 2) << "the changed archive was saved first";
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Other.vmk");
  EXPECT_EQ(program.archive.settings, other);
  ASSERT_EQ(program.catalogue.EntryCount(), 2);
  EXPECT_EQ(program.catalogue.entries[0].LevelName, "Other");
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_EQ(world.dialogs.requests[0].start_folder, "T:\\Program");
}

TEST_F(ArchiveCommandsTest, LoadRefusesWhatIsNoWholeArchiveAndLeavesEverything) {
  SaveArchiveIfChanged(program);
  const ArchiveSettings before = program.archive.settings;
  world.disk.Write("short.vmk", std::string(1029, ' '));
  world.disk.Write("foreign.vmk", std::string(5000, '\7'));
  world.dialogs.answers = {"T:\\short.vmk", "T:\\foreign.vmk", "T:\\missing.vmk",
                           "T:\\" + std::string(260, 'x'), std::nullopt};
  for (std::size_t refused = 1; refused <= 4; ++refused) {
    LoadArchive(program);
    EXPECT_EQ(world.boxes.shown.size(), refused);
    EXPECT_EQ(program.archive.settings, before);
    EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
    EXPECT_EQ(world.windows.lines.size(), 3U);
    EXPECT_FALSE(program.archive.ArchiveChanged);
  }
  LoadArchive(program);
  EXPECT_EQ(world.boxes.shown.size(), 4U) << "cancelling says nothing";
}

TEST_F(ArchiveCommandsTest, NewStartsFromItsDefaultsAndTakesTheDialogsOk) {
  ArchiveSettings prepared_with;
  std::string prepared_path;
  world.windows.in_dialog = [&](WindowId dialog) {
    EXPECT_EQ(dialog, WindowId::kDialogSetNewArc);
    prepared_with = program.archive.settings;
    prepared_path = program.preferences.LastArchive;
    AnswerWithOk();
  };
  NewArchive(program);
  EXPECT_EQ(prepared_with, (ArchiveSettings{"Slot", "", "", "", 15, 0}));
  EXPECT_EQ(prepared_path, "T:\\Program\\NoName.vmk");
  EXPECT_EQ(program.catalogue.EntryCount(), 1) << "the game folder's savegame";
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_F(ArchiveCommandsTest, ANewArchiveKeepsTheFileOfAnOlderOneWithoutAName) {
  const std::string older = world.disk.Read("Archive.vmk");
  world.disk.Write("Program/NoName.vmk", older);
  world.windows.in_dialog = [this](WindowId) { AnswerWithOk(); };
  NewArchive(program);
  SaveArchive(program);
  SaveArchive(program);
  EXPECT_EQ(Stored("Program/NoName.vmk").MainFolder, "T:\\Fresh");
  EXPECT_EQ(world.disk.Read("Program/NoName.vmk.bak"), older);
  EXPECT_EQ(world.boxes.shown.size(), 1U) << "from then on the file is its own";
}

TEST_F(ArchiveCommandsTest, NewWithNothingToListTriesToImport) {
  std::filesystem::remove(world.disk.path() / "Game/savegame.0");
  world.windows.in_dialog = [this](WindowId) { AnswerWithOk(); };
  NewArchive(program);
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_EQ(world.boxes.shown[0].text,
            "There are no new savegame to archive in Tomb Raider folder");
}

TEST_F(ArchiveCommandsTest, NewCancelledPutsTheArchiveBack) {
  const ArchiveSettings before = program.archive.settings;
  world.windows.in_dialog = [this](WindowId) { program.archive.ArchivePropertiesOk = false; };
  NewArchive(program);
  EXPECT_EQ(program.archive.settings.MainFolder, before.MainFolder);
  EXPECT_EQ(program.archive.settings.SubfolderBaseName, before.SubfolderBaseName);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
  EXPECT_EQ(program.catalogue.EntryCount(), 3);
  EXPECT_EQ(world.windows.lines.size(), 3U);
}

TEST_F(ArchiveCommandsTest, ValidationNamesTheFirstMissingSetting) {
  EXPECT_TRUE(ValidateArchiveSettings(program));

  ArchiveSettings& settings = program.archive.settings;
  settings.MaxSavegame = 0;
  EXPECT_FALSE(ValidateArchiveSettings(program));
  EXPECT_EQ(world.boxes.shown.back().icon, BoxIcon::kCritical);
  settings.GameExecutable = "T:\\Game\\gone.exe";
  EXPECT_FALSE(ValidateArchiveSettings(program));
  EXPECT_EQ(world.boxes.shown.back().text, "You must set Tomb raider application path");
  EXPECT_EQ(world.boxes.shown.back().icon, BoxIcon::kNone);
  settings.GameFolder = "  ";
  EXPECT_FALSE(ValidateArchiveSettings(program));
  EXPECT_EQ(world.boxes.shown.back().text, "You must set Tomb Raider application folder");
  EXPECT_EQ(settings.GameFolder, "");
  settings.MainFolder = "";
  EXPECT_FALSE(ValidateArchiveSettings(program));
  EXPECT_EQ(world.boxes.shown.back().text, "You must set main folder archive");
  settings.SubfolderBaseName = "";
  EXPECT_FALSE(ValidateArchiveSettings(program));
  EXPECT_EQ(world.boxes.shown.back().text, "You must set sub-folder name for archive");
}

}  // namespace
}  // namespace vellumark
