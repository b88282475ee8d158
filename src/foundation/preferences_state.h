// The program's own settings, apart from those of an archive.
#ifndef VELLUMARK_FOUNDATION_PREFERENCES_STATE_H_
#define VELLUMARK_FOUNDATION_PREFERENCES_STATE_H_

#include <cstdint>
#include <string>

namespace vellumark {

// Texts are kept trimmed; the file holds at most 256 characters of each.
struct Preferences {
  std::string LastArchive;     // full path of the archive in use; empty when none is open
  std::uint16_t reserved = 0;  // part of the file, given back as it was read
  std::string ShotFolder;      // where screen-shots saved by hand go
  bool SearchInNotes = true;
  bool SearchInLevelName = true;
  bool ScanAllSubfolders = false;  // take every sub-folder instead of the numbered ones
  bool SoundEffects = false;
  bool AutoCapture = true;

  bool operator==(const Preferences&) const = default;
};

// What is known about the file that the preferences came from.
struct PreferencesFileState {
  bool read_whole = true;  // false: the file was there and could not be read whole
  std::string bytes{};     // its record as this run has read or written it last
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PREFERENCES_STATE_H_
