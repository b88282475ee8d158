#include "savegames/savegame_place.h"

#include <gtest/gtest.h>

#include "savegames/details.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::OpenWorld;

class SavegamePlaceTest : public ::testing::Test, public OpenWorld {
 protected:
  SavegamePlaceTest() {
    AddSavegame("Archive/Slot1", 0, "A", 1);
    AddSavegame("Archive/Slot1", 2, "B", 2);
    Rescan();
  }
};

TEST_F(SavegamePlaceTest, OtherProgramsGetThePathsThatTheyTake) {
  windows.selected = {0, 1};
  RefreshDetails(program);
  CopyPaths(program);
  const std::string first = files.HostPath("T:\\Archive\\Slot1\\savegame.0");
  EXPECT_EQ(clipboard.text, first + "\n" + files.HostPath("T:\\Archive\\Slot1\\savegame.2"));
  ShowInFileManager(program);
  EXPECT_EQ(shell.shown, std::vector<std::string>{first});
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SavegamePlaceTest, WhatCannotBeDoneIsSaid) {
  shell.answer = false;
  ShowInFileManager(program);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_NE(boxes.shown[0].text.find("t:\\archive\\slot1"), std::string::npos);

  windows.selected = {};
  RefreshDetails(program);
  ShowInFileManager(program);
  CopyPaths(program);
  EXPECT_EQ(boxes.shown.size(), 3U);
  EXPECT_EQ(clipboard.text, "");
}

}  // namespace
}  // namespace vellumark
