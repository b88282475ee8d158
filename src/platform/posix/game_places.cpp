#include "platform/game_places.h"

#include <cstdlib>

namespace vellumark {
namespace {

// The value of a variable that names a folder; `otherwise` when it names none.
std::string FolderIn(const char* variable, const std::string& otherwise) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value == '/' ? value : otherwise;
}

}  // namespace

GamePlaces KnownGamePlaces() {
  GamePlaces places;
  const std::string prefix = FolderIn("WINEPREFIX", "");
  if (!prefix.empty()) places.wine_prefixes.push_back(prefix);
  const std::string home = FolderIn("HOME", "");
  if (home.empty()) return places;

  const std::string data = FolderIn("XDG_DATA_HOME", home + "/.local/share");
  const std::string settings = FolderIn("XDG_CONFIG_HOME", home + "/.config");
  const std::string sandboxes = home + "/.var/app/";
  places.wine_prefixes.push_back(home + "/.wine");
  places.steam_folders = {data + "/Steam", home + "/.steam/steam",
                          sandboxes + "com.valvesoftware.Steam/.local/share/Steam",
                          sandboxes + "com.valvesoftware.Steam/data/Steam"};
  places.heroic_folders = {settings + "/heroic",
                           sandboxes + "com.heroicgameslauncher.hgl/config/heroic"};
  places.lutris_folders = {data + "/lutris/games", settings + "/lutris/games",
                           sandboxes + "net.lutris.Lutris/data/lutris/games",
                           sandboxes + "net.lutris.Lutris/config/lutris/games"};
  places.program_folders = {home + "/Games", home + "/GOG Games"};
  return places;
}

}  // namespace vellumark
