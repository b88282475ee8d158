#include "maintenance/copy_move.h"

#include <gtest/gtest.h>

#include <set>

#include "archive/scan.h"
#include "maintenance/folder_chooser.h"
#include "support/test_drives.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

namespace fs = std::filesystem;
using testing::Killed;
using testing::SavegameBytes;
using testing::TestWorld;

// An archive of two sub-folders, the same slot in both, and a chooser in which the user takes one
// folder.
class CopyMoveWorld : public TestWorld {
 public:
  CopyMoveWorld() {
    AddSavegame("Archive/Slot1", 0, "Zero", 1);
    AddSavegame("Archive/Slot1", 3, "Three", 2);
    AddSavegame("Archive/Slot2", 3, "Other", 3);
    disk.Write("Archive/Slot1/note3.txt", "note three\r\n");
    disk.Write("Archive/Slot1/shot3.jpg", "shot three");
    disk.Write("Archive/Slot2/note3.txt", "note other\r\n");
    disk.MakeFolder("Target");
    program.archive.settings = {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
    program.preferences.SoundEffects = true;
    ScanArchive(program);
    program.archive.ArchiveChanged = false;
    windows.in_dialog = [this](WindowId dialog) {
      ASSERT_EQ(dialog, WindowId::kDialogGetDir);
      OpenChooser(program);
      if (in_chooser) in_chooser();
      taken = TakeFolder(program, folder);
    };
    boxes.shown.clear();
    sounds.played.clear();
    files.Reset();
  }

  // Runs the command on these lines, the user taking this folder and giving these answers.
  void Run(void (*command)(Program&), std::vector<std::int16_t> lines, const std::string& target,
           std::deque<BoxAnswer> answers) {
    program.selection.indices = std::move(lines);
    folder = target;
    boxes.answers = std::move(answers);
    boxes.shown.clear();
    command(program);
  }

  std::string Target(const std::string& name) const { return disk.Read("Target/" + name); }

  Program program = NewProgram();
  std::string folder;
  bool taken = false;
  std::function<void()> in_chooser;  // what happens while the chooser is open
};

const std::string kZero = SavegameBytes("Zero", 1, 0);
const std::string kThree = SavegameBytes("Three", 2, 3);
const std::string kOther = SavegameBytes("Other", 3, 3);
constexpr auto kYes = BoxAnswer::kYes;
constexpr auto kNo = BoxAnswer::kNo;

TEST(CopyMoveTest, WithoutASelectionNothingOpens) {
  CopyMoveWorld world;
  world.Run(CopySelection, {}, "T:\\Target", {});
  EXPECT_EQ(world.boxes.shown.back().text, "There are no savegames to copy");
  EXPECT_EQ(world.boxes.shown.back().icon, BoxIcon::kCritical);
  world.Run(MoveSelection, {}, "T:\\Target", {});
  EXPECT_EQ(world.boxes.shown.back().text, "No selected savegames to move");
  EXPECT_TRUE(world.sounds.played.back().ends_with("s5.wav"));
  EXPECT_TRUE(world.windows.events.empty());
}

TEST(CopyMoveTest, SavegamesOfOneNumberAreRenumberedOrTheChooserStaysOpen) {
  CopyMoveWorld world;
  for (const auto command : {CopySelection, MoveSelection}) {
    const auto before = world.disk.AllFiles();
    world.Run(command, {1, 2}, "T:\\Target", {BoxAnswer::kCancel});
    EXPECT_FALSE(world.taken);
    EXPECT_FALSE(world.program.chooser.Confirmed);
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_EQ(world.boxes.shown[0].text,
              "Some savegames have same name.\rI'll rename them in destination folder");
    EXPECT_EQ(world.boxes.shown[0].buttons, BoxButtons::kOkCancel);
    EXPECT_EQ(world.boxes.shown[0].icon, BoxIcon::kNone);
    EXPECT_EQ(world.disk.AllFiles(), before);
  }
  world.Run(CopySelection, {1, 2}, "T:\\Target", {BoxAnswer::kOk});
  EXPECT_TRUE(world.taken && world.program.chooser.Confirmed);
  EXPECT_EQ(world.Target("savegame.0"), kThree);
  EXPECT_EQ(world.Target("shot0.jpg"), "shot three");
  EXPECT_EQ(world.Target("savegame.1"), kOther);
  EXPECT_EQ(world.Target("note1.txt"), "note other\r\n");
}

TEST(CopyMoveTest, ACopyAsksAndReportsAndLeavesTheListAlone) {
  CopyMoveWorld world;
  world.windows.lines = {"untouched"};
  world.Run(CopySelection, {0, 1}, "T:\\Target", {kNo});
  EXPECT_EQ(world.disk.Names("Target"),
            (std::vector<std::string>{"note3.txt", "savegame.0", "savegame.3", "shot3.jpg"}));
  ASSERT_EQ(world.boxes.shown.size(), 2U);
  EXPECT_EQ(world.boxes.shown[0].text,
            "Do you want rename savegame with progressive number starting by 0 ?");
  EXPECT_EQ(world.boxes.shown[0].buttons, BoxButtons::kYesNo);
  EXPECT_EQ(world.boxes.shown[1].text, "Copied 2 savegames in \"T:\\Target\"");
  EXPECT_EQ(world.boxes.shown[1].icon, BoxIcon::kNone);
  EXPECT_TRUE(world.sounds.played.back().ends_with("s6.wav"));
  EXPECT_FALSE(world.program.archive.ArchiveChanged);
  EXPECT_EQ(world.windows.lines.size(), 1U);

  world.Run(CopySelection, {1}, "T:\\", {kYes});
  EXPECT_EQ(world.boxes.shown.back().text, "Copied 1 savegames in \"T:\"");
  EXPECT_EQ(world.disk.Read("savegame.0"), kThree);
}

TEST(CopyMoveTest, AMoveScansAndReportsWithoutASound) {
  CopyMoveWorld world;
  world.Run(MoveSelection, {0, 1}, "T:\\Target", {kYes});
  EXPECT_EQ(world.Target("savegame.1"), kThree);
  EXPECT_EQ(world.Target("note1.txt"), "note three\r\n");
  EXPECT_TRUE(world.disk.Names("Archive/Slot1").empty());
  EXPECT_EQ(world.program.catalogue.EntryCount(), 1);
  EXPECT_EQ(world.boxes.shown.back().text, "Moved2 savegames in \"T:\\Target\"");
  EXPECT_TRUE(world.sounds.played.back().ends_with("s2.wav")) << "the end of the scan";
}

TEST(CopyMoveTest, SavegamesOfTheTargetAreKeptOrDeletedAsTheUserSays) {
  CopyMoveWorld world;
  const auto fill = [&world] {
    world.disk.Write("Target/savegame.0", "old");
    world.disk.Write("Target/savegame.bak", "old too");
    world.disk.Write("Target/note0.txt", "old note");
  };
  fill();
  world.Run(CopySelection, {1}, "T:\\Target", {kNo, kYes});
  EXPECT_EQ(world.boxes.shown[1].text,
            "In folder \"T:\\Target\" there are already any savegames.\rImport them in archive?\r"
            "(If you chose [NO] savegames in \"T:\\Target\" folder, will be delete)");
  EXPECT_EQ(world.boxes.shown[1].buttons, BoxButtons::kYesNoToKeep);
  EXPECT_EQ(world.Target("savegame.0"), "old");
  EXPECT_EQ(world.Target("savegame.1"), kThree) << "renumbered, whatever was said before";

  fs::remove_all(world.disk.path() / "Target");
  fill();
  world.program.play.BackupFolder = "T:\\Target";
  world.program.play.backed_up = {"savegame.0", "note0.txt"};
  world.Run(CopySelection, {1}, "T:\\Target", {kNo, kNo});
  EXPECT_EQ(world.disk.Names("Target"),
            (std::vector<std::string>{"note0.txt", "note3.txt", "savegame.3", "shot3.jpg"}));
  EXPECT_EQ(world.boxes.shown.size(), 3U);
  EXPECT_EQ(world.program.play.backed_up, (std::vector<std::string>{"note0.txt"}));
}

TEST(CopyMoveTest, DeletingTheTargetsSavegamesSparesTheSelectedOnes) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  CopyMoveWorld world;
  fs::create_directory_symlink("Slot1", world.disk.path() / "Archive/Same");
  world.Run(CopySelection, {1}, "T:\\Archive\\Same", {kYes, kNo});
  EXPECT_EQ(world.disk.Names("Archive/Slot1"),
            (std::vector<std::string>{"note0.txt", "note3.txt", "savegame.0", "savegame.3",
                                      "shot0.jpg", "shot3.jpg"}));
  EXPECT_EQ(world.disk.Read("Archive/Slot1/savegame.0"), kThree) << "the old 0 was given up";
  EXPECT_EQ(world.disk.Read("Archive/Slot1/savegame.3"), kThree);

  world.Run(MoveSelection, {1}, "T:\\Archive\\Slot1", {kNo, kNo});
  EXPECT_EQ(world.disk.Read("Archive/Slot1/savegame.3"), kThree);
  EXPECT_FALSE(world.disk.Exists("Archive/Slot1/savegame.0"));
  EXPECT_EQ(world.boxes.shown.size(), 3U) << world.boxes.AllTexts();
}

TEST(CopyMoveTest, NoSavegameOfTheTargetIsDeletedWhileItMayBeASelectedOne) {
  CopyMoveWorld world;
  world.files.FailAlways("Identity", "savegame.3", FileError::kInputOutput);
  world.Run(CopySelection, {1}, "T:\\Archive\\Slot1", {kYes, kNo});
  EXPECT_EQ(world.disk.Read("Archive/Slot1/savegame.0"), kZero);
  EXPECT_EQ(world.disk.Read("Archive/Slot1/savegame.3"), kThree);
  EXPECT_NE(world.boxes.shown.back().text.find("which were there before"), std::string::npos);
}

TEST(CopyMoveTest, AReadOnlySavegameOfTheTargetIsSetAsideInstead) {
  CopyMoveWorld world;
  world.disk.Write("Target/savegame.3", "precious");
  world.disk.MakeReadOnly("Target/savegame.3");
  world.Run(CopySelection, {1}, "T:\\Target", {kNo, kNo});
  EXPECT_EQ(world.Target("savegame.3"), kThree);
  EXPECT_EQ(world.disk.Read("Program/rescued/1/savegame.3"), "precious");
  const std::string& said = world.boxes.shown.back().text;
  EXPECT_NE(said.find("\"T:\\Target\\savegame.3\": it is read-only"), std::string::npos) << said;
  EXPECT_NE(said.find("\"T:\\Program\\rescued\\1\""), std::string::npos) << said;
}

TEST(CopyMoveTest, WhatIsSelectedWhenTheCommandStartsIsCopied) {
  CopyMoveWorld world;
  const auto capture = [&world] {
    world.program.selection.indices = {2};
    world.program.catalogue.entries[0].NoteText = "changed";
  };
  world.in_chooser = capture;
  world.boxes.while_waiting = capture;
  world.Run(MoveSelection, {0}, "T:\\Target", {kNo});
  EXPECT_EQ(world.disk.Names("Target"), (std::vector<std::string>{"savegame.0"}));
  EXPECT_EQ(world.disk.Read("Archive/Slot2/savegame.3"), kOther);
}

TEST(CopyMoveTest, WhatCannotBeWrittenStaysAndIsNamedOnce) {
  CopyMoveWorld world;
  world.files.FailAlways("Copy", "savegame.3", FileError::kDiskFull);
  world.Run(MoveSelection, {0, 1}, "T:\\Target", {kNo});
  EXPECT_EQ(world.disk.Names("Archive/Slot1"),
            (std::vector<std::string>{"note3.txt", "savegame.3", "shot3.jpg"}));
  ASSERT_EQ(world.boxes.shown.size(), 3U) << world.boxes.AllTexts();
  EXPECT_EQ(world.boxes.shown[1].text, "Moved2 savegames in \"T:\\Target\"");
  const std::string& said = world.boxes.shown[2].text;
  EXPECT_NE(said.find("\"t:\\archive\\slot1\\savegame.3\": the disk is full"), std::string::npos)
      << said;
  EXPECT_EQ(world.boxes.shown[2].icon, BoxIcon::kExclamation);
}

TEST(CopyMoveTest, ATargetThatVanishesOrRefusesCostsNothing) {
  for (const bool vanishes : {true, false}) {
    CopyMoveWorld world;
    const auto before = world.disk.AllFiles();
    world.files.FailAlways("Copy", vanishes ? "?" : "", FileError::kAccessDenied);
    world.boxes.while_waiting = [&] {
      if (vanishes) fs::remove_all(world.disk.path() / "Target");
    };
    world.Run(MoveSelection, {1, 2}, "T:\\Target", {});
    EXPECT_EQ(world.disk.AllFiles(), before);
    EXPECT_NE(world.boxes.shown.back().text.find(vanishes ? "does not exist" : "access is denied"),
              std::string::npos);
    EXPECT_EQ(world.program.catalogue.EntryCount(), 3);
  }
}

TEST(CopyMoveTest, TheGamesSavegamesMoveIntoTheArchive) {
  CopyMoveWorld world;
  world.AddSavegame("Game", 1, "New", 9);
  world.disk.Write("Game/shot1.jpg", "shot one");
  ScanArchive(world.program);
  world.Run(MoveSelection, {3}, "T:\\Archive\\Slot2", {kNo, kYes});
  EXPECT_EQ(world.disk.Names("Game"), (std::vector<std::string>{"tomb4.exe"}));
  EXPECT_EQ(world.disk.Read("Archive/Slot2/savegame.0"), SavegameBytes("New", 9, 1));
  EXPECT_EQ(world.disk.Read("Archive/Slot2/shot0.jpg"), "shot one");
  EXPECT_EQ(world.program.catalogue.EntryCount(), 4);
}

TEST(SelectionHasSameSlotTest, ComparesEverySlotNumberWithEveryOther) {
  const auto has_same = [](const std::vector<std::int16_t>& slots) {
    std::vector<SavegameFiles> savegames;
    for (const std::int16_t slot : slots) savegames.push_back({.slot = slot});
    return SelectionHasSameSlot(savegames);
  };
  EXPECT_FALSE(has_same({}));
  EXPECT_FALSE(has_same({7}));
  EXPECT_FALSE(has_same({0, 32767, 1, -1, -32768}));
  EXPECT_TRUE(has_same({32767, 1, 0, 32767}));
}

// What identifies a savegame: its bytes with those of its note and screen-shot, wherever they are.
using Whole = std::vector<std::string>;

std::set<Whole> WholeSavegames(const TestWorld& world) {
  const auto all = world.disk.AllFiles();
  std::set<Whole> found;
  for (const auto& [name, bytes] : all) {
    const auto at = name.find("/savegame.");
    if (at == std::string::npos) continue;
    const std::string folder = name.substr(0, at + 1);
    const std::string number = name.substr(at + 10);
    const auto content = [&all](const std::string& companion) {
      const auto file = all.find(companion);
      return file == all.end() ? std::string() : file->second;
    };
    found.insert({bytes, content(folder + "note" + number + ".txt"),
                  content(folder + "shot" + number + ".jpg")});
  }
  return found;
}

struct Scenario {
  const char* folder;
  std::vector<std::int16_t> lines;
  std::deque<BoxAnswer> answers;
};

// Out of two folders into an empty one, over an old companion, and into the folder of a source.
const Scenario kScenarios[] = {
    {"T:\\Target", {1, 2}, {}},
    {"T:\\Old", {0, 1}, {kYes}},
    {"T:\\Archive\\Slot1", {0, 1}, {kNo, kYes}},
    {"T:\\Archive\\Slot1", {0, 1, 2}, {BoxAnswer::kOk, kNo}},
};

// Gives every call of a move its turn; `prepare` arms the fault for a call.
template <typename Prepare>
void ForEveryCall(const Scenario& scenario, const Prepare& prepare) {
  for (int call = 1;; ++call) {
    CopyMoveWorld world;
    world.disk.Write("Old/note1.txt", "an old note\r\n");
    const auto before = WholeSavegames(world);
    world.in_chooser = [&] {
      world.files.Reset();
      prepare(world.files, call);
    };
    bool done = false;
    try {
      world.Run(MoveSelection, scenario.lines, scenario.folder, scenario.answers);
      done = world.files.calls() < call;
    } catch (const Killed&) {
    }
    const auto after = WholeSavegames(world);
    for (const Whole& savegame : before) {
      EXPECT_TRUE(after.contains(savegame))
          << scenario.folder << ": " << savegame[0].substr(0, 5) << " is lost at call " << call;
    }
    bool old_note = false;
    for (const auto& [name, bytes] : world.disk.AllFiles()) old_note |= bytes == "an old note\r\n";
    EXPECT_TRUE(old_note) << call;
    if (done) break;
  }
}

TEST(MoveFailureTest, NoFailingCallLosesASavegame) {
  for (const Scenario& scenario : kScenarios) {
    ForEveryCall(scenario,
                 [](auto& files, int call) { files.FailCall(call, FileError::kAccessDenied); });
  }
}

TEST(MoveFailureTest, DyingAtAnyCallLosesNoSavegame) {
  for (const Scenario& scenario : kScenarios) {
    // Dying before a call is dying behind the one before.
    ForEveryCall(scenario, [](auto& files, int call) { files.KillAtCall(call, false); });
  }
}

}  // namespace
}  // namespace vellumark
