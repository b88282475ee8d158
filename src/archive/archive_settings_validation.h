// Whether the archive settings are complete enough to play.
#ifndef VELLUMARK_ARCHIVE_ARCHIVE_SETTINGS_VALIDATION_H_
#define VELLUMARK_ARCHIVE_ARCHIVE_SETTINGS_VALIDATION_H_

namespace vellumark {

struct Program;

// Checks one setting after the other and tells the user about the first that is missing.
bool ValidateArchiveSettings(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_ARCHIVE_SETTINGS_VALIDATION_H_
