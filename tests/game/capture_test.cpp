#include "game/capture.h"

#include <gtest/gtest.h>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/work_scope.h"
#include "game/capture_link.h"
#include "game/capture_picture.h"
#include "game/capture_slots.h"
#include "game/running_game.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::Files;
using testing::OpenWorld;

// An archive of two savegames, a game folder with slots 0, 2 and 3, and an armed capture.
class CaptureTest : public ::testing::Test, public OpenWorld {
 protected:
  CaptureTest() {
    AddSavegame("Archive/Slot1", 4, "Tower", 40);
    AddSavegame("Archive/Slot1", 7, "Temple", 70);
    AddSavegame("Game", 0, "North", 7);
    AddSavegame("Game", 2, "South", 112);
    AddSavegame("Game", 3, "East", 1234);
    program.capture.CaptureArmed = true;
    Rescan();
  }

  int DialogsOpened() const { return static_cast<int>(windows.events.size()); }

  // Takes a picture into a dialog whose lines are read.
  void OpenDialog(const std::string& picture = "captured") {
    clipboard.Put(picture);
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
    disk.Remove({"Game/savegame.0", "Game/savegame.2", "Game/savegame.3"});
    program.catalogue.entries.resize(2);
    program.play.ExaminedInGameFolder = true;
    program.play.ExaminedList = {1, 0};
    for (int slot = 0; slot < 2; ++slot) {
      const std::string from = slot == 0 ? "savegame.7" : "savegame.4";
      const std::string to = "savegame." + std::to_string(slot);
      const std::string bytes = disk.Read("Archive/Slot1/" + from);
      disk.Write("Game/" + to, bytes);
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

  std::string InGame(const std::string& name) const { return disk.Read("Game/" + name); }
  std::string InArchive(const std::string& name) const {
    return disk.Read("Archive/Slot1/" + name);
  }

  std::string shown_note;
};

TEST_F(CaptureTest, TakesAPictureOffAFreeClipboardWhileArmedWantedAndIdle) {
  clipboard.Put("captured");
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
  EXPECT_EQ(clipboard.reads, 0);
  EXPECT_NE(clipboard.content, nullptr);

  clipboard.busy = true;
  OnTimer(program);
  EXPECT_TRUE(program.capture.CaptureArmed);
  EXPECT_EQ(DialogsOpened(), 0);
  clipboard.busy = false;
  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 1);
  EXPECT_FALSE(program.capture.CaptureArmed);
}

TEST_F(CaptureTest, RefusesAPictureWithoutSlotsAndStaysArmed) {
  for (const auto& [folder, slots] :
       {std::pair("  ", 15), std::pair("T:\\None", 15), std::pair("T:\\Game", 0)}) {
    program.archive.settings.GameFolder = folder;
    program.archive.settings.MaxSavegame = static_cast<std::int16_t>(slots);
    clipboard.Put("captured");
    // The timer ticks on while the message waits.
    boxes.while_waiting = [&] { OnTimer(program); };
    OnTimer(program);
    EXPECT_EQ(TakeRefusal(), LoadMessage(280));
    EXPECT_EQ(clipboard.content, nullptr);
    EXPECT_TRUE(program.capture.CaptureArmed);
    EXPECT_EQ(DialogsOpened(), 0);
  }
}

TEST_F(CaptureTest, AnOpenDialogKeepsItsPicture) {
  OpenDialog();
  clipboard.Put("second");
  OnTimer(program);
  StartGame(program);  // arms the capture again
  clipboard.Put("third");
  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 0);
  EXPECT_TRUE(SaveClipboardAsJpeg(program, "T:\\saved.jpg"));
  EXPECT_EQ(disk.Read("saved.jpg"), "captured");

  clipboard.after_empty = [&] { clipboard.Put("right behind"); };
  EndCapture(program);
  EXPECT_FALSE(program.capture.CaptureDialogOpen);
  EXPECT_TRUE(program.capture.CaptureArmed);
  EXPECT_FALSE(SaveClipboardAsJpeg(program, "T:\\saved.jpg"));
  OnTimer(program);
  EXPECT_EQ(DialogsOpened(), 1);
  EXPECT_TRUE(SaveClipboardAsJpeg(program, "T:\\saved.jpg"));
  EXPECT_EQ(disk.Read("saved.jpg"), "right behind");
}

TEST_F(CaptureTest, PressesEnterOnlyInTheGame) {
  desktop.open = {{5, "An editor"}, {6, LoadMessage(330)}};
  desktop.active = 5;
  OpenDialog();
  EXPECT_TRUE(desktop.entered.empty());
  EndCapture(program);
  desktop.active = 6;
  OpenDialog();
  EXPECT_EQ(desktop.entered, (std::vector<WindowHandle>{6}));
}

TEST_F(CaptureTest, ListsTheSlotsUpToTheLastSavegame) {
  OpenDialog();
  EXPECT_EQ(program.capture.slot_lines,
            (std::vector<std::string>{"SLOT  0 ->    7  North", "SLOT  1 -> [EMPTY]",
                                      "SLOT  2 ->  112  South", "SLOT  3 -> 1234  East"}));
  EXPECT_EQ(program.capture.SelectedSlot, -1);

  AddSavegame("Game", 15, "Far", -12345);
  AddSavegame("Game", 16, "Too far", 1);
  PrepareCapture(program);
  ASSERT_EQ(program.capture.slot_lines.size(), 16U);
  EXPECT_EQ(program.capture.slot_lines[15], "SLOT 15 -> -12345  Far");
}

TEST_F(CaptureTest, ChoosesTheOnlySavegameWithItsNote) {
  disk.Remove({"Game/savegame.0", "Game/savegame.2"});
  disk.Write("Game/note3.txt", "one\x8D\ntwo, three\r\n");
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
  const Files before = disk.AllFiles();
  const auto refusal = [this](LinkAnswer answer) {
    EXPECT_EQ(answer, LinkAnswer::kRefused);
    return TakeRefusal();
  };
  EXPECT_EQ(refusal(LinkCapture(program, {.stored = "note"})), LoadMessage(109));
  EXPECT_EQ(refusal(Link(1, "note")), LoadMessage(kSlotEmpty));
  EXPECT_EQ(program.capture.SelectedLevelName, "");
  EXPECT_EQ(program.capture.SelectedCounter, 0);
  const TypedNote lacking{.stored = "", .lacking = {"\xD0\x96"}};
  EXPECT_EQ(refusal(LinkCapture(program, lacking)), LoadMessage(kSlotEmpty));
  ChooseSlot(program, 2);
  EXPECT_EQ(LinkCapture(program, lacking), LinkAnswer::kNoteRefused);
  EXPECT_EQ(TakeRefusal(), LoadMessage(kNoteCharacters, {"U+0416"}));
  EXPECT_EQ(disk.AllFiles(), before);
}

TEST_F(CaptureTest, RefusesToLinkToASlotThatHasChanged) {
  OpenDialog();
  ChooseSlot(program, 2);
  AddSavegame("Game", 2, "Played on", 113);
  const auto before = disk.AllFiles();
  EXPECT_EQ(Link(2), LinkAnswer::kSlotsChanged);
  EXPECT_EQ(boxes.shown.back().text, LoadMessage(kSlotsChanged));
  EXPECT_EQ(program.capture.SelectedSlot, -1);
  EXPECT_EQ(program.capture.slot_lines[2], "SLOT  2 ->  113  Played on");

  ChooseSlot(program, 2);
  AddSavegame("Other", 2, "Played on", 113);
  program.archive.settings.GameFolder = "T:\\Other";
  EXPECT_EQ(Link(2), LinkAnswer::kSlotsChanged);
  EXPECT_FALSE(disk.Exists("Other/shot2.jpg"));

  program.archive.settings.GameFolder = "T:\\Game";
  ReadCaptureSlots(program);
  ChooseSlot(program, 2);
  disk.Write("Game/savegame.2", InGame("savegame.2") + "of the same level and counter");
  EXPECT_EQ(Link(2), LinkAnswer::kSlotsChanged);
  EXPECT_FALSE(disk.Exists("Game/shot2.jpg"));
}

TEST_F(CaptureTest, LinksToTheGamesSlotAndItsOwnLine) {
  disk.Write("Game/note2.txt", "older\r\n");
  desktop.open = {{6, LoadMessage(330)}};
  OpenDialog();
  EXPECT_EQ(Link(2, "  two\x8D\nlines  "), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("shot2.jpg"), "captured");
  EXPECT_EQ(InGame("note2.txt"), "two\x8D\nlines\r\n");
  EXPECT_TRUE(program.capture.ShotLinkedNotImported);
  EXPECT_EQ(desktop.activated, (std::vector<WindowHandle>{6}));

  // Slot 1 is empty, so the third slot is the second of the game folder's lines.
  EXPECT_EQ(program.catalogue.entries[3].NoteText, "two\x8D\nlines");
  EXPECT_EQ(windows.lines[3], "TI  112 South" + std::string(24, ' ') + "two\x8D\nlines");
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{3}));

  // A savegame that the list does not know yet.
  AddSavegame("Game", 9, "New", 9);
  disk.Write("Game/note9.txt", "kept\r\n");
  OpenDialog();
  EXPECT_EQ(Link(9, "   "), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("shot9.jpg"), "captured");
  EXPECT_EQ(InGame("note9.txt"), "kept\r\n") << "a blank note writes none";
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{3}));
}

TEST_F(CaptureTest, LinksToThePlayedSavegameInTheArchiveToo) {
  PlayTwo();
  AddSavegame("Game", 3, "Made while playing", 5);
  OpenDialog();
  EXPECT_EQ(Link(1, "found"), LinkAnswer::kLinked);
  for (const auto& content : {InGame("shot1.jpg"), InArchive("shot4.jpg"), Placed("shot1.jpg")}) {
    EXPECT_EQ(content, "captured");
  }
  for (const auto& content : {InGame("note1.txt"), InArchive("note4.txt"), Placed("note1.txt")}) {
    EXPECT_EQ(content, "found\r\n");
  }
  EXPECT_EQ(program.catalogue.entries[0].NoteText, "found");
  EXPECT_EQ(program.selection.indices, (std::vector<std::int16_t>{0}));

  EndCapture(program);
  OpenDialog("another picture for the same slot");
  EXPECT_EQ(Link(1), LinkAnswer::kLinked);
  EXPECT_EQ(Placed("shot1.jpg"), "another picture for the same slot");

  // The archive's first savegame, before which another one comes now.
  EndCapture(program);
  AddSavegame("Archive/Slot1", 1, "Before it", 1);
  Rescan();
  OpenDialog("after a scan");
  EXPECT_EQ(Link(1, "still found"), LinkAnswer::kLinked);
  EXPECT_EQ(InArchive("shot4.jpg"), "after a scan");
  EXPECT_EQ(program.catalogue.entries[1].NoteText, "still found");
  disk.Remove({"Archive/Slot1/savegame.1"});

  EndCapture(program);
  OpenDialog();
  EXPECT_EQ(Link(3, "mine"), LinkAnswer::kLinked);
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_EQ(InGame("note3.txt"), "mine\r\n");
  EXPECT_EQ(disk.Names("Archive/Slot1").size(), 4U);
  EXPECT_EQ(Placed("shot3.jpg"), "none");
  EXPECT_FALSE(program.capture.ShotLinkedNotImported);
}

TEST_F(CaptureTest, LeavesTheArchiveAloneWhenTheGameHasSavedIntoTheSlot) {
  PlayTwo();
  AddSavegame("Game", 1, "Tower", 41);
  OpenDialog();
  EXPECT_EQ(Link(1, "found"), LinkAnswer::kLinked);
  EXPECT_EQ(InGame("note1.txt"), "found\r\n");
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "savegame.4|savegame.7|");
  EXPECT_EQ(program.catalogue.entries[0].NoteText, "");
  EXPECT_EQ(Placed("note1.txt"), "none");
  EXPECT_EQ(boxes.shown.back().text, LoadMessage(kLinkedInGameOnly, {1}));
}

TEST_F(CaptureTest, TellsWhatCouldNotBeWrittenAndKeepsTheNote) {
  PlayTwo();
  disk.Write("Game/shot1.jpg", "old");
  OpenDialog();
  files.FailAlways("Rename", "1.jpg", FileError::kDiskFull);
  EXPECT_EQ(Link(1, "found"), LinkAnswer::kLinked);
  EXPECT_EQ(boxes.AllTexts(), LoadMessage(110) + "T:\\Game\\shot1.jpg\n");
  EXPECT_EQ(disk.Names("Game").size(), 5U);
  EXPECT_EQ(InGame("shot1.jpg"), "old");
  EXPECT_EQ(InGame("note1.txt"), "found\r\n");
  EXPECT_EQ(Placed("shot1.jpg"), "none");

  files.Reset();
  OpenDialog();
  disk.MakeReadOnly("Archive/Slot1/shot4.jpg");
  disk.MakeReadOnly("Archive/Slot1/note4.txt");
  desktop.open = {{6, LoadMessage(330)}};
  EXPECT_EQ(Link(1, "lost?"), LinkAnswer::kNoteNotWritten);
  ASSERT_EQ(boxes.shown.size(), 1U);
  const std::string& told = boxes.shown[0].text;
  EXPECT_TRUE(told.starts_with(LoadMessage(kChangesNotWritten)));
  EXPECT_TRUE(Contains(told, "shot4.jpg\""));
  EXPECT_TRUE(Contains(told, "note4.txt\""));
  EXPECT_TRUE(told.ends_with(LoadMessage(kNoteStillShown)));
  EXPECT_EQ(program.catalogue.entries[0].NoteText, "found");
  EXPECT_TRUE(desktop.activated.empty());
  EXPECT_EQ(InGame("note1.txt"), "lost?\r\n");
  EXPECT_EQ(Placed("note1.txt"), "found\r\n");
}

TEST_F(CaptureTest, SavesThePictureUnderAProposedName) {
  disk.MakeFolder("Shots");
  program.preferences.ShotFolder = "T:\\Shots\\last.jpg";
  AddSavegame("Game", 5, "North: \"who\"?", -3);
  AddSavegame("Game", 6, "", 0);
  OpenDialog();
  const auto proposal = [this](int slot) {
    ChooseSlot(program, slot);
    SaveCaptureElsewhere(program);
    return dialogs.requests.back().initial_name;
  };
  EXPECT_EQ(proposal(-1), "T:\\Shots\\screen-shot.jpg");
  EXPECT_EQ(proposal(1), "T:\\Shots\\screen-shot.jpg");
  EXPECT_EQ(proposal(2), "T:\\Shots\\South_112.jpg");
  EXPECT_EQ(proposal(6), "T:\\Shots\\_0.jpg");
  EXPECT_EQ(proposal(5), "T:\\Shots\\North_ _who___-3.jpg");
  EXPECT_TRUE(dialogs.requests.back().confirm_overwrite);
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\Shots\\last.jpg");

  dialogs.answers = {"T:\\here.jpg"};
  SaveCaptureElsewhere(program);
  EXPECT_EQ(disk.Read("here.jpg"), "captured");
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\here.jpg");
  program.capture.picture = std::make_shared<testing::ScriptedPicture>("");
  EXPECT_FALSE(SaveClipboardAsJpeg(program, "T:\\here.jpg"));
  EXPECT_EQ(disk.Read("here.jpg"), "captured") << "a picture that cannot be encoded";
}

TEST_F(CaptureTest, TellsThatAPictureIsNotSavedOrItsPathNotKept) {
  OpenDialog();
  const std::string folder(100, 'a');
  const std::string deep = "T:\\" + folder + "\\" + folder;
  disk.MakeFolder(folder + "/" + folder);
  const std::string longest = deep + "\\" + std::string(255 - deep.size() - 5, 'b') + ".jpg";
  const std::string too_long = longest.substr(0, 251) + "bb.jpg";
  ASSERT_EQ(too_long.size(), 257U);
  dialogs.answers = {longest, too_long, "T:\\None\\new.jpg"};
  SaveCaptureElsewhere(program);
  EXPECT_EQ(boxes.AllTexts(), "");
  EXPECT_EQ(disk.Names(folder + "/" + folder).size(), 1U);
  SaveCaptureElsewhere(program);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(boxes.shown[0].text.ends_with(LoadMessage(kShotFolderKept)));
  EXPECT_EQ(disk.Names(folder + "/" + folder).size(), 2U);
  EXPECT_EQ(program.preferences.ShotFolder, longest);

  SaveCaptureElsewhere(program);
  EXPECT_EQ(boxes.shown.back().text, LoadMessage(115) + "T:\\None\\new.jpg");
  EXPECT_EQ(program.preferences.ShotFolder, "T:\\None\\new.jpg");
}

}  // namespace
}  // namespace vellumark
