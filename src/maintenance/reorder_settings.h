// What the user has set for a reorder run, and whether it can be done.
#ifndef VELLUMARK_MAINTENANCE_REORDER_SETTINGS_H_
#define VELLUMARK_MAINTENANCE_REORDER_SETTINGS_H_

#include <cstdint>
#include <optional>
#include <string>

namespace vellumark {

struct Program;

// The fields of the reorder dialog; it opens with these values.
struct ReorderSettings {
  std::string BasePath{};         // the new main folder, as typed
  std::string FolderName{};       // the new base name of the sub-folders, as typed
  std::int16_t MaxSlot = 0;       // the highest slot number in a new sub-folder
  std::int16_t MaxPerFolder = 0;  // the most savegames in a new sub-folder; 0 or less: no limit
  bool DeleteOldArchive = false;
  bool RemoveEquals = false;
  bool KeepLevelsApart = false;
  bool CreateInfoFiles = false;
};

// Fresh settings, with the opening sound.
ReorderSettings PrepareReorder(Program& program);

// A number field has changed: an empty text leaves the value as it is, and so does, after telling
// the user, one that is no number or too large.
void TypeMaxSlot(Program& program, ReorderSettings& settings, const std::string& typed);
void TypeMaxPerFolder(Program& program, ReorderSettings& settings, const std::string& typed);

// Asks for the new main folder; empty when the user cancels.
std::optional<std::string> ChooseNewMainFolder(Program& program);

// Where the new archive goes.
struct ReorderTarget {
  std::string main_folder;  // with a drive, without a backslash at the end
  std::string base_name;

  std::string Subfolder(int number) const;
  // Its name until it is whole.
  std::string TemporarySubfolder(int number) const;
};

// Checks one setting after the other. Empty, after telling the user about the first that cannot
// be; nothing has changed then.
std::optional<ReorderTarget> ValidateReorder(Program& program, const ReorderSettings& settings);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_SETTINGS_H_
