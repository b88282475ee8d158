#include "session/drop.h"

#include <gtest/gtest.h>

#include "archive/archive_file.h"
#include "savegames/savegame_properties.h"
#include "session/archive_commands.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::OpenWorld;

class DropTest : public ::testing::Test, public OpenWorld {
 protected:
  DropTest() {
    AddSavegame("Archive/Slot1", 0, "A", 1);
    AddSavegame("Archive/Slot1", 1, "B", 2);
    disk.Write("Archive/Slot1/shot1.jpg", "old");
    disk.Write("new.png", "picture");
    Rescan();
    program.archive.ArchiveChanged = false;
  }

  void Drop(const char* file, int entry) {
    const std::string savegame =
        program.catalogue.entries.at(static_cast<std::size_t>(entry)).SavegamePath;
    TakeDrop(program, disk / file, savegame, formats);
  }

  const PictureFormats formats{.patterns = "*.jpg;*.png", .as_jpeg = [](const std::string& bytes) {
                                 return std::optional("jpeg of " + bytes);
                               }};
};

TEST_F(DropTest, AFileIsKnownByItsEnding) {
  EXPECT_EQ(KindOfDrop("/x/A.VMK", formats), DropKind::kArchive);
  EXPECT_EQ(KindOfDrop("C:/x/a.b.Png", formats), DropKind::kPicture);
  EXPECT_EQ(KindOfDrop("a.jpg", formats), DropKind::kPicture);
  for (const char* name : {"", "vmk", "a.gif", "a.vmk/b", "a.", "a.jp", "a.vmk~"}) {
    EXPECT_EQ(KindOfDrop(name, formats), DropKind::kNone) << name;
  }
}

TEST_F(DropTest, APictureBecomesTheScreenShotOfASavegame) {
  windows.selected = {1};
  Drop("new.png", 0);
  EXPECT_EQ(disk.Read("Archive/Slot1/shot0.jpg"), "jpeg of picture");
  EXPECT_EQ(windows.lines.at(0).substr(0, 2), " I");
  EXPECT_EQ(windows.selected, std::vector<int>{0});
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_TRUE(disk.Exists("new.png"));
}

TEST_F(DropTest, AnotherScreenShotIsReplacedOnlyAfterAQuestion) {
  Drop("new.png", 1);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kYesNoFromNo);
  EXPECT_EQ(disk.Read("Archive/Slot1/shot1.jpg"), "old");
  EXPECT_FALSE(program.archive.ArchiveChanged);
  boxes.answers = {BoxAnswer::kYes};
  Drop("new.png", 1);
  EXPECT_EQ(disk.Read("Archive/Slot1/shot1.jpg"), "jpeg of picture");
}

TEST_F(DropTest, WhatCannotBeTakenIsTold) {
  Drop("gone.jpg", 0);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(boxes.shown[0].text.starts_with("Error while copying file"));
  Drop("\xE4\xBD\xA0.vmk", 0);  // not in this code page
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(boxes.shown[1].text.starts_with("This file or folder cannot be used"));
  TakeDrop(program, disk / "new.png", "t:\\gone\\savegame.1", formats);
  EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST_F(DropTest, AnArchiveIsOpened) {
  disk.Write("Other.vmk", EncodeArchive(testing::WorldSettings()));
  Drop("Other.vmk", 0);
  EXPECT_TRUE(NamedArchive(program).ends_with("\\Other.vmk"));
}

}  // namespace
}  // namespace vellumark
