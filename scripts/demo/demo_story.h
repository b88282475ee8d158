// One player's way through the game: what was saved where, and what was jotted down.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_STORY_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_STORY_H_

#include <string_view>
#include <vector>

namespace vellumark::demo {

struct StorySavegame {
  int slot = 0;
  int counter = 0;
  std::string_view level;
  bool shot = false;      // a screen-shot lies beside it
  std::string_view note;  // UTF-8, \n between lines; empty: no note file
};

// The archive's sub-folders, the first import first; each in rising slot order.
const std::vector<std::vector<StorySavegame>>& ArchivedSavegames();

// What lies in the game's folder: five savegames that are no newer than the archive's last one,
// and two, in the highest slots, that wait to be imported.
const std::vector<StorySavegame>& GameFolderSavegames();

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_STORY_H_
