// What the archive properties dialog shows and what its OK does.
#ifndef VELLUMARK_ARCHIVE_ARCHIVE_PROPERTIES_H_
#define VELLUMARK_ARCHIVE_ARCHIVE_PROPERTIES_H_

#include <optional>
#include <string>

namespace vellumark {

struct Program;

// The dialog's fields, as texts.
struct ArchivePropertiesFields {
  std::string main_folder{};
  std::string base_name{};
  std::string game_folder{};
  std::string executable{};
  std::string max_savegame{};
};

// The fields for the archive in use, with the opening sound; for a new archive the first game that
// was found is proposed. ArchivePropertiesOk becomes false.
ArchivePropertiesFields PrepareArchiveProperties(Program& program);

// The dialog's title: it names the archive file.
std::string ArchivePropertiesTitle(const Program& program);

// Takes the fields over into the archive settings. False, after telling the user why, when one of
// them is missing or cannot be; nothing has changed then.
bool AcceptArchiveProperties(Program& program, const ArchivePropertiesFields& fields);

// Asks for the game's executable; empty when the user cancels or chooses one whose path is too long
// for the archive file, which is told.
std::optional<std::string> ChooseGameExecutable(Program& program, const std::string& game_folder);

// Each asks for a folder, starting from the one that the dialog shows, and answers the one that it
// is to show from then on.
std::string ChooseMainFolder(Program& program, const std::string& shown);
std::string ChooseGameFolder(Program& program, const std::string& shown);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_ARCHIVE_PROPERTIES_H_
