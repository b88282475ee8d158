#include "game/play.h"

#include <gtest/gtest.h>

#include <functional>

#include "archive/archive_file.h"
#include "archive/scan.h"
#include "game/executable_kind.h"
#include "game/restore.h"
#include "game/running_game.h"
#include "game/slot_contents.h"
#include "maintenance/copy_move.h"
#include "savegames/backup_list.h"
#include "savegames/details.h"
#include "savegames/savegame_properties.h"
#include "session/archive_commands.h"
#include "session/session_end.h"
#include "session/shut_down.h"
#include "session/start_up.h"
#include "support/every_call.h"
#include "support/expectations.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using std::string_literals::operator""s;
using testing::Contains;
using testing::Files;
using testing::SavegameBytes;

// An archive of three sub-folders and a game folder with the player's own slots, among them files
// that no slot number leads to.
class PlayWorld : public testing::TestWorld {
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
    own = InGame();
    WriteArchiveFile();
    WritePreferences();
    Start();
  }

  // What is in a folder besides what the program writes down about it.
  Files SlotsIn(const std::string& folder) const {
    Files slots = disk.AllFiles(folder);
    slots.erase("backup.txt");
    slots.erase("rescued.txt");
    return slots;
  }

  // What is in the game folder besides the game.
  Files InGame() const {
    Files slots = disk.AllFiles("Game");
    EXPECT_EQ(slots.erase("tomb4.exe"), 1U);
    return slots;
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
    boxes.answers = {answer, BoxAnswer::kNo};  // what the game saved is not archived
    RestoreOriginalSavegames(*program);
  }

  std::optional<Program> program;
  Files own;  // the player's own slots
};

class PlayTest : public ::testing::Test, public PlayWorld {};
using ExaminedEntryTest = PlayTest;
using RunningGameTest = PlayTest;

TEST_F(PlayTest, PutsTheOwnSlotsAsideAndTheSelectedSavegamesIntoTheSlots) {
  const Files archive = disk.AllFiles();
  clipboard.Put("older picture");
  Play({0, 1, 2});

  EXPECT_TRUE(boxes.shown.empty()) << boxes.AllTexts();
  EXPECT_EQ(SlotsIn("Program/temp"), own);
  EXPECT_EQ(InGame(), (Files{{"savegame.0", archive.at("Archive/Slot1/savegame.5")},
                             {"note0.txt", archive.at("Archive/Slot1/note5.txt")},
                             {"shot0.jpg", "north picture"},
                             {"savegame.1", archive.at("Archive/Slot2/savegame.5")},
                             {"savegame.2", archive.at("Archive/Slot3/savegame.2")},
                             {"shot2.jpg", "east picture"}}));
  const PlayState& play = program->play;
  EXPECT_TRUE(play.ExaminedInGameFolder);
  EXPECT_EQ(play.ExaminedList, (std::vector<std::int16_t>{0, 1, 2}));
  EXPECT_EQ(program->catalogue.entries.back().SavegamePath, "T:\\Program\\temp\\savegame.3");
  EXPECT_EQ(clipboard.content, nullptr);
  EXPECT_TRUE(program->capture.CaptureArmed);
  ASSERT_EQ(shell.opened.size(), 1U);
  EXPECT_EQ(shell.opened[0].document, files.HostPath("T:\\Game\\tomb4.exe"));
  EXPECT_EQ(shell.opened[0].working_folder, files.HostPath("T:\\Game"));
}

TEST_F(PlayTest, RefusesBeforeAnyFileIsTouched) {
  const Files before = disk.AllFiles();
  const auto refusal = [&](std::vector<int> lines) {
    Play(std::move(lines));
    EXPECT_EQ(disk.AllFiles(), before);
    EXPECT_FALSE(program->play.ExaminedInGameFolder);
    EXPECT_TRUE(shell.opened.empty());
    return boxes.AllTexts();
  };
  EXPECT_TRUE(refusal({0, 1, 3}).starts_with("Warning: any selected savegames are yet in"));
  EXPECT_TRUE(refusal({}).starts_with("Warning: No selected savegames.\r\nIf you want"));

  ArchiveSettings& settings = program->archive.settings;
  settings.MaxSavegame = 2;
  EXPECT_EQ(refusal({0, 1, 2}), "You can not play more of 2 savegames at once\n");
  settings.MaxSavegame = 15;
  settings.GameFolder = "";
  EXPECT_NE(refusal({0}), "");
  settings.GameFolder = "T:\\Program\\temp";
  EXPECT_TRUE(Contains(refusal({0}), "keeps the backup"));
}

TEST_F(PlayTest, RefusesASavegameThatLiesInTheGameFolderByAnotherPath) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  namespace fs = std::filesystem;
  fs::create_directory_symlink(disk.path() / "Game", disk.path() / "Archive/Slot4");
  ScanArchive(*program);
  const Files before = disk.AllFiles();
  Play({0, 3});
  EXPECT_TRUE(Contains(boxes.AllTexts(), "\"t:\\archive\\slot4\\savegame.0\""));
  EXPECT_EQ(disk.AllFiles(), before);

  disk.Remove({"Archive/Slot4", "Archive/Slot1/savegame.5"});
  fs::create_symlink(disk.path() / "Game/savegame.3", disk.path() / "Archive/Slot1/savegame.5");
  ScanArchive(*program);
  Play({0});
  EXPECT_TRUE(Contains(boxes.AllTexts(), "\"t:\\archive\\slot1\\savegame.5\""));
  EXPECT_FALSE(program->play.ExaminedInGameFolder);
}

TEST_F(PlayTest, ASecondPlayKeepsTheBackupAndSetsAsideWhatTheGameSaved) {
  Play({0, 1});
  const Files backup = SlotsIn("Program/temp");
  const std::string saved = SavegameBytes("Played", 30);
  disk.Write("Game/savegame.1", saved);
  disk.Write("Game/savegame.7", saved + "7");
  disk.Write("Game/shot7.jpg", "new picture");
  Play({2});

  EXPECT_EQ(SlotsIn("Program/temp"), backup);
  EXPECT_EQ(disk.Listed("Game"), "savegame.0|shot0.jpg|tomb4.exe|");
  EXPECT_EQ(
      SlotsIn("Program/rescued/1"),
      (Files{{"savegame.1", saved}, {"savegame.7", saved + "7"}, {"shot7.jpg", "new picture"}}));
  EXPECT_TRUE(Contains(boxes.AllTexts(), "\"T:\\Program\\rescued\\1\""));
  EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(PlayTest, ASavegameThatIsMovedIntoTheGameFolderOutlivesTheRestore) {
  for (const bool beside_its_equal : {true, false}) {
    SCOPED_TRACE(beside_its_equal);
    PlayWorld world;
    const Files before = world.disk.AllFiles();
    world.Play({0});
    world.program->chooser.savegames = FilesOf(world.program->catalogue, {0});
    // The answers renumber it and keep what is there, or let its equal go.
    world.boxes.answers = {BoxAnswer::kYes, beside_its_equal ? BoxAnswer::kYes : BoxAnswer::kNo};
    CopyOrMoveInto(*world.program, "T:\\Game", CopyMode::kMove);
    EXPECT_FALSE(world.disk.Exists("Archive/Slot1/savegame.5"));
    if (beside_its_equal) world.disk.Write("Game/savegame.1", "saved over by the game");
    world.Restore(BoxAnswer::kYes);
    EXPECT_TRUE(Contains(world.boxes.AllTexts(), "T:\\Program\\rescued\\1"));
    testing::ExpectNothingLost(before, world.disk);
  }
}

TEST_F(PlayTest, RestoresAndSetsAsideSlotsThatAreLinks) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  namespace fs = std::filesystem;
  const fs::path game = disk.path() / "Game";
  const auto make_link = [&](const char* name) {
    fs::rename(game / name, disk.path() / "Program" / name);
    fs::create_symlink(fs::path("../Program") / name, game / name);
  };
  make_link("savegame.3");
  Play({0});
  disk.Write("Game/savegame.7", SavegameBytes("Played", 30));
  make_link("savegame.7");
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(InGame(), own);
  EXPECT_EQ(disk.Read("Program/rescued/1/savegame.7"), SavegameBytes("Played", 30));
}

TEST_F(PlayTest, RestoresTheOwnSlotsAsOftenAsAsked) {
  Play();
  disk.Write("Game/savegame.0", SavegameBytes("Played", 30));
  for (int time = 0; time < 2; ++time) {
    Restore(BoxAnswer::kYes);
    EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kYesNo);
    EXPECT_EQ(boxes.shown.size(), time == 0 ? 2U : 1U) << "what the game saved, once";
    EXPECT_EQ(InGame(), own);
    EXPECT_TRUE(program->play.ExaminedInGameFolder);
    EXPECT_EQ(program->catalogue.entries.back().SavegamePath, "T:\\Game\\savegame.3");
  }
  EXPECT_EQ(disk.Read("Program/rescued/1/savegame.0"), SavegameBytes("Played", 30));

  // A play after that finds the own slots in the backup, and what was saved since in no copy.
  AddSavegame("Game", 4, "Own", 40);
  Play({1});
  EXPECT_EQ(disk.Read("Program/rescued/2/savegame.4"), SavegameBytes("Own", 40, 4));
  EXPECT_EQ(program->catalogue.entries.back().SavegamePath, "T:\\Program\\temp\\savegame.3");
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(InGame(), own);
}

TEST_F(PlayTest, TheNextStartFindsTheBackupOnlyWhenItWasNotRestored) {
  Play();
  boxes.answers = {BoxAnswer::kYes};
  ShutDown(*program);
  EXPECT_EQ(disk.Listed("Program/temp"), "");
  boxes.shown.clear();
  Start();
  EXPECT_EQ(boxes.AllTexts().find("rescued"), std::string::npos) << boxes.AllTexts();

  Play();
  boxes.answers = {BoxAnswer::kNo};
  ShutDown(*program);
  EXPECT_EQ(disk.Read("Game/savegame.0"), disk.Read("Archive/Slot1/savegame.5"));
  boxes.shown.clear();
  Start();
  EXPECT_EQ(SlotsIn("Program/rescued/1"), own);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "rescued\\1"));
}

// A run that is killed during a play.
TEST_F(PlayTest, TheStartAfterAnEndedRunOffersTheOwnSlots) {
  for (const BoxAnswer answer : {BoxAnswer::kYes, BoxAnswer::kNo}) {
    SCOPED_TRACE(answer == BoxAnswer::kYes);
    PlayWorld world;
    world.Play();
    const std::string saved = SavegameBytes("Played", 30);
    world.disk.Write("Game/savegame.1", saved);
    world.boxes.shown.clear();
    world.program.emplace(world.NewProgram());
    const bool yes = answer == BoxAnswer::kYes;
    world.boxes.answers = {answer, yes ? BoxAnswer::kYes : BoxAnswer::kNo, BoxAnswer::kNo};
    StartUp(*world.program);
    EXPECT_TRUE(Contains(world.boxes.shown[0].text, "\"T:\\Game\"")) << world.boxes.AllTexts();
    EXPECT_EQ(world.disk.Listed("Program/temp"), "");
    if (answer == BoxAnswer::kNo) {
      EXPECT_EQ(world.SlotsIn("Program/rescued/1"), world.own);
      EXPECT_EQ(world.disk.Read("Game/savegame.1"), saved);
      continue;
    }
    EXPECT_EQ(world.InGame(), world.own);
    // What the game saved, and nothing that the play had put there, went into the archive.
    EXPECT_EQ(world.disk.Read("Archive/Slot4/savegame.1"), saved);
    EXPECT_EQ(world.disk.Names("Archive/Slot4").size(), 1U);
    EXPECT_TRUE(Contains(world.disk.Read("Archive/info.txt"), "SLOT4"));
    EXPECT_EQ(world.disk.Listed("Program/rescued"), "");
    EXPECT_EQ(world.program->catalogue.entries.size(), 6U);
  }
}

TEST_F(PlayTest, AnEndedRunIsOfferedOnlyWhatIsWhole) {
  Play();
  const std::string label = disk.Read("Program/temp/backup.txt");
  Restore(BoxAnswer::kYes);
  boxes.shown.clear();
  Start();
  EXPECT_EQ(boxes.shown.size(), 1U) << "beside the import's question: " << boxes.AllTexts();
  EXPECT_EQ(disk.Listed("Program/temp"), "");

  for (const std::size_t length : {label.size() - 120, std::size_t{20}}) {
    disk.Write("Program/temp/savegame.3", "own");
    disk.Write("Program/temp/backup.txt", label.substr(0, length));
    boxes.shown.clear();
    Start();
    EXPECT_TRUE(Contains(boxes.AllTexts(), "They have been moved")) << boxes.AllTexts();
    EXPECT_EQ(disk.Listed("Program/temp"), "");
    EXPECT_EQ(InGame(), own);
  }
}

// Whatever fails or ends the program while the slots of an ended run come back, nothing is lost.
TEST(EndedRunTest, AnyCallMayFailOrBeTheLast) {
  struct World : PlayWorld {
    World() {
      Play();
      disk.Write("Game/savegame.1", SavegameBytes("Played", 30));
      before = disk.AllFiles();
      before.erase("Program/temp/backup.txt");
      files.Reset();
    }
    Files before;
  };
  const auto start = [](World& world) {
    world.program.emplace(world.NewProgram());
    world.boxes.answers.assign(9, BoxAnswer::kYes);
    StartUp(*world.program);
  };
  const auto check = [](World& world) { testing::ExpectNothingLost(world.before, world.disk); };
  testing::FailEveryCall<World>(FileError::kDiskFull, start, check);
  testing::DieAtEveryCall<World>(start, check);
}

TEST_F(PlayTest, ARefusedPlayLeavesNothing) {
  for (const char* operation : {"Rename", "Delete"}) {
    for (const auto& [name, bytes] : own) {
      files.FailAlways(operation, "Game\\" + name, FileError::kAccessDenied);
    }
  }
  Play();
  EXPECT_EQ(InGame(), own);
  EXPECT_EQ(disk.Listed("Program/temp"), "");
  EXPECT_FALSE(program->play.ExaminedInGameFolder);
}

TEST_F(PlayTest, StopsWhenAnOwnSlotCannotBePutAside) {
  files.FailAlways("Copy", "savegame.16", FileError::kDiskFull);
  Play();
  EXPECT_TRUE(
      Contains(boxes.AllTexts(), "is full (when writing \"T:\\Program\\temp\\savegame.16\")"));
  EXPECT_EQ(InGame(), own);
  EXPECT_FALSE(program->play.ExaminedInGameFolder);
  EXPECT_EQ(program->catalogue.entries.back().SavegamePath, "t:\\game\\savegame.3");
  EXPECT_TRUE(shell.opened.empty());

  files.Reset();
  if (testing::DiskTellsCaseApart()) {
    disk.Write("Game/SAVEGAME.3", "the same name again");
    Play();
    EXPECT_TRUE(Contains(boxes.AllTexts(), "exists twice"));
    EXPECT_EQ(disk.Read("Game/SAVEGAME.3"), "the same name again");
    disk.Remove({"Game/SAVEGAME.3"});
  }

  disk.MakeReadOnly("Game/savegame.3");
  Play();
  EXPECT_TRUE(boxes.shown.empty()) << boxes.AllTexts();
  EXPECT_EQ(SlotsIn("Program/temp"), own);
}

TEST_F(PlayTest, OffersTheRestoreWhenTheSlotsCouldNotBeFilled) {
  files.FailAlways("Copy", "slot2\\savegame.5", FileError::kInputOutput);
  Play();
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(Contains(boxes.shown[0].text, "slot2\\savegame.5"));
  EXPECT_EQ(InGame(), own) << "restored by the default answer";
  EXPECT_TRUE(shell.opened.empty());
}

TEST_F(PlayTest, AnOwnSlotThatCannotBePutBackIsNamedAndStaysInTheBackup) {
  Play();
  files.FailAlways("Copy", "temp\\savegame.3", FileError::kDiskFull);
  Restore(BoxAnswer::kYes);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "\"T:\\Game\\savegame.3\"")) << boxes.AllTexts();
  EXPECT_EQ(SlotsIn("Program/temp"), own);
  files.Reset();
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(InGame(), own);
}

TEST_F(PlayTest, ABackupThatIsNotWholeIsNotRestoredUnlessTheUserDeletedOfIt) {
  Play();
  const Files examined = disk.AllFiles("Game");
  disk.Remove({"Program/temp/note3.txt"});
  Restore(BoxAnswer::kYes);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "\"T:\\Program\\temp\\note3.txt\""));
  EXPECT_EQ(disk.AllFiles("Game"), examined);

  ForgetBackedUp(*program, "t:\\program\\TEMP\\note3.txt");
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(disk.Read("Game/savegame.3"), SavegameBytes("Own", 21, 3));
  EXPECT_FALSE(disk.Exists("Game/note3.txt"));
}

TEST_F(PlayTest, WhenTheSessionEndsHalfwayTheOwnSlotsAreInTheBackup) {
  windows.ends_after_painting = 2;
  Play();
  EXPECT_EQ(disk.Listed("Game"), "note0.txt|savegame.0|shot0.jpg|tomb4.exe|");
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_TRUE(EndSession(*program));
  EXPECT_EQ(boxes.AllTexts(), "");
  EXPECT_EQ(SlotsIn("Program/temp"), own);
}

TEST_F(PlayTest, NothingIsPutOverASavegameThatCouldNotBeSetAside) {
  Play();
  const std::string saved = SavegameBytes("Played", 30);
  disk.Write("Game/savegame.0", saved);
  files.FailAlways("CreateFolder", "rescued", FileError::kDiskFull);
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(disk.Read("Game/savegame.0"), saved);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "\"T:\\Program\\temp\"")) << "where the own slots are";
}

// A second game folder with an archive of its own.
class TwoGamesTest : public ::testing::TestWithParam<BoxAnswer>, public PlayWorld {
 protected:
  TwoGamesTest() {
    AddSavegame("Other", 0, "Other own", 70);
    AddSavegame("Other", 9, "Other own", 71);
    ArchiveSettings settings = program->archive.settings;
    settings.GameFolder = "T:\\Other";
    disk.Write("Other.vmk", EncodeArchive(settings));
    other_own = disk.AllFiles("Other");
  }

  void LoadOther() {
    dialogs.answers = {"T:\\Other.vmk"};
    boxes.answers = {GetParam()};
    LoadArchive(*program);
  }

  Files other_own;
};

TEST_P(TwoGamesTest, LoseNeitherFoldersOwnSlots) {
  Play({0, 1});
  LoadOther();
  EXPECT_EQ(disk.AllFiles("Other"), other_own);
  EXPECT_EQ(InGame() == own, GetParam() == BoxAnswer::kYes);

  // Restoring again goes where the backup comes from.
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(InGame(), own);
  EXPECT_EQ(disk.AllFiles("Other"), other_own);
  EXPECT_TRUE(Contains(boxes.AllTexts(), "restored in folder \"T:\\Game\""));
}

TEST_P(TwoGamesTest, APlayInTheOtherBacksItUpAndKeepsTheFirstBackup) {
  Play({0, 1});
  LoadOther();
  Play({2});
  EXPECT_EQ(SlotsIn("Program/temp"), other_own);
  EXPECT_EQ(disk.Listed("Other"), "savegame.0|shot0.jpg|");
  if (GetParam() == BoxAnswer::kYes) {
    EXPECT_EQ(InGame(), own);
    EXPECT_FALSE(disk.Exists("Program/rescued"));
  } else {
    EXPECT_EQ(SlotsIn("Program/rescued/1"), own);
    EXPECT_TRUE(Contains(boxes.AllTexts(), "\"T:\\Program\\rescued\\1\""));
  }
  EXPECT_EQ(program->catalogue.entries.back().LevelName, "Other own");

  Restore(BoxAnswer::kYes);
  EXPECT_EQ(disk.AllFiles("Other"), other_own);
}

INSTANTIATE_TEST_SUITE_P(BothAnswers, TwoGamesTest,
                         ::testing::Values(BoxAnswer::kYes, BoxAnswer::kNo));

TEST_F(ExaminedEntryTest, HoldsAsLongAsSlotAndEntryAreThatSavegame) {
  Play({1, 2});
  EXPECT_EQ(ExaminedEntry(*program, 0), 1);
  EXPECT_EQ(ExaminedEntry(*program, 1), 2);
  EXPECT_EQ(ExaminedEntry(*program, 2), std::nullopt);
  EXPECT_EQ(ExaminedEntry(*program, -1), std::nullopt);

  ApplySavegameChanges(*program, {.index = 1, .counter = "500"});
  EXPECT_EQ(ExaminedEntry(*program, 0), 1) << "its counter was edited";
  ScanArchive(*program);
  EXPECT_EQ(ExaminedEntry(*program, 0), 1);

  disk.Write("Game/savegame.1", SavegameBytes("Played", 30));
  EXPECT_EQ(ExaminedEntry(*program, 1), std::nullopt) << "the game has saved over it";
  AddSavegame("Archive/Slot1", 0, "New first", 1);
  ScanArchive(*program);
  EXPECT_EQ(ExaminedEntry(*program, 0), 2) << "its index has changed, not its file";
  disk.Remove({"Archive/Slot1/savegame.0"});
  ScanArchive(*program);
  AddSavegame("Archive/Slot2", 5, "Replaced", 11);
  EXPECT_EQ(ExaminedEntry(*program, 0), std::nullopt) << "the archive holds another now";

  Play({0});
  EXPECT_EQ(ExaminedEntry(*program, 0), 0);
  Restore(BoxAnswer::kYes);
  EXPECT_EQ(ExaminedEntry(*program, 0), std::nullopt) << "restored";
}

TEST_F(RunningGameTest, IsFoundByItsExactTitleAndActivatedInsteadOfStarted) {
  desktop.open = {{1, ""},
                  {2, "About Tomb Raider - The Last Revelation"},
                  {3, std::string("TOMB RAIDER - the last revelation") + '\0' + "rest"}};
  StartGame(*program);
  EXPECT_EQ(desktop.activated, std::vector<WindowHandle>{3});
  EXPECT_EQ(desktop.entered, std::vector<WindowHandle>{3});
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_TRUE(program->capture.CaptureArmed);
  EXPECT_EQ(program->play.WindowList.size(), 2U);
  EXPECT_EQ(files.CurrentFolder(), "T:\\Game");
  std::string title = "the last";
  EXPECT_EQ(FindWindowByTitle(*program, title, true), 2U);
  EXPECT_EQ(title, "About Tomb Raider - The Last Revelation");

  desktop.answer = Activation::kNotOurTurn;
  EXPECT_TRUE(ActivateRunningGame(*program));
  EXPECT_EQ(desktop.entered.size(), 1U) << "no key without the focus";
  desktop.answer = Activation::kFailed;
  StartGame(*program);
  EXPECT_EQ(shell.opened.size(), 1U);
}

TEST_F(RunningGameTest, OnlyTheGameItselfIsStarted) {
  program->archive.settings.GameExecutable = "T:\\Game\\setup.exe ";
  EXPECT_TRUE(ActivateRunningGame(*program));
  StartGame(*program);
  EXPECT_TRUE(shell.opened.empty());
  program->archive.settings.GameExecutable = "T:\\Game\\TOMB4.EXE ";
  StartGame(*program);
  EXPECT_EQ(shell.opened.size(), 1U);
}

// The beginning of a program for Windows, whose header stands at `at`.
std::string WindowsProgram(const std::string& machine, char at = 0x40) {
  std::string bytes = "MZ" + std::string(0x3A, '\1') + at + std::string(3, '\0');
  return bytes + std::string("PE\0\0", 4) + machine + std::string(16, '\0');
}

TEST_F(RunningGameTest, TheProgramsHeaderIsTrustedInNothing) {
  using enum ProgramKind;
  const std::string program32 = WindowsProgram("\x4C\x01");
  EXPECT_EQ(KindOfProgram(program32, true), kWindows32);
  EXPECT_EQ(KindOfProgram(WindowsProgram("\x64\x86"), true), kWindows);
  EXPECT_EQ(KindOfProgram("\177ELF", true), kForeign);
  EXPECT_EQ(KindOfProgram("", true), kForeign);
  EXPECT_EQ(KindOfProgram("MZ" + std::string(0x3A, '\0') + "\x40\0\0\0NE"s, true), kWindows);
  for (const char at : {'\0', '\x3C', '\x41', '\x5A', '\xFF'}) {
    EXPECT_EQ(KindOfProgram(WindowsProgram("\x4C\x01", at), true), kBroken);
  }
  EXPECT_EQ(KindOfProgram("MZ" + std::string(0x3A, '\0') + "\xFF\xFF\xFF\xFF"s, false), kWindows);
  for (std::size_t size = 2; size < 0x46; ++size) {
    EXPECT_EQ(KindOfProgram(program32.substr(0, size), true), kBroken) << size;
  }
}

TEST_F(RunningGameTest, WhyItDoesNotStartIsTold) {
  const auto start = [this](const std::string& bytes) {
    disk.Write("Game/tomb4.exe", bytes);
    boxes.shown.clear();
    StartGame(*program);
    EXPECT_EQ(boxes.AllTexts().find("in its slots"), std::string::npos) << "nothing was played";
    return boxes.AllTexts();
  };
  const std::string program32 = WindowsProgram("\x4C\x01");
  shell.missing = {MissingPart::Kind::kWineFor32Bit, "wine32:i386"};
  EXPECT_TRUE(Contains(start(program32), "a 32-bit program, and the Wine of this computer"));
  EXPECT_EQ(start(program32), "") << "told once";
  EXPECT_TRUE(Contains(start("MZ"), "this file is no program"));
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_EQ(start(WindowsProgram("\x64\x86")), "");
  EXPECT_TRUE(Contains(start(program32), "install the package wine32:i386")) << "it was started";
  shell.missing = {MissingPart::Kind::kWine};
  EXPECT_TRUE(Contains(start(program32), "needs Wine"));
  EXPECT_EQ(shell.opened.size(), 1U);

  shell.missing = {};
  shell.answer = false;
  shell.started.last_words = "Not \xE2\x82\xAC\nnow";
  EXPECT_TRUE(
      Contains(start("text"), "this file is no program.\r\nThe last words about it: Not \x80 now"));
  EXPECT_TRUE(Contains(start(program32), "the system has refused it"));
  disk.Remove({"Game/tomb4.exe"});
  StartGame(*program);
  EXPECT_TRUE(Contains(boxes.shown.back().text, "it does not exist"));
  disk.MakeFolder("Game/tomb4.exe");
  StartGame(*program);
  EXPECT_TRUE(Contains(boxes.shown.back().text, "it is a folder"));
}

TEST_F(RunningGameTest, AStartThatEndsAtOnceIsTold) {
  const auto told_in = [this](int ticks) {
    boxes.shown.clear();
    for (int i = 0; i < ticks; ++i) WatchGameStart(*program);
    return boxes.AllTexts();
  };
  StartGame(*program);
  EXPECT_EQ(told_in(9), "");
  shell.started = {true, 0xC0000135, "it lacks a library"};
  EXPECT_TRUE(Contains(told_in(9),
                       "with error 0xc0000135.\r\nThe last words about it: it lacks a library\n"));
  EXPECT_EQ(boxes.shown.size(), 1U);

  shell.started = {true, 0, ""};
  StartGame(*program);
  EXPECT_EQ(told_in(1), "") << "it has started another program";
  shell.started = {};
  StartGame(*program);
  desktop.open = {{1, "Tomb Raider - The Last Revelation"}};
  EXPECT_EQ(told_in(1), "");
  desktop.open.clear();
  shell.started = {true, 1, "it was played and left"};
  EXPECT_EQ(told_in(1), "");
  shell.started = {};
  Play({0});
  EXPECT_EQ(told_in(100), "");
  shell.started = {true, 1, "it crashed later"};
  EXPECT_EQ(told_in(100), "");
  Play({0});
  EXPECT_TRUE(Contains(told_in(1), "it crashed later\r\nThe savegames are in its slots."));
}

// A play, a save by the game, a play in which that must be set aside, and the restore.
class TwicePlayed : public PlayWorld {
 public:
  void Run() {
    Play({0, 1});
    if (program->play.ExaminedInGameFolder) {
      disk.Write("Game/savegame.1", SavegameBytes("Played", 30));
      precious["saved by the game"] = SavegameBytes("Played", 30);
    }
    Play({2});
    boxes.answers = {BoxAnswer::kYes};
    ShutDown(*program);
  }

  void CheckNowAndAtTheNextStart() {
    ExpectNothingLost(precious, disk);
    files.Reset();
    Start();
    ExpectNothingLost(precious, disk);
  }

 private:
  Files Precious() const {
    Files all = disk.AllFiles("Archive");
    all.merge(disk.AllFiles("Game"));
    return all;
  }

  // Every savegame and picture of the archive and of the own slots, and what the game saved.
  Files precious = Precious();
};

TEST(TwicePlayedTest, AFailureOfAnyCallLosesNothing) {
  testing::FailEveryCall<TwicePlayed>(FileError::kInputOutput, std::mem_fn(&TwicePlayed::Run),
                                      std::mem_fn(&TwicePlayed::CheckNowAndAtTheNextStart));
}

TEST(TwicePlayedTest, DyingAtAnyCallLosesNothing) {
  testing::DieAtEveryCall<TwicePlayed>(std::mem_fn(&TwicePlayed::Run),
                                       std::mem_fn(&TwicePlayed::CheckNowAndAtTheNextStart));
}

}  // namespace
}  // namespace vellumark
