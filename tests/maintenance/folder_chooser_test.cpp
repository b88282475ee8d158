#include "maintenance/folder_chooser.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "support/open_world.h"

namespace vellumark {
namespace {

using testing::Contains;

struct OtherDisk {
  testing::TemporaryFolder other_disk;
};

// Drive T: of the test world, drive U: with a folder of its own, and N: without a medium. The
// current folder is T:\Program.
class FolderChooserTest : public ::testing::Test, public OtherDisk, public testing::OpenWorld {
 protected:
  FolderChooserTest()
      : OpenWorld(
            {{'U', other_disk.path().string()}, {'N', (other_disk.path() / "none").string()}}) {
    other_disk.MakeFolder("Other");
    files.SetCurrentFolder("T:\\Program");
  }

  ChooserOpening Open(ChooserMode mode, const std::string& field = {}) {
    program.chooser.FolderChooserMode = mode;
    program.chooser.field = field;
    return OpenChooser(program);
  }

  std::optional<std::string> Create(const std::string& folder, const std::string& name) {
    return CreateSubfolder(program, folder, text.FromUtf8(name));
  }
};

std::vector<std::string> Shown(const FolderLines& folder) {
  std::vector<std::string> shown;
  for (const FolderLine& line : folder.lines) {
    shown.push_back(std::string(static_cast<std::size_t>(line.depth), '>') + line.shown);
  }
  return shown;
}

TEST_F(FolderChooserTest, StartsWithTheTitleAndInTheFolderOfItsMode) {
  program.archive.settings.MainFolder = "T:\\Archive";
  program.preferences.ShotFolder = "U:\\Other ";
  const std::tuple<ChooserMode, int, const char*> cases[] = {
      {ChooserMode::kMainFolder, 131, "t:\\game"},
      {ChooserMode::kGameFolder, 132, "t:\\game"},
      {ChooserMode::kCopy, 134, "T:\\Program"},
      {ChooserMode::kMove, 135, "T:\\Program"},
      {ChooserMode::kNewArchiveFolder, 136, "T:\\Archive"},
      {ChooserMode::kExportShots, 137, "U:\\Other"},
      {static_cast<ChooserMode>(3), 127, "T:\\Program"}};
  for (const auto& [mode, title, folder] : cases) {
    program.chooser.Confirmed = true;
    const ChooserOpening opening = Open(mode, " t:\\game ");
    EXPECT_EQ(opening.title, title);
    EXPECT_EQ(opening.folder.folder, folder);
    EXPECT_TRUE(opening.shows_path);
    EXPECT_FALSE(program.chooser.Confirmed);
    EXPECT_EQ(sounds.Take(), "s7|");
  }

  const ChooserOpening plain = Open(ChooserMode::kPlain, "T:\\Game");
  EXPECT_EQ(plain.title, 174);
  EXPECT_EQ(plain.folder.folder, "T:\\Program");
  EXPECT_FALSE(plain.shows_path);
  EXPECT_TRUE(sounds.played.empty());
}

TEST_F(FolderChooserTest, AStartFolderThatCannotBeListedGivesWayToTheCurrentFolder) {
  files.FailAlways("List", "Archive\\*", FileError::kAccessDenied);
  for (const char* start :
       {"", "T:\\None", "N:\\Game", "Q:\\", "\\\\server\\share", "~", "T:\\Archive"}) {
    EXPECT_EQ(Open(ChooserMode::kMainFolder, start).folder.folder, "T:\\Program") << start;
  }
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_EQ(Open(ChooserMode::kMainFolder, "T:").folder.folder, "T:\\");
  EXPECT_EQ(Open(ChooserMode::kMainFolder, "T:\\Archive\\..\\Game\\").folder.folder, "T:\\Game");
}

TEST_F(FolderChooserTest, ListsTheWayDownAndTheSubfoldersOfAFolder) {
  for (const char* name : {"Slot10", "slot9", "Slot010b", ".cache", "Zoo", "alpha", "\xC3\x89t"}) {
    disk.MakeFolder(std::string("Archive/Old/") + name);
  }
  disk.Write("Archive/Old/file", "x");
  files.Reset();
  const auto folder = EnterFolder(program, "T:\\Archive\\Old");
  EXPECT_EQ(files.calls(), 1);
  ASSERT_TRUE(folder.has_value());
  const std::vector<std::string> expected = {"T:\\",         ">Archive",  ">>Old",       ">>>alpha",
                                             ">>>slot9",     ">>>Slot10", ">>>Slot010b", ">>>Zoo",
                                             ">>>\xC3\x89t", ">>>.cache"};
  EXPECT_EQ(Shown(*folder), expected);
  EXPECT_EQ(folder->current, 2U);
  EXPECT_EQ(folder->lines[1].path, "T:\\Archive");
  EXPECT_EQ(folder->lines[8].path, "T:\\Archive\\Old\\\xC9t");

  const auto root = EnterFolder(program, "T:\\");
  ASSERT_TRUE(root.has_value());
  EXPECT_EQ(root->lines[1].path, "T:\\Archive");
}

TEST_F(FolderChooserTest, FoldersThatCannotBeTakenSayWhy) {
  std::map<std::string, std::string> reasons = {{"\xD0\x96", "archives cannot hold"},
                                                {"a:b", "Windows could not hold"},
                                                {"Twice", "exists twice"},
                                                {"TWICE", "exists twice"},
                                                {std::string(250, 'x'), "too long"}};
  // A Windows disk can hold only the first.
  if (!testing::DiskTellsCaseApart()) reasons = {{"\xD0\x96", "archives cannot hold"}};
  for (const auto& [name, reason] : reasons) disk.MakeFolder("Archive/" + name);
  const auto folder = EnterFolder(program, "T:\\Archive");
  ASSERT_TRUE(folder.has_value());
  ASSERT_EQ(folder->lines.size(), 2 + reasons.size());
  for (std::size_t i = 2; i < folder->lines.size(); ++i) {
    const FolderLine& line = folder->lines[i];
    EXPECT_TRUE(Contains(line.refusal, reasons[line.shown]));
  }
}

TEST_F(FolderChooserTest, AnotherDriveOpensInItsOwnCurrentFolder) {
  EXPECT_EQ(ChangeDrive(program, 'U', "T:\\Game").folder, "U:\\");
  EXPECT_EQ(ChangeDrive(program, 'T', "U:\\").folder, "T:\\Program");
  files.FailAlways("List", "Program\\*", FileError::kNotFound);
  EXPECT_EQ(ChangeDrive(program, 'T', "U:\\").folder, "T:\\");
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FolderChooserTest, ADriveThatIsNotReadyLeadsBack) {
  disk.MakeFolder("Game/Added meanwhile");
  const FolderLines back = ChangeDrive(program, 'N', "T:\\Game");
  EXPECT_EQ(TakeRefusal(), "Unit not ready");
  EXPECT_EQ(Shown(back), (std::vector<std::string>{"T:\\", ">Game", ">>Added meanwhile"}));

  files.FailAlways("List", "U:\\*", FileError::kInputOutput);
  EXPECT_EQ(ChangeDrive(program, 'U', "T:\\Game").folder, "T:\\Game");
  EXPECT_EQ(TakeRefusal(),
            "The folder \"U:\\\" cannot be opened: it could not be read or written.");
}

TEST_F(FolderChooserTest, ATypedFolderIsEnteredOrRefusedWithItsReason) {
  const auto type = [this](const std::string& typed) {
    return EnterTypedFolder(program, text.FromUtf8(typed));
  };
  for (const char* typed : {" T:\\Archive\\ ", "..\\Archive", "\\Archive"}) {
    const auto entered = type(typed);
    ASSERT_TRUE(entered.has_value()) << typed;
    EXPECT_EQ(entered->folder, "T:\\Archive") << typed;
  }
  const std::pair<const char*, const char*> cases[] = {
      {"\\\\server\\share",
       "The folder \"\\\\server\\share\" cannot be opened: it does not exist."},
      {"T:\\None", "The folder \"T:\\None\" cannot be opened: it does not exist."},
      {"T:\\\xD0\x96", "savegame archives cannot"}};
  for (const auto& [typed, refusal] : cases) {
    EXPECT_EQ(type(typed), std::nullopt);
    EXPECT_TRUE(Contains(TakeRefusal(), refusal)) << typed;
  }
}

TEST_F(FolderChooserTest, ANewFolderLiesInTheCurrentOne) {
  EXPECT_EQ(Create("T:\\", "  New one "), "T:\\New one");
  EXPECT_EQ(Create("T:\\Archive", "\xC3\x89t"), "T:\\Archive\\\xC9t");
  EXPECT_TRUE(disk.Exists("New one") && disk.Exists("Archive/\xC3\x89t"));
  EXPECT_EQ(sounds.Take(), "s2|s2|");
}

TEST_F(FolderChooserTest, ANewFolderThatCannotBeMadeIsRefused) {
  disk.Write("Archive/taken", "a file");
  const auto before = disk.Names("Archive");
  const std::pair<const char*, const char*> cases[] = {
      {"", "You must type a name for new folder"},
      {"  ", "\"T:\\Archive\\\"folder alreay exists"},
      {" TAKEN ", "\"T:\\Archive\\TAKEN\"folder alreay exists"},
      {"a?b", "The folder \"T:\\Archive\\a?b\" could not be created: this is not a possible name."},
      {"none\\x", "The folder \"T:\\Archive\\none\" cannot be opened: it does not exist."},
      {"a\xD0\x96",
       "This folder name cannot be used: savegame archives cannot hold the marked character."},
  };
  for (const auto& [name, refusal] : cases) {
    EXPECT_EQ(Create("T:\\Archive", name), std::nullopt);
    EXPECT_EQ(TakeRefusal(), refusal);
  }
  EXPECT_EQ(Create("T:\\Archive", std::string(247, 'x')), std::nullopt);
  EXPECT_TRUE(Contains(TakeRefusal(), "too long"));
  EXPECT_EQ(disk.Names("Archive"), before);
}

TEST_F(FolderChooserTest, TheChosenFolderGoesWhereItIsWanted) {
  program.archive.settings.GameFolder = "T:\\Game";
  const std::tuple<ChooserMode, const char*, bool> cases[] = {
      {ChooserMode::kPlain, "before", false},
      {ChooserMode::kMainFolder, "T:\\Game", false},
      {ChooserMode::kNewArchiveFolder, "T:\\Game", false},
      {ChooserMode::kGameFolder, "T:\\Game", true}};
  for (const auto& [mode, field, changed] : cases) {
    Open(mode, "before");
    EXPECT_TRUE(TakeFolder(program, "T:\\Game"));
    EXPECT_TRUE(program.chooser.Confirmed);
    EXPECT_EQ(program.chooser.ChosenFolder, "T:\\Game");
    EXPECT_EQ(program.chooser.field, field);
    EXPECT_EQ(program.archive.ArchiveChanged, changed);
  }
  EXPECT_TRUE(TakeFolder(program, "T:\\"));
  EXPECT_EQ(program.chooser.ChosenFolder, "T:");
}

TEST_F(FolderChooserTest, WhatVellumarkKeepsIsNoTarget) {
  program.paths.ProgramFolder = "T:\\Program";
  program.play.BackupFolder = "T:\\Program\\temp";
  disk.MakeFolder("Program/temp/Inner");
  disk.MakeFolder("Program/rescued/1");
  for (const auto mode : {ChooserMode::kCopy, ChooserMode::kMove, ChooserMode::kNewArchiveFolder,
                          ChooserMode::kExportShots}) {
    Open(mode, "before");
    for (const char* folder :
         {"T:\\program\\TEMP", "T:\\Program\\temp\\Inner", "T:\\Program\\rescued\\1"}) {
      boxes.shown.clear();
      EXPECT_FALSE(TakeFolder(program, folder));
      EXPECT_TRUE(Contains(boxes.AllTexts(), "cannot be chosen: Vellumark keeps")) << folder;
    }
  }
}

TEST_F(FolderChooserTest, AFolderThatHasVanishedIsNotTaken) {
  program.chooser.ChosenFolder = "T:\\Archive";
  disk.Remove({"Game"});
  EXPECT_FALSE(TakeFolder(program, "T:\\Game"));
  EXPECT_EQ(TakeRefusal(), "The folder \"T:\\Game\" cannot be opened: it does not exist.");
  disk.Write("Game", "a file");
  EXPECT_FALSE(TakeFolder(program, "T:\\Game"));
  EXPECT_EQ(TakeRefusal(), "The folder \"T:\\Game\" cannot be opened: it does not exist.");
  EXPECT_FALSE(program.chooser.Confirmed);
  EXPECT_EQ(program.chooser.ChosenFolder, "T:\\Archive");
}

}  // namespace
}  // namespace vellumark
