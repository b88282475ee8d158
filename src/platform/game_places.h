// Where this system keeps games, and which lists of installed games it has.
#ifndef VELLUMARK_PLATFORM_GAME_PLACES_H_
#define VELLUMARK_PLATFORM_GAME_PLACES_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

// Host paths, UTF-8, none of which need exist. What stands in lists of others is not to be relied
// on.
struct GamePlaces {
  std::vector<std::string> game_folders{};     // each may be the game's
  std::vector<std::string> steam_folders{};    // where Steam is installed
  std::vector<std::string> program_folders{};  // below which programs and games are installed
  std::vector<std::string> wine_prefixes{};
  std::vector<std::string> heroic_folders{};  // Heroic's settings
  std::vector<std::string> lutris_folders{};  // Lutris' games, one `.yml` each

  // All texts with this name that stand anywhere in a JSON document; none when it is damaged.
  std::function<std::vector<std::string>(std::string_view json, std::string_view name)> json_texts;
};

// From the environment and the registry; no folder is looked at. Without `json_texts`.
GamePlaces KnownGamePlaces();

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_GAME_PLACES_H_
