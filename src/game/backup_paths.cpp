#include "game/backup_paths.h"

#include "platform/text.h"

namespace vellumark {

void PointIntoFolder(const Text& text, SavegameEntry& entry, const std::string& from,
                     const std::string& to, Occurrences which) {
  if (from.empty()) return;
  const std::string wanted = text.LowerPath(from);
  for (std::string* path : {&entry.SavegamePath, &entry.NotePath, &entry.ShotPath}) {
    std::size_t place = text.LowerPath(*path).find(wanted);
    while (place != std::string::npos) {
      path->replace(place, from.size(), to);
      if (which == Occurrences::kFirst) break;
      place = text.LowerPath(*path).find(wanted, place + to.size());
    }
  }
}

}  // namespace vellumark
