#include "savegames/search.h"

#include <gtest/gtest.h>

#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::OpenWorld;
using Field = MainWindow::Field;
using Indices = std::vector<std::int16_t>;

class SearchTest : public ::testing::Test, public OpenWorld {
 protected:
  void Add(const std::string& level, const std::string& note = "") {
    const std::string number = std::to_string(program.catalogue.entries.size());
    SavegameEntry entry;
    entry.LevelName = level;
    entry.NoteText = note;
    entry.NotePath = "T:\\Archive\\Slot1\\note" + number + ".txt";
    entry.ShotPath = "T:\\Archive\\Slot1\\shot" + number + ".jpg";
    program.catalogue.entries.push_back(entry);
  }

  // What a search for a text (UTF-8) finds; it must agree with what the program says.
  Indices Found(const std::string& utf8, bool with_note = false, bool with_shot = false) {
    boxes.shown.clear();
    const bool found = RunSearch(program, {program.text.FromUtf8(utf8), with_note, with_shot});
    EXPECT_EQ(found, !program.search.FoundList.empty());
    EXPECT_EQ(boxes.AllTexts(), found ? "" : "No savegame found\n");
    return program.search.FoundList;
  }

  std::string Position() { return windows.fields[Field::kTrovati]; }
};

TEST_F(SearchTest, AnEmptyCatalogueIsNotSearched) {
  OpenSearch(program);
  EXPECT_EQ(TakeRefusal(), "No savegame in archive\rYou must perform a scanning");
  EXPECT_TRUE(windows.events.empty());

  Add("Tower");
  OpenSearch(program);
  EXPECT_EQ(windows.events.back(),
            (std::pair<std::string, WindowId>("modal", WindowId::kDialogCerca)));
}

TEST_F(SearchTest, AnEmptyTextFindsEverySavegame) {
  Add("Tower");
  Add("");
  Add("Iris", "note");
  program.preferences.SearchInLevelName = program.preferences.SearchInNotes = false;
  EXPECT_EQ(Found(""), (Indices{0, 1, 2}));
  EXPECT_EQ(windows.selected, std::vector<int>{0});
  EXPECT_EQ(Position(), " 1/3");
  EXPECT_EQ(windows.events.back(),
            (std::pair<std::string, WindowId>("close", WindowId::kDialogCerca)));
  EXPECT_EQ(sounds.Take(), "");
}

TEST_F(SearchTest, TheTextIsLookedForWhereThePreferencesSay) {
  Add("Tower");
  Add("Iris", "behind the TOWER");
  Add("Old Tower", "tow");
  Add("To wer");
  EXPECT_EQ(Found("tow"), (Indices{0, 1, 2}));
  EXPECT_EQ(Found(" tower"), (Indices{1, 2})) << "the text is not trimmed";
  EXPECT_EQ(Found("towerr"), Indices{});

  program.preferences.SearchInNotes = false;
  EXPECT_EQ(Found("tow"), (Indices{0, 2}));
  program.preferences.SearchInLevelName = false;
  EXPECT_EQ(Found("tow"), Indices{});
  program.preferences.SearchInNotes = true;
  EXPECT_EQ(Found("tow"), (Indices{1, 2}));
}

TEST_F(SearchTest, LettersOfTheCodePageHaveNoCase) {
  Add("L'\xC9T\xC9");
  Add("", "l'\xE9t\xE9");
  Add("ete");
  EXPECT_EQ(Found("été"), (Indices{0, 1}));
  EXPECT_EQ(Found("ÉTÉ"), (Indices{0, 1}));

  text = CodePageText(1251, "ru", false);
  Add("", "\xC7\xC0\xCC\xCE\xCA");
  EXPECT_EQ(Found("замок"), Indices{3});
}

TEST_F(SearchTest, ACharacterThatTheCodePageLacksFindsNothing) {
  Add("What?", "??");
  EXPECT_EQ(Found("?"), Indices{0});
  EXPECT_EQ(Found("Ж"), Indices{});
  EXPECT_EQ(Found("What🗝"), Indices{});
}

// In some code pages the byte of a note's line break is a letter as well.
TEST_F(SearchTest, ALineBreakOfANoteIsNoLetter) {
  Add("a\x8Dz", "z");
  Add("az", "a\x8D\nz");
  const std::tuple<int, const char*, const char*> letters[] = {
      {1250, "Ť", "ť"}, {1251, "Ќ", "ќ"}, {1256, "چ", "چ"}};
  for (const auto& [code_page, letter, other_case] : letters) {
    SCOPED_TRACE(code_page);
    text = CodePageText(code_page, "", false);
    EXPECT_EQ(Found(letter), Indices{0});
    EXPECT_EQ(Found(other_case), Indices{0});
    EXPECT_EQ(Found("\nZ"), Indices{1});
  }
}

TEST_F(SearchTest, TheFiltersLookAtTheFilesOfTheMoment) {
  for (int i = 0; i < 4; ++i) Add("Level");
  disk.Write("Archive/Slot1/NOTE1.TXT", "\r\n");
  disk.Write("Archive/Slot1/shot2.jpg", "x");
  disk.MakeFolder("Archive/Slot1/note3.txt");
  EXPECT_EQ(Found("", true, false), Indices{1});
  EXPECT_EQ(Found("", false, true), Indices{2});
  EXPECT_EQ(Found("", true, true), (Indices{1, 2}));
  EXPECT_EQ(Found("none", true, true), Indices{});

  disk.Remove({"Archive/Slot1/NOTE1.TXT"});
  EXPECT_EQ(Found("", true, false), Indices{});
}

TEST_F(SearchTest, SteppingEndsAtBothEnds) {
  for (const char* level : {"x", "Tower", "x", "Tower", "Tower"}) Add(level);
  Found("tower");
  ShowNextFound(program);
  windows.selected = {0};  // steps go on from the savegame found last
  ShowNextFound(program);
  EXPECT_EQ(Position(), " 3/3");
  EXPECT_EQ(program.selection.indices, Indices{4});
  EXPECT_EQ(sounds.Take(), "");

  ShowNextFound(program);
  EXPECT_EQ(sounds.Take(), "s5|");
  EXPECT_EQ(Position(), " 3/3");
  ShowPreviousFound(program);
  EXPECT_EQ(Position(), " 2/3");
  EXPECT_EQ(program.selection.indices, Indices{3});
  ShowPreviousFound(program);
  ShowPreviousFound(program);
  EXPECT_EQ(Position(), " 1/3");
  EXPECT_EQ(sounds.Take(), "s5|");
}

TEST_F(SearchTest, AFailedSearchOrARescanLeavesNothingToStepThrough) {
  Add("Tower");
  Add("Tower");
  for (const bool rescans : {false, true}) {
    Found("tower");
    rescans ? Rescan() : static_cast<void>(Found("nothing"));
    sounds.Take();
    ShowNextFound(program);
    ShowPreviousFound(program);
    EXPECT_EQ(sounds.Take(), "s5|s5|");
    EXPECT_EQ(Position(), " 1/2");
  }
}

}  // namespace
}  // namespace vellumark
