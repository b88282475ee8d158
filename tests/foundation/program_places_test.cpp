// Where a run keeps its files and finds those that come with the program.
#include "foundation/program_places.h"

#include <gtest/gtest.h>

#include "foundation/companion_files.h"
#include "foundation/help.h"
#include "session/start_up.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using Problem = ProgramPlaces::Problem;

class ProgramPlacesTest : public ::testing::Test {
 protected:
  ProgramPlaces Find(const std::string& executable_folder, bool portable = false) {
    return FindProgramPlaces(world_.files, {.executable_folder = executable_folder,
                                            .user_folder = "T:\\home\\.local\\share\\vellumark",
                                            .portable = portable});
  }

  testing::TestWorld world_;
};

TEST_F(ProgramPlacesTest, ACopyInAFolderThatMayBeWrittenKeepsEverythingBesideIt) {
  const ProgramPlaces places = Find("T:\\Program");
  EXPECT_EQ(places.problem, Problem::kNone);
  EXPECT_EQ(places.paths.ProgramFolder, "T:\\Program");
  EXPECT_EQ(places.paths.InstalledFolder, "");
  EXPECT_FALSE(std::filesystem::exists(world_.disk.path() / "home"));
}

TEST_F(ProgramPlacesTest, WhereTheFolderMayNotBeWrittenTheUsersOwnIsMade) {
  world_.files.FailAlways("MayMakeFilesIn", "\\Program", FileError::kAccessDenied);
  const ProgramPlaces places = Find("T:\\Program");
  EXPECT_EQ(places.paths.ProgramFolder, "T:\\home\\.local\\share\\vellumark");
  EXPECT_EQ(places.paths.InstalledFolder, "T:\\Program");
  EXPECT_TRUE(std::filesystem::is_directory(world_.disk.path() / "home/.local/share/vellumark"));
  EXPECT_EQ(Find("T:\\Program").problem, Problem::kNone) << "it is there already";
  EXPECT_EQ(Find("T:\\Program", true).paths.ProgramFolder, "T:\\Program");
  world_.disk.MakeFolder("home/.local/bin");
  EXPECT_FALSE(Find("T:\\home\\.local\\bin").users_own) << "nothing is installed there";
}

// An administrator may write to it.
TEST_F(ProgramPlacesTest, AnInstalledProgramNeverKeepsItsFilesBesideIt) {
  world_.disk.MakeFolder("usr/bin");
  world_.disk.Write("usr/share/vellumark/default_shot.jpg", "picture");
  const ProgramPlaces places = Find("T:\\usr\\bin");
  EXPECT_EQ(places.paths.ProgramFolder, "T:\\home\\.local\\share\\vellumark");
  EXPECT_EQ(places.paths.InstalledFolder, "T:\\usr\\share\\vellumark");
  EXPECT_EQ(Find("T:\\usr\\bin", true).paths.ProgramFolder, "T:\\usr\\bin");
  EXPECT_EQ(Find("T:\\usr\\bin", true).paths.InstalledFolder, "T:\\usr\\share\\vellumark");
}

TEST_F(ProgramPlacesTest, AFolderThatCannotServeIsAProblem) {
  world_.disk.Write("home/.local", "a file");
  world_.files.FailAlways("MayMakeFilesIn", "\\Program", FileError::kAccessDenied);
  EXPECT_EQ(Find("T:\\Program").problem, Problem::kNotMade);
  EXPECT_EQ(Find("T:\\" + std::string(200, 'x'), true).problem, Problem::kUnusable);
  EXPECT_EQ(FindProgramPlaces(world_.files, {}).problem, Problem::kUnusable);
  EXPECT_TRUE(FindProgramPlaces(world_.files, {.executable_folder = "T:\\Program"}).users_own);
}

TEST_F(ProgramPlacesTest, TheOptionIsNoPartOfThePath) {
  EXPECT_TRUE(ReadCommandLine("--portable").portable);
  EXPECT_EQ(ReadCommandLine("--portable").path, "");
  EXPECT_TRUE(ReadCommandLine(" --portable  C:\\My Saves\\a.vmk").portable);
  EXPECT_EQ(ReadCommandLine("--portable C:\\My Saves\\a.vmk").path, "C:\\My Saves\\a.vmk");
  EXPECT_EQ(ReadCommandLine("C:\\My Saves\\a.vmk --portable ").path, "C:\\My Saves\\a.vmk");
  for (const char* path : {"", "C:\\--portable\\a.vmk", "--portable.vmk", "x--portable"}) {
    EXPECT_FALSE(ReadCommandLine(path).portable) << path;
    EXPECT_EQ(ReadCommandLine(path).path, path);
  }
}

TEST_F(ProgramPlacesTest, FilesThatComeWithTheProgramAreFoundBesideItFirst) {
  world_.disk.Write("share/default_shot.jpg", "installed");
  world_.disk.Write("share/help_savegame.txt", "installed");
  world_.disk.Write("share/s2.wav", "installed");
  Program program = world_.NewProgram();
  program.paths.InstalledFolder = "T:\\share";

  StartUp(program);
  EXPECT_EQ(program.paths.DefaultShotPath, "T:\\Program\\default_shot.jpg");
  std::filesystem::remove(world_.disk.path() / "Program/default_shot.jpg");
  StartUp(program);
  EXPECT_EQ(program.paths.DefaultShotPath, "T:\\share\\default_shot.jpg");
  ShowHelp(program);
  EXPECT_EQ(world_.boxes.AllTexts(), "");
  ASSERT_EQ(world_.shell.opened.size(), 1U);
  EXPECT_TRUE(world_.shell.opened[0].document.ends_with("share/help_savegame.txt") ||
              world_.shell.opened[0].document.ends_with("share\\help_savegame.txt"));

  std::filesystem::remove(world_.disk.path() / "share/default_shot.jpg");
  StartUp(program);
  EXPECT_EQ(program.paths.DefaultShotPath, "");
  EXPECT_NE(world_.boxes.AllTexts().find("application folder: T:\\Program"), std::string::npos);
}

}  // namespace
}  // namespace vellumark
