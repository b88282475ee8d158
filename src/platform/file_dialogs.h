// The system's own dialogs for opening and saving a file.
#ifndef VELLUMARK_PLATFORM_FILE_DIALOGS_H_
#define VELLUMARK_PLATFORM_FILE_DIALOGS_H_

#include <optional>
#include <string>

namespace vellumark {

// All texts in the code page.
struct FileDialogRequest {
  std::string title{};
  std::string filter{};        // description `|` pattern, for example "Jpeg files (*.jpg)|*.jpg"
  std::string start_folder{};  // a folder that does not exist leaves the choice to the system
  std::string initial_name{};  // a name or a full path; empty for none
  bool confirm_overwrite = false;  // saving only
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;

  // Each shows the dialog modally and answers the chosen file's full path, or nothing when the
  // user cancelled or chose a file whose path the program cannot express (the user was told).
  virtual std::optional<std::string> Open(const FileDialogRequest& request) = 0;
  // The name comes back as typed: no extension is added, and an existing file raises a question
  // only when confirm_overwrite asks for it.
  virtual std::optional<std::string> Save(const FileDialogRequest& request) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_FILE_DIALOGS_H_
