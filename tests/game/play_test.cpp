#include "game/play.h"

#include <gtest/gtest.h>

#include <set>

#include "archive/archive_commands.h"
#include "archive/archive_file.h"
#include "archive/scan.h"
#include "foundation/shut_down.h"
#include "foundation/start_up.h"
#include "game/backup_list.h"
#include "game/examined.h"
#include "game/restore.h"
#include "game/running_game.h"
#include "savegames/details.h"
#include "savegames/savegame_properties.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::Killed;
using testing::SavegameBytes;
using testing::TestWorld;

using Files = std::map<std::string, std::string>;

// An archive of three sub-folders and a game folder with the player's own slots, among them files
// that no slot number leads to.
class PlayWorld : public TestWorld {
 public:
  PlayWorld() {
    AddSavegame("Archive/Slot1", 5, "North", 10);
    disk.Write("Archive/Slot1/note5.txt", "first\x8D\nnote\r\n");
    disk.Write("Archive/Slot1/shot5.jpg", "north picture");
    AddSavegame("Archive/Slot2", 5, "South", 11);
    AddSavegame("Archive/Slot3", 2, "East", 12);
    disk.Write("Archive/Slot3/shot2.jpg", "east picture");
    AddSavegame("Game", 0, "Own", 20);
    AddSavegame("Game", 3, "Own", 21);
    disk.Write("Game/note3.txt", "own note\r\n");
    AddSavegame("Game", 16, "Own", 22);
    disk.Write("Game/savegame.bak", "own copy");
    disk.Write("Game/notes.txt", "own list");
    WriteArchiveFile();
    WritePreferences();
    Start();
  }

  // A new run of the program; the user imports nothing.
  void Start() {
    program.emplace(NewProgram());
    boxes.answers = {BoxAnswer::kNo};
    StartUp(*program);
    boxes.answers.clear();
  }

  void Select(std::vector<int> lines) {
    windows.selected = std::move(lines);
    RefreshDetails(*program);
  }

  void Play(std::vector<int> lines = {0, 1, 2}) {
    Select(std::move(lines));
    boxes.shown.clear();
    PlaySelectedSavegames(*program);
  }

  void Restore(BoxAnswer answer) {
    boxes.shown.clear();
    boxes.answers = {answer};
    RestoreOriginalSavegames(*program);
  }

  Files FilesIn(const std::string& folder) const {
    Files found;
    for (const std::string& name : disk.Names(folder)) {
      found[name] = disk.Read(std::string(folder).append("/").append(name));
    }
    return found;
  }

  std::optional<Program> program;
};

Files WithoutExecutable(Files files) {
  files.erase("tomb4.exe");
  return files;
}

TEST(PlayTest, PutsTheOwnSlotsAsideAndTheSelectedSavegamesIntoTheSlots) {
  PlayWorld world;
  const Files own = WithoutExecutable(world.FilesIn("Game"));
  const Files archive = world.disk.AllFiles();
  world.clipboard.Put("older picture");
  world.Play({0, 1, 2});

  EXPECT_TRUE(world.boxes.shown.empty()) << world.boxes.AllTexts();
  EXPECT_EQ(world.FilesIn("Program/temp"), own);
  EXPECT_EQ(WithoutExecutable(world.FilesIn("Game")),
            (Files{{"savegame.0", archive.at("Archive/Slot1/savegame.5")},
                   {"note0.txt", archive.at("Archive/Slot1/note5.txt")},
                   {"shot0.jpg", "north picture"},
                   {"savegame.1", archive.at("Archive/Slot2/savegame.5")},
                   {"savegame.2", archive.at("Archive/Slot3/savegame.2")},
                   {"shot2.jpg", "east picture"}}));
  const PlayState& play = world.program->play;
  EXPECT_TRUE(play.ExaminedInGameFolder);
  EXPECT_EQ(play.ExaminedList, (std::vector<std::int16_t>{0, 1, 2}));
  EXPECT_EQ(world.program->catalogue.entries.back().SavegamePath, "T:\\Program\\temp\\savegame.3");
  EXPECT_EQ(world.clipboard.content, nullptr);
  EXPECT_TRUE(world.program->capture.CaptureArmed);
  ASSERT_EQ(world.shell.opened.size(), 1U);
  EXPECT_EQ(world.shell.opened[0].document, world.files.HostPath("T:\\Game\\tomb4.exe"));
  EXPECT_EQ(world.shell.opened[0].working_folder, world.files.HostPath("T:\\Game"));
  EXPECT_FALSE(world.shell.opened[0].hidden);
}

TEST(PlayTest, RefusesBeforeAnyFileIsTouched) {
  PlayWorld world;
  const Files before = world.disk.AllFiles();
  const auto refusal = [&](std::vector<int> lines) {
    world.Play(std::move(lines));
    EXPECT_EQ(world.disk.AllFiles(), before);
    EXPECT_FALSE(world.program->play.ExaminedInGameFolder);
    EXPECT_TRUE(world.shell.opened.empty());
    return world.boxes.AllTexts();
  };
  EXPECT_TRUE(refusal({0, 1, 3}).starts_with("Warning: any selected savegames are yet in"));
  EXPECT_TRUE(refusal({}).starts_with("Warning: No selected savegames.\r\nIf you want"));

  ArchiveSettings& settings = world.program->archive.settings;
  settings.MaxSavegame = 2;
  EXPECT_EQ(refusal({0, 1, 2}), "You can not play more of 2 savegames at once\n");
  settings.MaxSavegame = 15;
  settings.GameFolder = "";
  EXPECT_NE(refusal({0}), "");
  settings.GameFolder = "T:\\Program\\temp";
  EXPECT_NE(refusal({0}).find("keeps the backup"), std::string::npos);
}

TEST(PlayTest, RefusesASavegameThatLiesInTheGameFolderByAnotherPath) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  PlayWorld world;
  namespace fs = std::filesystem;
  fs::create_directory_symlink(world.disk.path() / "Game", world.disk.path() / "Archive/Slot4");
  ScanArchive(*world.program);
  const Files before = world.disk.AllFiles();
  world.Play({0, 3});
  EXPECT_NE(world.boxes.AllTexts().find("\"t:\\archive\\slot4\\savegame.0\""), std::string::npos);
  EXPECT_EQ(world.disk.AllFiles(), before);

  fs::remove(world.disk.path() / "Archive/Slot4");
  fs::remove(world.disk.path() / "Archive/Slot1/savegame.5");
  fs::create_symlink(world.disk.path() / "Game/savegame.3",
                     world.disk.path() / "Archive/Slot1/savegame.5");
  ScanArchive(*world.program);
  world.Play({0});
  EXPECT_NE(world.boxes.AllTexts().find("\"t:\\archive\\slot1\\savegame.5\""), std::string::npos);
  EXPECT_FALSE(world.program->play.ExaminedInGameFolder);
}

TEST(PlayTest, ASecondPlayKeepsTheBackupAndSetsAsideWhatTheGameSaved) {
  PlayWorld world;
  world.Play({0, 1});
  const Files backup = world.FilesIn("Program/temp");
  const std::string saved = SavegameBytes("Played", 30);
  world.disk.Write("Game/savegame.1", saved);
  world.disk.Write("Game/savegame.7", saved + "7");
  world.disk.Write("Game/shot7.jpg", "new picture");
  world.Play({2});

  EXPECT_EQ(world.FilesIn("Program/temp"), backup);
  EXPECT_EQ(world.disk.Names("Game"),
            (std::vector<std::string>{"savegame.0", "shot0.jpg", "tomb4.exe"}));
  EXPECT_EQ(
      world.FilesIn("Program/rescued/1"),
      (Files{{"savegame.1", saved}, {"savegame.7", saved + "7"}, {"shot7.jpg", "new picture"}}));
  EXPECT_NE(world.boxes.AllTexts().find("\"T:\\Program\\rescued\\1\""), std::string::npos);
  EXPECT_EQ(world.boxes.shown.size(), 1U);
}

TEST(PlayTest, RestoresAndSetsAsideSlotsThatAreLinks) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  PlayWorld world;
  namespace fs = std::filesystem;
  const fs::path game = world.disk.path() / "Game";
  const auto make_link = [&](const char* name) {
    fs::rename(game / name, world.disk.path() / "Program" / name);
    fs::create_symlink(fs::path("../Program") / name, game / name);
  };
  make_link("savegame.3");
  const Files own = world.FilesIn("Game");
  world.Play({0});
  world.disk.Write("Game/savegame.7", SavegameBytes("Played", 30));
  make_link("savegame.7");
  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(world.FilesIn("Game"), own);
  EXPECT_EQ(world.disk.Read("Program/rescued/1/savegame.7"), SavegameBytes("Played", 30));
}

TEST(PlayTest, RestoresTheOwnSlotsAsOftenAsAsked) {
  PlayWorld world;
  const Files own = world.FilesIn("Game");
  world.Play();
  world.disk.Write("Game/savegame.0", SavegameBytes("Played", 30));
  for (int time = 0; time < 2; ++time) {
    world.Restore(BoxAnswer::kYes);
    EXPECT_TRUE(world.boxes.shown[0].text.starts_with(
        "Restore in tomb raider folder the old original savegames?\r(Note"));
    EXPECT_EQ(world.boxes.shown[0].buttons, BoxButtons::kYesNo);
    EXPECT_EQ(world.boxes.shown.size(), time == 0 ? 2U : 1U) << "what the game saved, once";
    EXPECT_EQ(world.FilesIn("Game"), own);
    EXPECT_TRUE(world.program->play.ExaminedInGameFolder);
    EXPECT_EQ(world.program->catalogue.entries.back().SavegamePath, "T:\\Game\\savegame.3");
  }
  EXPECT_EQ(world.disk.Read("Program/rescued/1/savegame.0"), SavegameBytes("Played", 30));

  // A play after that finds the own slots in the backup, and what was saved since in no copy.
  world.AddSavegame("Game", 4, "Own", 40);
  world.Play({1});
  EXPECT_EQ(world.disk.Read("Program/rescued/2/savegame.4"), SavegameBytes("Own", 40, 4));
  EXPECT_EQ(world.program->catalogue.entries.back().SavegamePath, "T:\\Program\\temp\\savegame.3");
  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(world.FilesIn("Game"), own);
}

TEST(PlayTest, TheNextStartFindsTheBackupOnlyWhenItWasNotRestored) {
  PlayWorld world;
  const Files own = WithoutExecutable(world.FilesIn("Game"));
  world.Play();
  world.boxes.answers = {BoxAnswer::kYes};
  ShutDown(*world.program);
  EXPECT_TRUE(world.disk.Names("Program/temp").empty());
  world.boxes.shown.clear();
  world.Start();
  EXPECT_EQ(world.boxes.AllTexts().find("rescued"), std::string::npos) << world.boxes.AllTexts();

  world.Play();
  world.boxes.answers = {BoxAnswer::kNo};
  ShutDown(*world.program);
  EXPECT_EQ(world.disk.Read("Game/savegame.0"), world.disk.Read("Archive/Slot1/savegame.5"));
  world.boxes.shown.clear();
  world.Start();
  EXPECT_EQ(world.FilesIn("Program/rescued/1"), own);
  EXPECT_NE(world.boxes.AllTexts().find("rescued\\1"), std::string::npos);
}

TEST(PlayTest, StopsWhenAnOwnSlotCannotBePutAside) {
  PlayWorld world;
  const Files own = world.FilesIn("Game");
  world.files.FailAlways("Copy", "savegame.16", FileError::kDiskFull);
  world.Play();
  EXPECT_NE(world.boxes.AllTexts().find("\"T:\\Game\\savegame.16\": the disk is full"),
            std::string::npos);
  EXPECT_EQ(world.FilesIn("Game"), own);
  EXPECT_FALSE(world.program->play.ExaminedInGameFolder);
  EXPECT_EQ(world.program->catalogue.entries.back().SavegamePath, "t:\\game\\savegame.3");
  EXPECT_TRUE(world.shell.opened.empty());

  world.files.Reset();
  if (testing::DiskTellsCaseApart()) {
    world.disk.Write("Game/SAVEGAME.3", "the same name again");
    world.Play();
    EXPECT_NE(world.boxes.AllTexts().find("exists twice"), std::string::npos);
    EXPECT_EQ(world.disk.Read("Game/SAVEGAME.3"), "the same name again");
    std::filesystem::remove(world.disk.path() / "Game/SAVEGAME.3");
  }

  world.disk.MakeReadOnly("Game/savegame.3");
  world.Play();
  EXPECT_TRUE(world.boxes.shown.empty()) << world.boxes.AllTexts();
  EXPECT_EQ(world.FilesIn("Program/temp"), WithoutExecutable(own));
}

TEST(PlayTest, OffersTheRestoreWhenTheSlotsCouldNotBeFilled) {
  PlayWorld world;
  const Files own = world.FilesIn("Game");
  world.files.FailAlways("Copy", "slot2\\savegame.5", FileError::kInputOutput);
  world.Play();
  ASSERT_EQ(world.boxes.shown.size(), 2U);
  EXPECT_NE(world.boxes.shown[0].text.find("slot2\\savegame.5"), std::string::npos);
  EXPECT_EQ(world.FilesIn("Game"), own) << "restored by the default answer";
  EXPECT_TRUE(world.shell.opened.empty());
}

TEST(PlayTest, ABackupThatIsNotWholeIsNotRestoredUnlessTheUserDeletedOfIt) {
  PlayWorld world;
  world.Play();
  const Files examined = world.FilesIn("Game");
  std::filesystem::remove(world.disk.path() / "Program/temp/note3.txt");
  world.Restore(BoxAnswer::kYes);
  EXPECT_NE(world.boxes.AllTexts().find("\"T:\\Program\\temp\\note3.txt\""), std::string::npos);
  EXPECT_EQ(world.FilesIn("Game"), examined);

  ForgetBackedUp(*world.program, "t:\\program\\TEMP\\note3.txt");
  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(world.disk.Read("Game/savegame.3"), SavegameBytes("Own", 21, 3));
  EXPECT_FALSE(world.disk.Exists("Game/note3.txt"));
}

TEST(PlayTest, NothingIsPutOverASavegameThatCouldNotBeSetAside) {
  PlayWorld world;
  world.Play();
  const std::string saved = SavegameBytes("Played", 30);
  world.disk.Write("Game/savegame.0", saved);
  world.files.FailAlways("CreateFolder", "rescued", FileError::kDiskFull);
  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(world.disk.Read("Game/savegame.0"), saved);
  EXPECT_NE(world.boxes.AllTexts().find("\"T:\\Program\\temp\""), std::string::npos)
      << "where the own slots are";
  world.Play({1});
  EXPECT_EQ(world.disk.Read("Game/savegame.0"), saved);
  EXPECT_NE(world.boxes.AllTexts().find("\"T:\\Game\\savegame.0\""), std::string::npos);
}

// A second game folder with an archive of its own.
class TwoGamesTest : public ::testing::TestWithParam<BoxAnswer> {
 protected:
  TwoGamesTest() {
    world.AddSavegame("Other", 0, "Other own", 70);
    world.AddSavegame("Other", 9, "Other own", 71);
    ArchiveSettings settings = world.program->archive.settings;
    settings.GameFolder = "T:\\Other";
    world.disk.Write("Other.vmk", EncodeArchive(settings));
  }

  void LoadOther() {
    world.dialogs.answers = {"T:\\Other.vmk"};
    world.boxes.answers = {GetParam()};
    LoadArchive(*world.program);
  }

  PlayWorld world;
};

TEST_P(TwoGamesTest, LoseNeitherFoldersOwnSlots) {
  const Files own = world.FilesIn("Game");
  const Files other_own = world.FilesIn("Other");
  world.Play({0, 1});
  LoadOther();
  EXPECT_EQ(world.FilesIn("Other"), other_own);
  EXPECT_EQ(world.FilesIn("Game") == own, GetParam() == BoxAnswer::kYes);

  // Restoring again goes where the backup comes from.
  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(world.FilesIn("Game"), own);
  EXPECT_EQ(world.FilesIn("Other"), other_own);
  EXPECT_NE(world.boxes.AllTexts().find("restored in folder \"T:\\Game\""), std::string::npos);
}

TEST_P(TwoGamesTest, APlayInTheOtherBacksItUpAndKeepsTheFirstBackup) {
  const Files own = WithoutExecutable(world.FilesIn("Game"));
  const Files other_own = world.FilesIn("Other");
  world.Play({0, 1});
  LoadOther();
  world.Play({2});
  EXPECT_EQ(world.FilesIn("Program/temp"), other_own);
  EXPECT_EQ(world.disk.Names("Other"), (std::vector<std::string>{"savegame.0", "shot0.jpg"}));
  if (GetParam() == BoxAnswer::kYes) {
    EXPECT_EQ(WithoutExecutable(world.FilesIn("Game")), own);
    EXPECT_FALSE(world.disk.Exists("Program/rescued"));
  } else {
    EXPECT_EQ(world.FilesIn("Program/rescued/1"), own);
    EXPECT_NE(world.boxes.AllTexts().find("\"T:\\Program\\rescued\\1\""), std::string::npos);
  }
  EXPECT_EQ(world.program->catalogue.entries.back().LevelName, "Other own");

  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(world.FilesIn("Other"), other_own);
}

INSTANTIATE_TEST_SUITE_P(BothAnswers, TwoGamesTest,
                         ::testing::Values(BoxAnswer::kYes, BoxAnswer::kNo));

TEST(ExaminedEntryTest, HoldsAsLongAsSlotAndEntryAreThatSavegame) {
  PlayWorld world;
  world.Play({1, 2});
  EXPECT_EQ(ExaminedEntry(*world.program, 0), 1);
  EXPECT_EQ(ExaminedEntry(*world.program, 1), 2);
  EXPECT_EQ(ExaminedEntry(*world.program, 2), std::nullopt);
  EXPECT_EQ(ExaminedEntry(*world.program, -1), std::nullopt);

  SavegameChanges changes{.index = 1, .counter = "500"};
  ApplySavegameChanges(*world.program, changes);
  EXPECT_EQ(ExaminedEntry(*world.program, 0), 1) << "its counter was edited";
  ScanArchive(*world.program);
  EXPECT_EQ(ExaminedEntry(*world.program, 0), 1);

  world.disk.Write("Game/savegame.1", SavegameBytes("Played", 30));
  EXPECT_EQ(ExaminedEntry(*world.program, 1), std::nullopt) << "the game has saved over it";
  world.AddSavegame("Archive/Slot1", 0, "New first", 1);
  ScanArchive(*world.program);
  EXPECT_EQ(ExaminedEntry(*world.program, 0), std::nullopt) << "another entry has that index";
  std::filesystem::remove(world.disk.path() / "Archive/Slot1/savegame.0");
  ScanArchive(*world.program);
  EXPECT_EQ(ExaminedEntry(*world.program, 0), 1);
  world.AddSavegame("Archive/Slot2", 5, "Replaced", 11);
  EXPECT_EQ(ExaminedEntry(*world.program, 0), std::nullopt) << "the archive holds another now";

  world.Play({0});
  EXPECT_EQ(ExaminedEntry(*world.program, 0), 0);
  world.Restore(BoxAnswer::kYes);
  EXPECT_EQ(ExaminedEntry(*world.program, 0), std::nullopt) << "restored";
}

TEST(RunningGameTest, IsFoundByItsExactTitleAndActivatedInsteadOfStarted) {
  PlayWorld world;
  world.desktop.open = {{1, ""},
                        {2, "About Tomb Raider - The Last Revelation"},
                        {3, "TOMB RAIDER - the last revelation"}};
  StartGame(*world.program);
  EXPECT_EQ(world.desktop.activated, std::vector<WindowHandle>{3});
  EXPECT_EQ(world.desktop.entered, std::vector<WindowHandle>{3});
  EXPECT_TRUE(world.shell.opened.empty());
  EXPECT_TRUE(world.program->capture.CaptureArmed);
  EXPECT_EQ(world.program->play.WindowList.size(), 2U);
  EXPECT_EQ(world.files.CurrentFolder(), "T:\\Game");
  std::string title = "the last";
  EXPECT_EQ(FindWindowByTitle(*world.program, title, true), 2U);
  EXPECT_EQ(title, "About Tomb Raider - The Last Revelation");

  world.desktop.answer = Activation::kNotOurTurn;
  EXPECT_TRUE(ActivateRunningGame(*world.program));
  EXPECT_EQ(world.desktop.entered.size(), 1U) << "no key without the focus";
  world.desktop.answer = Activation::kFailed;
  StartGame(*world.program);
  EXPECT_EQ(world.shell.opened.size(), 1U);
}

TEST(RunningGameTest, OnlyTheGameItselfIsStarted) {
  PlayWorld world;
  world.program->archive.settings.GameExecutable = "T:\\Game\\setup.exe ";
  EXPECT_TRUE(ActivateRunningGame(*world.program));
  StartGame(*world.program);
  EXPECT_TRUE(world.shell.opened.empty());
  world.program->archive.settings.GameExecutable = "T:\\Game\\TOMB4.EXE ";
  world.boxes.shown.clear();
  world.shell.answer = false;
  world.shell.missing = "Wine";
  StartGame(*world.program);
  StartGame(*world.program);
  EXPECT_EQ(world.shell.opened.size(), 2U);
  ASSERT_EQ(world.boxes.shown.size(), 1U) << "told once";
  EXPECT_NE(world.boxes.shown[0].text.find("needs Wine"), std::string::npos);
  world.shell.missing.clear();
  world.disk.Write("Other/tomb4.exe", "MZ");
  for (const auto& [executable, why] :
       {std::pair("T:\\Game\\Tomb4.exe", "this file is no program"),
        std::pair("T:\\Other\\tomb4.exe", "could not be started")}) {
    world.program->archive.settings.GameExecutable = executable;
    StartGame(*world.program);
    EXPECT_NE(world.boxes.shown.back().text.find(why), std::string::npos);
  }
}

// Every savegame and picture of the archive and of the own slots, and what the game saved.
void ExpectNothingLost(const Files& before, const PlayWorld& world, const std::string& when) {
  std::set<std::string> contents;
  for (const auto& [name, bytes] : world.disk.AllFiles()) contents.insert(bytes);
  for (const auto& [name, bytes] : before) {
    if (!name.starts_with("Archive/") && !name.starts_with("Game/")) continue;
    EXPECT_TRUE(contents.contains(bytes)) << name << " is lost " << when;
  }
}

// A play, a save by the game, a play in which that must be set aside, and the restore.
void PlayTwice(PlayWorld& world, Files& before) {
  before = world.disk.AllFiles();
  world.Play({0, 1});
  if (world.program->play.ExaminedInGameFolder) {
    world.disk.Write("Game/savegame.1", SavegameBytes("Played", 30));
    before["Game/saved by the game"] = SavegameBytes("Played", 30);
  }
  world.Play({2});
  world.boxes.answers = {BoxAnswer::kYes};
  ShutDown(*world.program);
}

TEST(PlayTest, AFailureOfAnyCallLosesNothing) {
  for (int call = 1;; ++call) {
    PlayWorld world;
    Files before;
    world.files.FailCall(call, FileError::kInputOutput);
    const int calls_before = world.files.calls();
    PlayTwice(world, before);
    if (world.files.calls() - calls_before < call) break;
    const std::string when = "after call " + std::to_string(call) + " failed";
    ExpectNothingLost(before, world, when);
    world.files.Reset();
    world.Start();
    ExpectNothingLost(before, world, when + ", at the next start");
  }
}

TEST(PlayTest, DyingAtAnyCallLosesNothing) {
  for (int call = 1;; ++call) {
    PlayWorld world;
    Files before;
    world.files.KillAtCall(call, false);
    try {
      PlayTwice(world, before);
      break;
    } catch (const Killed&) {
    }
    const std::string when = "after dying at call " + std::to_string(call);
    ExpectNothingLost(before, world, when);
    world.files.Reset();
    world.Start();
    ExpectNothingLost(before, world, when + ", at the next start");
  }
}

}  // namespace
}  // namespace vellumark
