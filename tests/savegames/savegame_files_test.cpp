#include <gtest/gtest.h>

#include "savegames/info_file.h"
#include "savegames/notes.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_folders.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::SavegameBytes;
using testing::TestWorld;

std::string LevelNameIn(const std::string& start) {
  return DecodeSavegameHeader(start + std::string(100, 'x')).level_name;
}

TEST(SavegameHeaderTest, TheLevelNameEndsAtNulCommaOrCarriageReturnBeforeTheCounter) {
  EXPECT_EQ(LevelNameIn(std::string("First Level\0rest", 16)), "First Level");
  EXPECT_EQ(LevelNameIn("Alpha, Beta"), "Alpha");
  EXPECT_EQ(LevelNameIn("  Tower\r\n"), "Tower");
  EXPECT_EQ(LevelNameIn(std::string("\0", 1)), "");
  EXPECT_EQ(LevelNameIn("").size(), 75U);
  EXPECT_EQ(DecodeSavegameHeader(std::string(80, ' ')).level_name, "");
}

TEST(SavegameHeaderTest, TheCounterIsSignedAndLittleEndian) {
  for (const int value : {0, 12, 300, -1, 32767, -32768}) {
    const auto counter = static_cast<std::int16_t>(value);
    EXPECT_EQ(DecodeSavegameHeader(SavegameBytes("Tower", counter)).counter, counter);
  }
}

TEST(SavegameHeaderTest, AShortFileGivesWhatItHoldsAndCounterZero) {
  const std::string whole = SavegameBytes("Tower", 257);
  EXPECT_FALSE(DecodeSavegameHeader(whole.substr(0, 76)).whole);
  EXPECT_EQ(DecodeSavegameHeader(whole.substr(0, 76)).counter, 0);
  EXPECT_EQ(DecodeSavegameHeader("Tow").level_name, "Tow");
  EXPECT_EQ(DecodeSavegameHeader("").level_name, "");
}

TEST(WriteInternalCounterTest, ChangesNothingOfAShortFile) {
  TestWorld world;
  world.disk.Write("Game/savegame.2", std::string(76, 'x'));
  EXPECT_NE(WriteInternalCounter(world.files, "T:\\Game\\savegame.2", 300), FileError::kNone);
  EXPECT_EQ(world.disk.Read("Game/savegame.2"), std::string(76, 'x'));
}

TEST(NotesTest, AreStoredWithTheirOwnLineBreakAndReadBackWhole) {
  TestWorld world;
  const std::string path = "T:\\Game\\note3.txt";
  EXPECT_EQ(WriteNoteFile(world.files, path, "  first, one\r\nsecond"), FileError::kNone);
  EXPECT_EQ(world.disk.Read("Game/note3.txt"), "  first, one\x8D\nsecond\r\n");
  EXPECT_EQ(ReadNoteFile(world.files, path), "  first, one\x8D\nsecond");

  EXPECT_EQ(WriteNoteFile(world.files, path, ""), FileError::kNone);
  EXPECT_EQ(world.disk.Read("Game/note3.txt"), "\r\n");
  EXPECT_EQ(ReadNoteFile(world.files, path), "");
  EXPECT_EQ(DecodeNote("no line end"), "no line end");
  EXPECT_EQ(DecodeNote(""), "");
}

TEST(NotesTest, KeepWhatAnotherEditorWroteBehindTheFirstLine) {
  TestWorld world;
  world.disk.Write("Game/note3.txt", "first\r\nsecond\r\n");
  EXPECT_EQ(WriteNoteFile(world.files, "T:\\Game\\note3.txt", "new"), FileError::kNone);
  EXPECT_EQ(world.disk.Read("Game/note3.txt.bak"), "first\r\nsecond\r\n");
  EXPECT_EQ(WriteNoteFile(world.files, "T:\\Game\\note3.txt", "newer"), FileError::kNone);
  EXPECT_FALSE(world.disk.Exists("Game/note3.txt.bak2")) << "a note of one record needs none";
}

TEST(NotesTest, ANoteThatCannotBeReadIsNotReplaced) {
  TestWorld world;
  world.disk.Write("Game/note3.txt", "unread\r\n");
  world.files.FailAlways("Read", "\\note3.txt", FileError::kAccessDenied);
  EXPECT_EQ(WriteNoteFile(world.files, "T:\\Game\\note3.txt", "new"), FileError::kAccessDenied);
  EXPECT_EQ(world.disk.Read("Game/note3.txt"), "unread\r\n");
}

TEST(SlotsOfTest, FindsWhatTestingEachNumberWouldFind) {
  TestWorld world;
  for (const char* name : {"SAVEGAME.3", "savegame.10", "savegame.16", "savegame.03", "savegame.",
                           "savegame.bak", "savegame.1x", "Note3.TXT", "note10.txt.bak",
                           "shot5.jpg", "SHOT10.JPG", "savegame.99999999999"}) {
    world.disk.Write(std::string("Game/") + name, "x");
  }
  world.disk.MakeFolder("Game/savegame.4");

  const Listing listing = world.files.List("T:\\Game\\*");
  const SlotListing found = SlotsOf(listing, 15);
  ASSERT_EQ(found.slots.size(), 2U);
  EXPECT_EQ(found.slots[0].number, 3);
  EXPECT_EQ(found.slots[0].note->name, "Note3.TXT");
  EXPECT_EQ(found.slots[0].shot, nullptr);
  EXPECT_EQ(found.slots[1].number, 10);
  EXPECT_EQ(found.slots[1].note, nullptr);
  EXPECT_EQ(found.slots[1].shot->name, "SHOT10.JPG");
  EXPECT_TRUE(SlotsOf(listing, -1).slots.empty());
}

TEST(ClearSlotsTest, DeletesByPatternAndNamesWhatStays) {
  TestWorld world;
  for (const char* name : {"savegame.3", "SAVEGAME.bak", "notes.txt", "shotgun.jpg", "info.txt"}) {
    world.disk.Write(std::string("Game/") + name, "x");
  }
  world.disk.Write("Game/note1.txt", "locked");
  world.disk.MakeReadOnly("Game/note1.txt");

  const std::vector<Failure> failures = ClearSlots(world.files, "T:\\Game");
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_EQ(failures[0].path, "T:\\Game\\note1.txt");
  EXPECT_EQ(world.disk.Listed("Game"), "info.txt|note1.txt|tomb4.exe|");
}

TEST(InfoSectionTest, ListsTheSlotsInTheirColumns) {
  TestWorld world;
  Program program = world.NewProgram();
  program.archive.settings.MaxSavegame = 15;
  world.AddSavegame("Archive/Slot1", 3, "Tower ", 12);
  world.AddSavegame("Archive/Slot1", 12, "Old Tower", -3);
  world.AddSavegame("Archive/Slot1", 16, "Beyond", 1);

  const std::string section =
      "T:\\ARCHIVE\\SLOT1\r\n-----------------\r\n\r\r\n"
      "savegame.3  12  Tower\r\nsavegame.12 -3  Old Tower\r\n\r\r\n";
  const std::string info = "T:\\Archive\\info.txt";
  EXPECT_EQ(WriteInfoSection(program, "T:\\Archive\\Slot1", info, InfoMode::kAppend).listed, 2);
  EXPECT_EQ(world.disk.Read("Archive/info.txt"), section);
  WriteInfoSection(program, "T:\\Archive\\Slot1", info, InfoMode::kAppend);
  EXPECT_EQ(world.disk.Read("Archive/info.txt"), section + section);
  WriteInfoSection(program, "T:\\Archive\\Slot1", info, InfoMode::kCreate);
  EXPECT_EQ(world.disk.Read("Archive/info.txt"), section);

  world.files.FailAlways("OpenFolder", "\\Slot1", FileError::kAccessDenied);
  EXPECT_EQ(WriteInfoSection(program, "T:\\Archive\\Slot1", info, InfoMode::kCreate).error,
            FileError::kAccessDenied);
  EXPECT_EQ(world.disk.Read("Archive/info.txt"), section);

  const InfoResult none = WriteInfoSection(program, "T:\\None", info, InfoMode::kCreate);
  EXPECT_EQ(none.listed, 0);
  EXPECT_EQ(world.disk.Read("Archive/info.txt"), "T:\\NONE\r\n--------\r\n\r\r\n\r\r\n");
}

}  // namespace
}  // namespace vellumark
