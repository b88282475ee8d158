// Which folder is the program folder of a run, and where the files are that come with the program.
#ifndef VELLUMARK_FOUNDATION_PROGRAM_PLACES_H_
#define VELLUMARK_FOUNDATION_PROGRAM_PLACES_H_

#include <optional>
#include <string>
#include <string_view>

#include "foundation/program_paths_state.h"
#include "platform/file_system.h"

namespace vellumark {

// The command line, less what this program takes for an option. What remains is one path.
struct CommandLine {
  bool portable = false;  // everything stays in the executable's folder
  std::string path;
};

// `--portable` counts at the beginning and at the end: no path that the program knows ends so.
CommandLine ReadCommandLine(std::string_view arguments);

// Folders in the core's form; nothing where a path cannot express them.
struct OfferedPlaces {
  std::optional<std::string> executable_folder{};
  std::optional<std::string> user_folder{};  // this user's own, which need not be there yet
  bool portable = false;
};

struct ProgramPlaces {
  enum class Problem { kNone, kUnusable, kNotMade };
  Problem problem = Problem::kNone;
  bool users_own = false;              // the program folder is the user's, not the executable's
  ProgramPaths paths;                  // ProgramFolder and InstalledFolder
  FileError error = FileError::kNone;  // why the user's folder could not be made
};

// A copy that stands in a folder of its own, which this user may write to, keeps its files there.
// One that is installed, or stands where this user may not write, keeps them in the user's folder,
// which is made.
ProgramPlaces FindProgramPlaces(FileSystem& files, const OfferedPlaces& offered);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PROGRAM_PLACES_H_
