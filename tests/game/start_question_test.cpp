// A program is started only after this user has chosen it or said yes to it.
#include "game/start_question.h"

#include <gtest/gtest.h>

#include "archive/archive_properties.h"
#include "archive/scan.h"
#include "game/play.h"
#include "game/running_game.h"
#include "support/open_world.h"

namespace vellumark {
namespace {

class StartQuestionTest : public ::testing::Test, public testing::OpenWorld {
 protected:
  StartQuestionTest() { NextRun(); }

  // Another run of the program: only the disk remembers.
  void NextRun() {
    program.trust = {};
    program.preferences.LastArchive = "T:\\From a friend.vmk";
    shell.opened.clear();
    Forget();
  }
  std::string Start() {
    StartGame(program);
    const std::string told = boxes.AllTexts();
    boxes.shown.clear();
    return told;
  }
};

TEST_F(StartQuestionTest, AnUnknownProgramIsAskedAboutBeginningOnNo) {
  AddSavegame("Archive/Slot1", 0, "Level", 1);
  AddSavegame("Game", 4, "Mine", 9);
  Rescan();
  const auto before = disk.AllFiles();
  program.selection.indices = {0};
  PlaySelectedSavegames(program);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::kYesNoFromNo);
  EXPECT_NE(boxes.shown[0].text.find("\"T:\\From a friend.vmk\""), std::string::npos);
  EXPECT_NE(boxes.shown[0].text.find("\"T:\\Game\\tomb4.exe\""), std::string::npos);
  EXPECT_EQ(disk.AllFiles(), before) << "a No leaves the slots alone";
  EXPECT_FALSE(program.capture.CaptureArmed);
  EXPECT_EQ(clipboard.emptied, 0);
  Start();
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_FALSE(program.capture.CaptureArmed);
}

TEST_F(StartQuestionTest, AYesIsRememberedForThatPathUntilItsFileIsDamaged) {
  boxes.answers = {BoxAnswer::kYes};
  EXPECT_NE(Start(), "");
  EXPECT_EQ(Start(), "");
  NextRun();
  EXPECT_EQ(Start(), "");
  program.archive.settings.GameExecutable = "t:\\GAME\\tomb4.exe ";
  EXPECT_EQ(Start(), "");
  EXPECT_EQ(shell.opened.size(), 2U);

  disk.Write("Other/tomb4.exe", "another");
  program.archive.settings.GameExecutable = "T:\\Other\\tomb4.exe";
  EXPECT_NE(Start(), "");

  program.archive.settings.GameExecutable = "T:\\Game\\tomb4.exe";
  const std::string good = disk.Read("Program/programs.txt");
  for (const std::string& bad :
       {std::string(), good.substr(0, good.size() - 1), good + "\r\n", "x" + good,
        good + std::string(300, 'x') + "\r\n", good + std::string(70000, '\n')}) {
    disk.Write("Program/programs.txt", bad);
    NextRun();
    EXPECT_NE(Start(), "") << bad.substr(0, 200);
  }
  disk.Write("Program/programs.txt", good);
  NextRun();
  EXPECT_EQ(Start(), "");
}

TEST_F(StartQuestionTest, AProgramChosenInThePropertiesIsNotAskedAbout) {
  ArchivePropertiesFields fields = PrepareArchiveProperties(program);
  fields.executable = "T:\\Game\\tomb4.exe\r\nT:\\Evil\\tomb4.exe";
  EXPECT_TRUE(AcceptArchiveProperties(program, fields));
  disk.Write("Evil/tomb4.exe", "evil");
  NextRun();
  program.archive.settings.GameExecutable = "T:\\Evil\\tomb4.exe";
  EXPECT_NE(Start(), "") << "a record must not smuggle in a second path";

  fields.executable = "T:\\Game\\tomb4.exe";
  EXPECT_TRUE(AcceptArchiveProperties(program, fields));
  NextRun();
  EXPECT_EQ(Start(), "");
  EXPECT_EQ(shell.opened.size(), 1U);
}

TEST_F(StartQuestionTest, ThePropertiesOfAnArchiveDoNotChooseTheProgramThatItCameWith) {
  ArchivePropertiesFields fields = PrepareArchiveProperties(program);
  fields.base_name = "Folder";
  EXPECT_TRUE(AcceptArchiveProperties(program, fields));
  EXPECT_NE(Start(), "");
}

TEST_F(StartQuestionTest, APathThatLeadsOnFromTheCurrentFolderIsAnotherProgramInEach) {
  for (const std::string folder : {"Evil", "Game"}) {
    disk.Write(folder + "/tomb4.exe", "a program");
    files.SetCurrentFolder("T:\\" + folder);
    program.archive.settings.GameExecutable = "tomb4.exe";
    boxes.answers = {BoxAnswer::kYes};
    EXPECT_NE(Start().find("\"T:\\" + folder + "\\tomb4.exe\""), std::string::npos);
    EXPECT_EQ(Start(), "");
  }
}

TEST_F(StartQuestionTest, AScriptIsToldFromAWindowsProgram) {
  disk.Write("Game/tomb4.exe", "#!/bin/sh\nrm -rf ~\n");
  EXPECT_NE(Start().find("not a Windows program"), std::string::npos);
  disk.Write("Game/tomb4.exe", "MZ a Windows program");
  EXPECT_EQ(Start().find("not a Windows program"), std::string::npos);
}

// No drive stands for another computer: its folders and programs are not even looked for.
TEST_F(StartQuestionTest, ARecordLeadsToNoOtherComputer) {
  program.archive.settings.MainFolder = "\\\\server\\archive";
  program.archive.settings.GameFolder = "\\\\server\\game";
  program.archive.settings.GameExecutable = "\\\\server\\game\\tomb4.exe";
  EXPECT_EQ(files.HostPath("\\\\server\\game\\tomb4.exe"), "");
  ScanArchive(program);
  EXPECT_FALSE(program.archive.game_folder_there);
  boxes.shown.clear();
  Start();
  EXPECT_TRUE(shell.opened.empty());
}

}  // namespace
}  // namespace vellumark
