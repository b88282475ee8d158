#include "archive/archive_properties.h"

#include <gtest/gtest.h>

#include "foundation/preferences_choice.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;

class ArchivePropertiesTest : public ::testing::Test {
 protected:
  ArchivePropertiesTest() {
    program.archive.settings = {" Slot ", " C:\\Arc", "C:\\Game", "C:\\Game\\tomb4.exe", 15, 7};
    program.preferences.LastArchive = "C:\\a.vmk";
  }

  // What is stored for a typed maximum; nothing when it is refused.
  std::optional<int> Stored(const std::string& maximum) {
    ArchivePropertiesFields fields = PrepareArchiveProperties(program);
    fields.max_savegame = maximum;
    if (!AcceptArchiveProperties(program, fields)) return std::nullopt;
    return program.archive.settings.MaxSavegame;
  }

  TestWorld world;
  Program program = world.NewProgram();
};

TEST_F(ArchivePropertiesTest, ShowsTheSettingsTrimmedAndStoresThemBack) {
  program.archive.ArchivePropertiesOk = true;
  const ArchivePropertiesFields fields = PrepareArchiveProperties(program);
  EXPECT_EQ(fields.base_name, "Slot");
  EXPECT_EQ(fields.main_folder, "C:\\Arc");
  EXPECT_EQ(fields.max_savegame, "15");
  EXPECT_EQ(program.archive.settings.SubfolderBaseName, "Slot");
  EXPECT_FALSE(program.archive.ArchivePropertiesOk);
  EXPECT_EQ(ArchivePropertiesTitle(program), " Properties of archive: C:\\a.vmk");
}

TEST_F(ArchivePropertiesTest, OkStoresTheFields) {
  const ArchivePropertiesFields fields{"D:\\New", "  Part ", "D:\\Game", "D:\\Game\\x.exe", "10"};
  EXPECT_TRUE(AcceptArchiveProperties(program, fields));
  EXPECT_EQ(program.archive.settings,
            (ArchiveSettings{"Part", "D:\\New", "D:\\Game", "D:\\Game\\x.exe", 10, 7}));
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(program.archive.ArchivePropertiesOk);
}

TEST_F(ArchivePropertiesTest, TheFirstMissingFieldIsNamedAndNothingChanges) {
  const ArchiveSettings before = program.archive.settings;
  ArchivePropertiesFields fields{"", " ", "", "", " "};
  const auto refusal = [&] {
    EXPECT_FALSE(AcceptArchiveProperties(program, fields));
    EXPECT_EQ(world.boxes.shown.back().icon, BoxIcon::kCritical);
    return world.boxes.shown.back().text;
  };
  EXPECT_EQ(refusal(), "You must set [Max Number Savegame]");
  fields.max_savegame = "15";
  EXPECT_EQ(refusal(), "You must set [Main archive folder]");
  fields.main_folder = "C:";
  EXPECT_EQ(refusal(), "You must set [Progressive sub-folders name]");
  fields.base_name = "a/b";
  EXPECT_EQ(refusal(), "You must set [Tomb raider folder]");
  fields.game_folder = "C:";
  EXPECT_EQ(refusal(), "You must set [Tomb.exe full path]");
  fields.executable = "C:\\tomb4.exe";
  EXPECT_NE(refusal().find("cannot be used"), std::string::npos) << "no folder can have that name";
  fields.base_name = "a\tb";
  EXPECT_NE(refusal().find("cannot be used"), std::string::npos) << "pasted";
  EXPECT_EQ(program.archive.settings, before);
  EXPECT_FALSE(program.archive.ArchiveChanged);
}

TEST_F(ArchivePropertiesTest, TheMaximumIsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(Stored("10"), 10);
  EXPECT_EQ(Stored("15 x"), 15);
  EXPECT_EQ(Stored("letters"), 0);
  EXPECT_EQ(Stored("2.5"), 2);
  EXPECT_EQ(Stored("3.5"), 4);
  EXPECT_EQ(Stored("32767"), 32767);
  EXPECT_EQ(Stored("32768"), std::nullopt);
  EXPECT_EQ(Stored("99999999999999999999999"), std::nullopt);
}

TEST_F(ArchivePropertiesTest, FoldersComeFromTheChooserInItsModes) {
  world.windows.in_dialog = [this](WindowId dialog) {
    EXPECT_EQ(dialog, WindowId::kDialogGetDir);
    EXPECT_EQ(program.chooser.field, "C:\\Arc");
    program.chooser.field = "D:\\Chosen";
  };
  EXPECT_EQ(ChooseMainFolder(program, "C:\\Arc"), "D:\\Chosen");
  EXPECT_EQ(program.chooser.FolderChooserMode, ChooserMode::kMainFolder);
  EXPECT_EQ(ChooseGameFolder(program, "C:\\Arc"), "D:\\Chosen");
  EXPECT_EQ(program.chooser.FolderChooserMode, ChooserMode::kGameFolder);
}

TEST_F(ArchivePropertiesTest, TheExecutableIsAskedForInTheGameFolder) {
  world.dialogs.answers = {"C:\\Game\\tomb4.exe", std::nullopt, "C:\\" + std::string(254, 'x')};
  EXPECT_EQ(ChooseGameExecutable(program, "C:\\Game"), "C:\\Game\\tomb4.exe");
  EXPECT_EQ(world.dialogs.requests[0].start_folder, "C:\\Game");
  EXPECT_EQ(world.dialogs.requests[0].title, "Select tomb.exe application");
  EXPECT_EQ(ChooseGameExecutable(program, ""), std::nullopt);
  EXPECT_TRUE(world.boxes.shown.empty());
  EXPECT_EQ(ChooseGameExecutable(program, ""), std::nullopt) << "the archive file would cut it";
  EXPECT_EQ(world.boxes.shown.size(), 1U);
}

TEST_F(ArchivePropertiesTest, ThePreferencesFolderIsStoredAtOnceAndOnlyWhenConfirmed) {
  program.preferences.ShotFolder = "C:\\Old";
  program.chooser.Confirmed = true;
  program.chooser.ChosenFolder = "C:\\Leftover";
  ChooseShotFolder(program);
  EXPECT_EQ(program.preferences.ShotFolder, "C:\\Old") << "an older answer does not count";

  world.windows.in_dialog = [this](WindowId) {
    EXPECT_EQ(program.chooser.FolderChooserMode, ChooserMode::kPlain);
    program.chooser.ChosenFolder = "C:\\Shots";
    program.chooser.Confirmed = true;
  };
  ChooseShotFolder(program);
  EXPECT_EQ(program.preferences.ShotFolder, "C:\\Shots");

  AcceptPreferences(program, {.sound_effects = true, .auto_capture = false});
  EXPECT_TRUE(program.preferences.SoundEffects);
  EXPECT_FALSE(program.preferences.AutoCapture);
  EXPECT_FALSE(program.preferences.ScanAllSubfolders);
}

}  // namespace
}  // namespace vellumark
