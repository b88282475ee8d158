// The preferences as a record of 524 bytes in their file.
#ifndef VELLUMARK_FOUNDATION_PREFERENCES_FILE_H_
#define VELLUMARK_FOUNDATION_PREFERENCES_FILE_H_

#include <string>
#include <string_view>

#include "foundation/preferences_state.h"

namespace vellumark {

struct Program;

constexpr std::size_t kPreferencesRecordSize = 524;

// Fields that the bytes do not hold whole keep the value that `preferences` had.
void DecodePreferences(std::string_view bytes, Preferences& preferences);
std::string EncodePreferences(const Preferences& preferences);

// Reads PreferencesPath into the preferences. When the file is short, foreign or cannot be read,
// what could not be read keeps its default and the user is told.
void ReadPreferencesFile(Program& program);

// Writes the preferences to PreferencesPath; a file that had not been read whole is kept as
// `<name>.bak` first. The user is told when it fails, and the file is then as it was.
void WritePreferencesFile(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PREFERENCES_FILE_H_
