#include "maintenance/old_archive.h"

#include <memory>
#include <unordered_map>

#include "foundation/paths.h"
#include "foundation/strings.h"
#include "platform/text.h"
#include "program.h"

namespace vellumark {

OldArchive FindOldArchive(Program& program) {
  const ArchiveSettings& settings = program.archive.settings;
  const std::string stem =
      InFolder(Trimmed(settings.MainFolder), Trimmed(settings.SubfolderBaseName));
  const auto parent = program.files.OpenFolder(FolderOf(stem));
  const Listing& listing = parent->Contents();
  OldArchive old;
  if (listing.error != FileError::kNotFound) old.error = listing.error;

  std::unordered_map<std::string, const FolderEntry*> by_name;
  for (const FolderEntry& entry : listing.entries) {
    by_name.emplace(program.text.LowerPath(entry.name), &entry);
  }
  for (int number = 1;; ++number) {
    const std::string path = stem + std::to_string(number);
    const auto found = by_name.find(program.text.LowerPath(FileNameOf(path)));
    if (found == by_name.end() || !found->second->folder) return old;
    old.folders.push_back({path, found->second->ambiguous});
  }
}

}  // namespace vellumark
