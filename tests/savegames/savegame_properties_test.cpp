#include "savegames/savegame_properties.h"

#include <gtest/gtest.h>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "savegames/details.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::OpenWorld;
using testing::SavegameBytes;

const PictureFormats kPictures = {
    .patterns = "*.jpg;*.png",
    .as_jpeg = [](const std::string& bytes) -> std::optional<std::string> {
      if (bytes.starts_with("picture")) return bytes;
      return bytes.starts_with("png") ? std::optional("picture of " + bytes) : std::nullopt;
    }};

// Two savegames in the list; the second is the one that is worked on.
class SavegamePropertiesTest : public ::testing::Test, public OpenWorld {
 protected:
  static constexpr int kIndex = 1;

  SavegamePropertiesTest() {
    AddSavegame("Archive", 3, "Tower", 12);
    disk.Write("Archive/note3.txt", "old\x8D\nnote\r\n");
    windows.lines = {"other", ""};
    program.catalogue.entries.resize(2);
    entry().LevelName = "Tower";
    entry().InternalCounter = 12;
    entry().FolderNumber = 1;
    entry().NoteText = "old\x8D\nnote";
    entry().SavegamePath = "t:\\archive\\savegame.3";
    entry().NotePath = "T:\\Archive\\note3.txt";
    entry().ShotPath = "T:\\Archive\\shot3.jpg";
    SelectOnly(program, kIndex);
  }

  SavegameEntry& entry() { return program.catalogue.entries[kIndex]; }
  const std::string& LastBox() const { return boxes.shown.back().text; }

  ChangesAnswer Apply(const std::string& counter, std::optional<TypedNote> note = {},
                      bool remove_shot = false) {
    return ApplySavegameChanges(program, {.index = kIndex,
                                          .shown_note = shown.value_or(entry().NoteText),
                                          .note = std::move(note),
                                          .counter = counter,
                                          .remove_shot = remove_shot});
  }

  std::optional<std::string> shown;  // the note that the dialog was opened with

  bool Choose(const std::string& file) {
    dialogs.answers = {file};
    return ChooseScreenShot(program, kIndex, kPictures);
  }
};

TEST_F(SavegamePropertiesTest, NoFailingCallCostsANoteThatTheDialogHasNotShown) {
  for (const bool typed : {false, true}) {
    for (int call = 1; call <= 20; ++call) {
      SCOPED_TRACE(::testing::Message() << "call " << call << (typed ? ", a note was typed" : ""));
      const std::string unseen = "unseen " + std::to_string(call);
      disk.Write("Archive/note3.txt", unseen + "\r\n");
      shown = typed ? "old\x8D\nnote" : "";
      files.FailCall(call, FileError::kInputOutput);
      Apply("12", typed ? std::optional(TypedNote{.stored = "mine"}) : std::nullopt);
      std::string all;
      for (const auto& [name, bytes] : disk.AllFiles("Archive")) all += bytes;
      EXPECT_TRUE(Contains(all, unseen + "\r\n"));
    }
  }
}

TEST_F(SavegamePropertiesTest, OpenForExactlyOneSelectedSavegame) {
  ShowSavegameProperties(program);
  for (const std::vector<std::int16_t>& selected : {std::vector<std::int16_t>{}, {0, 1}}) {
    program.selection.indices = selected;
    ShowSavegameProperties(program);
    EXPECT_EQ(TakeRefusal(), LoadMessage(271));
  }
  ASSERT_EQ(windows.events.size(), 1U);
  EXPECT_EQ(windows.events[0].second, WindowId::kDialogNote);
}

TEST_F(SavegamePropertiesTest, ShowCounterAndLevelWithThePlaceOfTheSign) {
  EXPECT_EQ(PrepareSavegameProperties(program).counter, " 12");
  EXPECT_EQ(PrepareSavegameProperties(program).level, " 12  Tower");
  EXPECT_EQ(PrepareSavegameProperties(program).shot, "");
  entry().InternalCounter = -3;
  disk.Write("Archive/SHOT3.JPG", "picture");
  EXPECT_EQ(PrepareSavegameProperties(program).level, "-3  Tower");
  EXPECT_EQ(PrepareSavegameProperties(program).shot, "T:\\Archive\\shot3.jpg");
  EXPECT_TRUE(sounds.Take().ends_with("s7|"));
}

TEST_F(SavegamePropertiesTest, OkWithoutAChangeWritesTheNoteAgainAndNotTheSavegame) {
  const auto before = disk.AllFiles();
  files.FailAlways("WriteAt", "", FileError::kInputOutput);
  EXPECT_EQ(Apply(" 12"), ChangesAnswer::kDone);
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_TRUE(program.archive.ArchiveChanged);

  entry().NoteText.clear();
  disk.Remove({"Archive/note3.txt"});
  EXPECT_EQ(Apply("abc"), ChangesAnswer::kDone);
  EXPECT_EQ(disk.Read("Archive/note3.txt"), "\r\n");
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SavegamePropertiesTest, ShowTheNoteThatIsOnTheDiskByNow) {
  disk.Write("Archive/note3.txt", "newer\r\n");
  EXPECT_EQ(PrepareSavegameProperties(program).note, "newer");
  EXPECT_TRUE(windows.lines[kIndex].ends_with("newer"));
  EXPECT_EQ(windows.fields[MainWindow::Field::kNote], "newer");
}

TEST_F(SavegamePropertiesTest, WhatTheFileHoldsBesideTheShownNoteIsKeptAndTold) {
  shown = entry().NoteText;
  disk.Write("Archive/note3.txt", "newer\r\n");
  EXPECT_EQ(Apply("12"), ChangesAnswer::kDone);
  EXPECT_EQ(disk.Read("Archive/note3.txt"), "newer\r\n");
  EXPECT_TRUE(Contains(LastBox(), "newer"));
  EXPECT_TRUE(windows.lines[kIndex].ends_with("newer"));

  EXPECT_EQ(Apply("12", TypedNote{.stored = "typed"}), ChangesAnswer::kDone);
  EXPECT_EQ(disk.Read("Archive/note3.txt"), "typed\r\n");
  EXPECT_EQ(disk.Read("Archive/note3.txt.bak"), "newer\r\n") << "the user has not seen it";
  EXPECT_EQ(LastBox(), LoadMessage(kUnseenNoteKept, {"\"T:\\Archive\\note3.txt.bak\""}));

  boxes.shown.clear();
  const std::string of_an_editor = "first\r\nsecond\r\nthird\r\n";
  disk.Write("Archive/note3.txt", of_an_editor);
  shown = "first";
  EXPECT_EQ(Apply("14"), ChangesAnswer::kDone);
  EXPECT_EQ(disk.Read("Archive/note3.txt"), of_an_editor);
  EXPECT_EQ(disk.Listed("Archive"), "note3.txt|note3.txt.bak|savegame.3|");
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_EQ(Apply("14", TypedNote{.stored = "typed"}), ChangesAnswer::kDone);
  EXPECT_EQ(disk.Read("Archive/note3.txt.bak2"), of_an_editor);
  EXPECT_EQ(LastBox(), LoadMessage(kRestOfNoteKept, {"\"T:\\Archive\\note3.txt.bak2\""}));
}

TEST_F(SavegamePropertiesTest, OkKeepsFilesListAndDetailsInStep) {
  disk.Write("Archive/SHOT3.JPG", "picture");
  windows.selected = {0};
  EXPECT_EQ(Apply("300", TypedNote{.stored = "new\x8D\ntext"}, true), ChangesAnswer::kDone);
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_EQ(disk.Read("Archive/savegame.3"),
            SavegameBytes("Tower", 12, 3).replace(75, 2, "\x2C\x01"));
  EXPECT_EQ(disk.Read("Archive/note3.txt"), "new\x8D\ntext\r\n");
  EXPECT_FALSE(disk.Exists("Archive/SHOT3.JPG"));
  EXPECT_EQ(windows.lines[0], "other");
  EXPECT_EQ(windows.lines[kIndex], "    300 Tower" + std::string(24, ' ') + "new\x8D\ntext");
  EXPECT_EQ(windows.selected, std::vector<int>{kIndex});
  EXPECT_EQ(windows.fields[MainWindow::Field::kNote], "new\r\ntext");

  EXPECT_EQ(Apply("-1", {}, true), ChangesAnswer::kDone);
  EXPECT_EQ(disk.Read("Archive/savegame.3").substr(75, 2), "\xFF\xFF");
  EXPECT_EQ(LastBox(), LoadMessage(162));
  EXPECT_EQ(boxes.shown.back().icon, BoxIcon::kNone);
}

TEST_F(SavegamePropertiesTest, ARefusedOkWritesNothing) {
  const auto before = disk.AllFiles();
  EXPECT_EQ(Apply("32768", TypedNote{.stored = "new"}, true), ChangesAnswer::kRefused);
  EXPECT_EQ(TakeRefusal(), LoadMessage(kCounterOutOfRange));
  const TypedNote note = NoteFromTextBox(text, "\u0416 \U0001F600 \u00E9");
  EXPECT_EQ(Apply("5", note, true), ChangesAnswer::kRefused);
  EXPECT_EQ(TakeRefusal(), LoadMessage(kNoteCharacters, {"U+0416, U+1F600"}));
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_FALSE(program.archive.ArchiveChanged);
  EXPECT_EQ(entry().NoteText, "old\x8D\nnote");
}

TEST_F(SavegamePropertiesTest, FilesThatCannotBeChangedAreToldOnceAndTheRestIsDone) {
  disk.Write("Archive/shot3.jpg", "picture");
  disk.MakeReadOnly("Archive/shot3.jpg");
  disk.MakeReadOnly("Archive/savegame.3");
  files.FailAlways("Delete", "shot3.jpg", FileError::kInUse);
  EXPECT_EQ(Apply("13", TypedNote{.stored = "new"}, true), ChangesAnswer::kDone);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(Contains(LastBox(), "savegame.3\": it is read-only"));
  EXPECT_TRUE(Contains(LastBox(), "shot3.jpg"));
  EXPECT_EQ(windows.lines[kIndex], " I   12 Tower" + std::string(24, ' ') + "new");
  EXPECT_EQ(disk.Read("Archive/note3.txt"), "new\r\n");

  files.Reset();
  disk.Remove({"Archive/savegame.3"});
  disk.Write("Archive/savegame.3", "short");
  EXPECT_EQ(Apply("13", {}, true), ChangesAnswer::kDone);
  EXPECT_TRUE(Contains(LastBox(), "savegame.3\": it is too short"));
  EXPECT_FALSE(disk.Exists("Archive/shot3.jpg")) << "read-only, as Browse may replace it";
}

TEST_F(SavegamePropertiesTest, WhenATypedNoteCannotBeWrittenNothingElseIsDone) {
  disk.MakeReadOnly("Archive/note3.txt");
  disk.Write("Archive/shot3.jpg", "picture");
  const auto before = disk.AllFiles();
  EXPECT_EQ(Apply("13", TypedNote{.stored = "new"}, true), ChangesAnswer::kNoteNotWritten);
  EXPECT_TRUE(LastBox().ends_with(LoadMessage(kNoteStillShown)));
  EXPECT_EQ(entry().NoteText, "old\x8D\nnote");
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_EQ(Apply("13"), ChangesAnswer::kDone) << "nothing of a note as it was can be lost";
  EXPECT_EQ(entry().InternalCounter, 13);

  disk.Remove({"Archive/note3.txt"});
  disk.MakeFolder("Archive/note3.txt");
  EXPECT_EQ(Apply("13", TypedNote{.stored = "new"}), ChangesAnswer::kNoteNotWritten);
  EXPECT_TRUE(Contains(LastBox(), "note3.txt\": it is a folder"));
}

TEST_F(SavegamePropertiesTest, AChosenPictureIsCopiedAtOnce) {
  disk.Write("Shots/a.jpg", "picture a");
  disk.Write("Archive/SHOT3.JPG", "picture before");
  program.preferences.ShotFolder = " T:\\Shots ";
  EXPECT_TRUE(Choose("T:\\Shots\\a.jpg"));
  EXPECT_EQ(disk.Read("Archive/SHOT3.JPG"), "picture a");
  EXPECT_EQ(dialogs.requests.back().start_folder, "T:\\Shots");
  EXPECT_EQ(windows.lines[kIndex], "");

  program.preferences.ShotFolder = "T:\\Shots\\a.jpg";
  EXPECT_TRUE(Choose("T:\\Archive\\shot3.jpg")) << "the screen-shot itself";
  EXPECT_EQ(dialogs.requests.back().start_folder, "T:\\Shots");
  EXPECT_EQ(disk.Read("Archive/SHOT3.JPG"), "picture a");
  EXPECT_FALSE(ChooseScreenShot(program, kIndex, kPictures)) << "the user cancels";
  EXPECT_EQ(dialogs.requests.back().filter, LoadMessage(164) + "|Pictures|*.jpg;*.png");

  disk.Write("Shots/b.png", "png");
  disk.MakeReadOnly("Archive/SHOT3.JPG");
  EXPECT_TRUE(Choose("T:\\Shots\\b.png"));
  EXPECT_EQ(disk.Read("Archive/SHOT3.JPG"), "picture of png");
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SavegamePropertiesTest, TheScreenShotOutlivesAWrongChoiceAndAFailedCopy) {
  disk.Write("Shots/a.jpg", "text");
  disk.Write("Archive/shot3.jpg", "picture");
  const auto before = disk.AllFiles();
  boxes.answers = {BoxAnswer::kNo};
  EXPECT_FALSE(Choose("T:\\Shots\\a.jpg"));
  EXPECT_EQ(LastBox(), LoadMessage(kNoPicture, {"\"T:\\Shots\\a.jpg\""}));

  EXPECT_FALSE(Choose("T:\\Shots\\gone.jpg"));
  EXPECT_EQ(LastBox(), LoadMessage(165, {"T:\\Shots\\gone.jpg"}) + "T:\\Archive\\shot3.jpg");
  EXPECT_EQ(boxes.shown.back().icon, BoxIcon::kCritical);
  files.FailAlways("Copy", "a.jpg", FileError::kDiskFull);
  EXPECT_FALSE(Choose("T:\\Shots\\a.jpg"));
  EXPECT_EQ(disk.AllFiles(), before);

  files.Reset();
  EXPECT_TRUE(Choose("T:\\Shots\\a.jpg"));
  EXPECT_EQ(disk.Read("Archive/shot3.jpg"), "text");
}

TEST(NoteFromTextBoxTest, KeepsWhatANoteCanHoldAndNamesWhatItCannot) {
  const CodePageText western(1252, "en", false);
  EXPECT_EQ(NoteFromTextBox(western, "a\n\nb\u00A0\u00E9\n").stored,
            "a\x8D\n\x8D\n"
            "b\xA0\xE9\x8D\n");
  EXPECT_EQ(NoteFromTextBox(western, "a\u008D\nb").stored, "a\x8D\nb");
  EXPECT_TRUE(NoteFromTextBox(western, "a\u008D\nb").lacking.empty());

  const CodePageText cyrillic(1251, "ru", false);
  EXPECT_EQ(NoteFromTextBox(cyrillic, "\u041A\u040C\n\u4E00").lacking,
            (std::vector<std::string>{"\u4E00", "\u040C"}));
  EXPECT_EQ(NoteFromTextBox(cyrillic, "\u041A\u008D\n").stored, "\xCA\x8D\n");
  EXPECT_TRUE(NoteFromTextBox(cyrillic, "\u041A\u008D\n").lacking.empty());
}

}  // namespace
}  // namespace vellumark
