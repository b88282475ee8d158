#include "savegames/details.h"

#include <gtest/gtest.h>

#include "savegames/list_line.h"
#include "savegames/viewer.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::OpenWorld;
using Field = MainWindow::Field;

SavegameEntry Entry(std::int16_t folder, std::int16_t counter, const std::string& level,
                    const std::string& note) {
  SavegameEntry entry;
  entry.FolderNumber = folder;
  entry.InternalCounter = counter;
  entry.LevelName = level;
  entry.NoteText = note;
  return entry;
}

TEST(ListLineTest, HasItsFieldsInTheirColumns) {
  EXPECT_EQ(FormatEntryLine(Entry(1, 12, "Tower", "note\x8D\n2"), false),
            "     12 Tower" + std::string(24, ' ') + "note\x8D\n2");
  EXPECT_EQ(FormatEntryLine(Entry(0, 7, "", ""), true), "TI    7 " + std::string(29, ' '));
  EXPECT_EQ(FormatEntryLine(Entry(2, -5, "A", ""), false).substr(0, 9), "     -5 A");
  EXPECT_EQ(FormatListHeading(), "TI  No. Level" + std::string(24, ' ') + "Note");
}

TEST(ListLineTest, WideValuesNeverShiftTheColumns) {
  const std::string long_level(40, 'L');
  for (const auto& [counter, start] : {std::pair<int, const char*>{9999, "T  9999 L"},
                                       {12345, "T 12345 L"},
                                       {-1234, "T -1234 L"},
                                       {-32768, "T -32768L"}}) {
    const std::string line =
        FormatEntryLine(Entry(0, static_cast<std::int16_t>(counter), long_level, "note"), false);
    EXPECT_EQ(line.substr(0, 9), start);
    EXPECT_EQ(line.substr(kNoteColumn), "note");
    EXPECT_EQ(line.substr(8, 29), std::string(29, 'L'));
  }
}

TEST(ListLineTest, HasRoomForTheBeginningOfANote) {
  const auto note_of = [](std::size_t length) {
    return FormatEntryLine(Entry(1, 1, "", std::string(length, 'n')), false).substr(kNoteColumn);
  };
  EXPECT_EQ(note_of(kNoteInLine), std::string(kNoteInLine, 'n'));
  EXPECT_EQ(note_of(10'000'000), std::string(kNoteInLine, 'n') + "...");
}

class DetailsTest : public ::testing::Test, public OpenWorld {
 protected:
  DetailsTest() {
    program.paths.DefaultShotPath = "T:\\Program\\default_shot.jpg";
    for (int i = 0; i < 4; ++i) {
      SavegameEntry entry = Entry(1, 1, "Level", "one\x8D\ntwo");
      entry.SavegamePath = "t:\\archive\\slot1\\savegame." + std::to_string(i);
      entry.ShotPath = "T:\\Archive\\Slot1\\shot" + std::to_string(i) + ".jpg";
      program.catalogue.entries.push_back(entry);
    }
    disk.Write("Archive/Slot1/SHOT2.JPG", "x");
  }
};

TEST_F(DetailsTest, ShowTheOneSelectedSavegameAndItsPictureInTheViewer) {
  SelectOnly(program, 2);
  ShowScreenShot(program);
  EXPECT_EQ(program.selection.indices, std::vector<std::int16_t>{2});
  EXPECT_EQ(windows.fields[Field::kPathSavegame], "t:\\archive\\slot1\\savegame.2");
  EXPECT_EQ(windows.fields[Field::kNote], "one\r\ntwo");
  EXPECT_EQ(windows.picture, "T:\\Archive\\Slot1\\shot2.jpg");
  EXPECT_TRUE(program.details.ViewerOpen);
  EXPECT_EQ(windows.viewer.picture, "T:\\Archive\\Slot1\\shot2.jpg");

  SelectOnly(program, 1);
  EXPECT_EQ(windows.picture, "T:\\Program\\default_shot.jpg");

  program.catalogue.entries[1].NoteText = std::string(1'000'000, 'n');
  RefreshDetails(program);
  EXPECT_LT(windows.fields[Field::kNote].size(), 10'000U);
  EXPECT_NE(windows.fields[Field::kNote].find("first 8000 of 1000000"), std::string::npos);
}

TEST_F(DetailsTest, KeepThePictureOfTheLastOneWhenSeveralOrNoneAreSelected) {
  SelectOnly(program, 2);
  windows.selected = {};
  RefreshDetails(program);
  EXPECT_EQ(windows.fields[Field::kPathSavegame], "");
  EXPECT_EQ(windows.fields[Field::kNote], "one\r\ntwo");
  EXPECT_EQ(windows.picture, "T:\\Archive\\Slot1\\shot2.jpg");

  windows.selected = {0, 2, 3};
  RefreshDetails(program);
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{0, 2, 3}));
  EXPECT_EQ(windows.fields[Field::kPathSavegame], "Selected  3 savegames");
  EXPECT_EQ(windows.fields[Field::kNote], "");
  EXPECT_EQ(program.details.CurrentShotPath, "T:\\Archive\\Slot1\\shot2.jpg");
}

}  // namespace
}  // namespace vellumark
