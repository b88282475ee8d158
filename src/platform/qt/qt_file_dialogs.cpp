#include "platform/qt/qt_file_dialogs.h"

#include <QFileInfo>

#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_text.h"

namespace vellumark {

QString QtFilter(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    filters.append(QStringLiteral("%1 (%2)").arg(parts[i], patterns.replace(u';', u' ')));
  }
  return filters.join(QStringLiteral(";;"));
}

std::optional<std::string> QtFileDialogs::Open(const FileDialogRequest& request) {
  QFileDialog dialog(ModalOpener());
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  // A mode that takes existing files only refuses names that differ in their letter case, and names
  // without an ending, which the filter hides.
  dialog.setFileMode(QFileDialog::AnyFile);
  auto path = Run(dialog, request);
  const std::size_t dot = request.filter.rfind('.');
  if (!path || dot == std::string::npos || Exists(*path)) return path;
  const std::string with_ending = *path + request.filter.substr(dot);
  return Exists(with_ending) ? with_ending : path;
}

std::optional<std::string> QtFileDialogs::Save(const FileDialogRequest& request) {
  QFileDialog dialog(ModalOpener());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.confirm_overwrite);
  dialog.setDefaultSuffix(ToQString(text_, request.default_ending));
  return Run(dialog, request);
}

std::optional<std::string> QtFileDialogs::Run(QFileDialog& dialog,
                                              const FileDialogRequest& request) {
  dialog.setWindowTitle(ToQString(text_, request.title));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilter(QtFilter(ToQString(text_, request.filter)));
  const QString folder = HostPath(request.start_folder);
  if (QFileInfo(folder).isDir()) dialog.setDirectory(folder);
  if (!request.initial_name.empty()) {
    dialog.selectFile(QFileInfo(HostPath(request.initial_name)).fileName());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;

  const std::string chosen = dialog.selectedFiles().constFirst().toStdString();
  auto path = files_.FromHostPath(chosen);
  if (!path) boxes_.Show(not_expressible_, BoxButtons::kOk, BoxIcon::kCritical);
  return path;
}

bool QtFileDialogs::Exists(const std::string& path) const {
  return files_.Attributes(path).error == FileError::kNone;
}

QString QtFileDialogs::HostPath(const std::string& path) const {
  return QString::fromStdString(files_.HostPath(path));
}

}  // namespace vellumark
