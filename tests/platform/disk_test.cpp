// Looking, listing and places, as they are on every system.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/disk_fixture.h"

namespace vellumark {
namespace {

namespace stdfs = std::filesystem;

TEST_F(DiskTest, FindsNamesInAnyLetterCaseOnTheWholeWay) {
  disk_.Write("Arc/Slot1/savegame.3", "three");
  disk_.Write("\xC3\x84rger.txt", "umlaut");

  EXPECT_EQ(fs_.Read("t:\\arc\\SLOT1\\SaveGame.3", FileSystem::kWholeFile).bytes, "three");
  EXPECT_EQ(fs_.Read("T:\\\\arc\\slot1\\savegame.3", 2).bytes, "th");
  EXPECT_EQ(fs_.Read("T:\\\xE4RGER.TXT", FileSystem::kWholeFile).bytes, "umlaut");
  EXPECT_EQ(fs_.Attributes("T:\\arc\\slot2\\savegame.3").error, FileError::kNotFound);
  EXPECT_EQ(fs_.Attributes("T:\\arc\\slot1\\savegame.3\\x").error, FileError::kNotFound);
  EXPECT_TRUE(fs_.Attributes("T:\\ARC\\").attributes.IsBareFolder());
  EXPECT_TRUE(fs_.Attributes("T:\\ARC\\..\\arc\\slot1\\SAVEGAME.3").attributes.IsPlainFile());
}

TEST_F(DiskTest, ReadsFilesThatAreLongerThanABlock) {
  std::string bytes(200000, 'x');
  bytes[65536] = 'y';
  bytes.back() = 'z';
  disk_.Write("long", bytes);
  EXPECT_EQ(fs_.Read("T:\\long", FileSystem::kWholeFile).bytes, bytes);
  EXPECT_EQ(fs_.Attributes("T:\\long").size, bytes.size());
  EXPECT_GT(fs_.FreeRoom("T:\\").value_or(0), bytes.size());
  EXPECT_FALSE(fs_.FreeRoom("T:\\none").has_value());
  EXPECT_EQ(fs_.Read("T:\\long", 65537).bytes, bytes.substr(0, 65537));
  EXPECT_EQ(fs_.Read("T:\\long", 0).bytes, "");

  const auto reader = fs_.OpenFolder("T:\\");
  EXPECT_EQ(reader->Read(reader->Contents().entries[0], FileSystem::kWholeFile).bytes, bytes);
  disk_.MakeFolder("folder");
  EXPECT_EQ(fs_.Read("T:\\folder", 1).error, FileError::kIsAFolder);
}

TEST_F(DiskTest, AFolderHasOneLockAtATime) {
  disk_.Write("Arc/a", "");
  LockResult first = fs_.LockFolder("T:\\arc");
  ASSERT_EQ(first.answer, LockAnswer::kTaken);
  EXPECT_EQ(fs_.LockFolder("T:\\Arc").answer, LockAnswer::kHeldByAnother);
  first.lock.reset();
  EXPECT_EQ(fs_.LockFolder("T:\\Arc").answer, LockAnswer::kTaken);
  EXPECT_EQ(fs_.LockFolder("T:\\Arc\\a").answer, LockAnswer::kUnavailable);
}

TEST_F(DiskTest, ListsInAlphabeticalOrderWithoutCase) {
  for (const char* name : {"b.vmk", "A.vmk", "c", "Sub/x", "a2.VMK"}) disk_.Write(name, "");

  ASSERT_EQ(Names("T:\\*"), "A.vmk|a2.VMK|b.vmk|c|Sub|");
  EXPECT_EQ(Names("T:\\"), Names("T:\\*"));
  EXPECT_EQ(Names("T:\\*.*"), Names("T:\\*"));
  EXPECT_EQ(Names("T:\\*.VMK"), "A.vmk|a2.VMK|b.vmk|");
  EXPECT_EQ(Names("T:\\B.VMK"), "b.vmk|");
  EXPECT_EQ(Names("T:\\sub\\*"), "x|");
  EXPECT_EQ(Names("T:\\none*"), "");
  EXPECT_EQ(fs_.List("T:\\none\\*").error, FileError::kNotFound);
  EXPECT_EQ(fs_.List("T:\\c\\*").error, FileError::kNotFound);
  EXPECT_EQ(fs_.List("T:\\S*\\x").error, FileError::kBadName);

  const Listing listing = fs_.List("T:\\*");
  ASSERT_EQ(listing.entries.size(), 5U);
  EXPECT_TRUE(listing.entries[0].plain);
  EXPECT_TRUE(listing.entries[4].folder);
  EXPECT_FALSE(listing.entries[4].plain);
}

TEST_F(DiskTest, AFolderReaderAnswersLikeListAndRead) {
  disk_.Write("Arc/Slot/savegame.0", "zero");
  disk_.Write("Arc/Slot/\xC3\x9C", "umlaut");
  disk_.Write("Arc/Slot/gone", "");

  const auto top = fs_.OpenFolder("T:\\ARC");
  ASSERT_EQ(top->Contents().entries.size(), 1U);
  const auto slot = top->OpenFolder(top->Contents().entries[0]);
  stdfs::remove(disk_ / "Arc/Slot/gone");
  const std::vector<FolderEntry>& entries = slot->Contents().entries;
  ASSERT_EQ(entries.size(), 3U);

  EXPECT_EQ(slot->Read(entries[0], 99).error, FileError::kNotFound);
  EXPECT_EQ(slot->Read(entries[1], 3).bytes, "zer");
  const FolderEntry copy = entries[2];
  EXPECT_EQ(slot->Read(copy, 99).bytes, "umlaut");

  FolderEntry unknown;
  unknown.name = "unknown";
  EXPECT_EQ(slot->Read(unknown, 99).error, FileError::kNotFound);
  EXPECT_EQ(slot->OpenFolder(unknown)->Contents().error, FileError::kNotFound);
  EXPECT_EQ(top->Read(top->Contents().entries[0], 9).error, FileError::kAccessDenied);
  EXPECT_EQ(fs_.OpenFolder("T:\\a*")->Contents().error, FileError::kBadName);
  EXPECT_EQ(fs_.OpenFolder("T:\\none")->Contents().error, FileError::kNotFound);
  EXPECT_EQ(fs_.OpenFolder("T:\\arc\\slot\\savegame.0")->Contents().error, FileError::kNotFound);
}

TEST_F(DiskTest, ADriveWithoutItsFolderIsNotReady) {
  EXPECT_EQ(fs_.List("D:\\*").error, FileError::kNotReady);
  EXPECT_EQ(fs_.Attributes("D:").error, FileError::kNotReady);
  EXPECT_EQ(fs_.Attributes("D:\\a\\b").error, FileError::kNotReady);
  EXPECT_EQ(fs_.Create("D:\\a", ""), FileError::kNotReady);
  EXPECT_EQ(fs_.Attributes("Q:\\a").error, FileError::kNotFound);
  EXPECT_EQ(fs_.HostPath("Q:\\a"), "");

  std::set<char> letters;
  for (const Drive& drive : fs_.Drives()) letters.insert(drive.letter);
  EXPECT_TRUE(letters.contains('D') && letters.contains('T') && !letters.contains('Q'));

  stdfs::create_directory(disk_ / "medium");
  EXPECT_EQ(fs_.List("D:\\*").error, FileError::kNone);
}

TEST_F(DiskTest, OneThingHasOneIdentity) {
  disk_.Write("Arc/a", "");
  stdfs::create_hard_link(disk_ / "Arc/a", disk_ / "twin");
  EXPECT_TRUE(fs_.Identity("T:\\arc\\A").has_value());
  EXPECT_EQ(fs_.Identity("T:\\arc\\A"), fs_.Identity("T:\\twin"));
  EXPECT_NE(fs_.Identity("T:\\arc\\A"), fs_.Identity("T:\\arc"));
  EXPECT_FALSE(fs_.Identity("T:\\none").has_value());
}

// These move the process to another folder.
class CurrentFolderOfDiskTest : public DiskTest {
 protected:
  CurrentFolderOfDiskTest() {
    disk_.Write("Arc/Slot/a", "");
    EXPECT_EQ(fs_.SetCurrentFolder("T:\\Arc"), FileError::kNone);
  }
  ~CurrentFolderOfDiskTest() override { stdfs::current_path(before_); }

  const stdfs::path before_ = stdfs::current_path();
};

TEST_F(CurrentFolderOfDiskTest, RelativePathsCountFromItAndTheProcessComesAlong) {
  EXPECT_EQ(fs_.Attributes("slot\\a").error, FileError::kNone);
  EXPECT_EQ(fs_.Attributes("T:slot\\..\\slot\\a").error, FileError::kNone);
  EXPECT_EQ(fs_.Attributes("\\arc\\slot\\a").error, FileError::kNone);
  EXPECT_TRUE(stdfs::exists("Slot/a"));

  EXPECT_EQ(fs_.SetCurrentFolder("slot"), FileError::kNone);
  EXPECT_EQ(fs_.CurrentFolder(), "T:\\Arc\\slot");
  EXPECT_TRUE(stdfs::exists("a"));
  EXPECT_EQ(fs_.SetCurrentFolder("none"), FileError::kNotFound);
  EXPECT_EQ(fs_.SetCurrentFolder("a"), FileError::kNotFound);
  EXPECT_EQ(fs_.Attributes("a").error, FileError::kNone);
}

TEST_F(CurrentFolderOfDiskTest, PathsOfTheCommandLineBecomeAbsolute) {
  EXPECT_EQ(fs_.FromCommandLine("t:\\x\\..\\y.vmk"), "T:\\y.vmk");
  EXPECT_EQ(fs_.FromCommandLine("T:y.vmk"), "T:\\Arc\\y.vmk");
  EXPECT_EQ(fs_.FromCommandLine("\\y.vmk"), "T:\\y.vmk");
  EXPECT_EQ(fs_.FromCommandLine("saves\\y.vmk"), "T:\\Arc\\saves\\y.vmk");
  for (const std::string typed : {"", "a\"b", "T:\\a\"b", R"(\\pc\y)", "a*"}) {
    EXPECT_EQ(fs_.FromCommandLine(typed), typed);
  }
}

}  // namespace
}  // namespace vellumark
