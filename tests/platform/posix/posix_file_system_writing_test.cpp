// What changes the disk, and what must not.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/disk_fixture.h"
#include "platform/posix/descriptor_io.h"
#include "platform/posix/free_name_rename.h"

namespace vellumark {
namespace {

namespace stdfs = std::filesystem;

using PosixFileSystemTest = DiskTest;

constexpr RenameMode kRefuse = RenameMode::kRefuseExisting;
constexpr RenameMode kReplace = RenameMode::kReplaceFile;

// For as long as it lives, no file can grow beyond `bytes`, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_ = {};
  void (*handler_)(int);
};

TEST_F(PosixFileSystemTest, WhatTheHostCannotLookUpIsNotTakenForMissing) {
  EXPECT_EQ(fs_.RemoveFolder("D:"), FileError::kNotReady);
  // Its bytes on the disk are too many for a name.
  EXPECT_EQ(fs_.Delete("T:\\" + std::string(200, '\xE9')), FileError::kBadName);
}

TEST_F(PosixFileSystemTest, AnAmbiguousNameIsNotChanged) {
  disk_.Write("Save", "capital");
  disk_.Write("save", "small");
  disk_.Write("other", "x");
  for (const std::string path : {"T:\\save", "T:\\Save", "T:\\SAVE"}) {
    SCOPED_TRACE(path);
    ExpectRefused(FileError::kAmbiguous,
                  {[&] { return fs_.Delete(path); }, [&] { return fs_.WriteAt(path, 0, "x"); },
                   [&] { return fs_.Append(path, "x"); }, [&] { return fs_.ClearAttributes(path); },
                   [&] { return fs_.Rename(path, "T:\\new", kRefuse); },
                   [&] { return fs_.Rename("T:\\other", path, kRefuse); },
                   [&] { return fs_.Rename("T:\\other", path, kReplace); }});
    EXPECT_EQ(fs_.Create(path, ""), FileError::kAlreadyExists);
  }
}

TEST_F(PosixFileSystemTest, NothingIsChangedBehindAFolderThatCouldBeEither) {
  disk_.Write("Arc/a", "1");
  disk_.Write("arc/a", "2");
  ExpectRefused(
      FileError::kAmbiguous,
      {[&] { return fs_.Delete("T:\\ARC\\a"); }, [&] { return fs_.Create("T:\\ARC\\b", ""); },
       [&] { return fs_.Append("T:\\ARC\\b", ""); }, [&] { return fs_.CreateFolder("T:\\ARC\\b"); },
       [&] { return fs_.RemoveFolder("T:\\arc"); }});
  // A folder as spelled is no question.
  EXPECT_EQ(fs_.Delete("T:\\arc\\A"), FileError::kNone);
  EXPECT_EQ(disk_.Read("Arc/a"), "1");
  EXPECT_FALSE(disk_.Exists("arc/a"));
}

TEST_F(PosixFileSystemTest, AFullDiskLeavesNoPartsBehind) {
  disk_.Write("old", std::string(60, 'o'));
  disk_.Write("long", std::string(300, 'l'));
  const std::string bytes(200, 'n');
  std::vector<FileError> answers;
  const auto before = Snapshot();
  {
    const FileSizeLimit limit(100);
    answers.push_back(fs_.Create("T:\\new", bytes));
    answers.push_back(fs_.Append("T:\\new", bytes));
    answers.push_back(fs_.Append("T:\\old", bytes));
    answers.push_back(fs_.Copy("T:\\long", "T:\\copy"));
    answers.push_back(fs_.WriteAt("T:\\long", 0, bytes));
  }
  EXPECT_EQ(answers, std::vector<FileError>(5, FileError::kDiskFull));
  EXPECT_EQ(Snapshot(), before);
}

TEST(CompareAllTest, FindsEveryDifference) {
  const testing::TemporaryFolder folder;
  const std::string bytes(150000, 'x');
  std::string other_end = bytes;
  other_end.back() = 'y';
  const std::pair<std::string, int> others[] = {
      {bytes, 0}, {other_end, EIO}, {bytes + 'x', EIO}, {bytes.substr(1), EIO}, {"", EIO}};
  folder.Write("a", bytes);
  const Descriptor a(open((folder / "a").c_str(), O_RDONLY | O_CLOEXEC));
  for (const auto& [content, expected] : others) {
    folder.Write("b", content);
    const Descriptor b(open((folder / "b").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(CompareAll(a.number(), b.number()), expected);
    EXPECT_EQ(CompareAll(b.number(), a.number()), expected);
  }
}

TEST_F(PosixFileSystemTest, WhatTheEndOfTheProgramLeavesOfACopyHasNotItsName) {
  disk_.Write("savegame.1", std::string(100'000, 's'));
  const auto die_halfway = [this] {
    const struct rlimit limit = {50'000, 50'000};
    setrlimit(RLIMIT_FSIZE, &limit);
    static_cast<void>(fs_.Copy("T:\\savegame.1", "T:\\new\\savegame.2"));
  };
  stdfs::create_directory(disk_ / "new");
  EXPECT_EXIT(die_halfway(), ::testing::KilledBySignal(SIGXFSZ), "");
  EXPECT_EQ(disk_.Listed("new"), "~vm~game.2|");
  EXPECT_EQ(fs_.Copy("T:\\savegame.1", "T:\\new\\savegame.2"), FileError::kNone);
  EXPECT_EQ(disk_.Listed("new"), "savegame.2|") << "the leftover has given way";
}

TEST_F(PosixFileSystemTest, AReplacedFileKeepsItsPermissionsAndItsOwner) {
  disk_.Write("private", "old");
  disk_.Write("other", "new");
  const bool may_give = chown((disk_ / "private").c_str(), 4711, 4712) == 0;
  ASSERT_EQ(chmod((disk_ / "private").c_str(), 0640), 0);
  EXPECT_EQ(fs_.Rename("T:\\other", "T:\\private", kReplace), FileError::kNone);
  struct stat status = {};
  ASSERT_EQ(stat((disk_ / "private").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_TRUE(!may_give || (status.st_uid == 4711 && status.st_gid == 4712));
}

TEST_F(PosixFileSystemTest, RenamingInOneStepOrInSeveralNeverReplaces) {
  disk_.Write("a", "1");
  disk_.Write("b", "2");
  stdfs::create_directory(disk_ / "folder");
  EXPECT_EQ(RenameToFreeName(disk_ / "a", disk_ / "b"), EEXIST);
  EXPECT_EQ(RenameToFreeNameInSteps(disk_ / "a", disk_ / "b"), EEXIST);
  EXPECT_EQ(RenameToFreeNameInSteps(disk_ / "folder", disk_ / "b"), EEXIST);
  EXPECT_EQ(RenameToFreeNameInSteps(disk_ / "a", disk_ / "c"), 0);
  EXPECT_EQ(RenameToFreeNameInSteps(disk_ / "folder", disk_ / "d"), 0);
  EXPECT_EQ(Snapshot(), (testing::Files{{"b", "2"}, {"c", "1"}, {"d", "/"}}));
}

TEST_F(PosixFileSystemTest, DeleteAllAnswersForEachFileWhatDeleteWould) {
  for (const char* name : {"Arc/one", "Arc/Two", "Arc/twice", "Arc/TWICE", "Arc/locked"}) {
    disk_.Write(name, "x");
  }
  disk_.MakeReadOnly("Arc/locked");
  const std::vector<FileError> expected = {
      FileError::kNone,         FileError::kNotFound,     FileError::kNotFound,
      FileError::kNone,         FileError::kAccessDenied, FileError::kAmbiguous,
      FileError::kAccessDenied, FileError::kNotFound,     FileError::kBadName};
  EXPECT_EQ(fs_.DeleteAll({"T:\\arc\\one", "T:\\ARC\\one", "T:\\arc\\none", "T:\\arc\\two",
                           "T:\\arc\\locked", "T:\\arc\\twice", "T:\\arc", "T:\\b\\a", "T:\\a?"}),
            expected);
  EXPECT_EQ(Names("T:\\arc\\one") + Names("T:\\arc\\two"), "");

  // What it has seen of the folder does not outlive it.
  disk_.Write("Arc/TWO", "y");
  EXPECT_EQ(fs_.Delete("T:\\arc\\two"), FileError::kNone);
}

TEST_F(PosixFileSystemTest, HeldFoldersShowWhatWasDoneToThem) {
  disk_.Write("Arc/Old", "x");
  const auto hold = fs_.HoldFolders();
  const auto expect = [](FileError answer, FileError error) { EXPECT_EQ(answer, error); };
  expect(fs_.Create("T:\\Arc\\OLD", ""), FileError::kAlreadyExists);
  expect(fs_.Create("T:\\Arc\\New", "y"), FileError::kNone);
  expect(fs_.Create("T:\\Arc\\NEW", "y"), FileError::kAlreadyExists);
  expect(fs_.Delete("T:\\Arc\\NEW"), FileError::kNone);
  expect(fs_.Copy("T:\\Arc\\old", "T:\\Arc\\new"), FileError::kNone);
  expect(fs_.Copy("T:\\Arc\\old", "T:\\Arc\\NEW"), FileError::kAlreadyExists);
  expect(fs_.Rename("T:\\Arc\\new", "T:\\Arc\\b", RenameMode::kRefuseExisting), FileError::kNone);
  expect(fs_.Create("T:\\Arc\\NEW", "z"), FileError::kNone);
  expect(fs_.DeleteAll({"T:\\Arc\\new"}).front(), FileError::kNone);
  expect(fs_.Create("T:\\Arc\\new", "z"), FileError::kNone);
  EXPECT_EQ(disk_.Read("Arc/b"), "x");

  expect(fs_.Create("T:\\Arc\\Sub\\f", "w"), FileError::kNotFound);
  expect(fs_.CreateFolder("T:\\Arc\\Sub"), FileError::kNone);
  expect(fs_.Create("T:\\Arc\\Sub\\f", "w"), FileError::kNone);
  expect(fs_.CreateFolder("T:\\Arc\\SUB"), FileError::kAlreadyExists);
}

}  // namespace
}  // namespace vellumark
