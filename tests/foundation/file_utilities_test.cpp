#include "foundation/file_utilities.h"

#include <gtest/gtest.h>

#include "foundation/paths.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::Killed;
using testing::TestWorld;

TEST(PathsTest, AreTakenApartAtBackslashesAndColons) {
  EXPECT_EQ(FileNameOf("C:\\Games\\tomb4.exe"), "tomb4.exe");
  EXPECT_EQ(FileNameOf("C:tomb4.exe"), "tomb4.exe");
  EXPECT_EQ(FileNameOf("C:\\Games\\"), "");
  EXPECT_EQ(FileNameOf("tomb4.exe"), "tomb4.exe");
  EXPECT_EQ(FolderOf("C:\\Games\\x.vmk"), "C:\\Games");
  EXPECT_EQ(FolderOf("C:\\x.vmk"), "C:");
  EXPECT_EQ(FolderOf("C:x.vmk"), "");
}

TEST(FileExistsTest, CountsPlainFilesOnlyAndTakesWildcards) {
  TestWorld world;
  world.disk.Write("Game/SAVEGAME.3", "x");

  EXPECT_TRUE(FileExists(world.files, "T:\\game\\savegame.3"));
  EXPECT_TRUE(FileExists(world.files, "T:\\Game\\savegame.*"));
  EXPECT_FALSE(FileExists(world.files, "T:\\Game\\note*.txt"));
  EXPECT_FALSE(FileExists(world.files, "T:\\Game"));
  EXPECT_FALSE(FileExists(world.files, "   "));
  EXPECT_FALSE(FileExists(world.files, "Q:\\anything"));
  EXPECT_TRUE(FolderExists(world.files, "T:\\Game"));
  EXPECT_FALSE(FolderExists(world.files, "T:\\Game\\savegame.3"));
}

TEST(CopyFileReplacingTest, ReplacesEvenAReadOnlyDestination) {
  TestWorld world;
  world.disk.Write("new", "new content");
  world.disk.Write("old", "old");
  world.disk.MakeReadOnly("old");

  EXPECT_TRUE(CopyFileReplacing(world.files, "T:\\new", "T:\\OLD"));
  EXPECT_EQ(world.disk.Read("old"), "new content");
  EXPECT_EQ(world.disk.Names("").size(), 5U) << "the temporary file is gone";
}

TEST(CopyFileReplacingTest, OntoItselfChangesNothing) {
  TestWorld world;
  world.disk.Write("a", "content");
  std::filesystem::create_hard_link(world.disk.path() / "a", world.disk.path() / "b");

  EXPECT_TRUE(CopyFileReplacing(world.files, "T:\\a", "T:\\A"));
  EXPECT_TRUE(CopyFileReplacing(world.files, "T:\\a", "T:\\b"));
  EXPECT_EQ(world.disk.Read("a"), "content");
  EXPECT_EQ(world.disk.Read("b"), "content");
}

TEST(CopyFileReplacingTest, AMissingSourceCostsTheDestination) {
  TestWorld world;
  world.disk.Write("old", "old");
  EXPECT_FALSE(CopyFileReplacing(world.files, "T:\\none", "T:\\old"));
  EXPECT_FALSE(world.disk.Exists("old"));
}

TEST(CopyFileReplacingTest, ANewDestinationIsNeverHalfThere) {
  for (const FileError error : {FileError::kDiskFull, FileError::kAccessDenied}) {
    for (int call = 1;; ++call) {
      TestWorld world;
      world.disk.Write("new", "new content");
      world.disk.Write("old", "old");
      world.files.FailCall(call, error);
      FileError why = FileError::kNone;
      const bool copied = CopyFileReplacing(world.files, "T:\\new", "T:\\old", &why);
      if (world.files.calls() < call) break;

      EXPECT_EQ(world.disk.Read("new"), "new content");
      EXPECT_EQ(world.disk.Read("old"), copied ? "new content" : "old") << "call " << call;
      EXPECT_EQ(copied, why == FileError::kNone);
    }
  }
}

TEST(CopyFileReplacingTest, DyingAtAnyCallLeavesTheOldOrTheNewDestination) {
  for (const bool after : {false, true}) {
    for (int call = 1;; ++call) {
      TestWorld world;
      world.disk.Write("new", "new content");
      world.disk.Write("old", "old");
      world.files.KillAtCall(call, after);
      try {
        CopyFileReplacing(world.files, "T:\\new", "T:\\old");
        break;
      } catch (const Killed&) {
        const std::string now = world.disk.Read("old");
        EXPECT_TRUE(now == "old" || now == "new content") << "call " << call << ": " << now;
      }
    }
  }
}

TEST(ReplaceFileTest, KeepsAReadOnlyFileAndAnythingElseOnFailure) {
  TestWorld world;
  world.disk.Write("f", "old");
  EXPECT_EQ(ReplaceFile(world.files, "T:\\f", "new"), FileError::kNone);
  EXPECT_EQ(world.disk.Read("f"), "new");

  world.disk.MakeReadOnly("f");
  EXPECT_EQ(ReplaceFile(world.files, "T:\\f", "newer"), FileError::kAccessDenied);
  EXPECT_EQ(ReplaceFile(world.files, "T:\\Game", "newer"), FileError::kAccessDenied);
  EXPECT_EQ(world.disk.Read("f"), "new");
}

TEST(ReplaceFileTest, RemovesWhatACutOffRunLeftBehind) {
  TestWorld world;
  const std::string leftover = TemporaryNameFor("T:\\f");
  EXPECT_TRUE(IsTemporaryName(FileNameOf(leftover)));
  world.disk.Write(FileNameOf(leftover), "half");
  EXPECT_EQ(ReplaceFile(world.files, "T:\\f", "whole"), FileError::kNone);
  EXPECT_EQ(world.disk.Read("f"), "whole");
  EXPECT_FALSE(world.disk.Exists(FileNameOf(leftover)));
}

TEST(ReplaceFileTest, TakesAPathThatJustFitsARecord) {
  TestWorld world;
  std::string path = "T:\\" + std::string(120, 'a');
  world.files.CreateFolder(path);
  path.append(1, '\\').resize(256, 'n');
  EXPECT_EQ(ReplaceFile(world.files, path, "new"), FileError::kNone);
}

TEST(DeleteFileForcedTest, DeletesReadOnlyFilesAndTakesMissingOnesAsGone) {
  TestWorld world;
  world.disk.Write("f", "x");
  world.disk.MakeReadOnly("f");
  EXPECT_TRUE(DeleteFileForced(world.files, "T:\\f"));
  EXPECT_FALSE(world.disk.Exists("f"));
  EXPECT_TRUE(DeleteFileForced(world.files, "T:\\f"));
}

TEST(OpenWithShellTest, UsesTheDocumentsFolderUnlessGivenOne) {
  TestWorld world;
  EXPECT_TRUE(
      OpenWithShell(world.files, world.text, world.shell, "T:\\game\\TOMB4.EXE", "", false, ""));
  ASSERT_EQ(world.shell.opened.size(), 1U);
  EXPECT_EQ(world.shell.opened[0].document, world.files.HostPath("T:\\Game\\tomb4.exe"));
  EXPECT_EQ(world.shell.opened[0].working_folder, world.files.HostPath("T:\\Game"));
}

}  // namespace
}  // namespace vellumark
