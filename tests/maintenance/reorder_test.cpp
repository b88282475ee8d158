#include "maintenance/reorder.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "archive/scan.h"
#include "maintenance/reorder_order.h"
#include "maintenance/reorder_plan.h"
#include "support/test_drives.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::Killed;
using testing::SavegameBytes;
using testing::TestWorld;
using Files = std::map<std::string, std::string>;

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
  EXPECT_EQ(CopyingPercent(0, 4, true), 12);
  EXPECT_EQ(CopyingPercent(3, 4, true), 50);
  EXPECT_EQ(CopyingPercent(10000, 10001, false), 100);
  EXPECT_EQ(DeletingPercent(1, 8), 56);
  EXPECT_EQ(DeletingPercent(1, 0), 100);
  EXPECT_EQ(DeletingPercent(5, 3), 100);
}

// An archive of two sub-folders, T:\Archive\Slot1 and Slot2, and a game folder with a savegame that
// the archive has too. T:\New is empty.
class ReorderTest : public ::testing::Test, public TestWorld {
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
    program.archive.settings = {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
    program.play.BackupFolder = "T:\\Program\\temp";
    Rescan();
  }

  void Rescan() {
    ScanArchive(program);
    boxes.shown.clear();
    sounds.played.clear();
    files.Reset();
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

  std::string Refusal() {
    const Files before = disk.AllFiles();
    EXPECT_FALSE(Reorder());
    EXPECT_EQ(disk.AllFiles(), before);
    EXPECT_EQ(boxes.shown.size(), 1U);
    if (boxes.shown.size() != 1U) return {};
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::kCritical);
    std::string refusal = boxes.shown[0].text;
    boxes.shown.clear();
    return refusal;
  }

  Program program = NewProgram();
  ReorderSettings settings{.BasePath = "T:\\New", .FolderName = "Part", .MaxSlot = 9};
  std::vector<int> shown;
};

TEST_F(ReorderTest, CopiesSortedByCounterAndMakesTheNewArchiveTheCurrentOne) {
  const Files before = disk.AllFiles();
  program.preferences.SoundEffects = true;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames(),
            (std::vector<std::string>{"Part1/savegame.0: Tower 1", "Part1/savegame.1: Tower 3",
                                      "Part1/savegame.2: Maze 3", "Part1/savegame.3: Maze 7",
                                      "Part1/savegame.4: Tower 9"}));
  EXPECT_EQ(disk.Read("New/Part1/note2.txt"), "three\r\n");
  EXPECT_EQ(disk.Read("New/Part1/shot3.jpg"), "picture seven");
  EXPECT_EQ(disk.Names("New/Part1").size(), 7U);
  for (const auto& [name, bytes] : before) EXPECT_EQ(disk.Read(name), bytes);

  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].icon, BoxIcon::kNone);
  EXPECT_EQ(boxes.shown[0].text,
            "Created new archive in \"T:\\New\"\rSubfolders name = \"Part\"\rSavegames = 5\r"
            "Subfolders = 1\rEqual savegames erased = 0\rSome savegames were been re-sorted");
  const ArchiveSettings expected{"Part", "T:\\New", "T:\\Game", "T:\\Game\\tomb4.exe", 9, 0};
  EXPECT_EQ(program.archive.settings, expected);
  EXPECT_TRUE(program.archive.ArchiveChanged);
  EXPECT_EQ(program.catalogue.EntryCount(), 6);
  EXPECT_EQ(program.catalogue.entries[0].SavegamePath, "t:\\new\\part1\\savegame.0");
  EXPECT_EQ(shown, (std::vector<int>{17, 33, 50, 67, 83, 100}));
  EXPECT_EQ(sounds.played.size(), 2U) << "only those of the scan";

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
  EXPECT_NE(disk.Read("New/Part2/info.txt").find("savegame.1  7  Maze\r\n"), std::string::npos);

  settings = {.BasePath = "T:\\New", .FolderName = "Pair", .MaxSlot = 9, .MaxPerFolder = 4};
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(NewSavegames("New/Pair1").size(), 4U);
  EXPECT_EQ(disk.Names("New/Pair2"), (std::vector<std::string>{"savegame.0"}));
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
  EXPECT_NE(boxes.shown[0].text.find("Savegames = 7\r"), std::string::npos);
  EXPECT_NE(boxes.shown[0].text.find("erased = 3\r"), std::string::npos) << boxes.shown[0].text;
}

TEST_F(ReorderTest, AGameSavegameNeverCostsTheArchivedOne) {
  for (const char* folder : {"Archive/Slot1", "Archive/Slot2"}) {
    std::filesystem::remove_all(disk.path() / folder);
  }
  AddSavegame("Archive/Slot1", 0, "Tower", 9);
  AddSavegame("Game", 1, "Maze", 1);
  Rescan();
  ASSERT_EQ(SortByCounter({9, 9, 1}).indices[1], 1U) << "the game's Tower sorts first";
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Read("New/Part1/savegame.0"), SavegameBytes("Tower", 9));
  EXPECT_NE(boxes.shown[0].text.find("erased = 0\r"), std::string::npos);
  EXPECT_FALSE(disk.Exists("Archive/Slot1"));
}

TEST_F(ReorderTest, AFailedCopyCostsNeitherItsEqualNorTheOldArchive) {
  AddSavegame("Archive/Slot2", 5, "Maze", 7);
  Rescan();
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  files.FailAlways("Copy", "Slot1\\savegame.4", FileError::kDiskFull);
  ASSERT_TRUE(Reorder());
  EXPECT_NE(boxes.shown[0].text.find("Savegames = 6\r"), std::string::npos) << "it counts";
  std::set<std::string> arrived;
  for (const auto& [name, bytes] : disk.AllFiles()) {
    if (name.starts_with("New/")) arrived.insert(bytes);
  }
  EXPECT_TRUE(arrived.contains(SavegameBytes("Maze", 7, 5)));
  for (const auto& [name, bytes] : before) EXPECT_EQ(disk.Read(name), bytes);
  const std::string& report = boxes.shown.back().text;
  EXPECT_NE(report.find("\\Slot1\\savegame.4\": the disk is full"), std::string::npos) << report;
  EXPECT_NE(report.find("nothing has been deleted from the old archive in \"T:\\Archive\""),
            std::string::npos);
}

TEST_F(ReorderTest, DeletesTheOldArchiveWhenEverythingIsSafe) {
  disk.Write("Archive/Slot2/readme.txt", "mine");
  disk.Write("Archive/Slot1/note9.txt", "of no savegame");
  disk.MakeFolder("Archive/Slot4");
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Names("Archive"), (std::vector<std::string>{"Slot4", "info.txt"}));
  EXPECT_EQ(disk.Read("Game/savegame.0"), before.at("Game/savegame.0"));
  EXPECT_EQ(NewSavegames().size(), 5U);
  EXPECT_EQ(shown, (std::vector<int>{8, 16, 25, 34, 42, 50, 75, 100}));
  EXPECT_EQ(disk.Read("Program/rescued/1/note9.txt"), "of no savegame");
  EXPECT_EQ(disk.Read("Program/rescued/2/readme.txt"), "mine");
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_NE(boxes.shown[1].text.find("\"T:\\Program\\rescued\\2\""), std::string::npos);
}

TEST_F(ReorderTest, AnOldSubfolderWithAnythingNotCopiedStaysWholeAndIsNamed) {
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"savegame.16", [this] { AddSavegame("Archive/Slot2", 16, "Maze", 40); }},
      {"savegame.8", [this] { AddSavegame("Archive/Slot2", 8, "Maze", 40); }},
      {"savegame.2", [this] { disk.Write("Archive/Slot2/savegame.2", "changed"); }},
      {"note0.txt", [this] { disk.Write("Archive/Slot2/note0.txt", "new note\r\n"); }},
      {"Inner", [this] { disk.MakeFolder("Archive/Slot2/Inner"); }},
      {"SAVEGAME.0", [this] { disk.Write("Archive/Slot2/SAVEGAME.0", "twice"); }},
      {"archives cannot hold", [this] { disk.Write("Archive/Slot2/\xD0\x96", "x"); }}};
  settings.DeleteOldArchive = true;
  for (const auto& [named, change] : cases) {
    // Such a name would only be the savegame's again.
    if (!testing::DiskTellsCaseApart() && named == std::string("SAVEGAME.0")) continue;
    bool changed = false;
    files.meanwhile = [&, act = &change](const std::string& operation) {
      if (operation != "Flush" || changed) return;
      changed = true;
      (*act)();
    };
    ASSERT_TRUE(Reorder());
    files.meanwhile = nullptr;
    EXPECT_TRUE(changed);
    EXPECT_FALSE(disk.Exists("Archive/Slot1")) << named;
    EXPECT_GE(disk.Names("Archive/Slot2").size(), 3U) << named;
    const std::string& report = boxes.shown.back().text;
    EXPECT_NE(report.find("\"T:\\Archive\\Slot2\": "), std::string::npos) << report;
    EXPECT_NE(report.find(named), std::string::npos) << report;

    std::filesystem::remove_all(disk.path() / "New");
    std::filesystem::remove_all(disk.path() / "Archive");
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
  EXPECT_EQ(disk.Names("Archive"), (std::vector<std::string>{"Slot1", "Slot3", "info.txt"}));
}

TEST_F(ReorderTest, WhatOnlyADroppedSavegameHasIsSetAside) {
  AddSavegame("Archive/Slot3", 0, "Maze", 3);
  disk.Write("Archive/Slot3/note0.txt", "another note\r\n");
  for (const char* shot : {"Slot1/shot1.jpg", "Slot3/shot0.jpg"}) {
    disk.Write(std::string("Archive/") + shot, "the same picture");
  }
  Rescan();
  settings.RemoveEquals = true;
  settings.DeleteOldArchive = true;
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(disk.Names("Archive"), (std::vector<std::string>{"info.txt"}));
  ASSERT_EQ(disk.Names("Program/rescued/1").size(), 1U) << "the picture is in the new archive";
  std::set<std::string> contents;
  for (const auto& [name, bytes] : disk.AllFiles()) contents.insert(bytes);
  EXPECT_TRUE(contents.contains("three\r\n") && contents.contains("another note\r\n"));
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
  std::filesystem::remove_all(disk.path() / "Archive/Slot3");
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
  ASSERT_TRUE(Reorder());
  for (const auto& [name, bytes] : before) EXPECT_EQ(disk.Read(name), bytes);
  EXPECT_NE(boxes.shown.back().text.find("did not confirm"), std::string::npos);
}

TEST_F(ReorderTest, ASubfolderThatCannotBeMadeStopsTheRun) {
  disk.MakeFolder("New/Part2");
  settings.MaxPerFolder = 3;
  settings.DeleteOldArchive = true;
  const Files before = disk.AllFiles();
  const ArchiveSettings old_settings = program.archive.settings;
  EXPECT_FALSE(Reorder());
  for (const auto& [name, bytes] : before) EXPECT_EQ(disk.Read(name), bytes);
  EXPECT_EQ(program.archive.settings, old_settings);
  EXPECT_EQ(program.catalogue.EntryCount(), 6);
  ASSERT_EQ(boxes.shown.size(), 1U);
  const std::string& told = boxes.shown[0].text;
  EXPECT_NE(told.find("\"T:\\New\\Part2\" could not be created: the name exists already"),
            std::string::npos);
  EXPECT_NE(told.find("3 savegames were copied before in 1 new sub-folders, the first is "
                      "\"T:\\New\\Part1\""),
            std::string::npos)
      << told;
}

TEST_F(ReorderTest, SettingsThatCannotBeAreRefusedInOrder) {
  program.preferences.SoundEffects = true;
  disk.MakeFolder("New/Taken1");
  disk.MakeFolder("Program/temp/Inner");
  disk.Write("New/file", "x");
  using Settings = ReorderSettings;
  const std::string long_name(240, 'x');
  const std::pair<Settings, const char*> cases[] = {
      {{}, "You must type new archive path"},
      {{.BasePath = "T:\\None", .FolderName = "Part"}, "You must type new archive path"},
      {{.BasePath = "T:\\New\\file", .FolderName = "Part"}, "You must type new archive path"},
      {{.BasePath = "T:\\New"}, "You must type new sub-folders name"},
      {{.BasePath = "T:\\New", .FolderName = "Taken"},
       "You must set a max number of savegame handling by tomb raider (10 or 15)"},
      {{.BasePath = "T:\\New", .FolderName = "Part", .MaxSlot = -1}, "cannot be negative"},
      {{.BasePath = "T:\\New", .FolderName = "Taken", .MaxSlot = 9}, "Warning: You must chose a"},
      {{.BasePath = "T:\\New", .FolderName = "a?b", .MaxSlot = 9}, "no folder name can hold"},
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
    sounds.played.clear();
    const std::string refusal = Refusal();
    EXPECT_NE(refusal.find(expected), std::string::npos) << expected << ": " << refusal;
    ASSERT_EQ(sounds.played.size(), 1U);
    EXPECT_TRUE(sounds.played[0].ends_with("s5.wav"));
  }
}

TEST_F(ReorderTest, TheMainFolderIsKeptWithItsDrive) {
  files.SetCurrentFolder("T:\\New");
  settings.BasePath = "..\\New\\";
  ASSERT_TRUE(Reorder());
  EXPECT_EQ(program.archive.settings.MainFolder, "T:\\New");
  EXPECT_EQ(program.catalogue.EntryCount(), 6);
  std::filesystem::current_path("/");
}

TEST_F(ReorderTest, AnEmptyArchiveBecomesAnEmptyArchive) {
  for (const char* folder : {"Archive/Slot1", "Archive/Slot2", "Game"}) {
    std::filesystem::remove_all(disk.path() / folder);
  }
  program.catalogue.entries.clear();
  settings.DeleteOldArchive = true;
  settings.CreateInfoFiles = true;
  ASSERT_TRUE(Reorder());
  EXPECT_TRUE(disk.Names("New").empty());
  EXPECT_TRUE(
      boxes.shown[0].text.ends_with("Savegames = 0\rSubfolders = 0\rEqual savegames "
                                    "erased = 0\rAll savegames were in correct order"));
}

TEST_F(ReorderTest, NumbersAreTakenAsTheyAreTyped) {
  program.preferences.SoundEffects = true;
  settings.MaxSlot = 0;
  const std::tuple<const char*, int, const char*> typed[] = {
      {"1", 1, nullptr},   {"1x", 1, "Type only digits, please"},
      {"", 1, nullptr},    {"2.5", 2, nullptr},
      {"-4", -4, nullptr}, {"40000", -4, "This number cannot be used"}};
  for (const auto& [entered, value, refusal] : typed) {
    boxes.shown.clear();
    sounds.played.clear();
    TypeMaxSlot(program, settings, entered);
    TypeMaxPerFolder(program, settings, entered);
    EXPECT_EQ(settings.MaxSlot, value) << entered;
    EXPECT_EQ(settings.MaxPerFolder, value) << entered;
    ASSERT_EQ(boxes.shown.size(), refusal == nullptr ? 0U : 2U) << entered;
    EXPECT_EQ(sounds.played.size(), boxes.shown.size());
    if (refusal != nullptr) {
      EXPECT_TRUE(boxes.shown[1].text.starts_with(refusal));
      EXPECT_EQ(boxes.shown[1].icon, BoxIcon::kCritical);
    }
  }
}

// A small run with everything in it, on a fresh disk.
class WholeReorder : public TestWorld {
 public:
  WholeReorder() {
    disk.MakeFolder("New");
    AddSavegame("Archive/Slot1", 0, "Tower", 9);
    AddSavegame("Archive/Slot2", 0, "Maze", 1);
    disk.Write("Archive/Slot1/note0.txt", "nine\r\n");
    disk.Write("Archive/Slot2/shot0.jpg", "picture");
    disk.Write("Archive/Slot2/strange.txt", "strange");
    program.archive.settings = {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
    ScanArchive(program);
    boxes.shown.clear();
    files.Reset();
    before = disk.AllFiles();
  }

  void Run() {
    const ReorderSettings settings{.BasePath = "T:\\New",
                                   .FolderName = "Part",
                                   .MaxSlot = 1,
                                   .DeleteOldArchive = true,
                                   .RemoveEquals = true,
                                   .KeepLevelsApart = true};
    ReorderArchive(program, settings, [](int) {});
  }

  void ExpectNothingLost(const std::string& when) {
    std::set<std::string> contents;
    for (const auto& [name, bytes] : disk.AllFiles()) contents.insert(bytes);
    for (const auto& [name, bytes] : before) {
      EXPECT_TRUE(contents.contains(bytes)) << name << " is lost " << when;
    }
  }

  Program program = NewProgram();
  Files before;
};

TEST(WholeReorderTest, NoFailingCallLosesAnythingOrPassesInSilence) {
  WholeReorder whole;
  whole.Run();
  ASSERT_FALSE(whole.disk.Exists("Archive/Slot1") || whole.disk.Exists("Archive/Slot2"));

  for (int call = 1; call <= whole.files.calls(); ++call) {
    WholeReorder world;
    const std::string when = "at call " + std::to_string(call);
    world.files.FailCall(call, FileError::kAccessDenied);
    world.Run();
    world.ExpectNothingLost(when);

    // What is left of the old archive was told.
    const bool left = world.disk.Exists("Archive/Slot1") || world.disk.Exists("Archive/Slot2");
    EXPECT_TRUE(!left || world.boxes.AllTexts() != whole.boxes.AllTexts()) << when;
  }
}

TEST(WholeReorderTest, DyingAtAnyCallLosesNothing) {
  for (int call = 1;; ++call) {
    WholeReorder world;
    world.files.KillAtCall(call, false);
    try {
      world.Run();
      break;
    } catch (const Killed&) {
      world.ExpectNothingLost("after dying before call " + std::to_string(call));
    }
  }
}

}  // namespace
}  // namespace vellumark
