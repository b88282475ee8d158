// File dialogs by Qt, which asks the desktop for its own.
#ifndef VELLUMARK_PLATFORM_QT_QT_FILE_DIALOGS_H_
#define VELLUMARK_PLATFORM_QT_QT_FILE_DIALOGS_H_

#include <QFileDialog>
#include <string>
#include <utility>

#include "platform/file_dialogs.h"

namespace vellumark {

class FileSystem;
class MessageBoxes;
class Text;

class QtFileDialogs final : public FileDialogs {
 public:
  // `not_expressible` is what the user is told of a chosen path that has no Windows path.
  QtFileDialogs(FileSystem& files, const Text& text, MessageBoxes& boxes,
                std::string not_expressible)
      : files_(files), text_(text), boxes_(boxes), not_expressible_(std::move(not_expressible)) {}

  std::optional<std::string> Open(const FileDialogRequest& request) override;
  std::optional<std::string> Save(const FileDialogRequest& request) override;

 private:
  std::optional<std::string> Run(QFileDialog& dialog, const FileDialogRequest& request);
  bool Exists(const std::string& path) const;
  QString HostPath(const std::string& path) const;

  FileSystem& files_;
  const Text& text_;
  MessageBoxes& boxes_;
  const std::string not_expressible_;
};

// A request's filter as Qt writes it, the patterns behind each description.
QString QtFilter(const QString& filter);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_FILE_DIALOGS_H_
