// Steam's list of the folders that it installs games in.
#ifndef VELLUMARK_ARCHIVE_STEAM_LIBRARIES_H_
#define VELLUMARK_ARCHIVE_STEAM_LIBRARIES_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

// The libraries that a libraryfolders.vdf names, as they are spelled there; of its older form, too.
// Nothing when any part of it is damaged.
std::optional<std::vector<std::string>> ReadSteamLibraries(std::string_view vdf);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_STEAM_LIBRARIES_H_
