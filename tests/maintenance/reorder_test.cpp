#include "maintenance/reorder.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <set>

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "maintenance/reorder_plan.h"
#include "savegames/info_file.h"
#include "support/every_call.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::Files;
using testing::SavegameBytes;

// The exchange sort as it is defined.
std::vector<std::size_t> ExchangeSorted(const std::vector<std::int16_t>& counters, bool* swapped) {
  std::vector<std::size_t> order(counters.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  *swapped = false;
  for (std::size_t i = 0; i + 1 < order.size(); ++i) {
    for (std::size_t j = i + 1; j < order.size(); ++j) {
      if (counters[order[i]] <= counters[order[j]]) continue;
      std::swap(order[i], order[j]);
      *swapped = true;
    }
  }
  return order;
}

TEST(ReorderOrderTest, IsThatOfTheExchangeSortAlsoAmongEqualCounters) {
  EXPECT_EQ(SortByCounter({2, 2, 1}).indices, (std::vector<std::size_t>{2, 1, 0}));
  EXPECT_FALSE(SortByCounter({}).re_sorted);

  std::mt19937 numbers(1);
  for (int round = 0; round < 2000; ++round) {
    const int spread = round % 3 == 0 ? 65535 : round % 3 == 1 ? 3 : 20;
    std::vector<std::int16_t> counters(numbers() % 60);
    for (auto& counter : counters) {
      const int number = static_cast<int>(numbers() % static_cast<unsigned>(spread + 1));
      counter = static_cast<std::int16_t>(number - (spread == 65535 ? 32768 : 1));
    }
    bool swapped = false;
    const auto expected = ExchangeSorted(counters, &swapped);
    const CounterOrder order = SortByCounter(counters);
    ASSERT_EQ(order.indices, expected);
    ASSERT_EQ(order.re_sorted, swapped);
  }
}

TEST(ReorderPercentTest, RoundsHalvesToEvenAndStaysWithinTheBar) {
  EXPECT_EQ(CopyingPercent(0, 8, false), 12);  // 12.5
  EXPECT_EQ(CopyingPercent(2, 8, false), 38);  // 37.5
  EXPECT_EQ(CopyingPercent(10000, 10001, false), 100);
  EXPECT_EQ(DeletingPercent(1, 0), 100);
  EXPECT_EQ(DeletingPercent(5, 3), 100);
}

// An archive of two sub-folders, T:\Archive\Slot1 and Slot2, and a game folder with a savegame that
// the archive has too. T:\New is empty.
class ReorderTest : public ::testing::Test, public testing::OpenWorld {
 protected:
  ReorderTest() { Prepare(); }

  void Prepare() {
    disk.MakeFolder("New");
    disk.MakeFolder("Program/temp");
    AddSavegame("Archive/Slot1", 0, "Tower", 9);
    AddSavegame("Archive/Slot1", 1, "Maze", 3);
    AddSavegame("Archive/Slot1", 4, "Maze", 7);
    AddSavegame("Archive/Slot2", 0, "Tower", 3);
    AddSavegame("Archive/Slot2", 2, "Tower", 1);
    disk.Write("Archive/Slot1/note1.txt", "three\r\n");
    disk.Write("Archive/Slot1/shot4.jpg", "picture seven");
    disk.Write("Archive/Slot2/info.txt", "old list\r\n");
    disk.Write("Archive/info.txt", "main list\r\n");
    AddSavegame("Game", 0, "Tower", 9);
    program.archive.settings = testing::WorldSettings();
    program.play.BackupFolder = "T:\\Program\\temp";
    Rescan();
  }

  bool Reorder() {
    return ReorderArchive(program, settings, [this](int percent) { shown.push_back(percent); });
  }

  // `folder/file: level counter` of each savegame below T:\New, in order.
  std::vector<std::string> NewSavegames(const std::string& folder = "New") {
    std::vector<std::string> found;
    for (const auto& [name, bytes] : disk.AllFiles()) {
      if (!name.starts_with(folder + "/") || name.find("savegame.") == std::string::npos) continue;
      const int counter = static_cast<unsigned char>(bytes[75]);
      found.push_back(name.substr(folder.size() + 1) + ": " + bytes.substr(0, bytes.find('\0')) +
                      ' ' + std::to_string(counter));
    }
    return found;
  }

  ReorderSettings settings{.BasePath = "T:\\New", .FolderName = "Part", .MaxSlot = 9};
  std::vector<int> shown;
};

TEST_F(ReorderTest, StopsWhenTheSessionEndsAndKeepsTheOldArchiveInUse) {
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  EXPECT_FALSE(ReorderArchive(program, settings, [this](int percent) {
    if (percent > 20) windows.ends_after_painting = 0;
  }));
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\Archive");
  EXPECT_EQ(boxes.AllTexts(), "");
}

TEST_F(ReorderTest, CopiesSortedByCounterAndMakesTheNewArchiveTheCurrentOne) {
  const Files before = disk.AllFiles();
  files.SetCurrentFolder("T:\\New");
  settings.BasePath = "..\\New\\";
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames(),
            (std::vector<std::string>{"Part1/savegame.0: Tower 1", "Part1/savegame.1: Tower 3",
                                      "Part1/savegame.2: Maze 3", "Part1/savegame.3: Maze 7",
                                      "Part1/savegame.4: Tower 9"}));
  EXPECT_EQ(disk.Read("New/Part1/note2.txt"), "three\r\n");
  EXPECT_EQ(disk.Read("New/Part1/shot3.jpg"), "picture seven");
  EXPECT_EQ(disk.Names("New/Part1").size(), 7U);
  ExpectUntouched(before, disk);

  EXPECT_EQ(boxes.AllTexts(),
            "Created new archive in \"T:\\New\"\rSubfolders name = \"Part\"\rSavegames = 5\r"
            "Subfolders = 1\rEqual savegames erased = 0\rSome savegames were been re-sorted\n");
  EXPECT_EQ(boxes.shown[0].icon, BoxIcon::kNone);
  const ArchiveSettings expected{"Part", "T:\\New", "T:\\Game", "T:\\Game\\tomb4.exe", 9, 5};
  EXPECT_EQ(program.archive.settings, expected);
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_EQ(program.catalogue.EntryCount(), 6);
  EXPECT_EQ(program.catalogue.entries[0].SavegamePath, "t:\\new\\part1\\savegame.0");
  EXPECT_EQ(shown, (std::vector<int>{17, 33, 50, 67, 83, 100}));
  EXPECT_EQ(sounds.Take(), "s6|s2|") << "only those of the scan";

  settings.FolderName = "Again";
  ASSERT_TRUE(Reorder());
  EXPECT_TRUE(boxes.shown[1].text.ends_with("All savegames were in correct order"));
}

TEST_F(ReorderTest, BeginsSubfoldersWhereOneIsFullOrTheLevelChanges) {
  settings.CreateInfoFiles = true;
  settings.KeepLevelsApart = true;
  settings.MaxSlot = 1;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames(),
            (std::vector<std::string>{"Part1/savegame.0: Tower 1", "Part1/savegame.1: Tower 3",
                                      "Part2/savegame.0: Maze 3", "Part2/savegame.1: Maze 7",
                                      "Part3/savegame.0: Tower 9"}));
  for (const char* number : {"1", "2", "3"}) {
    const std::string list = disk.Read(std::string("New/Part") + number + "/info.txt");
    EXPECT_TRUE(list.starts_with(std::string("T:\\NEW\\PART") + number + "\r\n"));
  }
  EXPECT_TRUE(Contains(disk.Read("New/Part2/info.txt"), "savegame.1  7  Maze\r\n"));

  settings = {.BasePath = "T:\\New", .FolderName = "Pair", .MaxSlot = 9, .MaxPerFolder = 4};
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames("New/Pair1").size(), 4U);
  EXPECT_EQ(disk.Listed("New/Pair2"), "savegame.0|");
  settings = {.BasePath = "T:\\New", .FolderName = "Two", .MaxSlot = 1, .MaxPerFolder = -3};
  ASSERT_TRUE(Reorder());
  EXPECT_TRUE(disk.Exists("New/Two3/savegame.0"));
  EXPECT_FALSE(disk.Exists("New/Two3/savegame.1"));
}

TEST_F(ReorderTest, DropsASavegameOnlyForAnEqualOneThatHasArrived) {
  AddSavegame("Archive/Slot2", 5, "Tower", 9);
  AddSavegame("Archive/Slot2", 6, "tower", 9);
  AddSavegame("Archive/Slot2", 7, "Lost", 20);
  AddSavegame("Game", 3, "Lost", 20);
  AddSavegame("Game", 4, "Only played", 21);
  Rescan();
  settings.RemoveEquals = true;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames().size(), 7U);
  // Dropped: Tower 9 of Slot2 or Slot1, and two of the game folder that the archive has.
  EXPECT_TRUE(Contains(boxes.shown[0].text, "Savegames = 7\r"));
  EXPECT_TRUE(Contains(boxes.shown[0].text, "erased = 3\r"));
}

TEST_F(ReorderTest, AGameSavegameNeverCostsTheArchivedOne) {
  disk.Remove({"Archive/Slot1", "Archive/Slot2"});
  AddSavegame("Archive/Slot1", 0, "Tower", 9);
  AddSavegame("Game", 1, "Maze", 1);
  Rescan();
  ASSERT_EQ(SortByCounter({9, 9, 1}).indices[1], 1U) << "the game's Tower sorts first";
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Read("New/Part1/savegame.0"), SavegameBytes("Tower", 9));
  EXPECT_TRUE(Contains(boxes.shown[0].text, "erased = 0\r"));
  EXPECT_FALSE(disk.Exists("Archive/Slot1"));
}

TEST_F(ReorderTest, AnArchiveThatIsNotWholeIsUsedOnlyWhenTheUserWantsIt) {
  AddSavegame("Archive/Slot2", 5, "Maze", 7);
  disk.Write("Archive/Slot1/note0.txt", "of the tower\r\n");
  disk.MakeFolder("Archive/Slot1/note4.txt");
  Rescan();
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  const ArchiveSettings old_settings = program.archive.settings;
  files.FailAlways("Copy", "Slot1\\savegame.0", FileError::kDiskFull);
  EXPECT_FALSE(Reorder()) << "the question begins on No";
  EXPECT_EQ(disk.AllFiles(), before);
  EXPECT_EQ(disk.Listed("New"), "");
  EXPECT_EQ(program.archive.settings, old_settings);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(Contains(boxes.shown[0].text, "\\Slot1\\savegame.0\": the disk is full"));

  Forget();
  boxes.answers = {BoxAnswer::kYes};
  ASSERT_TRUE(Reorder()) << "a retry under the same name";
  EXPECT_TRUE(Contains(boxes.shown[1].text, "Savegames = 5\r"));
  ExpectUntouched(before, disk);
  EXPECT_EQ(disk.Listed("New/Part1"),
            "note2.txt|savegame.0|savegame.1|savegame.2|savegame.3|shot3.jpg|")
      << "nothing of the tower";
  EXPECT_TRUE(Contains(boxes.shown.back().text,
                       "nothing has been deleted from the old archive in \"T:\\Archive\""));

  // An equal savegame takes the place of one that does not arrive.
  settings.FolderName = "Again";
  AddSavegame("New/Part1", 5, "Maze", 7);
  Rescan();
  files.FailAlways("Copy", "Part1\\savegame.3", FileError::kDiskFull);
  boxes.answers = {BoxAnswer::kYes};
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Read("New/Again1/savegame.3"), SavegameBytes("Maze", 7, 5));
  EXPECT_FALSE(disk.Exists("New/Again1/shot3.jpg")) << "it has none";
}

TEST_F(ReorderTest, ANoteThatCannotBeLookedUpIsNamedAsNotCopied) {
  files.FailAlways("Attributes", "Slot1\\note4.txt", FileError::kInputOutput);
  EXPECT_FALSE(Reorder());
  EXPECT_TRUE(Contains(boxes.shown.back().text, "\\Slot1\\note4.txt\": "));
}

TEST_F(ReorderTest, DeletesTheOldArchiveWhenEverythingIsSafeAndWrittenDown) {
  disk.Write("Archive/Slot2/readme.txt", "mine");
  disk.Write("Archive/Slot1/note9.txt", "of no savegame");
  WriteInfoSection(program, "T:\\Archive\\Slot1", "T:\\Archive\\Slot1\\info.txt",
                   InfoMode::kCreate);
  disk.MakeFolder("Archive/Slot4");
  settings.DeleteOldArchive = true;
  WriteArchiveFile();
  program.preferences.LastArchive = "T:\\Archive.vmk";
  const Files before = disk.AllFiles();
  files.FailAlways("Rename", "~vm~ive.vmk", FileError::kAccessDenied);
  ASSERT_TRUE(Reorder());
  ExpectUntouched(before, disk);
  EXPECT_TRUE(Contains(boxes.shown[1].text, "nothing has been deleted"));

  files.Reset();
  disk.Remove({"New"});
  Prepare();
  disk.Write("Archive/Slot2/info.txt", "my own list\r\n");
  bool written_down = true;
  files.meanwhile = [&](const std::string& operation) {
    const bool names_new = Contains(disk.Read("Archive.vmk"), "T:\\New");
    written_down = written_down && (operation != "Delete" || names_new);
  };
  ASSERT_TRUE(Reorder());
  EXPECT_TRUE(written_down);
  EXPECT_EQ(disk.Listed("Archive"), "Slot4|info.txt|");
  EXPECT_EQ(disk.Read("Game/savegame.0"), before.at("Game/savegame.0"));
  EXPECT_EQ(NewSavegames().size(), 5U);
  EXPECT_EQ(shown.back(), 100);
  EXPECT_EQ(disk.Listed("Program/rescued"), "1|") << "one folder for the whole run";
  EXPECT_EQ(disk.Read("Program/rescued/1/Slot1/note9.txt"), "of no savegame");
  EXPECT_EQ(disk.Read("Program/rescued/1/Slot2/readme.txt"), "mine");
  EXPECT_EQ(disk.Read("Program/rescued/1/Slot2/info.txt"), "my own list\r\n");
  EXPECT_FALSE(disk.Exists("Program/rescued/1/Slot1/info.txt")) << "the program wrote it";
  EXPECT_TRUE(Contains(disk.Read("Program/rescued/1/rescued.txt"),
                       "\r\nSlot2\\readme.txt <- T:\\Archive\\Slot2\\readme.txt\r\n"));
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(Contains(boxes.shown[1].text, "\"T:\\Program\\rescued\\1\" with a list"));
}

TEST_F(ReorderTest, WhatIsNotInTheNewArchiveStaysByItselfAndIsNamed) {
  const std::pair<std::string, std::function<void()>> cases[] = {
      {"savegame.16\": this", [this] { AddSavegame("Archive/Slot2", 16, "Maze", 40); }},
      {"savegame.8\": this", [this] { AddSavegame("Archive/Slot2", 8, "Maze", 40); }},
      {"savegame.2\": this", [this] { disk.Write("Archive/Slot2/savegame.2", "changed"); }},
      {"savegame.0\": this", [this] { disk.Write("Archive/Slot2/note0.txt", "new note\r\n"); }},
      {"Inner\": it is a folder", [this] { disk.Write("Archive/Slot2/Inner/deep", "x"); }},
      {"SAVEGAME.0\": the name", [this] { disk.Write("Archive/Slot2/SAVEGAME.0", "twice"); }},
      {"Slot2\": it holds a name", [this] { disk.Write("Archive/Slot2/\xD0\x96", "x"); }}};
  settings.DeleteOldArchive = true;
  for (const auto& [named, change] : cases) {
    // Such a name would only be the savegame's again.
    if (!testing::DiskTellsCaseApart() && named.starts_with("SAVEGAME.0")) continue;
    bool changed = false;
    Files before;
    files.meanwhile = [&, act = &change](const std::string& operation) {
      if (operation != "Flush" || changed) return;
      changed = true;
      (*act)();
      before = disk.AllFiles();
    };
    ASSERT_TRUE(Reorder());
    files.meanwhile = nullptr;
    EXPECT_TRUE(changed);
    ExpectNothingLost(before, disk);
    EXPECT_FALSE(disk.Exists("Archive/Slot1")) << named;
    EXPECT_LE(disk.Names("Archive/Slot2").size(), 2U) << named;
    EXPECT_TRUE(Contains(boxes.shown.back().text, named));

    disk.Remove({"New", "Archive"});
    Prepare();
  }
}

TEST_F(ReorderTest, ADroppedSavegameThatHasChangedStays) {
  AddSavegame("Archive/Slot3", 0, "Tower", 9);
  Rescan();
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  files.meanwhile = [this](const std::string& operation) {
    if (operation == "Flush") {
      AddSavegame("Archive/Slot1", 0, "Tower", 10);
      AddSavegame("Archive/Slot3", 0, "Tower", 10);
    }
  };
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Listed("Archive"), "Slot1|Slot3|info.txt|");
}

TEST_F(ReorderTest, WhatOnlyADroppedSavegameHasIsSetAside) {
  AddSavegame("Archive/Slot3", 1, "Maze", 3);  // byte for byte as in Slot1
  AddSavegame("Archive/Slot3", 4, "Tower", 3);
  disk.Write("Archive/Slot3/note1.txt", "another note\r\n");
  for (const char* shot :
       {"Slot1/shot1.jpg", "Slot3/shot1.jpg", "Slot2/shot0.jpg", "Slot3/shot4.jpg"}) {
    disk.Write(std::string("Archive/") + shot, "the same picture");
  }
  Rescan();
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  disk.Remove({"Archive/Slot2/info.txt"});
  const Files before = disk.AllFiles();
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Names("Archive"), (std::vector<std::string>{"info.txt"}));
  ExpectNothingLost(before, disk);
  std::string aside;
  for (const auto& [name, bytes] : disk.AllFiles()) {
    if (name.starts_with("Program/rescued/1/Slot")) aside += name.substr(18) + '|';
  }
  EXPECT_TRUE(aside == "Slot3/note1.txt|Slot3/savegame.4|Slot3/shot4.jpg|" ||
              aside == "Slot2/savegame.0|Slot2/shot0.jpg|Slot3/note1.txt|")
      << aside;
}

TEST_F(ReorderTest, NeverDeletesTheNewSubfoldersOrOtherFoldersInUse) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  settings = {.BasePath = "T:\\Archive", .FolderName = "Slot", .MaxSlot = 9};
  settings.DeleteOldArchive = true;
  std::filesystem::rename(disk.path() / "Archive/Slot1", disk.path() / "Archive/Slot3");
  std::filesystem::rename(disk.path() / "Archive/Slot2", disk.path() / "Archive/Other");
  program.preferences.ScanAllSubfolders = true;
  Rescan();
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames("Archive/Slot1").size(), 5U);

  // The new names continue those of the old archive, and one old name leads to the game folder.
  program.preferences.ScanAllSubfolders = false;
  settings.FolderName = "Slot1";
  disk.Remove({"Archive/Slot3"});
  for (int k = 2; k <= 9; ++k) disk.MakeFolder("Archive/Slot" + std::to_string(k));
  std::filesystem::create_directory_symlink(disk.path() / "Game", disk.path() / "Archive/Slot10");
  Rescan();
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames("Archive/Slot11").size(), 6U);
  EXPECT_TRUE(disk.Exists("Game/savegame.0"));
  EXPECT_FALSE(disk.Exists("Archive/Slot9"));
}

TEST_F(ReorderTest, NothingIsDeletedBeforeTheCopiesAreFlushed) {
  files.FailAlways("Flush", "", FileError::kInputOutput);
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  boxes.answers = {BoxAnswer::kYes};
  ASSERT_TRUE(Reorder());
  ExpectUntouched(before, disk);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "did not confirm"));
}

TEST_F(ReorderTest, NamesAndRoomAreLookedAtBeforeTheFirstCopy) {
  disk.MakeFolder("New/Part2");
  disk.Write("New/~vm~Part1/other", "no copy");
  settings.MaxPerFolder = 3;
  EXPECT_FALSE(Reorder());
  const std::string told = TakeRefusal();
  EXPECT_TRUE(Contains(told, "\"T:\\New\\~vm~Part1\"\r\n\"T:\\New\\Part2\"")) << told;

  disk.Remove({"New/Part2", "New/~vm~Part1/other"});
  files.free_room = 100;
  EXPECT_FALSE(Reorder()) << "the question begins on No";
  EXPECT_TRUE(Contains(boxes.shown[0].text, "needs 1 MB"));
  EXPECT_EQ(disk.Listed("New"), "");
}

TEST_F(ReorderTest, ASubfolderThatCannotBeMadeOrNamedTakesTheRunBack) {
  settings.MaxPerFolder = 3;
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  for (const char* operation : {"CreateFolder", "Rename"}) {
    const ArchiveSettings old_settings = program.archive.settings;
    files.Reset();
    files.FailAlways(operation, "Part1", FileError::kAccessDenied);
    EXPECT_FALSE(Reorder());
    EXPECT_TRUE(Contains(TakeRefusal(), "\"T:\\New\\Part1\" could not be created: "));
    EXPECT_EQ(disk.AllFiles(), before);
    EXPECT_EQ(disk.Listed("New"), "");
    EXPECT_EQ(program.archive.settings, old_settings);
  }
}

TEST_F(ReorderTest, SettingsThatCannotBeAreRefusedInOrder) {
  disk.MakeFolder("New/Taken1");
  disk.MakeFolder("Program/temp/Inner");
  disk.Write("New/file", "x");
  const std::string long_name(240, 'x');
  const std::pair<ReorderSettings, const char*> cases[] = {
      {{}, "You must type new archive path"},
      {{.BasePath = "T:\\None", .FolderName = "Part"}, "You must type new archive path"},
      {{.BasePath = "T:\\New\\file", .FolderName = "Part"}, "You must type new archive path"},
      {{.BasePath = "T:\\New"}, "You must type new sub-folders name"},
      {{.BasePath = "T:\\New", .FolderName = "Taken"},
       "You must set a max number of savegame handling by tomb raider (10 or 15)"},
      {{.BasePath = "T:\\New", .FolderName = "Part", .MaxSlot = -1}, "cannot be negative"},
      {{.BasePath = "T:\\New", .FolderName = "Taken", .MaxSlot = 9}, "Warning: You must chose a"},
      {{.BasePath = "T:\\New", .FolderName = "a?b", .MaxSlot = 9}, "no folder name can hold"},
      {{.BasePath = "T:\\New", .FolderName = "..\\x", .MaxSlot = 9}, "no folder name can hold"},
      {{.BasePath = "T:\\New", .FolderName = "Part ", .MaxSlot = 9}, "ends with a blank"},
      {{.BasePath = "T:\\New", .FolderName = long_name, .MaxSlot = 9}, "too long"},
      {{.BasePath = "T:\\Game", .FolderName = "SaveGame.", .MaxSlot = 9}, "in Tomb Raider folder"},
      {{.BasePath = "T:\\Program\\temp\\Inner", .FolderName = "P", .MaxSlot = 9}, "own savegames"},
      {{.BasePath = "T:\\Archive\\Slot2",
        .FolderName = "P",
        .MaxSlot = 9,
        .DeleteOldArchive = true},
       "inside \"T:\\Archive\\Slot2\""}};
  for (const auto& [tried, expected] : cases) {
    settings = tried;
    const Files before = disk.AllFiles();
    EXPECT_FALSE(Reorder());
    EXPECT_TRUE(Contains(TakeRefusal(), expected));
    EXPECT_EQ(disk.AllFiles(), before);
  }
}

TEST_F(ReorderTest, AnEmptyArchiveBecomesAnEmptyArchive) {
  disk.Remove({"Archive/Slot1", "Archive/Slot2", "Game"});
  program.catalogue.entries.clear();
  settings.DeleteOldArchive = true;
  settings.CreateInfoFiles = true;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Listed("New"), "");
  EXPECT_TRUE(
      boxes.shown[0].text.ends_with("Savegames = 0\rSubfolders = 0\rEqual savegames "
                                    "erased = 0\rAll savegames were in correct order"));
}

TEST_F(ReorderTest, NumbersAreTakenAsTheyAreTyped) {
  settings.MaxSlot = 0;
  const std::tuple<const char*, int, const char*> cases[] = {
      {"1", 1, ""},   {"1x", 1, "Type only digits, please"},      {"", 1, ""}, {"2.5", 2, ""},
      {"-4", -4, ""}, {"40000", -4, "This number cannot be used"}};
  for (const auto& [typed, value, refusal] : cases) {
    SCOPED_TRACE(typed);
    for (const bool slot : {true, false}) {
      (slot ? TypeMaxSlot : TypeMaxPerFolder)(program, settings, typed);
      EXPECT_EQ(slot ? settings.MaxSlot : settings.MaxPerFolder, value);
      const bool refused = *refusal != '\0';
      EXPECT_TRUE(refused ? TakeRefusal().starts_with(refusal) : boxes.shown.empty());
    }
  }
}

// A small run with everything in it, on a fresh disk.
class WholeReorder : public testing::OpenWorld {
 public:
  WholeReorder() {
    disk.MakeFolder("New");
    AddSavegame("Archive/Slot1", 0, "Tower", 9);
    AddSavegame("Archive/Slot2", 0, "Maze", 1);
    disk.Write("Archive/Slot1/note0.txt", "nine\r\n");
    disk.Write("Archive/Slot2/shot0.jpg", "picture");
    disk.Write("Archive/Slot2/strange.txt", "strange");
    WriteArchiveFile();
    program.preferences.LastArchive = "T:\\Archive.vmk";
    Rescan();
  }

  void Run() { Run(program); }
  static bool Run(Program& run) {
    const ReorderSettings settings{.BasePath = "T:\\New",
                                   .FolderName = "Part",
                                   .MaxSlot = 1,
                                   .DeleteOldArchive = true,
                                   .RemoveEquals = true,
                                   .KeepLevelsApart = true};
    return ReorderArchive(run, settings, [](int) {});
  }

  bool OldArchiveIsLeft() const {
    return disk.Exists("Archive/Slot1") || disk.Exists("Archive/Slot2");
  }
};

const auto run = [](WholeReorder& world) { world.Run(); };

TEST(WholeReorderTest, NoFailingCallLosesAnythingOrPassesInSilence) {
  WholeReorder whole;
  Files before = whole.disk.AllFiles();
  before.erase("Archive.vmk");
  whole.Run();
  ASSERT_FALSE(whole.OldArchiveIsLeft());
  testing::FailEveryCall<WholeReorder>(FileError::kAccessDenied, run, [&](WholeReorder& world) {
    ExpectNothingLost(before, world.disk);
    EXPECT_TRUE(!world.OldArchiveIsLeft() || world.boxes.AllTexts() != whole.boxes.AllTexts())
        << "what is left of the old archive was not told";
  });
}

TEST(WholeReorderTest, DyingAtAnyCallLosesNothing) {
  Files before = WholeReorder().disk.AllFiles();
  before.erase("Archive.vmk");
  testing::DieAtEveryCall<WholeReorder>(run, [&](WholeReorder& world) {
    ExpectNothingLost(before, world.disk);
    // The next run finds an archive that is whole, the old or the new one, and can do it all again.
    Program next = world.NewProgram();
    next.archive.settings = ReadArchiveFile(world.files, "T:\\Archive.vmk").settings;
    next.preferences.ScanAllSubfolders = true;
    world.files.Reset();
    ScanArchive(next);
    EXPECT_EQ(next.catalogue.EntryCount(), 2);
    const bool named = world.disk.Exists("New/Part2");
    EXPECT_NE(WholeReorder::Run(next), named) << world.boxes.AllTexts();
  });
}

}  // namespace
}  // namespace vellumark
