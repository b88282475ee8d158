#include "foundation/file_utilities.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/paths.h"
#include "support/every_call.h"
#include "support/test_drives.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;

TEST(PathsTest, AreTakenApartAtBackslashesAndColons) {
  EXPECT_EQ(FileNameOf("C:\\Games\\tomb4.exe"), "tomb4.exe");
  EXPECT_EQ(FileNameOf("C:tomb4.exe"), "tomb4.exe");
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
  for (const char* none : {"T:\\Game\\note*.txt", "T:\\Game", "   ", "Q:\\anything"}) {
    EXPECT_FALSE(FileExists(world.files, none)) << none;
  }
  EXPECT_TRUE(FolderExists(world.files, "T:\\Game"));
  EXPECT_FALSE(FolderExists(world.files, "T:\\Game\\savegame.3"));
}

struct OldAndNew : TestWorld {
  OldAndNew() {
    disk.Write("new", "new content");
    disk.Write("old", "old");
  }
};

TEST(CopyFileReplacingTest, ReplacesEvenAReadOnlyDestination) {
  OldAndNew world;
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
  OldAndNew world;
  EXPECT_FALSE(CopyFileReplacing(world.files, "T:\\none", "T:\\old"));
  EXPECT_FALSE(world.disk.Exists("old"));
}

TEST(CopyFileReplacingTest, ANewDestinationIsNeverHalfThere) {
  for (const FileError error : {FileError::kDiskFull, FileError::kAccessDenied}) {
    FileError why = FileError::kNone;
    bool copied = false;
    testing::FailEveryCall<OldAndNew>(
        error,
        [&](OldAndNew& world) {
          why = FileError::kNone;
          copied = CopyFileReplacing(world.files, "T:\\new", "T:\\old", &why);
        },
        [&](OldAndNew& world) {
          EXPECT_EQ(world.disk.Read("new"), "new content");
          EXPECT_EQ(world.disk.Read("old"), copied ? "new content" : "old");
          EXPECT_EQ(copied, why == FileError::kNone);
        });
  }
}

TEST(CopyFileReplacingTest, DyingAtAnyCallLeavesTheOldOrTheNewDestination) {
  testing::DieAtEveryCall<OldAndNew>(
      [](OldAndNew& world) { CopyFileReplacing(world.files, "T:\\new", "T:\\old"); },
      [](OldAndNew& world) {
        const std::string now = world.disk.Read("old");
        EXPECT_TRUE(now == "old" || now == "new content") << now;
      });
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

TEST(ReplaceFileTest, ReplacesWhatALinkLeadsTo) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  TestWorld world;
  world.disk.Write("Elsewhere/f", "old");
  std::filesystem::create_symlink("Elsewhere/f", world.disk.path() / "link");

  EXPECT_EQ(ReplaceFile(world.files, "T:\\link", "new"), FileError::kNone);
  EXPECT_EQ(world.disk.Read("Elsewhere/f"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(world.disk.path() / "link"));
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

}  // namespace
}  // namespace vellumark
