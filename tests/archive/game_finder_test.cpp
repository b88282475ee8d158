// Finding the installed game in the lists and folders of others, which may hold anything.
#include "archive/game_finder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "archive/steam_libraries.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using Libraries = std::vector<std::string>;
using std::string_literals::operator""s;  // NOLINT(misc-unused-using-decls): it is used

TEST(SteamLibrariesTest, BothFormsAreRead) {
  EXPECT_EQ(ReadSteamLibraries("// a comment\n\"libraryfolders\"\n{\n\t\"0\"\n\t{\n"
                               "\t\t\"path\"\t\t\"C:\\\\Steam \\\"x\\\"\"\r\n"
                               "\t\t\"apps\" { \"path\" \"C:\\\\no library\" \"7\" \"12\" }\n\t}\n"
                               "\t\"1\" { \"PATH\" \"/mnt/games\" }\n}\n"),
            (Libraries{"C:\\Steam \"x\"", "/mnt/games"}));
  EXPECT_EQ(ReadSteamLibraries("\"LibraryFolders\" { \"TimeNext\" \"1\" \"1\" \"D:\\\\Games\" }"),
            Libraries{"D:\\Games"});
  EXPECT_EQ(ReadSteamLibraries(""), Libraries{});
}

TEST(SteamLibrariesTest, ADamagedListNamesNothing) {
  const std::string good = "\"l\" { \"0\" { \"path\" \"/games\" } ";
  ASSERT_EQ(ReadSteamLibraries(good + "}"), Libraries{"/games"});
  std::string deep;
  for (int i = 0; i < 100000; ++i) deep += "\"x\" {";
  for (const std::string& bad :
       {good, good + "}}", good + "\"1\" }", good + "\"1\" \"/x }", good + "x \"y\" }",
        good + "{ }", good + "\"1\" \"a\\qb\" }", good + "\"1\" \"a\0\" }"s,
        good + "\"1\" \"a\n\" }", good + "\"1\" \"" + std::string(2000000, 'x') + "\" }", deep,
        std::string("\""), std::string("\xFF\xFE\0\"", 4)}) {
    EXPECT_EQ(ReadSteamLibraries(bad), std::nullopt) << bad.substr(0, 80);
  }
}

class GameFinderTest : public ::testing::Test {
 protected:
  std::vector<std::string> Find(const GamePlaces& places, int milliseconds = 60000) {
    std::vector<std::string> folders;
    for (const FoundGame& game :
         FindGames(world_.files, world_.text, places, std::chrono::milliseconds(milliseconds))) {
      EXPECT_EQ(game.executable, game.folder + "\\tomb4.exe");
      folders.push_back(game.folder);
    }
    return folders;
  }
  std::string Host(const std::string& folder) { return world_.files.HostPath("T:\\" + folder); }
  void Install(const std::string& folder) { world_.disk.Write(folder + "/Tomb4.EXE", "game"); }
  std::string Escaped(std::string path) {
    for (std::size_t at = 0; (at = path.find('\\', at)) != std::string::npos; at += 2) {
      path.insert(at, 1, '\\');
    }
    return path;
  }

  testing::TestWorld world_;
};

TEST_F(GameFinderTest, SteamsLibrariesAreSearchedAndEachGameIsFoundOnce) {
  Install("Steam/steamapps/common/Tomb Raider (IV) The Last Revelation");
  Install("Library/steamapps/common/TOMBRAIDER 4");
  Install("Library/steamapps/common/another game");
  Install("Steam/steamapps/compatdata/7/pfx/drive_c/GOG Games/Last Revelation");
  world_.disk.MakeFolder("Steam/steamapps/common/Tomb Raider without a program");
  const std::string library = Escaped(Host("Library"));
  world_.disk.Write("Steam/steamapps/libraryfolders.vdf",
                    "\"l\" { \"0\" { \"path\" \"" + Escaped(Host("Steam")) +
                        "\" } \"1\" { \"path\" \"" + library +
                        "\" } \"2\" { \"path\" \"//server/share\" } }");
  EXPECT_EQ(Find({.steam_folders = {Host("Steam"), Host("none"), Host("Steam"), "", "relative"},
                  .json_texts = {}}),
            (std::vector<std::string>{
                "T:\\Steam\\steamapps\\common\\Tomb Raider (IV) The Last Revelation",
                "T:\\Library\\steamapps\\common\\TOMBRAIDER 4",
                "T:\\Steam\\steamapps\\compatdata\\7\\pfx\\drive_c\\GOG Games\\Last Revelation"}));
}

TEST_F(GameFinderTest, TheListsOfOtherLaunchersAreSearched) {
  Install("Listed by Heroic");
  Install("Listed by Lutris");
  Install("prefix/drive_c/Program Files (x86)/Core Design/trlr");
  world_.disk.Write("heroic/gog_store/installed.json", "json");
  world_.disk.Write("lutris/one.yml", "game:\r\n  exe: " + Host("Listed by Lutris") +
                                          "/tomb4.exe\r\n  prefix: '" + Host("prefix") + "'\r\n");
  world_.disk.Write("lutris/two.yml", "exe:\n  exe: \n exe: tomb4.exe\nprefix: //server/x\n:\n\0"s);
  std::string asked;
  const GamePlaces places{.game_folders = {Host("Game"), "\\\\server\\share", "//server/share"},
                          .heroic_folders = {Host("heroic")},
                          .lutris_folders = {Host("lutris")},
                          .json_texts = [&](std::string_view json, std::string_view name) {
                            asked = std::string(json) + " " + std::string(name);
                            return std::vector<std::string>{Host("Listed by Heroic"), "", "tomb"};
                          }};
  EXPECT_EQ(Find(places), (std::vector<std::string>{
                              "T:\\Game", "T:\\Listed by Heroic", "T:\\Listed by Lutris",
                              "T:\\prefix\\drive_c\\Program Files (x86)\\Core Design\\trlr"}));
  EXPECT_EQ(asked, "json install_path");
}

TEST_F(GameFinderTest, WithoutTimeTheDiskIsLeftAlone) {
  const int before = world_.files.calls();
  const std::string game = Host("Game");
  EXPECT_TRUE(Find({.game_folders = {game},
                    .steam_folders = {game},
                    .program_folders = {game},
                    .wine_prefixes = {game},
                    .json_texts = {}},
                   0)
                  .empty());
  EXPECT_EQ(world_.files.calls(), before);
}

TEST_F(GameFinderTest, NoLookBeginsOnceTheTimeIsUp) {
  constexpr std::chrono::milliseconds kLimit(20);
  Install("Steam/steamapps/common/Tomb Raider");
  Install("Programs/Core Design/trlr");
  Install("prefix/drive_c/GOG Games/Last Revelation");
  world_.disk.Write("Steam/steamapps/libraryfolders.vdf", "\"l\" { }");
  world_.disk.Write("heroic/GamesConfig/one.json", "json");
  world_.disk.Write("lutris/one.yml", "prefix: " + Host("prefix") + "\n");
  const GamePlaces places{
      .game_folders = {Host("Game")},
      .steam_folders = {Host("Steam")},
      .program_folders = {Host("Programs")},
      .heroic_folders = {Host("heroic")},
      .lutris_folders = {Host("lutris")},
      .json_texts = [&](auto, auto) { return std::vector<std::string>{Host("prefix")}; }};
  world_.files.Reset();
  ASSERT_EQ(Find(places).size(), 4U);
  const int looks = world_.files.calls();
  ASSERT_GT(looks, 20);
  // The disk wakes up slowly at each of the looks in turn.
  for (int slow = 1; slow < looks; ++slow) {
    world_.files.Reset();
    world_.files.meanwhile = [&](const std::string&) {
      if (world_.files.calls() == slow) std::this_thread::sleep_for(kLimit);
    };
    Find(places, static_cast<int>(kLimit.count()));
    EXPECT_LE(world_.files.calls(), slow) << "of " << looks;
  }
}

TEST_F(GameFinderTest, TheSlotsThatAreThereSpeakForTheHighest) {
  EXPECT_EQ(HighestSlotIn(world_.files, "T:\\Game"), 15);
  for (int slot = 0; slot <= 9; ++slot) world_.AddSavegame("Game", slot, "Level", 1);
  EXPECT_EQ(HighestSlotIn(world_.files, "T:\\Game"), 15) << "ten of fifteen may be in use";
  world_.AddSavegame("Game", 10, "Level", 1);
  world_.disk.Write("Game/savegame.100", "");
  world_.disk.Write("Game/savegame.12.bak", "");
  EXPECT_EQ(HighestSlotIn(world_.files, "T:\\Game"), 10);
  world_.AddSavegame("Game", 12, "Level", 1);
  EXPECT_EQ(HighestSlotIn(world_.files, "T:\\Game"), 15);
  world_.AddSavegame("Game", 23, "Level", 1);
  EXPECT_EQ(HighestSlotIn(world_.files, "T:\\Game"), 23);
}

}  // namespace
}  // namespace vellumark
