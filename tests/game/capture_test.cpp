#include "game/capture.h"

#include <gtest/gtest.h>

#include "archive/scan.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "game/capture_link.h"
#include "game/capture_picture.h"
#include "game/capture_slots.h"
#include "game/running_game.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;

// An archive of two savegames, a game folder with slots 0, 2 and 3, and an armed capture.
class CaptureTest : public ::testing::Test {
 protected:
  CaptureTest() {
    world.AddSavegame("Archive/Slot1", 4, "Tower", 40);
    world.AddSavegame("Archive/Slot1", 7, "Temple", 70);
    world.AddSavegame("Game", 0, "North", 7);
    world.AddSavegame("Game", 2, "South", 112);
    world.AddSavegame("Game", 3, "East", 1234);
    program.archive.settings = {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
    program.preferences.SoundEffects = true;
    program.capture.CaptureArmed = true;
    ScanArchive(program);
    Forget();
  }

  // The game's folder becomes the current one when the game is activated.
  void TearDown() override { std::filesystem::current_path("/"); }

  // What was shown and heard so far.
  void Forget() {
    world.boxes.shown.clear();
    world.sounds.played.clear();
    world.windows.events.clear();
  }

  int DialogsOpened() const { return static_cast<int>(world.windows.events.size()); }

  // Takes a picture into a dialog whose lines are read.
  void OpenDialog() {
    world.clipboard.Put("captured");
    OnTimer(program);
    shown_note = PrepareCapture(program);
    Forget();
  }

  LinkAnswer Link(int slot, const std::string& note = "") {
    if (program.capture.SelectedSlot != slot) ChooseSlot(program, slot);
    return LinkCapture(program, {.stored = note});
  }

  // As a play of the archive's two savegames leaves the world: Temple in slot 0, Tower in slot 1.
  void PlayTwo() {
    for (const char* name : {"savegame.0", "savegame.2", "savegame.3"}) {
      std::filesystem::remove(world.disk.path() / "Game" / name);
    }
    program.catalogue.entries.resize(2);
    program.play.ExaminedInGameFolder = true;
    program.play.ExaminedList = {1, 0};
    for (int slot = 0; slot < 2; ++slot) {
      const std::string from = slot == 0 ? "savegame.7" : "savegame.4";
      const std::string to = "savegame." + std::to_string(slot);
      const std::string bytes = world.disk.Read("Archive/Slot1/" + from);
      world.disk.Write("Game/" + to, bytes);
      program.play.examined_paths.push_back("T:\\Archive\\Slot1\\" + from);
      program.play.placed.push_back({to, bytes});
    }
  }

  std::string Placed(const std::string& name) const {
    for (const PlacedFile& file : program.play.placed) {
      if (file.name == name) return file.bytes;
    }
    return "none";
  }

  std::string InGame(const std::string& name) const { return world.disk.Read("Game/" + name); }
  std::string InArchive(const std::string& name) const {
    return world.disk.Read("Archive/Slot1/" + name);
  }

  TestWorld world;
  Program program = world.NewProgram();
  std::string shown_note;
};

TEST_F(CaptureTest, TouchesTheClipboardOnlyWhileArmedWantedAndIdle) {
  world.clipboard.Put("captured");
  program.capture.CaptureArmed = false;
  OnTimer(program);
  program.capture.CaptureArmed = true;
  program.preferences.AutoCapture = false;
  OnTimer(program);
  EXPECT_TRUE(program.capture.CaptureArmed);
  program.preferences.AutoCapture = true;
  {
    const WorkScope working(program);
    OnTimer(program);
  }
  EXPECT_EQ(world.clipboard.reads, 0);
  EXPECT_NE(world.clipboard.content, nullptr);

  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 1);
  EXPECT_FALSE(program.capture.CaptureArmed);
}

TEST_F(CaptureTest, WaitsForAPictureOnAFreeClipboard) {
  OnTimer(program);
  world.clipboard.Put("captured");
  world.clipboard.busy = true;
  OnTimer(program);
  EXPECT_EQ(world.clipboard.reads, 2);
  EXPECT_TRUE(program.capture.CaptureArmed);
  EXPECT_EQ(DialogsOpened(), 0);

  world.clipboard.busy = false;
  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 1);
}

TEST_F(CaptureTest, RefusesAPictureWithoutSlotsAndStaysArmed) {
  const ArchiveSettings whole = program.archive.settings;
  ArchiveSettings no_folder = whole;
  no_folder.GameFolder = "  ";
  ArchiveSettings no_slots = whole;
  no_slots.MaxSavegame = 0;
  ArchiveSettings missing = whole;
  missing.GameFolder = "T:\\None";
  for (const ArchiveSettings& settings : {no_folder, no_slots, missing}) {
    Forget();
    program.archive.settings = settings;
    world.clipboard.Put("captured");
    // The timer ticks on while the message waits.
    world.boxes.while_waiting = [&] { OnTimer(program); };
    OnTimer(program);
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_EQ(world.boxes.shown[0].text, LoadMessage(280));
    EXPECT_EQ(world.boxes.shown[0].icon, BoxIcon::kCritical);
    EXPECT_TRUE(world.sounds.played.front().ends_with("s5.wav"));
    EXPECT_EQ(world.clipboard.content, nullptr);
    EXPECT_TRUE(program.capture.CaptureArmed);
    EXPECT_EQ(DialogsOpened(), 0);
  }
}

TEST_F(CaptureTest, AnOpenDialogKeepsItsPicture) {
  OpenDialog();
  world.clipboard.Put("second");
  OnTimer(program);
  StartGame(program);  // arms the capture again
  world.clipboard.Put("third");
  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 0);
  EXPECT_TRUE(SaveClipboardAsJpeg(program, "T:\\saved.jpg"));
  EXPECT_EQ(world.disk.Read("saved.jpg"), "captured");

  world.clipboard.after_empty = [&] { world.clipboard.Put("right behind"); };
  EndCapture(program);
  EXPECT_FALSE(program.capture.CaptureDialogOpen);
  EXPECT_TRUE(program.capture.CaptureArmed);
  EXPECT_FALSE(SaveClipboardAsJpeg(program, "T:\\saved.jpg"));
  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 1);
  EXPECT_TRUE(SaveClipboardAsJpeg(program, "T:\\saved.jpg"));
  EXPECT_EQ(world.disk.Read("saved.jpg"), "right behind");
}

TEST_F(CaptureTest, PressesEnterOnlyInTheGame) {
  world.desktop.open = {{5, "An editor"}, {6, LoadMessage(330)}};
  world.desktop.active = 5;
  OpenDialog();
  EXPECT_TRUE(world.desktop.entered.empty());
  EndCapture(program);
  world.desktop.active = 6;
  OpenDialog();
  EXPECT_EQ(world.desktop.entered, (std::vector<WindowHandle>{6}));
}

TEST_F(CaptureTest, ListsTheSlotsUpToTheLastSavegame) {
  OpenDialog();
  EXPECT_EQ(program.capture.slot_lines,
            (std::vector<std::string>{"SLOT  0 ->    7  North", "SLOT  1 -> [EMPTY]",
                                      "SLOT  2 ->  112  South", "SLOT  3 -> 1234  East"}));
  EXPECT_EQ(program.capture.SelectedSlot, -1);

  world.AddSavegame("Game", 15, "Far", -12345);
  world.AddSavegame("Game", 16, "Too far", 1);
  PrepareCapture(program);
  ASSERT_EQ(program.capture.slot_lines.size(), 16U);
  EXPECT_EQ(program.capture.slot_lines[15], "SLOT 15 -> -12345  Far");
}

TEST_F(CaptureTest, ChoosesTheOnlySavegameWithItsNote) {
  for (const char* name : {"savegame.0", "savegame.2"}) {
    std::filesystem::remove(world.disk.path() / "Game" / name);
  }
  world.disk.Write("Game/note3.txt", "one\x8D\ntwo, three\r\n");
  program.capture.SelectedLevelName = "of the last time";
  OpenDialog();
  EXPECT_EQ(program.capture.SelectedSlot, 3);
  EXPECT_EQ(program.capture.SelectedLevelName, "East");
  EXPECT_EQ(program.capture.SelectedCounter, 1234);
  EXPECT_EQ(shown_note, "one\x8D\ntwo, three");

  EXPECT_EQ(Link(3, shown_note), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("shot3.jpg"), "captured");
  EXPECT_EQ(InGame("note3.txt"), "one\x8D\ntwo, three\r\n");
}

TEST_F(CaptureTest, RefusesToLinkWithoutASavegame) {
  OpenDialog();
  const auto before = world.disk.AllFiles();
  EXPECT_EQ(LinkCapture(program, {.stored = "note"}), LinkAnswer::kRefused);
  EXPECT_EQ(world.boxes.shown.back().text, LoadMessage(109));
  EXPECT_EQ(Link(1, "note"), LinkAnswer::kRefused);
  EXPECT_EQ(world.boxes.shown.back().text, LoadMessage(kSlotEmpty));
  EXPECT_EQ(program.capture.SelectedLevelName, "");
  EXPECT_EQ(program.capture.SelectedCounter, 0);
  EXPECT_EQ(LinkCapture(program, {.stored = "", .lacking = {"\xD0\x96"}}), LinkAnswer::kRefused);
  ChooseSlot(program, 2);
  EXPECT_EQ(LinkCapture(program, {.stored = "", .lacking = {"\xD0\x96"}}),
            LinkAnswer::kNoteRefused);
  EXPECT_EQ(world.sounds.played.size(), 4U);
  EXPECT_EQ(world.disk.AllFiles(), before);
}

TEST_F(CaptureTest, RefusesToLinkToASlotThatHasChanged) {
  OpenDialog();
  ChooseSlot(program, 2);
  world.AddSavegame("Game", 2, "Played on", 113);
  const auto before = world.disk.AllFiles();
  EXPECT_EQ(Link(2), LinkAnswer::kSlotsChanged);
  EXPECT_EQ(world.boxes.shown.back().text, LoadMessage(kSlotsChanged));
  EXPECT_EQ(program.capture.SelectedSlot, -1);
  EXPECT_EQ(program.capture.slot_lines[2], "SLOT  2 ->  113  Played on");

  ChooseSlot(program, 2);
  world.AddSavegame("Other", 2, "Played on", 113);
  program.archive.settings.GameFolder = "T:\\Other";
  EXPECT_EQ(Link(2), LinkAnswer::kSlotsChanged);
  EXPECT_FALSE(world.disk.Exists("Other/shot2.jpg"));
  EXPECT_FALSE(world.disk.Exists("Game/shot2.jpg"));
}

TEST_F(CaptureTest, LinksToTheGamesSlotAndItsOwnLine) {
  world.disk.Write("Game/note2.txt", "older\r\n");
  world.desktop.open = {{6, LoadMessage(330)}};
  OpenDialog();
  EXPECT_EQ(Link(2, "  two\x8D\nlines  "), LinkAnswer::kLinked);
  EXPECT_EQ(world.boxes.AllTexts(), "");
  EXPECT_EQ(InGame("shot2.jpg"), "captured");
  EXPECT_EQ(InGame("note2.txt"), "two\x8D\nlines\r\n");
  EXPECT_TRUE(program.capture.ShotLinkedNotImported);
  EXPECT_EQ(world.desktop.activated, (std::vector<WindowHandle>{6}));

  // Slot 1 is empty, so the third slot is the second of the game folder's lines.
  EXPECT_EQ(program.catalogue.entries[3].NoteText, "two\x8D\nlines");
  EXPECT_EQ(world.windows.lines[3], "TI  112 South" + std::string(24, ' ') + "two\x8D\nlines");
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{3}));

  // A savegame that the list does not know yet.
  world.AddSavegame("Game", 9, "New", 9);
  OpenDialog();
  EXPECT_EQ(Link(9), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("shot9.jpg"), "captured");
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{3}));
}

TEST_F(CaptureTest, ABlankNoteLeavesTheFileAndEmptiesTheLine) {
  world.disk.Write("Game/note2.txt", "older\r\n");
  ScanArchive(program);
  OpenDialog();
  EXPECT_EQ(Link(2, "   "), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("note2.txt"), "older\r\n");
  EXPECT_EQ(program.catalogue.entries[3].NoteText, "");
}

TEST_F(CaptureTest, LinksToThePlayedSavegameInTheArchiveToo) {
  PlayTwo();
  world.AddSavegame("Game", 3, "Made while playing", 5);
  OpenDialog();
  EXPECT_EQ(Link(1, "found"), LinkAnswer::kLinked);
  for (const auto& [game, archive] :
       {std::pair("shot1.jpg", "shot4.jpg"), std::pair("note1.txt", "note4.txt")}) {
    EXPECT_EQ(InArchive(archive), InGame(game));
    EXPECT_EQ(Placed(game), InGame(game));
  }
  EXPECT_EQ(InGame("note1.txt"), "found\r\n");
  EXPECT_EQ(program.catalogue.entries[0].NoteText, "found");
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{0}));

  // Another picture for the same slot.
  world.clipboard.Put("again");
  EndCapture(program);
  world.clipboard.Put("again");
  OnTimer(program);
  PrepareCapture(program);
  EXPECT_EQ(Link(1), LinkAnswer::kLinked);
  EXPECT_EQ(Placed("shot1.jpg"), "again");
  EXPECT_EQ(InArchive("shot4.jpg"), "again");

  OpenDialog();
  EXPECT_EQ(Link(3, "mine"), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("note3.txt"), "mine\r\n");
  EXPECT_EQ(world.disk.Names("Archive/Slot1").size(), 4U);
  EXPECT_EQ(Placed("shot3.jpg"), "none");
  EXPECT_FALSE(program.capture.ShotLinkedNotImported);
}

TEST_F(CaptureTest, LeavesTheArchiveAloneWhenTheGameHasSavedIntoTheSlot) {
  PlayTwo();
  world.AddSavegame("Game", 1, "Tower", 41);
  OpenDialog();
  EXPECT_EQ(Link(1, "found"), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("note1.txt"), "found\r\n");
  EXPECT_EQ(world.disk.Names("Archive/Slot1"),
            (std::vector<std::string>{"savegame.4", "savegame.7"}));
  EXPECT_EQ(program.catalogue.entries[0].NoteText, "");
  EXPECT_EQ(Placed("note1.txt"), "none");
}

TEST_F(CaptureTest, TellsWhatCouldNotBeWrittenAndKeepsTheNote) {
  PlayTwo();
  world.disk.Write("Game/shot1.jpg", "old");
  OpenDialog();
  world.files.FailAlways("Rename", "1.jpg", FileError::kDiskFull);
  EXPECT_EQ(Link(1, "found"), LinkAnswer::kLinked);
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_EQ(world.boxes.shown[0].text, LoadMessage(110) + "T:\\Game\\shot1.jpg");
  EXPECT_EQ(world.disk.Names("Game").size(), 5U);
  EXPECT_EQ(InGame("shot1.jpg"), "old");
  EXPECT_EQ(InGame("note1.txt"), "found\r\n");
  EXPECT_EQ(Placed("shot1.jpg"), "none");

  world.files.Reset();
  OpenDialog();
  world.disk.MakeReadOnly("Archive/Slot1/shot4.jpg");
  world.disk.MakeReadOnly("Archive/Slot1/note4.txt");
  world.desktop.open = {{6, LoadMessage(330)}};
  EXPECT_EQ(Link(1, "lost?"), LinkAnswer::kNoteNotWritten);
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  const std::string told = world.boxes.shown[0].text;
  EXPECT_TRUE(told.starts_with(LoadMessage(kChangesNotWritten)));
  EXPECT_NE(told.find("shot4.jpg\""), std::string::npos);
  EXPECT_NE(told.find("note4.txt\""), std::string::npos);
  EXPECT_TRUE(told.ends_with(LoadMessage(kNoteStillShown)));
  EXPECT_EQ(program.catalogue.entries[0].NoteText, "found");
  EXPECT_TRUE(world.desktop.activated.empty());
  EXPECT_EQ(InGame("note1.txt"), "lost?\r\n");
  EXPECT_EQ(Placed("note1.txt"), "found\r\n");
}

TEST_F(CaptureTest, SavesThePictureUnderAProposedName) {
  world.disk.MakeFolder("Shots");
  program.preferences.ShotFolder = "T:\\Shots\\last.jpg";
  world.AddSavegame("Game", 5, "North: \"who\"?", -3);
  world.AddSavegame("Game", 6, "", 0);
  OpenDialog();
  const auto proposal = [this](int slot) {
    ChooseSlot(program, slot);
    SaveCaptureElsewhere(program);
    return world.dialogs.requests.back().initial_name;
  };
  EXPECT_EQ(proposal(-1), "T:\\Shots\\screen-shot.jpg");
  EXPECT_EQ(proposal(1), "T:\\Shots\\screen-shot.jpg");
  EXPECT_EQ(proposal(2), "T:\\Shots\\South_112.jpg");
  EXPECT_EQ(proposal(6), "T:\\Shots\\_0.jpg");
  EXPECT_EQ(proposal(5), "T:\\Shots\\North_ _who___-3.jpg");
  EXPECT_EQ(world.dialogs.requests.back().start_folder, "T:\\Shots");
  EXPECT_TRUE(world.dialogs.requests.back().confirm_overwrite);
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Shots\\last.jpg");
  EXPECT_TRUE(world.disk.Names("Shots").empty());
  EXPECT_EQ(world.sounds.played.size(), 5U);

  world.dialogs.answers = {"T:\\here.jpg"};
  SaveCaptureElsewhere(program);
  EXPECT_EQ(world.disk.Read("here.jpg"), "captured");
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\here.jpg");
  EXPECT_EQ(world.boxes.AllTexts(), "");
}

TEST_F(CaptureTest, TellsThatAPictureIsNotSavedOrItsPathNotKept) {
  OpenDialog();
  const std::string folder(100, 'a');
  const std::string deep = "T:\\" + folder + "\\" + folder;
  world.disk.MakeFolder(folder + "/" + folder);
  const std::string longest = deep + "\\" + std::string(255 - deep.size() - 5, 'b') + ".jpg";
  const std::string too_long = longest.substr(0, 251) + "bb.jpg";
  ASSERT_EQ(too_long.size(), 257U);
  world.dialogs.answers = {longest, too_long, "T:\\None\\new.jpg"};
  SaveCaptureElsewhere(program);
  EXPECT_EQ(world.boxes.AllTexts(), "");
  EXPECT_EQ(world.disk.Names(folder + "/" + folder).size(), 1U);
  SaveCaptureElsewhere(program);
  ASSERT_EQ(world.boxes.shown.size(), 1U);
  EXPECT_TRUE(world.boxes.shown[0].text.ends_with(LoadMessage(kShotFolderKept)));
  EXPECT_EQ(world.disk.Names(folder + "/" + folder).size(), 2U);
  EXPECT_EQ(program.preferences.ShotFolder, longest);

  SaveCaptureElsewhere(program);
  EXPECT_EQ(world.boxes.shown.back().text, LoadMessage(115) + "T:\\None\\new.jpg");
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\None\\new.jpg");
}

TEST_F(CaptureTest, APictureThatCannotBeEncodedLeavesTheOldFile) {
  world.disk.Write("old.jpg", "old");
  OpenDialog();
  program.capture.picture = std::make_shared<testing::ScriptedPicture>("");
  EXPECT_FALSE(SaveClipboardAsJpeg(program, "T:\\old.jpg"));
  EXPECT_EQ(world.disk.Read("old.jpg"), "old");
}

}  // namespace
}  // namespace vellumark
