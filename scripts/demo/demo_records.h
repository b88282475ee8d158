// The two fixed records by which the program knows an archive, and the listing in its folder.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_RECORDS_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_RECORDS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "demo_story.h"

namespace vellumark::demo {

// The widest text that a field of a record holds.
constexpr std::size_t kTextFieldWidth = 256;

// The highest slot number of the demo archive.
constexpr int kMaxSavegame = 15;

// The base name of the archive's sub-folders.
inline constexpr std::string_view kSubfolderBaseName = "Slot";

// Paths in Windows form, each at most kTextFieldWidth bytes.
struct ArchivePaths {
  std::string main_folder;
  std::string game_folder;
  std::string game_executable;
};

// The 1030 bytes of an archive file.
std::string ArchiveRecord(const ArchivePaths& paths, int savegame_count);

// The 524 bytes of a preferences file. Both paths are in Windows form.
std::string PreferencesRecord(std::string_view archive_file, std::string_view shot_folder);

// The section of an info file about one sub-folder: `folder` is its path in Windows form, the
// savegames are in rising slot order.
std::string InfoSection(std::string_view folder, const std::vector<StorySavegame>& savegames);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_RECORDS_H_
