// The drive letters and the folders of this system that they stand for.
#ifndef VELLUMARK_PLATFORM_POSIX_DRIVE_MAP_H_
#define VELLUMARK_PLATFORM_POSIX_DRIVE_MAP_H_

#include <map>
#include <string>

namespace vellumark {

struct DriveMap {
  // `A`..`Z` to an absolute folder, written without a slash at its end except for `/` itself. The
  // folder need not exist: then the drive is not ready.
  std::map<char, std::string> roots;
};

// The drives of the Wine prefix in use, which is where the game's own paths come from: the folder
// `wine_prefix` (the value of WINEPREFIX), or `.wine` in the folder `home` when that is empty.
// `Z` is the root of the file system unless the prefix gives it another meaning.
DriveMap ReadDriveMap(const std::string& wine_prefix, const std::string& home);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_DRIVE_MAP_H_
