// Setting savegames aside that the program's rules would otherwise destroy.
#ifndef VELLUMARK_FOUNDATION_RESCUE_H_
#define VELLUMARK_FOUNDATION_RESCUE_H_

#include <string>
#include <vector>

#include "foundation/failures.h"
#include "foundation/own_messages.h"

namespace vellumark {

struct Program;

// What one run of an operation sets aside: one folder `rescued\<n>` beside the program, n being the
// next free number, made for the first file. Files keep their names, so the folder is an ordinary
// slot folder; a plain-text list in it says what came from where, when and why.
class Rescue {
 public:
  explicit Rescue(Program& program) : program_(program) {}

  // Moves files into the folder, or into a sub-folder of it with that name. `why` is the message
  // that ends the line "Why:" of the list. False when some are still where they were, because their
  // names were taken already or the disk refused; failures() names them, or what stood in the way
  // of the folder.
  bool Take(const std::vector<std::string>& paths, OwnMessage why,
            const std::string& subfolder = {});

  // Makes the folder for a file that the caller writes there itself.
  FileError MakeFolder(OwnMessage why);

  // Empty as long as nothing has been moved. What a caller writes itself does not count.
  const std::string& folder() const { return folder_; }
  const std::vector<Failure>& failures() const { return failures_; }

 private:
  FileError FindFolder();
  FileError MakeSubfolder(const std::string& name);
  void WriteList(const std::vector<std::string>& paths, OwnMessage why,
                 const std::string& subfolder);
  void RemoveEmpty(const std::string& subfolder);

  Program& program_;
  std::string folder_;
  std::vector<Failure> failures_;
  bool any_moved_ = false;
};

// What the list of a folder says of one of its files.
struct RescuedFrom {
  std::string name;    // in the folder, with its sub-folder
  std::string origin;  // the path where it lay
  std::string why;
};

struct RescueList {
  std::string when;  // empty where the list does not say it
  std::vector<RescuedFrom> files;
};

// What can be read of the list of a folder: nothing when it is missing, and no line that somebody
// has made unreadable.
RescueList ReadRescueList(FileSystem& files, const std::string& folder);

// The folder in which all that was set aside lies, and the name of the list in each of its folders.
std::string RescueRoot(const Program& program);
std::string RescueListName();

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_RESCUE_H_
