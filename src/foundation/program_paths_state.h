// Where this run finds its own files.
#ifndef VELLUMARK_FOUNDATION_PROGRAM_PATHS_STATE_H_
#define VELLUMARK_FOUNDATION_PROGRAM_PATHS_STATE_H_

#include <string>

namespace vellumark {

struct ProgramPaths {
  std::string ProgramFolder;    // without a trailing backslash; set before start-up
  std::string InstalledFolder;  // files that come with the program, for those that are not in
                                // ProgramFolder; empty where there is no such place
  std::string PreferencesPath;  // read at start-up, written at shut-down
  std::string DefaultShotPath;  // empty when the picture is missing
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PROGRAM_PATHS_STATE_H_
