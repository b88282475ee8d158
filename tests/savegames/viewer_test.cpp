#include "savegames/viewer.h"

#include <gtest/gtest.h>

#include "savegames/details.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::OpenWorld;

class ViewerTest : public ::testing::Test, public OpenWorld {
 protected:
  ViewerTest() {
    for (int slot = 0; slot < 6; ++slot) {
      AddSavegame("Archive/Slot1", slot, "L", static_cast<std::int16_t>(slot));
    }
    for (const char* slot : {"1", "3", "4"}) {
      disk.Write(std::string("Archive/Slot1/shot") + slot + ".jpg", "x");
    }
    disk.Write("Archive/Slot1/note3.txt", "note\x8D\nmore\r\n");
    Rescan();
    SelectOnly(program, 1);
    ShowScreenShot(program);
  }

  // The slot whose picture the viewer shows.
  char Slot() const { return windows.viewer.picture.at(windows.viewer.picture.size() - 5); }
};

TEST_F(ViewerTest, StepsThroughTheSavegamesWithAScreenShotAndLeavesTheSelection) {
  EXPECT_EQ(Slot(), '1');
  ShowNextScreenShot(program);
  EXPECT_EQ(Slot(), '3');
  EXPECT_EQ(windows.viewer.line, "3  L  note\x8D\nmore");
  ShowNextScreenShot(program);
  EXPECT_EQ(Slot(), '4');
  program.preferences.SoundEffects = true;
  for (int i = 0; i < 6; ++i) disk.Write("Program/s" + std::to_string(i + 1) + ".wav", "x");
  ShowNextScreenShot(program);
  EXPECT_EQ(Slot(), '4') << "there is no further one";
  EXPECT_EQ(sounds.Take(), "s5|");
  ShowPreviousScreenShot(program);
  ShowPreviousScreenShot(program);
  ShowPreviousScreenShot(program);
  EXPECT_EQ(Slot(), '1');
  EXPECT_EQ(program.selection.indices, std::vector<std::int16_t>{1});
  EXPECT_EQ(windows.selected, std::vector<int>{1});
}

TEST_F(ViewerTest, FindsItsPlaceAgainAfterAScan) {
  ShowNextScreenShot(program);
  AddSavegame("Archive/Slot1", 7, "New", 9);
  disk.Remove({"Archive/Slot1/savegame.0"});
  Rescan();
  ShowNextScreenShot(program);
  EXPECT_EQ(Slot(), '4');
  ShowPreviousScreenShot(program);
  EXPECT_EQ(Slot(), '3');

  // What it shows is gone: it goes on with what is there now.
  disk.Remove({"Archive/Slot1/savegame.3"});
  Rescan();
  ShowNextScreenShot(program);
  EXPECT_EQ(Slot(), '4');
  program.catalogue.entries.clear();
  ShowNextScreenShot(program);
  ShowPreviousScreenShot(program);
  EXPECT_EQ(Slot(), '4');
}

TEST_F(ViewerTest, BeginsAtASavegameWithoutAScreenShotToo) {
  SelectOnly(program, 2);
  ShowScreenShot(program);
  EXPECT_EQ(windows.viewer.line, "2  L  ");
  ShowNextScreenShot(program);
  EXPECT_EQ(Slot(), '3');
}

}  // namespace
}  // namespace vellumark
