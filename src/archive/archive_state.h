// The archive in use: where its savegames lie and which game they belong to.
#ifndef VELLUMARK_ARCHIVE_ARCHIVE_STATE_H_
#define VELLUMARK_ARCHIVE_ARCHIVE_STATE_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace vellumark {

// Texts are kept trimmed; the file holds at most 256 characters of each.
struct ArchiveSettings {
  std::string SubfolderBaseName;  // sub-folder k is MainFolder + `\` + this + k, k from 1
  std::string MainFolder;
  std::string GameFolder;          // where the game keeps its slots
  std::string GameExecutable;      // full path
  std::int16_t MaxSavegame = 0;    // the highest slot number; slots 0 to this one are looked at
  std::int32_t SavegameCount = 0;  // written when the file is saved, never read

  bool operator==(const ArchiveSettings&) const = default;
};

struct ArchiveBefore;

// The settings in use and what is known about their file, Preferences::LastArchive.
struct ArchiveState {
  ArchiveSettings settings;
  bool ArchiveChanged = false;

  // Set while the settings come from a file that could not be read whole: what could be read.
  std::optional<ArchiveSettings> read_in_part;

  // Set while a new archive has not been written: a file of its name is another archive's.
  bool never_written = false;

  std::string file_bytes{};  // the file's record as this run has read or written it last

  // As the last scan has found them; only known when it has listed nothing.
  bool main_folder_there = true;
  bool game_folder_there = true;

  bool ArchivePropertiesOk = false;  // the last answer of the archive properties dialog

  // Set while the dialog for a new archive is open: what was in use before.
  std::shared_ptr<const ArchiveBefore> before_new{};
};

struct ArchiveBefore {
  ArchiveState archive;
  std::string path;  // LastArchive
};

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_ARCHIVE_STATE_H_
