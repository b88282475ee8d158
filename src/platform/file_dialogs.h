// The system's own dialogs for opening and saving a file.
#ifndef VELLUMARK_PLATFORM_FILE_DIALOGS_H_
#define VELLUMARK_PLATFORM_FILE_DIALOGS_H_

#include <optional>
#include <string>

namespace vellumark {

// All texts in the code page.
struct FileDialogRequest {
  std::string title{};
  std::string filter{};        // description `|` pattern, for example "Jpeg files (*.jpg)|*.jpg";
                               // more pairs may follow, several patterns have a `;` between them
  std::string start_folder{};  // a folder that does not exist leaves the choice to the system
  std::string initial_name{};  // a name or a full path; empty for none
  bool confirm_overwrite = false;  // saving only
  std::string default_ending{};    // saving only: what a name typed without an ending gets; ".jpg"
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;

  // Each shows the dialog modally and answers the chosen file's full path, or nothing when the
  // user cancelled or chose a file whose path the program cannot express (the user was told).
  // A typed name may be that of no file; one typed without the filter's ending, or in another
  // letter case, answers the file that it means.
  virtual std::optional<std::string> Open(const FileDialogRequest& request) = 0;
  // The name comes back as typed: an ending is added and an existing file raises a question only
  // where the request says so.
  virtual std::optional<std::string> Save(const FileDialogRequest& request) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_FILE_DIALOGS_H_
