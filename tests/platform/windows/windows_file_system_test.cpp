// What only a Windows disk has: attributes, open files, other forms of a path.
#include "platform/windows/windows_file_system.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>

#include "platform/disk_fixture.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

class WindowsFileSystemTest : public DiskTest {
 protected:
  void SetBits(const std::string& name, DWORD bits) const {
    ASSERT_NE(SetFileAttributesW(ToWide(disk_ / name).c_str(), bits), 0) << name;
  }
  DWORD Bits(const std::string& name) const {
    return GetFileAttributesW(ToWide(disk_ / name).c_str());
  }
};

TEST_F(WindowsFileSystemTest, HiddenAndSystemFilesAreNoPlainFiles) {
  for (const char* name : {"archive", "hidden", "plain", "read", "system"}) disk_.Write(name, "");
  SetBits("archive", FILE_ATTRIBUTE_ARCHIVE);
  SetBits("hidden", FILE_ATTRIBUTE_HIDDEN);
  SetBits("plain", FILE_ATTRIBUTE_NORMAL);
  SetBits("read", FILE_ATTRIBUTE_READONLY);
  SetBits("system", FILE_ATTRIBUTE_SYSTEM);

  std::string plain;
  for (const FolderEntry& entry : fs_.List("T:\\*").entries) {
    const FileAttributes attributes = fs_.Attributes("T:\\" + entry.name).attributes;
    EXPECT_EQ(attributes.IsPlainFile(), entry.plain) << entry.name;
    EXPECT_EQ(attributes.hidden, entry.name == "hidden");
    EXPECT_EQ(attributes.system, entry.name == "system");
    EXPECT_EQ(attributes.read_only, entry.name == "read");
    if (entry.plain) plain += entry.name + '|';
  }
  EXPECT_EQ(plain, "archive|plain|read|");
  EXPECT_TRUE(fs_.Attributes("T:\\archive").attributes.archive);
}

TEST_F(WindowsFileSystemTest, CopyingAndClearingTakeReadOnlyHiddenAndSystemAway) {
  disk_.Write("file", "");
  SetBits("file", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                      FILE_ATTRIBUTE_ARCHIVE);
  EXPECT_EQ(fs_.Copy("T:\\file", "T:\\to"), FileError::kNone);
  EXPECT_TRUE(fs_.Attributes("T:\\to").attributes.IsPlainFile());
  EXPECT_FALSE(fs_.Attributes("T:\\to").attributes.read_only);
  EXPECT_EQ(fs_.ClearAttributes("T:\\file"), FileError::kNone);
  EXPECT_EQ(Bits("file"), static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE));
  EXPECT_EQ(fs_.ClearAttributes("T:\\"), FileError::kAccessDenied);
}

TEST_F(WindowsFileSystemTest, AFileThatAnotherProgramHoldsIsInUse) {
  disk_.Write("held", "old");
  disk_.Write("new", "new");
  const FileHandle held(CreateFileW(ToWide(disk_ / "held").c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  ASSERT_TRUE(held.IsOpen());
  EXPECT_EQ(fs_.Read("T:\\held", 9).error, FileError::kInUse);
  EXPECT_EQ(fs_.Append("T:\\held", "x"), FileError::kInUse);
  EXPECT_EQ(fs_.WriteAt("T:\\held", 0, "x"), FileError::kInUse);
  EXPECT_EQ(fs_.Copy("T:\\held", "T:\\copy"), FileError::kInUse);
  EXPECT_EQ(fs_.Delete("T:\\held"), FileError::kInUse);
  EXPECT_EQ(fs_.Flush({"T:\\held"}), FileError::kInUse);
  EXPECT_NE(fs_.Rename("T:\\new", "T:\\held", RenameMode::kReplaceFile), FileError::kNone);
  EXPECT_EQ(Names("T:\\*"), "held|new|");
}

TEST_F(WindowsFileSystemTest, ReplacingLeavesAHiddenTargetsNameAlone) {
  disk_.Write("Tower.vmk", "old");
  disk_.Write("~new", "new");
  SetBits("Tower.vmk", FILE_ATTRIBUTE_HIDDEN);
  EXPECT_EQ(fs_.Rename("T:\\~new", "T:\\TOWER.VMK", RenameMode::kReplaceFile), FileError::kNone);
  EXPECT_EQ(disk_.Read("Tower.vmk"), "new");
  EXPECT_EQ(Names("T:\\*"), "Tower.vmk|");
}

TEST_F(WindowsFileSystemTest, APathThatTheSystemCannotReachHasABadName) {
  const std::string deep = "T:\\" + std::string(200, 'x') + '\\' + std::string(56, 'y');
  EXPECT_EQ(fs_.Attributes(deep).error, FileError::kBadName);
  EXPECT_EQ(fs_.Read(deep, 1).error, FileError::kBadName);
  EXPECT_EQ(fs_.List(deep + "\\*").error, FileError::kBadName);
}

TEST_F(WindowsFileSystemTest, HostPathsAreThoseOfTheSystemInTheDisksSpelling) {
  disk_.Write("Arc/Slot/a", "");
  EXPECT_EQ(fs_.HostPath("t:\\arc\\slot\\A"), "T:\\Arc\\Slot\\a");
  EXPECT_EQ(fs_.HostPath("T:\\arc\\New\\\xE4"), "T:\\Arc\\New\\\xC3\xA4");
  EXPECT_EQ(fs_.HostPath("T:"), "T:\\");
  EXPECT_EQ(fs_.HostPath("T:\\a*"), "");

  EXPECT_EQ(fs_.FromHostPath("T:/Arc/\xC3\xA4"), "T:\\Arc\\\xE4");
  EXPECT_EQ(fs_.FromHostPath(R"(\\?\t:\Arc)"), "T:\\Arc");
  EXPECT_EQ(fs_.FromHostPath("T:/"), "T:");
  for (const char* path :
       {"", R"(\\pc\share\x)", R"(\\?\UNC\pc\share)", R"(\\?\)", "T:/a:b", "T:/\xE2\x98\x83"}) {
    EXPECT_EQ(fs_.FromHostPath(path), std::nullopt) << path;
  }
}

}  // namespace
}  // namespace vellumark
