// Looking, listing and places, where Linux has its own ways.
#include "platform/posix/posix_file_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/disk_fixture.h"

namespace vellumark {
namespace {

namespace stdfs = std::filesystem;

using PosixFileSystemTest = DiskTest;

TEST_F(PosixFileSystemTest, TheNameAsSpelledGoesFirstThenTheFirstInByteOrder) {
  disk_.Write("Arc/a", "in Arc");
  disk_.Write("Arc/A", "capital in Arc");
  disk_.Write("arc/b", "in arc");
  disk_.Write("note.txt", "lower");
  disk_.Write("Note.txt", "capital");

  EXPECT_EQ(fs_.Read("T:\\note.txt", 99).bytes, "lower");
  EXPECT_EQ(fs_.Read("T:\\Note.txt", 99).bytes, "capital");
  EXPECT_EQ(fs_.Read("T:\\NOTE.txt", 99).bytes, "capital");
  EXPECT_EQ(fs_.Read("T:\\ARC\\a", 99).bytes, "in Arc");
  EXPECT_EQ(fs_.Read("T:\\ARC\\A", 99).bytes, "capital in Arc");
  // What exists as spelled is not searched for elsewhere.
  EXPECT_EQ(fs_.Read("T:\\arc\\a", 99).error, FileError::kNotFound);
}

TEST_F(PosixFileSystemTest, ReadOnlyIsTheOwnersMissingRightToWrite) {
  disk_.Write("folder/file", "");
  disk_.MakeReadOnly("folder/file");
  EXPECT_TRUE(fs_.Attributes("T:\\folder\\file").attributes.read_only);
  EXPECT_FALSE(fs_.Attributes("T:\\folder").attributes.read_only);
  disk_.MakeReadOnly("folder");
  EXPECT_FALSE(fs_.Attributes("T:\\folder").attributes.IsBareFolder());
}

TEST_F(PosixFileSystemTest, WhatIsNeitherFileNorFolderIsSeenAndNotTouched) {
  ASSERT_EQ(mkfifo((disk_ / "pipe").c_str(), 0600), 0);
  stdfs::create_symlink("missing", disk_ / "dead");

  for (const std::string name : {"T:\\pipe", "T:\\dead"}) {
    EXPECT_TRUE(fs_.Attributes(name).attributes.other) << name;
    EXPECT_EQ(fs_.Read(name, 1).error, FileError::kAccessDenied) << name;
    EXPECT_EQ(fs_.Append(name, "x"), FileError::kAccessDenied) << name;
    EXPECT_EQ(fs_.Delete(name), FileError::kAccessDenied) << name;
    EXPECT_EQ(fs_.Create(name, "x"), FileError::kAlreadyExists) << name;
  }
  EXPECT_FALSE(disk_.Exists("missing"));

  const auto reader = fs_.OpenFolder("T:\\");
  ASSERT_EQ(reader->Contents().entries.size(), 2U);
  EXPECT_FALSE(reader->Contents().entries[1].plain);
  EXPECT_EQ(reader->Read(reader->Contents().entries[1], 1).error, FileError::kAccessDenied);
}

TEST_F(PosixFileSystemTest, NamesThatTheCoreCannotSpeakOfAreListedApart) {
  disk_.Write("good", "");
  disk_.Write("\xE2\x98\x83.txt", "");
  disk_.Write("bad\xFF", "");
  disk_.Write("half\xED\xA0\x80", "");
  for (const char* name : {"a:b", "con.txt", "dot.", "LPT9", "q?", "tab\t"}) disk_.Write(name, "");
  stdfs::create_directory(disk_ / "blank ");
  disk_.Write("com10", "");

  const Listing listing = fs_.List("T:\\*");
  EXPECT_EQ(Names("T:\\*"), "com10|good|");
  std::string shown;
  for (const UnusableName& name : listing.unusable) {
    shown += name.shown + (name.folder ? "/" : "");
    shown += name.reason == UnusableName::Reason::kNotInCodePage ? "#|" : "|";
  }
  EXPECT_EQ(shown,
            "LPT9|a:b|bad\xEF\xBF\xBD#|blank /|con.txt|dot.|"
            "half\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD#|q?|tab\t|\xE2\x98\x83.txt#|");
  EXPECT_EQ(fs_.List("T:\\*.txt").unusable.size(), 2U);
}

TEST_F(PosixFileSystemTest, ADriveIsAFolderOfTheHost) {
  EXPECT_EQ(fs_.HostPath("D:\\a"), disk_ / "medium/a");
  const std::vector<Drive> drives = fs_.Drives();
  ASSERT_EQ(drives.size(), 2U);
  EXPECT_EQ(drives[0].letter, 'D');
  EXPECT_EQ(drives[1].label, disk_.path().string());

  disk_.Write("medium", "a file");
  EXPECT_EQ(fs_.List("D:\\*").error, FileError::kNotReady);
  EXPECT_EQ(fs_.Attributes("D:").error, FileError::kNotReady);
}

TEST_F(PosixFileSystemTest, ALinkIsWhatItLeadsToButNeitherDeletedNorRemoved) {
  disk_.Write("Arc/a", "");
  stdfs::create_directory_symlink("Arc", disk_ / "link");
  EXPECT_TRUE(fs_.List("T:\\link").entries[0].folder);
  EXPECT_EQ(Names("T:\\link\\*"), "a|");
  EXPECT_EQ(fs_.Identity("T:\\arc"), fs_.Identity("T:\\link"));
  ExpectRefused(FileError::kAccessDenied, {[&] { return fs_.Delete("T:\\link"); }});
  ExpectRefused(FileError::kNotFound, {[&] { return fs_.RemoveFolder("T:\\link"); }});
}

TEST_F(PosixFileSystemTest, HostPathsHaveTheDisksSpellingAsFarAsTheyExist) {
  disk_.Write("Arc/Slot/a", "");
  EXPECT_EQ(fs_.HostPath("t:\\arc\\slot\\A"), disk_ / "Arc/Slot/a");
  EXPECT_EQ(fs_.HostPath("T:\\arc\\New\\\xE4"), disk_ / "Arc/New/\xC3\xA4");
  EXPECT_EQ(fs_.HostPath("T:"), disk_.path().string());
  EXPECT_EQ(fs_.HostPath("T:\\..\\a/b"), "");
}

TEST_F(PosixFileSystemTest, AHostPathBelongsToTheDriveWithTheLongestFolder) {
  disk_.Write("c/games/x", "");
  stdfs::create_directory_symlink(disk_ / "c", disk_ / "to_c");
  stdfs::create_symlink("x", disk_ / "c/games/link");
  PosixFileSystem fs(text_, DriveMap{{{'C', disk_ / "to_c"},
                                      {'G', disk_ / "c/games"},
                                      {'H', disk_ / "c/games"},
                                      {'Y', disk_ / "c/games"},
                                      {'Z', "/"}}});

  EXPECT_EQ(fs.FromHostPath(disk_ / "c/games/x"), "G:\\x");
  EXPECT_EQ(fs.FromHostPath(disk_ / "to_c/./games//none/../x/"), "G:\\x");
  EXPECT_EQ(fs.FromHostPath(disk_ / "c/games/link"), "G:\\link");
  EXPECT_EQ(fs.FromHostPath(disk_ / "c/gamesx"), "C:\\gamesx");
  EXPECT_EQ(fs.FromHostPath(disk_ / "to_c"), "C:");
  EXPECT_EQ(fs.FromHostPath("/"), "Z:");
  EXPECT_EQ(fs.FromHostPath("/none/\xC3\xA4"), "Z:\\none\\\xE4");
  EXPECT_EQ(fs.FromHostPath("/none/a:b"), std::nullopt);
  EXPECT_EQ(fs.FromHostPath("/none/\xE2\x98\x83"), std::nullopt);
  EXPECT_EQ(fs_.FromHostPath("/none"), std::nullopt);

  PosixFileSystem equal(text_,
                        DriveMap{{{'Q', disk_.path().string()}, {'Z', disk_.path().string()}}});
  EXPECT_EQ(equal.FromHostPath(disk_ / "c"), "Q:\\c");
}

// These move the process to another folder.
class CurrentFolderTest : public PosixFileSystemTest {
 protected:
  CurrentFolderTest() : before_(stdfs::current_path()) {
    disk_.Write("Arc/Slot/a", "");
    stdfs::current_path(disk_ / "Arc");
  }
  ~CurrentFolderTest() override { stdfs::current_path(before_); }

  stdfs::path before_;
};

TEST_F(CurrentFolderTest, StartsAsTheWorkingFolder) {
  PosixFileSystem fs(text_, DriveMap{{{'T', disk_.path().string()}}});
  EXPECT_EQ(fs.CurrentFolder(), "T:\\Arc");
  EXPECT_EQ(fs.Attributes("slot\\a").error, FileError::kNone);
}

TEST_F(CurrentFolderTest, StartsAtHomeWhenTheCoreCannotNameTheWorkingFolder) {
  stdfs::create_directory(disk_ / "a:b");
  stdfs::current_path(disk_ / "a:b");
  const DriveMap drives{{{'T', disk_.path().string()}}};
  EXPECT_EQ(PosixFileSystem(text_, drives, disk_ / "Arc").CurrentFolder(), "T:\\Arc");
  EXPECT_EQ(PosixFileSystem(text_, drives, "/").CurrentFolder(), "Z:");
}

TEST_F(CurrentFolderTest, ReadsTheCommandLineAsAWindowsPathOrAHostPath) {
  PosixFileSystem fs(text_, DriveMap{{{'T', disk_.path().string()}}});
  EXPECT_EQ(fs.FromCommandLine("Q:y.vmk"), "Q:\\y.vmk");
  EXPECT_EQ(fs.FromCommandLine("saves/y.vmk"), "T:\\Arc\\saves\\y.vmk");
  EXPECT_EQ(fs.FromCommandLine("\xE4.vmk"), "T:\\Arc\\\xE4.vmk");
  EXPECT_EQ(fs.FromCommandLine(disk_ / "y.vmk"), "T:\\y.vmk");
  for (const std::string typed : {"/none/y", "~/y", "C:/y", "a/b\\c"}) {
    EXPECT_EQ(fs.FromCommandLine(typed), typed);
  }
}

}  // namespace
}  // namespace vellumark
