#include "maintenance/folder_chooser.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "support/test_world.h"

namespace vellumark {
namespace {

namespace fs = std::filesystem;

// Drive T: of the test world, drive U: with a folder of its own, and N: without a medium. The
// current folder is T:\Program.
class FolderChooserTest : public ::testing::Test {
 protected:
  FolderChooserTest() {
    program.paths.ProgramFolder = "T:\\Program";
    program.preferences.SoundEffects = true;
    other_disk.MakeFolder("Other");
    files.SetCurrentFolder("T:\\Program");
  }
  ~FolderChooserTest() override { fs::current_path(working_folder); }

  ChooserOpening Open(ChooserMode mode, const std::string& field = {}) {
    program.chooser.FolderChooserMode = mode;
    program.chooser.field = field;
    return OpenChooser(program);
  }

  // The text of the only message box since the last call, a refusal by its sound and icon.
  std::string Refusal() {
    EXPECT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_TRUE(!world.sounds.played.empty() && world.sounds.played.back().ends_with("s5.wav"));
    if (world.boxes.shown.empty()) return {};
    const testing::ScriptedMessageBoxes::Shown box = world.boxes.shown.back();
    EXPECT_EQ(box.icon, BoxIcon::kCritical);
    world.boxes.shown.clear();
    return box.text;
  }

  std::optional<std::string> Create(const std::string& folder, const std::string& name) {
    return CreateSubfolder(program, folder, world.text.FromUtf8(name));
  }

  const fs::path working_folder = fs::current_path();
  testing::TestWorld world;
  testing::TemporaryFolder other_disk;
  testing::TestDrives drives{world.text,
                             {{'T', world.disk.path().string()},
                              {'U', other_disk.path().string()},
                              {'N', (other_disk.path() / "none").string()}}};
  testing::FaultyFileSystem files{drives.files()};
  Program program{.files = files,
                  .text = world.text,
                  .boxes = world.boxes,
                  .file_dialogs = world.dialogs,
                  .sounds = world.sounds,
                  .shell = world.shell,
                  .desktop = world.desktop,
                  .clipboard = world.clipboard,
                  .windows = world.windows,
                  .main_window = world.windows};
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
    world.sounds.played.clear();
    const ChooserOpening opening = Open(mode, " t:\\game ");
    EXPECT_EQ(opening.title, title);
    EXPECT_EQ(opening.folder.folder, folder);
    EXPECT_TRUE(opening.shows_path);
    EXPECT_FALSE(program.chooser.Confirmed);
    ASSERT_EQ(world.sounds.played.size(), 1U);
    EXPECT_TRUE(world.sounds.played[0].ends_with("s7.wav"));
  }

  world.sounds.played.clear();
  const ChooserOpening plain = Open(ChooserMode::kPlain, "T:\\Game");
  EXPECT_EQ(plain.title, 174);
  EXPECT_EQ(plain.folder.folder, "T:\\Program");
  EXPECT_FALSE(plain.shows_path);
  EXPECT_TRUE(world.sounds.played.empty());
}

TEST_F(FolderChooserTest, AStartFolderThatCannotBeListedGivesWayToTheCurrentFolder) {
  files.FailAlways("List", "Archive\\*", FileError::kAccessDenied);
  for (const char* start :
       {"", "T:\\None", "N:\\Game", "Q:\\", "\\\\server\\share", "~", "T:\\Archive"}) {
    EXPECT_EQ(Open(ChooserMode::kMainFolder, start).folder.folder, "T:\\Program") << start;
  }
  EXPECT_TRUE(world.boxes.shown.empty());
  EXPECT_EQ(Open(ChooserMode::kMainFolder, "T:").folder.folder, "T:\\");
  EXPECT_EQ(Open(ChooserMode::kMainFolder, "T:\\Archive\\..\\Game\\").folder.folder, "T:\\Game");
}

TEST_F(FolderChooserTest, ListsTheWayDownAndTheSubfoldersOfAFolder) {
  for (const char* name : {"Slot10", "slot9", "Slot010b", ".cache", "Zoo", "alpha", "\xC3\x89t"}) {
    world.disk.MakeFolder(std::string("Archive/Old/") + name);
  }
  world.disk.Write("Archive/Old/file", "x");
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
  for (const auto& [name, reason] : reasons) world.disk.MakeFolder("Archive/" + name);
  const auto folder = EnterFolder(program, "T:\\Archive");
  ASSERT_TRUE(folder.has_value());
  ASSERT_EQ(folder->lines.size(), 2 + reasons.size());
  for (std::size_t i = 2; i < folder->lines.size(); ++i) {
    const FolderLine& line = folder->lines[i];
    EXPECT_NE(line.refusal.find(reasons[line.shown]), std::string::npos) << line.shown;
  }
}

TEST_F(FolderChooserTest, AnotherDriveOpensInItsOwnCurrentFolder) {
  EXPECT_EQ(ChangeDrive(program, 'U', "T:\\Game").folder, "U:\\");
  EXPECT_EQ(ChangeDrive(program, 'T', "U:\\").folder, "T:\\Program");
  files.FailAlways("List", "Program\\*", FileError::kNotFound);
  EXPECT_EQ(ChangeDrive(program, 'T', "U:\\").folder, "T:\\");
  EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_F(FolderChooserTest, ADriveThatIsNotReadyLeadsBack) {
  world.disk.MakeFolder("Game/Added meanwhile");
  const FolderLines back = ChangeDrive(program, 'N', "T:\\Game");
  EXPECT_EQ(Refusal(), "Unit not ready");
  EXPECT_EQ(Shown(back), (std::vector<std::string>{"T:\\", ">Game", ">>Added meanwhile"}));

  files.FailAlways("List", "U:\\*", FileError::kInputOutput);
  EXPECT_EQ(ChangeDrive(program, 'U', "T:\\Game").folder, "T:\\Game");
  EXPECT_EQ(Refusal(), "The folder \"U:\\\" cannot be opened: it could not be read or written.");
}

TEST_F(FolderChooserTest, ANewFolderLiesInTheCurrentOne) {
  EXPECT_EQ(Create("T:\\", "  New one "), "T:\\New one");
  EXPECT_EQ(Create("T:\\Archive", "\xC3\x89t"), "T:\\Archive\\\xC9t");
  EXPECT_TRUE(world.disk.Exists("New one") && world.disk.Exists("Archive/\xC3\x89t"));
  EXPECT_TRUE(world.sounds.played.back().ends_with("s2.wav"));
}

TEST_F(FolderChooserTest, ANewFolderThatCannotBeMadeIsRefused) {
  world.disk.Write("Archive/taken", "a file");
  const auto before = world.disk.Names("Archive");
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
    EXPECT_EQ(Refusal(), refusal);
  }
  EXPECT_EQ(Create("T:\\Archive", std::string(247, 'x')), std::nullopt);
  EXPECT_NE(Refusal().find("too long"), std::string::npos);
  EXPECT_EQ(world.disk.Names("Archive"), before);
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

TEST_F(FolderChooserTest, AFolderThatHasVanishedIsNotTaken) {
  program.chooser.ChosenFolder = "T:\\Archive";
  fs::remove_all(world.disk.path() / "Game");
  EXPECT_FALSE(TakeFolder(program, "T:\\Game"));
  EXPECT_EQ(Refusal(), "The folder \"T:\\Game\" cannot be opened: it does not exist.");
  world.disk.Write("Game", "a file");
  EXPECT_FALSE(TakeFolder(program, "T:\\Game"));
  EXPECT_FALSE(program.chooser.Confirmed);
  EXPECT_EQ(program.chooser.ChosenFolder, "T:\\Archive");
}

}  // namespace
}  // namespace vellumark
