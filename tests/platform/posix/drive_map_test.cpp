#include "platform/posix/drive_map.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "support/temporary_folder.h"

namespace vellumark {
namespace {

using Roots = std::map<char, std::string>;

class DriveMapTest : public ::testing::Test {
 protected:
  // Makes a drive of a prefix below home.
  void Link(const std::string& prefix, const std::string& name, const std::string& target) const {
    home_.MakeFolder(prefix + "/dosdevices");
    std::filesystem::create_symlink(target, home_ / (prefix + "/dosdevices/" + name));
  }

  Roots Read(const std::string& prefix) const { return ReadDriveMap(prefix, path_).roots; }

  testing::TemporaryFolder home_;
  const std::string path_ = home_.path().string();
};

TEST_F(DriveMapTest, WithoutAPrefixThereIsTheRootOnly) {
  EXPECT_EQ(ReadDriveMap("", "").roots, (Roots{{'Z', "/"}}));
  EXPECT_EQ(Read(""), (Roots{{'Z', "/"}}));
  EXPECT_EQ(Read(home_ / "missing"), (Roots{{'Z', "/"}}));
}

TEST_F(DriveMapTest, DrivesAreTheLinksOfThePrefixDeadOnesToo) {
  home_.MakeFolder(".wine/drive_c");
  home_.MakeFolder("games");
  Link(".wine", "c:", "../drive_c");
  Link(".wine", "e:", "../medium");
  Link(".wine", "f:", "/missing/medium/");
  Link(".wine", "g:", home_ / "games/");
  Link(".wine", "d::", "/dev/sr0");
  Link(".wine", "com1", "/dev/ttyS0");
  EXPECT_EQ(Read(""), (Roots{{'C', home_ / ".wine/drive_c"},
                             {'E', home_ / ".wine/medium"},
                             {'F', "/missing/medium"},
                             {'G', home_ / "games"},
                             {'Z', "/"}}));
}

TEST_F(DriveMapTest, ThePrefixGivenGoesBeforeTheOneAtHomeAndMayMoveTheRootDrive) {
  Link(".wine", "c:", "/usr");
  Link("other", "z:", path_);
  EXPECT_EQ(Read(home_ / "other"), (Roots{{'Z', path_}}));
}

}  // namespace
}  // namespace vellumark
