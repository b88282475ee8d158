// Reads the archive's folders and the game folder into a catalogue.
#ifndef VELLUMARK_ARCHIVE_CATALOGUE_BUILDER_H_
#define VELLUMARK_ARCHIVE_CATALOGUE_BUILDER_H_

#include <functional>
#include <string>
#include <vector>

#include "archive/archive_state.h"
#include "foundation/failures.h"
#include "savegames/catalogue_state.h"

namespace vellumark {

class Text;

struct CatalogueRequest {
  const ArchiveSettings& settings;
  const std::string& game_folder;  // the folder that is listed with folder number 0
  bool all_subfolders = false;     // every first-level folder instead of the numbered ones
  // Where given, it is told every now and then, on the calling thread, how many folders of how many
  // are read, as long as others read them.
  std::function<void(int done, int all)> show{};
};

struct ScannedCatalogue {
  Catalogue catalogue;
  std::vector<bool> has_shot;          // for each entry: its screen-shot existed
  std::vector<Failure> failures;       // folders and files that could not be read
  std::vector<std::string> ambiguous;  // paths left out: another name differs by case only
  std::vector<UnusableName> unusable;  // sub-folders left out: no path leads to them
  std::vector<std::string> leftovers;  // temporary files of a run that was cut off
  bool table_full = false;             // there was more than a catalogue can hold
};

// A savegame file that is short or cannot be read is listed with what could be read of its level
// name and the counter 0.
ScannedCatalogue BuildCatalogue(FileSystem& files, const Text& text,
                                const CatalogueRequest& request);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_CATALOGUE_BUILDER_H_
