#include "platform/posix/drive_map.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "support/host_folder.h"

namespace vellumark {
namespace {

namespace fs = std::filesystem;

using Roots = std::map<char, std::string>;

TEST(DriveMapTest, WithoutAPrefixThereIsTheRootOnly) {
  const HostFolder home;
  EXPECT_EQ(ReadDriveMap("", "").roots, (Roots{{'Z', "/"}}));
  EXPECT_EQ(ReadDriveMap("", home.path()).roots, (Roots{{'Z', "/"}}));
  EXPECT_EQ(ReadDriveMap(home / "missing", home.path()).roots, (Roots{{'Z', "/"}}));
}

TEST(DriveMapTest, DrivesAreTheLinksOfThePrefix) {
  const HostFolder home;
  fs::create_directories(home / ".wine/dosdevices");
  fs::create_directories(home / ".wine/drive_c");
  fs::create_directories(home / "games");
  fs::create_symlink("../drive_c", home / ".wine/dosdevices/c:");
  fs::create_symlink(home / "games/", home / ".wine/dosdevices/g:");
  fs::create_symlink("/dev/sr0", home / ".wine/dosdevices/d::");
  fs::create_symlink("/dev/ttyS0", home / ".wine/dosdevices/com1");

  EXPECT_EQ(ReadDriveMap("", home.path()).roots,
            (Roots{{'C', home / ".wine/drive_c"}, {'G', home / "games"}, {'Z', "/"}}));
}

TEST(DriveMapTest, ThePrefixGivenGoesBeforeTheOneAtHomeAndMayMoveTheRootDrive) {
  const HostFolder home;
  fs::create_directories(home / ".wine/dosdevices");
  fs::create_symlink("/usr", home / ".wine/dosdevices/c:");
  fs::create_directories(home / "other/dosdevices");
  fs::create_symlink(home.path(), home / "other/dosdevices/z:");

  EXPECT_EQ(ReadDriveMap(home / "other", home.path()).roots, (Roots{{'Z', home.path()}}));
}

TEST(DriveMapTest, ADeadLinkIsADriveAllTheSame) {
  const HostFolder home;
  fs::create_directories(home / ".wine/dosdevices");
  fs::create_symlink("../medium", home / ".wine/dosdevices/d:");
  fs::create_symlink("/missing/medium/", home / ".wine/dosdevices/e:");

  EXPECT_EQ(ReadDriveMap("", home.path()).roots,
            (Roots{{'D', home / ".wine/medium"}, {'E', "/missing/medium"}, {'Z', "/"}}));
}

}  // namespace
}  // namespace vellumark
