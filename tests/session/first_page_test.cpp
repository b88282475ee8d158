// What the window says while there is no list.
#include "session/first_page.h"

#include <gtest/gtest.h>

#include "archive/archive_file.h"
#include "archive/archive_properties.h"
#include "session/archive_commands.h"
#include "session/start_up.h"
#include "support/expectations.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

class FirstPageTest : public ::testing::Test, public testing::TestWorld {
 protected:
  FirstPage Page() {
    const auto page = DescribeFirstPage(program);
    EXPECT_TRUE(page.has_value());
    return page.value_or(FirstPage{});
  }
  bool Says(const std::string& words) { return Page().text.find(words) != std::string::npos; }
  void Move(const char* from, const char* to) {
    std::filesystem::rename(disk.path() / from, disk.path() / to);
  }

  Program program = NewProgram();
};

TEST_F(FirstPageTest, WithNothingOpenItOffersAnArchiveForTheGameThatWasFound) {
  StartUp(program);
  EXPECT_TRUE(Says("No archive is open"));
  EXPECT_EQ(Page().new_archive, "New archive");
  EXPECT_TRUE(Page().offers_open);
  EXPECT_FALSE(Page().offers_look_again);
  program.game_search.games = {{"T:\\Games\\Tomb", "T:\\Games\\Tomb\\tomb4.exe", 10}};
  EXPECT_EQ(Page().new_archive, "New archive for Tomb");
  EXPECT_TRUE(Says("\"T:\\Games\\Tomb\""));
  program.game_search.games.push_back({"T:\\Other", "T:\\Other\\tomb4.exe", 15});
  EXPECT_TRUE(Says("\"T:\\Other\""));
}

TEST_F(FirstPageTest, AMissingArchiveIsNamedAndOpenedOnceItIsThere) {
  AddSavegame("Archive/Slot1", 0, "Level", 1);
  WriteArchiveFile();
  WritePreferences();
  Move("Archive.vmk", "away");
  StartUp(program);
  EXPECT_EQ(boxes.AllTexts(), "");
  EXPECT_EQ(program.preferences.LastArchive, "");
  EXPECT_TRUE(Says("\"T:\\Archive.vmk\""));
  EXPECT_TRUE(Page().offers_look_again);
  EXPECT_FALSE(Says("still"));
  LookAgain(program);
  EXPECT_TRUE(Says("still not there"));
  Move("away", "Archive.vmk");
  LookAgain(program);
  EXPECT_EQ(DescribeFirstPage(program), std::nullopt);
  EXPECT_EQ(program.preferences.LastArchive, "T:\\Archive.vmk");
}

TEST_F(FirstPageTest, AnArchiveOpenSaysWhatIsNotThereOrWhatToDoNext) {
  WriteArchiveFile();
  WritePreferences();
  StartUp(program);
  EXPECT_TRUE(Says("This archive is empty"));
  EXPECT_TRUE(Says("\"T:\\Game\""));
  EXPECT_EQ(Page().new_archive, "");

  Move("Archive", "Unplugged");
  Move("Game", "Away");
  LookAgain(program);
  EXPECT_TRUE(Says("main archive folder \"T:\\Archive\" is not there"));
  EXPECT_TRUE(Says("Tomb Raider folder \"T:\\Game\" is not there"));
  Move("Unplugged", "Archive");
  LookAgain(program);
  EXPECT_FALSE(Says("main archive folder"));
  EXPECT_TRUE(Page().offers_look_again);
  Move("Away", "Game");
  AddSavegame("Game", 0, "Level", 1);
  LookAgain(program);
  EXPECT_EQ(DescribeFirstPage(program), std::nullopt);
}

TEST_F(FirstPageTest, APathInTheNetworkNeedsADriveLetter) {
  ArchiveSettings settings = testing::WorldSettings();
  settings.MainFolder = R"(\\server\share\Archive)";
  disk.Write("Archive.vmk", EncodeArchive(settings));
  WritePreferences();
  StartUp(program);
  EXPECT_TRUE(Says(R"("\\server\share\Archive" is not there)"));
  EXPECT_TRUE(Says("drive letter"));
  program.archive.settings.MainFolder = "T:\\Unplugged";
  LookAgain(program);
  EXPECT_FALSE(Says("drive letter"));

  Program named = NewProgram();
  named.argument_text = R"(\\server\share\My.vmk)";
  StartUp(named);
  EXPECT_NE(DescribeFirstPage(named)->text.find("drive letter"), std::string::npos);
}

TEST_F(FirstPageTest, ANewArchiveProposesTheGameAndStoresNothingWithoutOk) {
  program.game_search.games = {{"T:\\Game", "T:\\Game\\tomb4.exe", 10}};
  StartUp(program);
  ArchivePropertiesFields fields;
  windows.in_dialog = [&](WindowId) { fields = PrepareArchiveProperties(program); };
  NewArchive(program);
  EXPECT_EQ(fields.game_folder, "T:\\Game");
  EXPECT_EQ(fields.executable, "T:\\Game\\tomb4.exe");
  EXPECT_EQ(fields.max_savegame, "10");
  EXPECT_EQ(fields.main_folder, "");
  EXPECT_EQ(program.archive.settings.GameFolder, "");
  EXPECT_EQ(program.preferences.LastArchive, "");
  EXPECT_FALSE(std::filesystem::exists(disk.path() / "Program/programs.txt"));

  EXPECT_EQ(PrepareArchiveProperties(program).game_folder, "") << "only for a new archive";
  program.game_search.games.clear();
  NewArchive(program);
  EXPECT_EQ(fields.game_folder, "");
  EXPECT_EQ(fields.max_savegame, "15");
}

}  // namespace
}  // namespace vellumark
