// What changes the disk, and what must not, on every system.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/disk_fixture.h"

namespace vellumark {
namespace {

namespace stdfs = std::filesystem;

constexpr RenameMode kRefuse = RenameMode::kRefuseExisting;
constexpr RenameMode kReplace = RenameMode::kReplaceFile;

using DiskWritingTest = DiskTest;

TEST_F(DiskWritingTest, CreateMakesAFileOnlyWhereTheNameIsFreeInAnyCase) {
  disk_.Write("Arc/Taken.vmk", "old");
  EXPECT_EQ(fs_.Create("T:\\arc\\New\xE4.vmk", "new"), FileError::kNone);
  EXPECT_EQ(disk_.Read("Arc/New\xC3\xA4.vmk"), "new");

  ExpectRefused(FileError::kAlreadyExists, {[&] { return fs_.Create("T:\\Arc\\tAKEN.vmk", ""); },
                                            [&] { return fs_.Create("T:\\arc", ""); },
                                            [&] { return fs_.CreateFolder("T:\\ARC"); },
                                            [&] { return fs_.CreateFolder("T:\\"); }});
  EXPECT_EQ(fs_.Create("T:\\none\\a", ""), FileError::kNotFound);
  EXPECT_EQ(fs_.Create("T:\\Arc\\taken.vmk\\a", ""), FileError::kNotFound);
}

TEST_F(DiskWritingTest, NamesThatWindowsCouldNotHoldAreNotMade) {
  disk_.Write("a", "");
  const std::string long_path = "T:\\" + std::string(200, 'x') + '\\' + std::string(56, 'y');
  for (const std::string& path :
       {std::string("T:\\b/c"), std::string("T:\\b:c"), std::string("T:\\b."),
        std::string("T:\\b "), std::string("T:\\aux.vmk"), std::string("T:\\b\n"),
        std::string("T:\\b*"), std::string(), std::string(R"(\\pc\a)"), long_path}) {
    SCOPED_TRACE(path);
    ExpectRefused(FileError::kBadName,
                  {[&] { return fs_.Create(path, ""); }, [&] { return fs_.Append(path, ""); },
                   [&] { return fs_.Copy("T:\\a", path); },
                   [&] { return fs_.Rename("T:\\a", path, kRefuse); },
                   [&] { return fs_.CreateFolder(path); }});
  }
  EXPECT_EQ(fs_.Attributes("").error, FileError::kNotFound);
  EXPECT_EQ(fs_.Attributes("\\\\pc\\a").error, FileError::kNotFound);

  // One character less can be made.
  EXPECT_EQ(fs_.CreateFolder("T:\\" + std::string(200, 'x')), FileError::kNone);
  EXPECT_EQ(fs_.Create(long_path.substr(0, long_path.size() - 1), ""), FileError::kNone);
}

TEST_F(DiskWritingTest, AReadOnlyFileIsNotChanged) {
  disk_.Write("Save", "old");
  disk_.Write("new", "new");
  disk_.MakeReadOnly("Save");
  ExpectRefused(
      FileError::kAccessDenied,
      {[&] { return fs_.Delete("T:\\save"); }, [&] { return fs_.WriteAt("T:\\save", 0, "x"); },
       [&] { return fs_.Append("T:\\save", "x"); },
       [&] { return fs_.Rename("T:\\new", "T:\\save", kReplace); }});
  EXPECT_EQ(fs_.ClearAttributes("T:\\save"), FileError::kNone);
  EXPECT_FALSE(fs_.Attributes("T:\\Save").attributes.read_only);
  EXPECT_EQ(fs_.Delete("T:\\save"), FileError::kNone);
  EXPECT_FALSE(disk_.Exists("Save"));
}

TEST_F(DiskWritingTest, AppendAddsAtTheEndOrMakesTheFile) {
  disk_.Write("Log", "one ");
  EXPECT_EQ(fs_.Append("T:\\LOG", "two"), FileError::kNone);
  EXPECT_EQ(disk_.Read("Log"), "one two");
  EXPECT_EQ(fs_.Append("T:\\New", "first"), FileError::kNone);
  EXPECT_EQ(disk_.Read("New"), "first");
}

TEST_F(DiskWritingTest, WriteAtStaysInsideTheFile) {
  disk_.Write("a", "0123456789");
  EXPECT_EQ(fs_.WriteAt("T:\\A", 8, "xy"), FileError::kNone);
  EXPECT_EQ(disk_.Read("a"), "01234567xy");
  ExpectRefused(
      FileError::kTooShort,
      {[&] { return fs_.WriteAt("T:\\a", 9, "zz"); }, [&] { return fs_.WriteAt("T:\\a", 11, ""); },
       [&] { return fs_.WriteAt("T:\\a", ~std::uint64_t{0}, "zz"); }});
  EXPECT_EQ(fs_.WriteAt("T:\\none", 0, ""), FileError::kNotFound);
}

TEST_F(DiskWritingTest, CopyKeepsTheBytesAndTheTimeOfChange) {
  std::string bytes(200000, 'x');
  bytes.back() = 'y';
  disk_.Write("From", bytes);
  disk_.Write("Taken", "old");
  const auto time = stdfs::file_time_type::clock::now() - std::chrono::hours(1000);
  stdfs::last_write_time(disk_ / "From", time);

  EXPECT_EQ(fs_.Copy("T:\\FROM", "T:\\To"), FileError::kNone);
  EXPECT_EQ(disk_.Read("To"), bytes);
  EXPECT_EQ(stdfs::last_write_time(disk_ / "To"), stdfs::last_write_time(disk_ / "From"));
  EXPECT_EQ(fs_.Copy("T:\\From", "T:\\taken"), FileError::kAlreadyExists);
  EXPECT_EQ(fs_.Copy("T:\\From", "T:\\from"), FileError::kAlreadyExists);
  EXPECT_EQ(disk_.Read("Taken"), "old");
  EXPECT_EQ(fs_.Copy("T:\\", "T:\\x"), FileError::kAccessDenied);
}

TEST_F(DiskWritingTest, AVerifiedCopyIsReadBackWhole) {
  for (const std::size_t size : {0U, 1U, 65536U, 200000U}) {
    disk_.Write("From", std::string(size, 'x'));
    const std::string target = "T:\\To" + std::to_string(size);
    EXPECT_EQ(fs_.CopyVerified("T:\\From", target), FileError::kNone);
    EXPECT_EQ(disk_.Read(target.substr(3)), std::string(size, 'x'));
    EXPECT_EQ(fs_.CopyVerified("T:\\From", target), FileError::kAlreadyExists);
  }
}

TEST_F(DiskWritingTest, RenameNeverTakesATakenName) {
  disk_.Write("a", "1");
  disk_.Write("Taken", "2");
  disk_.Write("Folder/x", "3");
  disk_.Write("Folder/a", "4");
  stdfs::create_directory(disk_ / "Empty");
  ExpectRefused(FileError::kAlreadyExists,
                {[&] { return fs_.Rename("T:\\a", "T:\\tAKEN", kRefuse); },
                 [&] { return fs_.Rename("T:\\a", "T:\\Taken", kRefuse); },
                 [&] { return fs_.Rename("T:\\a", "T:\\Folder\\a", kRefuse); },
                 [&] { return fs_.Rename("T:\\folder", "T:\\EMPTY", kRefuse); }});
  EXPECT_EQ(fs_.Rename("T:\\A", "T:\\folder\\New", kRefuse), FileError::kNone);
  EXPECT_EQ(disk_.Read("Folder/New"), "1");
  EXPECT_EQ(fs_.Rename("T:\\none", "T:\\x", kRefuse), FileError::kNotFound);
  EXPECT_EQ(fs_.Rename("T:\\taken", "T:\\none\\x", kRefuse), FileError::kNotFound);
  EXPECT_EQ(fs_.Rename("T:\\", "T:\\x", kRefuse), FileError::kAccessDenied);
}

TEST_F(DiskWritingTest, ANewLetterCaseIsNoTakenName) {
  disk_.Write("Arc/tower.vmk", "x");
  for (const RenameMode mode : {kRefuse, kReplace}) {
    const std::string name = mode == kRefuse ? "TOWER.vmk" : "Tower.VMK";
    EXPECT_EQ(fs_.Rename("T:\\arc\\tower.vmk", "T:\\ARC\\" + name, mode), FileError::kNone);
    // A disk without letter case may keep the old spelling.
    const bool shown = !testing::DiskTellsCaseApart() || Names("T:\\arc\\*") == name + '|';
    EXPECT_TRUE(shown) << name;
  }
  EXPECT_EQ(fs_.Rename("T:\\ARC", "T:\\arc", kRefuse), FileError::kNone);
  EXPECT_EQ(fs_.Rename("T:\\arc", "T:\\arc", kRefuse), FileError::kNone);
  EXPECT_EQ(fs_.Read("T:\\arc\\tower.vmk", 9).bytes, "x");
  EXPECT_EQ(Snapshot().size(), 2U);
}

TEST_F(DiskWritingTest, ReplacingKeepsTheSpellingOfTheTarget) {
  disk_.Write("tower.tmp", "new");
  disk_.Write("Tower.vmk", "old");
  EXPECT_EQ(fs_.Rename("T:\\TOWER.tmp", "T:\\tower.VMK", kReplace), FileError::kNone);
  EXPECT_EQ(Snapshot(), (testing::Files{{"Tower.vmk", "new"}}));
}

TEST_F(DiskWritingTest, OnlyAFileReplacesAFile) {
  disk_.Write("file", "x");
  disk_.Write("same", "y");
  stdfs::create_hard_link(disk_ / "same", disk_ / "twin");
  stdfs::create_directory(disk_ / "Empty");
  ExpectRefused(FileError::kAccessDenied,
                {[&] { return fs_.Rename("T:\\file", "T:\\empty", kReplace); },
                 [&] { return fs_.Rename("T:\\empty", "T:\\file", kReplace); },
                 [&] { return fs_.Rename("T:\\same", "T:\\twin", kReplace); }});
}

TEST_F(DiskWritingTest, FlushReachesFewFilesAndManyAndMissesNone) {
  std::vector<std::string> paths;
  for (int i = 0; i < 20; ++i) {
    const std::string name = "Save" + std::to_string(i);
    disk_.Write(name, "x");
    paths.push_back("T:\\save" + std::to_string(i));
  }
  EXPECT_EQ(fs_.Flush({paths[0], paths[1], "T:"}), FileError::kNone);
  EXPECT_EQ(fs_.Flush(paths), FileError::kNone);
  EXPECT_EQ(fs_.Flush({}), FileError::kNone);

  EXPECT_EQ(fs_.Flush({paths[0], "T:\\none"}), FileError::kNotFound);
  paths.insert(paths.begin(), "T:\\none");
  EXPECT_EQ(fs_.Flush(paths), FileError::kNotFound);
}

TEST_F(DiskWritingTest, DeleteAndRemoveFolderKeepToTheirKind) {
  disk_.Write("Arc/a", "x");
  ExpectRefused(FileError::kAccessDenied,
                {[&] { return fs_.Delete("T:\\arc"); }, [&] { return fs_.RemoveFolder("T:"); }});
  ExpectRefused(FileError::kNotFound, {[&] { return fs_.Delete("T:\\b"); },
                                       [&] { return fs_.RemoveFolder("T:\\arc\\a"); }});
  EXPECT_EQ(fs_.RemoveFolder("T:\\arc"), FileError::kNotEmpty);
  EXPECT_EQ(fs_.Delete("T:\\ARC\\A"), FileError::kNone);
  EXPECT_EQ(fs_.RemoveFolder("T:\\ARC"), FileError::kNone);
  EXPECT_FALSE(disk_.Exists("Arc"));
}

}  // namespace
}  // namespace vellumark
