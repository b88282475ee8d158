#include "foundation/program_places.h"

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"

namespace vellumark {
namespace {

constexpr std::string_view kPortable = "--portable";
constexpr std::string_view kInstalledTail = "\\share\\vellumark";

// The longest program folder whose own files' paths still fit everywhere.
constexpr std::size_t kLongestProgramFolder = 200;

// With the folders on the way to it.
FileError MakeFolder(FileSystem& files, const std::string& folder) {
  const AttributesResult found = files.Attributes(folder);
  if (found.error == FileError::kNone) {
    return found.attributes.folder ? FileError::kNone : FileError::kNotAFolder;
  }
  const std::string above = FolderOf(folder);
  if (found.error != FileError::kNotFound || above.empty()) return found.error;
  const FileError error = MakeFolder(files, above);
  return error == FileError::kNone ? files.CreateFolder(folder) : error;
}

}  // namespace

CommandLine ReadCommandLine(std::string_view arguments) {
  const std::string line = Trimmed(arguments);
  if (line == kPortable) return {true, {}};
  const std::string option(kPortable);
  if (line.starts_with(option + " ")) return {true, Trimmed(line.substr(option.size()))};
  if (line.ends_with(" " + option)) {
    return {true, Trimmed(line.substr(0, line.size() - option.size()))};
  }
  return {false, std::string(arguments)};
}

ProgramPlaces FindProgramPlaces(FileSystem& files, const OfferedPlaces& offered) {
  ProgramPlaces places;
  if (!offered.executable_folder) {
    places.problem = ProgramPlaces::Problem::kUnusable;
    return places;
  }
  const std::string& beside = *offered.executable_folder;
  const std::string shared = FolderOf(beside) + std::string(kInstalledTail);
  // The folder alone may be the user's own.
  const bool installed = FileExists(files, shared + LoadMessage(286));
  const bool stays = offered.portable || (!installed && files.MayMakeFilesIn(beside));
  if (installed || !stays) places.paths.InstalledFolder = installed ? shared : beside;
  places.users_own = !stays;
  const std::string folder = stays ? beside : offered.user_folder.value_or("");
  places.paths.ProgramFolder = folder;
  if (folder.empty() || folder.size() > kLongestProgramFolder) {
    places.problem = ProgramPlaces::Problem::kUnusable;
  } else if (!stays) {
    places.error = MakeFolder(files, folder);
    if (places.error != FileError::kNone) places.problem = ProgramPlaces::Problem::kNotMade;
  }
  return places;
}

}  // namespace vellumark
