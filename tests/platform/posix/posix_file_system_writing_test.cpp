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

#include "platform/posix/descriptor_io.h"
#include "platform/posix/free_name_rename.h"
#include "platform/posix/posix_file_system_fixture.h"

namespace vellumark {
namespace {

namespace stdfs = std::filesystem;

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

class WritingTest : public PosixFileSystemTest {
 protected:
  // All files of the temporary folder with their bytes.
  std::map<std::string, std::string> Snapshot() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : stdfs::recursive_directory_iterator(host_.path())) {
      const std::string name = stdfs::relative(entry.path(), host_.path());
      files[name] = entry.is_regular_file() ? host_.Get(name) : "/";
    }
    return files;
  }

  // Runs each call, which must answer `error` and leave everything as it was.
  void ExpectRefused(FileError error, const std::vector<std::function<FileError()>>& calls) {
    const auto before = Snapshot();
    for (std::size_t i = 0; i < calls.size(); ++i) {
      EXPECT_EQ(calls[i](), error) << "call " << i;
      EXPECT_EQ(Snapshot(), before) << "call " << i;
    }
  }
};

TEST_F(WritingTest, CreateMakesAFileOnlyWhereTheNameIsFreeInAnyCase) {
  host_.Put("Arc/Taken.vmk", "old");
  EXPECT_EQ(fs_.Create("T:\\arc\\New\xE4.vmk", "new"), FileError::kNone);
  EXPECT_EQ(host_.Get("Arc/New\xC3\xA4.vmk"), "new");

  ExpectRefused(FileError::kAlreadyExists, {
                                               [&] { return fs_.Create("T:\\Arc\\tAKEN.vmk", ""); },
                                               [&] { return fs_.Create("T:\\arc", ""); },
                                               [&] { return fs_.CreateFolder("T:\\ARC"); },
                                               [&] { return fs_.CreateFolder("T:\\"); },
                                           });
  EXPECT_EQ(fs_.Create("T:\\none\\a", ""), FileError::kNotFound);
}

TEST_F(WritingTest, NamesThatWindowsCouldNotHoldAreNotMade) {
  host_.Put("a", "");
  const std::string long_path = "T:\\" + std::string(200, 'x') + '\\' + std::string(56, 'y');
  for (const std::string& path :
       {std::string("T:\\b/c"), std::string("T:\\b:c"), std::string("T:\\b."),
        std::string("T:\\b "), std::string("T:\\aux.vmk"), std::string("T:\\b\n"),
        std::string("T:\\b*"), std::string(), std::string(R"(\\pc\a)"), long_path}) {
    SCOPED_TRACE(path);
    ExpectRefused(FileError::kBadName, {
                                           [&] { return fs_.Create(path, ""); },
                                           [&] { return fs_.Append(path, ""); },
                                           [&] { return fs_.Copy("T:\\a", path); },
                                           [&] { return fs_.Rename("T:\\a", path, kRefuse); },
                                           [&] { return fs_.CreateFolder(path); },
                                       });
  }
  EXPECT_EQ(fs_.Attributes("").error, FileError::kNotFound);
  EXPECT_EQ(fs_.Attributes("\\\\pc\\a").error, FileError::kNotFound);

  // One character less can be made.
  EXPECT_EQ(fs_.CreateFolder("T:\\" + std::string(200, 'x')), FileError::kNone);
  EXPECT_EQ(fs_.Create(long_path.substr(0, long_path.size() - 1), ""), FileError::kNone);
}

TEST_F(WritingTest, AnAmbiguousNameIsNotChanged) {
  host_.Put("Save", "capital");
  host_.Put("save", "small");
  host_.Put("other", "x");
  for (const std::string path : {"T:\\save", "T:\\Save", "T:\\SAVE"}) {
    SCOPED_TRACE(path);
    ExpectRefused(FileError::kAmbiguous,
                  {
                      [&] { return fs_.Delete(path); },
                      [&] { return fs_.WriteAt(path, 0, "x"); },
                      [&] { return fs_.Append(path, "x"); },
                      [&] { return fs_.ClearAttributes(path); },
                      [&] { return fs_.Rename(path, "T:\\new", kRefuse); },
                      [&] { return fs_.Rename("T:\\other", path, kRefuse); },
                      [&] { return fs_.Rename("T:\\other", path, kReplace); },
                  });
    EXPECT_EQ(fs_.Create(path, ""), FileError::kAlreadyExists);
  }
}

TEST_F(WritingTest, NothingIsChangedBehindAFolderThatCouldBeEither) {
  host_.Put("Arc/a", "1");
  host_.Put("arc/a", "2");
  ExpectRefused(FileError::kAmbiguous, {
                                           [&] { return fs_.Delete("T:\\ARC\\a"); },
                                           [&] { return fs_.Create("T:\\ARC\\b", ""); },
                                           [&] { return fs_.Append("T:\\ARC\\b", ""); },
                                           [&] { return fs_.CreateFolder("T:\\ARC\\b"); },
                                           [&] { return fs_.RemoveFolder("T:\\arc"); },
                                       });
  // A folder as spelled is no question.
  EXPECT_EQ(fs_.Delete("T:\\arc\\A"), FileError::kNone);
  EXPECT_EQ(host_.Get("Arc/a"), "1");
  EXPECT_FALSE(host_.Has("arc/a"));
}

TEST_F(WritingTest, AReadOnlyFileIsNotChanged) {
  host_.Put("Save", "old");
  host_.Put("new", "new");
  MakeReadOnly("Save");
  ExpectRefused(FileError::kAccessDenied,
                {
                    [&] { return fs_.Delete("T:\\save"); },
                    [&] { return fs_.WriteAt("T:\\save", 0, "x"); },
                    [&] { return fs_.Append("T:\\save", "x"); },
                    [&] { return fs_.Rename("T:\\new", "T:\\save", kReplace); },
                });
  EXPECT_EQ(fs_.ClearAttributes("T:\\save"), FileError::kNone);
  EXPECT_FALSE(fs_.Attributes("T:\\Save").attributes.read_only);
  EXPECT_EQ(fs_.Delete("T:\\save"), FileError::kNone);
  EXPECT_FALSE(host_.Has("Save"));
}

TEST_F(WritingTest, AppendAddsAtTheEndOrMakesTheFile) {
  host_.Put("Log", "one ");
  EXPECT_EQ(fs_.Append("T:\\LOG", "two"), FileError::kNone);
  EXPECT_EQ(host_.Get("Log"), "one two");
  EXPECT_EQ(fs_.Append("T:\\New", "first"), FileError::kNone);
  EXPECT_EQ(host_.Get("New"), "first");
}

TEST_F(WritingTest, WriteAtStaysInsideTheFile) {
  host_.Put("a", "0123456789");
  EXPECT_EQ(fs_.WriteAt("T:\\A", 8, "xy"), FileError::kNone);
  EXPECT_EQ(host_.Get("a"), "01234567xy");
  ExpectRefused(FileError::kInputOutput,
                {
                    [&] { return fs_.WriteAt("T:\\a", 9, "zz"); },
                    [&] { return fs_.WriteAt("T:\\a", 11, ""); },
                    [&] { return fs_.WriteAt("T:\\a", ~std::uint64_t{0}, "zz"); },
                });
  EXPECT_EQ(fs_.WriteAt("T:\\none", 0, ""), FileError::kNotFound);
}

TEST_F(WritingTest, AFullDiskLeavesNoPartsBehind) {
  host_.Put("old", std::string(60, 'o'));
  host_.Put("long", std::string(300, 'l'));
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

TEST_F(WritingTest, CopyKeepsTheBytesAndTheTimeOfChange) {
  std::string bytes(200000, 'x');
  bytes.back() = 'y';
  host_.Put("From", bytes);
  host_.Put("Taken", "old");
  const auto time = stdfs::file_time_type::clock::now() - std::chrono::hours(1000);
  stdfs::last_write_time(host_ / "From", time);

  EXPECT_EQ(fs_.Copy("T:\\FROM", "T:\\To"), FileError::kNone);
  EXPECT_EQ(host_.Get("To"), bytes);
  EXPECT_EQ(stdfs::last_write_time(host_ / "To"), stdfs::last_write_time(host_ / "From"));
  EXPECT_EQ(fs_.Copy("T:\\From", "T:\\taken"), FileError::kAlreadyExists);
  EXPECT_EQ(fs_.Copy("T:\\From", "T:\\from"), FileError::kAlreadyExists);
  EXPECT_EQ(host_.Get("Taken"), "old");
  EXPECT_EQ(fs_.Copy("T:\\", "T:\\x"), FileError::kAccessDenied);
}

TEST_F(WritingTest, AVerifiedCopyIsReadBackWhole) {
  for (const std::size_t size : {0U, 1U, 65536U, 200000U}) {
    host_.Put("From", std::string(size, 'x'));
    const std::string target = "T:\\To" + std::to_string(size);
    EXPECT_EQ(fs_.CopyVerified("T:\\From", target), FileError::kNone);
    EXPECT_EQ(host_.Get(target.substr(3)), std::string(size, 'x'));
    EXPECT_EQ(fs_.CopyVerified("T:\\From", target), FileError::kAlreadyExists);
  }
}

TEST(CompareAllTest, FindsEveryDifference) {
  const HostFolder folder;
  const std::string bytes(150000, 'x');
  std::string other_end = bytes;
  other_end.back() = 'y';
  const std::pair<std::string, int> others[] = {
      {bytes, 0}, {other_end, EIO}, {bytes + 'x', EIO}, {bytes.substr(1), EIO}, {"", EIO}};
  folder.Put("a", bytes);
  const Descriptor a(open((folder / "a").c_str(), O_RDONLY | O_CLOEXEC));
  for (const auto& [content, expected] : others) {
    folder.Put("b", content);
    const Descriptor b(open((folder / "b").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(CompareAll(a.number(), b.number()), expected);
    EXPECT_EQ(CompareAll(b.number(), a.number()), expected);
  }
}

TEST_F(WritingTest, RenameNeverTakesATakenName) {
  host_.Put("a", "1");
  host_.Put("Taken", "2");
  host_.Put("Folder/x", "3");
  host_.Put("Folder/a", "4");
  stdfs::create_directory(host_ / "Empty");
  ExpectRefused(FileError::kAlreadyExists,
                {
                    [&] { return fs_.Rename("T:\\a", "T:\\tAKEN", kRefuse); },
                    [&] { return fs_.Rename("T:\\a", "T:\\Taken", kRefuse); },
                    [&] { return fs_.Rename("T:\\a", "T:\\Folder\\a", kRefuse); },
                    [&] { return fs_.Rename("T:\\folder", "T:\\EMPTY", kRefuse); },
                });
  EXPECT_EQ(fs_.Rename("T:\\A", "T:\\folder\\New", kRefuse), FileError::kNone);
  EXPECT_EQ(host_.Get("Folder/New"), "1");
  EXPECT_EQ(fs_.Rename("T:\\none", "T:\\x", kRefuse), FileError::kNotFound);
  EXPECT_EQ(fs_.Rename("T:\\taken", "T:\\none\\x", kRefuse), FileError::kNotFound);
  EXPECT_EQ(fs_.Rename("T:\\", "T:\\x", kRefuse), FileError::kAccessDenied);
}

TEST_F(WritingTest, RenameMayChangeTheCaseOnly) {
  host_.Put("Arc/tower.vmk", "x");
  for (const RenameMode mode : {kRefuse, kReplace}) {
    const std::string name = mode == kRefuse ? "TOWER.vmk" : "Tower.VMK";
    EXPECT_EQ(fs_.Rename("T:\\arc\\tower.vmk", "T:\\ARC\\" + name, mode), FileError::kNone);
    EXPECT_EQ(Names("T:\\arc\\*"), name + '|');
  }
  EXPECT_EQ(fs_.Rename("T:\\ARC", "T:\\arc", kRefuse), FileError::kNone);
  EXPECT_EQ(fs_.Rename("T:\\arc", "T:\\arc", kRefuse), FileError::kNone);
  EXPECT_EQ(host_.Get("arc/Tower.VMK"), "x");
}

TEST_F(WritingTest, ReplacingKeepsTheSpellingOfTheTarget) {
  host_.Put("tower.tmp", "new");
  host_.Put("Tower.vmk", "old");
  EXPECT_EQ(fs_.Rename("T:\\TOWER.tmp", "T:\\tower.VMK", kReplace), FileError::kNone);
  EXPECT_EQ(Snapshot(), (std::map<std::string, std::string>{{"Tower.vmk", "new"}}));
}

TEST_F(WritingTest, OnlyAFileReplacesAFile) {
  host_.Put("file", "x");
  host_.Put("same", "y");
  stdfs::create_hard_link(host_ / "same", host_ / "twin");
  stdfs::create_directory(host_ / "Empty");
  ExpectRefused(FileError::kAccessDenied,
                {
                    [&] { return fs_.Rename("T:\\file", "T:\\empty", kReplace); },
                    [&] { return fs_.Rename("T:\\empty", "T:\\file", kReplace); },
                    [&] { return fs_.Rename("T:\\same", "T:\\twin", kReplace); },
                });
}

TEST_F(WritingTest, RenamingInOneStepOrInSeveralNeverReplaces) {
  host_.Put("a", "1");
  host_.Put("b", "2");
  stdfs::create_directory(host_ / "folder");
  EXPECT_EQ(RenameToFreeName(host_ / "a", host_ / "b"), EEXIST);
  EXPECT_EQ(RenameToFreeNameInSteps(host_ / "a", host_ / "b"), EEXIST);
  EXPECT_EQ(RenameToFreeNameInSteps(host_ / "folder", host_ / "b"), EEXIST);
  EXPECT_EQ(RenameToFreeNameInSteps(host_ / "a", host_ / "c"), 0);
  EXPECT_EQ(RenameToFreeNameInSteps(host_ / "folder", host_ / "d"), 0);
  EXPECT_EQ(Snapshot(), (std::map<std::string, std::string>{{"b", "2"}, {"c", "1"}, {"d", "/"}}));
}

TEST_F(WritingTest, DeleteAllAnswersForEachFileWhatDeleteWould) {
  for (const char* name : {"Arc/one", "Arc/Two", "Arc/twice", "Arc/TWICE", "Arc/locked"}) {
    host_.Put(name, "x");
  }
  MakeReadOnly("Arc/locked");
  const std::vector<FileError> expected = {
      FileError::kNone,         FileError::kNotFound,     FileError::kNotFound,
      FileError::kNone,         FileError::kAccessDenied, FileError::kAmbiguous,
      FileError::kAccessDenied, FileError::kNotFound,     FileError::kBadName};
  EXPECT_EQ(fs_.DeleteAll({"T:\\arc\\one", "T:\\ARC\\one", "T:\\arc\\none", "T:\\arc\\two",
                           "T:\\arc\\locked", "T:\\arc\\twice", "T:\\arc", "T:\\b\\a", "T:\\a?"}),
            expected);
  EXPECT_EQ(Names("T:\\arc\\one") + Names("T:\\arc\\two"), "");

  // What it has seen of the folder does not outlive it.
  host_.Put("Arc/TWO", "y");
  EXPECT_EQ(fs_.Delete("T:\\arc\\two"), FileError::kNone);
}

TEST_F(WritingTest, DeleteAndRemoveFolderKeepToTheirKind) {
  host_.Put("Arc/a", "x");
  stdfs::create_directory_symlink("Arc", host_ / "link");
  ExpectRefused(FileError::kAccessDenied, {
                                              [&] { return fs_.Delete("T:\\arc"); },
                                              [&] { return fs_.Delete("T:\\link"); },
                                              [&] { return fs_.RemoveFolder("T:"); },
                                          });
  ExpectRefused(FileError::kNotFound, {
                                          [&] { return fs_.Delete("T:\\b"); },
                                          [&] { return fs_.RemoveFolder("T:\\arc\\a"); },
                                          [&] { return fs_.RemoveFolder("T:\\link"); },
                                      });
  EXPECT_EQ(fs_.RemoveFolder("T:\\arc"), FileError::kNotEmpty);
  EXPECT_EQ(fs_.Delete("T:\\ARC\\A"), FileError::kNone);
  EXPECT_EQ(fs_.RemoveFolder("T:\\ARC"), FileError::kNone);
  EXPECT_FALSE(host_.Has("Arc"));
}

TEST_F(WritingTest, FlushReachesFewFilesAndManyAndMissesNone) {
  std::vector<std::string> paths;
  for (int i = 0; i < 20; ++i) {
    const std::string name = "Save" + std::to_string(i);
    host_.Put(name, "x");
    paths.push_back("T:\\save" + std::to_string(i));
  }
  EXPECT_EQ(fs_.Flush({paths[0], paths[1], "T:"}), FileError::kNone);
  EXPECT_EQ(fs_.Flush(paths), FileError::kNone);
  EXPECT_EQ(fs_.Flush({}), FileError::kNone);

  EXPECT_EQ(fs_.Flush({paths[0], "T:\\none"}), FileError::kNotFound);
  paths.insert(paths.begin(), "T:\\none");
  EXPECT_EQ(fs_.Flush(paths), FileError::kNotFound);
}

}  // namespace
}  // namespace vellumark
