// The label of a backup: a small text file in BackupFolder that says whose slots lie there. It is
// what a later run knows of a run that did not come to its end.
#ifndef VELLUMARK_GAME_BACKUP_LABEL_H_
#define VELLUMARK_GAME_BACKUP_LABEL_H_

#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vellumark {

struct BackupLabel {
  // A file that a play has put into a slot, and the archived file that it is a copy of.
  struct Placed {
    std::string name;
    std::string source;
  };

  std::string home;                // the game folder that the backup was taken from
  std::vector<std::string> files;  // the names of the files that it holds
  std::vector<Placed> placed;
  bool given_back = false;  // the backup has been copied home since
};

// Writes the label of a whole backup, before the first slot is cleared; safe on the disk when it
// answers kNone.
FileError WriteBackupLabel(FileSystem& files, const std::string& backup_folder,
                           const BackupLabel& label);

// Adds what a play has put into the slots. When that fails, a later run takes these files for
// savegames of the game and sets them aside.
void AddPlacedToLabel(FileSystem& files, const std::string& backup_folder,
                      const std::vector<BackupLabel::Placed>& placed);

// Says that the backup has been copied home, or takes the label away when that fails.
void MarkGivenBack(FileSystem& files, const std::string& backup_folder);

// Nothing when there is no label or none that says it all.
std::optional<BackupLabel> ReadBackupLabel(FileSystem& files, const std::string& backup_folder);

void RemoveBackupLabel(FileSystem& files, const std::string& backup_folder);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_BACKUP_LABEL_H_
