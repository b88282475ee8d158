// Starting Windows programs.
#include "platform/qt/wine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "desktop/test_window.h"
#include "platform/qt/qt_shell.h"
#include "support/temporary_folder.h"

namespace vellumark::testing {
namespace {

namespace fs = std::filesystem;

using Kind = MissingPart::Kind;

class WinePrefix : public ::testing::Test {
 protected:
  WinePrefix() {
    disk_.Write("games/tomb/tomb4.exe", "MZ");
    disk_.Write("home/.wine/drive_c/tomb4.exe", "MZ");
    disk_.Write("other/drive_c/deep/tomb4.exe", "MZ");
    disk_.Write("loose/drive_c/tomb4.exe", "MZ");
    AddDrive("home/.wine", "c:", "../drive_c");
    AddDrive("home/.wine", "z:", "/");
    AddDrive("other", "c:", "../drive_c");
  }

  std::string Path(const std::string& name) const { return (disk_.path() / name).string(); }

  void AddDrive(const std::string& prefix, const std::string& drive, const std::string& root) {
    disk_.MakeFolder(prefix + "/dosdevices");
    fs::create_symlink(root, disk_.path() / prefix / "dosdevices" / drive);
  }

  std::string Found(const std::string& program, const std::string& wine_prefix) const {
    return WinePrefixOf(Path(program), wine_prefix, Path("home"));
  }

  TemporaryFolder disk_;
};

TEST_F(WinePrefix, IsTheOneWhoseDriveCHoldsTheProgram) {
  EXPECT_EQ(Found("home/.wine/drive_c/tomb4.exe", ""), Path("home/.wine"));
  EXPECT_EQ(Found("other/drive_c/deep/tomb4.exe", Path("home/.wine")), Path("other"));
  EXPECT_EQ(Found("loose/drive_c/tomb4.exe", Path("other")), "");

  fs::create_directory_symlink(disk_.path() / "games", disk_.path() / "other/drive_c/linked");
  EXPECT_EQ(Found("other/drive_c/linked/tomb/tomb4.exe", ""), Path("other"));
  fs::create_directory_symlink(disk_.path() / "other/drive_c", disk_.path() / "shortcut");
  EXPECT_EQ(Found("shortcut/deep/tomb4.exe", ""), Path("other"));
}

TEST_F(WinePrefix, IsElseTheOneWithADriveForTheProgram) {
  EXPECT_EQ(Found("games/tomb/tomb4.exe", Path("other")), "");
  AddDrive("home/.wine", "d:", Path("games"));
  EXPECT_EQ(Found("games/tomb/tomb4.exe", Path("other")), Path("home/.wine"));
  AddDrive("other", "e:", Path("games/tomb"));
  EXPECT_EQ(Found("games/tomb/tomb4.exe", Path("other")), Path("other"));

  disk_.Write("games-2/tomb4.exe", "MZ");
  EXPECT_EQ(Found("games-2/tomb4.exe", ""), "") << "a name that only begins alike";
}

// A Wine that writes down how it was started, and nothing else, on PATH.
class WineShell : public WinePrefix {
 protected:
  WineShell() : old_path_(std::getenv("PATH")) {
    disk_.MakeFolder("bin");
    setenv("PATH", Path("bin").c_str(), 1);
    unsetenv("WINEPREFIX");
  }
  ~WineShell() override { setenv("PATH", old_path_.c_str(), 1); }

  void InstallWine(const std::string& name, const std::string& end = "") const {
    disk_.Write("bin/" + name,
                "#!/bin/sh\necho \"install wine32:i386\" >&2\n"
                "for word; do line=\"$line<$word>\"; done\n"
                "echo \"$line in $PWD of ${WINEPREFIX-none}\" > " +
                    Path("started.new") + "\n/bin/mv " + Path("started.new") + " " +
                    Path("started") + "\n" + end + "\n");
    fs::permissions(disk_.path() / "bin" / name, fs::perms::owner_all);
  }

  std::string Started() const {
    EXPECT_TRUE(Becomes([this] { return disk_.Exists("started"); }));
    std::string line = disk_.Read("started");
    fs::remove(disk_.path() / "started");
    return line;
  }

  std::string old_path_;
};

TEST_F(WineShell, StartsAWindowsProgramInItsPrefix) {
  InstallWine("wine-stable");
  const std::string inside = Path("other/drive_c/deep/tomb4.exe");
  ASSERT_TRUE(QtShell().Open(inside, "-a \"b c\"", Path("games"), false));
  EXPECT_EQ(Started(),
            "<" + inside + "><-a><b c> in " + Path("games") + " of " + Path("other") + "\n");

  const std::string outside = Path("games/tomb/tomb4.exe");
  ASSERT_TRUE(QtShell().Open(outside, "", Path("games/tomb"), false));
  EXPECT_EQ(Started(), "<" + outside + "> in " + Path("games/tomb") + " of none\n");
  EXPECT_EQ(QtShell().MissingFor(outside, true).kind, Kind::kNothing);
}

TEST_F(WineShell, TellsHowAStartEnded) {
  const std::string program = Path("games/tomb/tomb4.exe");
  const auto ended = [&](const std::string& end) {
    InstallWine("wine", end);
    QtShell shell;
    EXPECT_FALSE(shell.LastStarted().ended);
    EXPECT_TRUE(shell.Open(program, "", Path("games"), false));
    EXPECT_TRUE(Becomes([&shell] { return shell.LastStarted().ended; }));
    return shell.LastStarted();
  };
  StartedProgram started = ended("echo 'It lacks a library'\nexit 53");
  EXPECT_EQ(started.exit_code, 53U);
  EXPECT_EQ(started.last_words, "It lacks a library");
  started = ended("kill -9 $$");
  EXPECT_EQ(started.exit_code, 128U + 9U);
  EXPECT_EQ(started.last_words, "Killed") << "what was advised before the start is not the reason";
  EXPECT_EQ(ended("exit 0").exit_code, 0U);
}

// Files as they lie in an installation, empty but for the loader's own beginning.
TEST_F(WineShell, KnowsAWineThatRunsOnly64Bit) {
  const auto lacks = [this] {
    const MissingPart missing = QtShell(QString::fromStdString(Path("lib/wine")))
                                    .MissingFor(Path("games/tomb/tomb4.exe"), true);
    return missing.kind == Kind::kWineFor32Bit ? missing.package + "!" : "";
  };
  const std::string elf32 = "\177ELF\1";
  const std::string elf64 = "\177ELF\2";
  const auto install = [this](const std::string& name, const std::string& bytes) {
    disk_.Write(name, bytes);
    fs::permissions(disk_.path() / name, fs::perms::owner_all);
  };
  install("bin/wine", "#!/bin/sh\nexec " + Path("lib/wine/wine64"));
  install("lib/wine/wine64", elf64);
  EXPECT_EQ(lacks(), "") << "its libraries are somewhere else";
  disk_.Write("lib/x86_64-linux-gnu/wine/x86_64-unix/ntdll.so", "");
  disk_.Write("lib/x86_64-linux-gnu/wine/i386-windows/zlib1.dll", "");
  EXPECT_EQ(lacks(), "wine32:i386!");
  install("lib/wine/wine", elf32);
  EXPECT_EQ(lacks(), "");
  fs::remove(disk_.path() / "lib/wine/wine");
  disk_.Write("lib/x86_64-linux-gnu/wine/i386-windows/ntdll.dll", "");
  EXPECT_EQ(lacks(), "") << "it needs no loader of its own for them";

  fs::remove_all(disk_.path() / "lib");
  install("bin/wine", elf64);
  disk_.Write("lib64/wine/x86_64-windows/ntdll.dll", "");
  EXPECT_EQ(lacks(), "!");
  install("bin/wine", elf32);
  EXPECT_EQ(lacks(), "");
}

TEST_F(WineShell, SaysThatWineIsMissing) {
  QtShell shell(QString::fromStdString(Path("bin/beside")));
  const std::string program = Path("games/tomb/tomb4.exe");
  EXPECT_FALSE(shell.Open(program, "", Path("games/tomb"), false));
  EXPECT_EQ(shell.MissingFor(program, false).kind, Kind::kWine);

  disk_.Write("games/readme.txt", "M");
  EXPECT_EQ(shell.MissingFor(Path("games/readme.txt"), false).kind, Kind::kNothing);
  EXPECT_EQ(shell.MissingFor(Path("games/none.exe"), false).kind, Kind::kNothing);

  InstallWine("beside/wine64");
  EXPECT_EQ(shell.MissingFor(program, false).kind, Kind::kNothing);
  EXPECT_TRUE(shell.Open(program, "", Path("games/tomb"), false));
  EXPECT_EQ(Started(), "<" + program + "> in " + Path("games/tomb") + " of none\n");
}

}  // namespace
}  // namespace vellumark::testing
