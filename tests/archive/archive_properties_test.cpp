#include "archive/archive_properties.h"

#include <gtest/gtest.h>

#include "foundation/preferences_commands.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::OpenWorld;

class ArchivePropertiesTest : public ::testing::Test, public OpenWorld {
 protected:
  ArchivePropertiesTest() {
    program.archive.settings = {" Slot ", " C:\\Arc", "C:\\Game", "C:\\Game\\tomb4.exe", 15, 7};
    program.preferences.LastArchive = "C:\\a.vmk";
  }
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

TEST_F(ArchivePropertiesTest, TheFirstMissingFieldIsNamedAndNothingChanges) {
  const ArchiveSettings before = program.archive.settings;
  ArchivePropertiesFields fields{"", " ", "", "", " "};
  const auto refusal = [&] {
    EXPECT_FALSE(AcceptArchiveProperties(program, fields));
    EXPECT_EQ(boxes.shown.back().icon, BoxIcon::kCritical);
    return boxes.shown.back().text;
  };
  const std::tuple<std::string*, const char*, const char*> steps[] = {
      {&fields.max_savegame, "15", "[Max Number Savegame]"},
      {&fields.main_folder, "C:", "[Main archive folder]"},
      {&fields.base_name, "a/b", "[Progressive sub-folders name]"},
      {&fields.game_folder, "C:", "[Tomb raider folder]"},
      {&fields.executable, "C:\\tomb4.exe", "[Tomb.exe full path]"},
      {&fields.base_name, "a\tb", "cannot be used"},
      {&fields.base_name, "..\\x", "cannot be used"},
      {&fields.base_name, "cut", "cannot be used"},
      {&fields.base_name, "", "256 characters at most"}};
  for (const auto& [field, next, named] : steps) {
    EXPECT_TRUE(Contains(refusal(), named));
    *field = next == std::string("cut") ? std::string(300, 'n') : next;
  }
  EXPECT_EQ(program.archive.settings, before);
  EXPECT_FALSE(program.archive.ArchiveChanged);
}

TEST_F(ArchivePropertiesTest, OkStoresTheFieldsAndTheNumberThatTheMaximumBeginsWith) {
  ArchivePropertiesFields fields{"D:\\New", "  Part ", "D:\\Game", "D:\\Game\\x.exe", ""};
  for (const auto& [typed, stored] : {std::pair("15 x", 15), std::pair("letters", 0),
                                      std::pair("3.5", 4), std::pair("32767", 32767)}) {
    fields.max_savegame = typed;
    EXPECT_TRUE(AcceptArchiveProperties(program, fields)) << typed;
    const auto maximum = static_cast<std::int16_t>(stored);
    EXPECT_EQ(program.archive.settings,
              (ArchiveSettings{"Part", "D:\\New", "D:\\Game", "D:\\Game\\x.exe", maximum, 7}));
  }
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(program.archive.ArchivePropertiesOk);

  fields.max_savegame = "32768";
  EXPECT_FALSE(AcceptArchiveProperties(program, fields));
  EXPECT_EQ(program.archive.settings.MaxSavegame, 32767);
}

TEST_F(ArchivePropertiesTest, FoldersComeFromTheChooserInItsModes) {
  windows.in_dialog = [this](WindowId dialog) {
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
  dialogs.answers = {"C:\\Game\\tomb4.exe", std::nullopt, "C:\\" + std::string(254, 'x')};
  EXPECT_EQ(ChooseGameExecutable(program, "C:\\Game"), "C:\\Game\\tomb4.exe");
  EXPECT_EQ(dialogs.requests[0].start_folder, "C:\\Game");
  EXPECT_EQ(ChooseGameExecutable(program, ""), std::nullopt);
  EXPECT_TRUE(boxes.shown.empty());
  sounds.Take();
  EXPECT_EQ(ChooseGameExecutable(program, ""), std::nullopt) << "the archive file would cut it";
  EXPECT_EQ(sounds.Take(), "s7|s5|");
  EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(ArchivePropertiesTest, ThePreferencesFolderIsStoredAtOnceAndOnlyWhenConfirmed) {
  program.preferences.ShotFolder = "C:\\Old";
  program.chooser.Confirmed = true;
  program.chooser.ChosenFolder = "C:\\Leftover";
  ChooseShotFolder(program);
  EXPECT_EQ(program.preferences.ShotFolder, "C:\\Old") << "an older answer does not count";

  windows.in_dialog = [this](WindowId) {
    EXPECT_EQ(program.chooser.FolderChooserMode, ChooserMode::kPlain);
    program.chooser.ChosenFolder = "C:\\Shots";
    program.chooser.Confirmed = true;
  };
  ChooseShotFolder(program);
  EXPECT_EQ(program.preferences.ShotFolder, "C:\\Shots");
}

}  // namespace
}  // namespace vellumark
