#include "maintenance/copy_move.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

#include "maintenance/folder_chooser.h"
#include "support/every_call.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;
using testing::Files;
using testing::SavegameBytes;
using testing::TestWorld;

// An archive of two sub-folders, the same slot in both, and a chooser in which the user takes one
// folder.
class CopyMoveWorld : public testing::OpenWorld {
 public:
  CopyMoveWorld() {
    AddSavegame("Archive/Slot1", 0, "Zero", 1);
    AddSavegame("Archive/Slot1", 3, "Three", 2);
    AddSavegame("Archive/Slot2", 3, "Other", 3);
    disk.Write("Archive/Slot1/note3.txt", "note three\r\n");
    disk.Write("Archive/Slot1/shot3.jpg", "shot three");
    disk.Write("Archive/Slot2/note3.txt", "note other\r\n");
    disk.Write("Old/note1.txt", "an old note\r\n");
    disk.MakeFolder("Target");
    Rescan();
    windows.in_dialog = [this](WindowId dialog) {
      ASSERT_EQ(dialog, WindowId::kDialogGetDir);
      OpenChooser(program);
      if (in_chooser) in_chooser();
      taken = TakeFolder(program, folder);
    };
  }

  // Runs the command on these lines, the user taking this folder and giving these answers.
  void RunCommand(void (*command)(Program&), std::vector<std::int16_t> lines,
                  const std::string& target, std::deque<BoxAnswer> answers) {
    program.selection.indices = std::move(lines);
    folder = target;
    boxes.answers = std::move(answers);
    boxes.shown.clear();
    command(program);
  }

  std::string Target(const std::string& name) const { return disk.Read("Target/" + name); }

  std::string folder;
  bool taken = false;
  std::function<void()> in_chooser;  // what happens while the chooser is open
};

class CopyMoveTest : public ::testing::Test, public CopyMoveWorld {};

const std::string kZero = SavegameBytes("Zero", 1, 0);
const std::string kThree = SavegameBytes("Three", 2, 3);
const std::string kOther = SavegameBytes("Other", 3, 3);
constexpr auto kYes = BoxAnswer::kYes;
constexpr auto kNo = BoxAnswer::kNo;

TEST_F(CopyMoveTest, ThePointerIsBusyWhileFilesAreCopiedAndNeverWhileTheUserIsAsked) {
  boxes.while_waiting = [this] { EXPECT_FALSE(windows.looks_busy); };
  RunCommand(MoveSelection, {1, 2}, "T:\\Target", {BoxAnswer::kOk});
  EXPECT_GE(windows.painted_busy, 4) << "two savegames, copied and then deleted";
  EXPECT_EQ(windows.events.back(), std::pair(std::string("close"), WindowId::kDialogGetDir));
  EXPECT_FALSE(windows.looks_busy);
}

TEST_F(CopyMoveTest, StopsBetweenTwoFilesWhenTheSessionEndsAndDeletesNothingThatIsNotSafe) {
  windows.ends_after_painting = 2;
  const Files before = disk.AllFiles("Archive");
  RunCommand(MoveSelection, {0, 1}, "T:\\Target", {kNo});
  EXPECT_EQ(disk.AllFiles("Archive"), before);
  EXPECT_EQ(disk.Listed("Target"), "savegame.0|");
  EXPECT_EQ(boxes.shown.size(), 1U) << "the question before";
  EXPECT_TRUE(Contains(program.session.untold, "slot1\\savegame.3\": the session ended"));
}

TEST_F(CopyMoveTest, WithoutASelectionNothingOpens) {
  RunCommand(CopySelection, {}, "T:\\Target", {});
  EXPECT_EQ(TakeRefusal(), "There are no savegames to copy");
  RunCommand(MoveSelection, {}, "T:\\Target", {});
  EXPECT_EQ(TakeRefusal(), "No selected savegames to move");
  EXPECT_TRUE(windows.events.empty());
}

TEST_F(CopyMoveTest, SavegamesOfOneNumberAreRenumberedOrTheChooserStaysOpen) {
  for (const auto command : {CopySelection, MoveSelection}) {
    const auto before = disk.AllFiles();
    RunCommand(command, {1, 0, 2}, "T:\\Target", {BoxAnswer::kCancel});
    EXPECT_FALSE(taken);
    EXPECT_FALSE(program.chooser.Confirmed);
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kOkCancel);
    EXPECT_EQ(disk.AllFiles(), before);
  }
  RunCommand(CopySelection, {1, 2}, "T:\\Target", {BoxAnswer::kOk});
  EXPECT_TRUE(taken && program.chooser.Confirmed);
  EXPECT_EQ(Target("savegame.0"), kThree);
  EXPECT_EQ(Target("shot0.jpg"), "shot three");
  EXPECT_EQ(Target("savegame.1"), kOther);
  EXPECT_EQ(Target("note1.txt"), "note other\r\n");
}

TEST_F(CopyMoveTest, ACopyAsksAndReportsAndLeavesTheListAlone) {
  windows.lines = {"untouched"};
  RunCommand(CopySelection, {0, 1}, "T:\\Target", {kNo});
  EXPECT_EQ(disk.Listed("Target"), "note3.txt|savegame.0|savegame.3|shot3.jpg|");
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kYesNoBothAct);
  EXPECT_EQ(boxes.shown[1].text, "Copied 2 savegames in \"T:\\Target\"");
  EXPECT_TRUE(sounds.played.back().ends_with("s6.wav"));
  EXPECT_FALSE(program.archive.ArchiveChanged);
  EXPECT_EQ(windows.lines.size(), 1U);

  RunCommand(CopySelection, {1}, "T:\\", {kYes});
  EXPECT_EQ(boxes.shown.back().text, "Copied 1 savegames in \"T:\"");
  EXPECT_EQ(disk.Read("savegame.0"), kThree);
}

TEST_F(CopyMoveTest, SavegamesOfTheTargetAreKeptOrDeletedAsTheUserSays) {
  const auto fill = [this] {
    disk.Write("Target/savegame.0", "old");
    disk.Write("Target/savegame.bak", "old too");
    disk.Write("Target/note0.txt", "old note");
  };
  fill();
  RunCommand(CopySelection, {1}, "T:\\Target", {kNo, kYes});
  EXPECT_EQ(boxes.shown[1].text,
            "In folder \"T:\\Target\" there are already any savegames.\rImport them in archive?\r"
            "(If you chose [NO] savegames in \"T:\\Target\" folder, will be delete)");
  EXPECT_EQ(boxes.shown[1].buttons, BoxButtons::kYesNoBothAct);
  EXPECT_EQ(Target("savegame.0"), "old");
  EXPECT_EQ(Target("savegame.1"), kThree) << "renumbered, whatever was said before";

  disk.Remove({"Target"});
  fill();
  RunCommand(CopySelection, {1}, "T:\\Target", {kNo, kNo});
  EXPECT_EQ(disk.Listed("Target"), "note0.txt|note3.txt|savegame.3|shot3.jpg|");
  EXPECT_EQ(boxes.shown.size(), 3U);
}

TEST_F(CopyMoveTest, DeletingTheTargetsSavegamesSparesTheSelectedOnes) {
  if (!testing::DiskTakesLinks()) GTEST_SKIP() << "links take an administrator";
  std::filesystem::create_directory_symlink("Slot1", disk.path() / "Archive/Same");
  RunCommand(CopySelection, {1}, "T:\\Archive\\Same", {kYes, kNo});
  EXPECT_EQ(disk.Listed("Archive/Slot1"),
            "note0.txt|note3.txt|savegame.0|savegame.3|shot0.jpg|shot3.jpg|");
  EXPECT_EQ(disk.Read("Archive/Slot1/savegame.0"), kThree) << "the old 0 was given up";
  EXPECT_EQ(disk.Read("Archive/Slot1/savegame.3"), kThree);

  RunCommand(MoveSelection, {1}, "T:\\Archive\\Slot1", {kNo, kNo});
  EXPECT_EQ(disk.Read("Archive/Slot1/savegame.3"), kThree);
  EXPECT_FALSE(disk.Exists("Archive/Slot1/savegame.0"));
  EXPECT_EQ(boxes.shown.size(), 3U) << boxes.AllTexts();
}

TEST_F(CopyMoveTest, NoSavegameOfTheTargetIsDeletedWhileItMayBeASelectedOne) {
  files.FailAlways("Identity", "savegame.3", FileError::kInputOutput);
  RunCommand(CopySelection, {1}, "T:\\Archive\\Slot1", {kYes, kNo});
  EXPECT_EQ(disk.Read("Archive/Slot1/savegame.0"), kZero);
  EXPECT_EQ(disk.Read("Archive/Slot1/savegame.3"), kThree);
  EXPECT_TRUE(Contains(boxes.shown.back().text, "which were there before"));
}

TEST_F(CopyMoveTest, AReadOnlySavegameOfTheTargetIsSetAsideInstead) {
  disk.Write("Target/savegame.3", "precious");
  disk.MakeReadOnly("Target/savegame.3");
  RunCommand(CopySelection, {1}, "T:\\Target", {kNo, kNo});
  EXPECT_EQ(Target("savegame.3"), kThree);
  EXPECT_EQ(disk.Read("Program/rescued/1/savegame.3"), "precious");
  const std::string& said = boxes.shown.back().text;
  EXPECT_TRUE(Contains(said, "\"T:\\Target\\savegame.3\": it is read-only"));
  EXPECT_TRUE(Contains(said, "\"T:\\Program\\rescued\\1\""));
}

TEST_F(CopyMoveTest, WhatIsSelectedWhenTheCommandStartsIsCopied) {
  const auto capture = [this] {
    program.selection.indices = {2};
    program.catalogue.entries[0].NoteText = "changed";
  };
  in_chooser = capture;
  boxes.while_waiting = capture;
  RunCommand(MoveSelection, {0}, "T:\\Target", {kNo});
  EXPECT_EQ(disk.Listed("Target"), "savegame.0|");
  EXPECT_EQ(disk.Read("Archive/Slot2/savegame.3"), kOther);
}

TEST_F(CopyMoveTest, WhatCannotBeWrittenStaysAndIsNamedOnce) {
  files.FailAlways("Copy", "savegame.3", FileError::kDiskFull);
  RunCommand(MoveSelection, {0, 1}, "T:\\Target", {kNo});
  EXPECT_EQ(disk.Listed("Archive/Slot1"), "note3.txt|savegame.3|shot3.jpg|");
  ASSERT_EQ(boxes.shown.size(), 3U) << boxes.AllTexts();
  EXPECT_EQ(boxes.shown[1].text, "Moved2 savegames in \"T:\\Target\"");
  EXPECT_EQ(program.catalogue.EntryCount(), 2);
  const std::string& said = boxes.shown[2].text;
  EXPECT_TRUE(Contains(said,
                       "\"t:\\archive\\slot1\\savegame.3\": the disk is full (when "
                       "writing \"T:\\Target\\savegame.3\")"));
  EXPECT_TRUE(Contains(said, "has been deleted"));
  EXPECT_EQ(boxes.shown[2].icon, BoxIcon::kExclamation);

  boxes.shown.clear();
  RunCommand(CopySelection, {0}, "T:\\Target", {kNo});
  EXPECT_FALSE(Contains(boxes.AllTexts(), "deleted")) << "a copy deletes nothing";
}

// What identifies a savegame: its bytes with those of its note and screen-shot, wherever they are.
using Whole = std::array<std::string, 3>;

std::set<Whole> WholeSavegames(const TestWorld& world) {
  const Files all = world.disk.AllFiles();
  const auto content = [&all](const std::string& name) {
    const auto file = all.find(name);
    return file == all.end() ? std::string() : file->second;
  };
  std::set<Whole> found;
  for (const auto& [name, bytes] : all) {
    const auto at = name.find("/savegame.");
    if (at == std::string::npos) continue;
    const std::string folder = name.substr(0, at + 1);
    const std::string number = name.substr(at + 10);
    found.insert({bytes, content(std::string(folder).append("note").append(number).append(".txt")),
                  content(std::string(folder).append("shot").append(number).append(".jpg"))});
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

// Gives every call of each scenario's move its turn to fail or to be the last.
template <typename Faults>
void MoveInEveryScenario(const Faults& faults) {
  for (const Scenario& scenario : kScenarios) {
    SCOPED_TRACE(scenario.folder);
    const auto before = WholeSavegames(CopyMoveWorld());
    faults(
        [&](CopyMoveWorld& world) {
          world.RunCommand(MoveSelection, scenario.lines, scenario.folder, scenario.answers);
        },
        [&](CopyMoveWorld& world) {
          const auto after = WholeSavegames(world);
          for (const Whole& savegame : before) {
            EXPECT_TRUE(after.contains(savegame)) << savegame[0].substr(0, 5) << " is lost";
          }
          testing::ExpectNothingLost({{"the old note", "an old note\r\n"}}, world.disk);
        });
  }
}

TEST(MoveFailureTest, NoFailingCallLosesASavegame) {
  MoveInEveryScenario([](const auto& move, const auto& check) {
    testing::FailEveryCall<CopyMoveWorld>(FileError::kAccessDenied, move, check);
  });
}

TEST(MoveFailureTest, DyingAtAnyCallLosesNoSavegame) {
  MoveInEveryScenario([](const auto& move, const auto& check) {
    testing::DieAtEveryCall<CopyMoveWorld>(move, check);
  });
}

}  // namespace
}  // namespace vellumark
