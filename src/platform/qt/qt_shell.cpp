#include "platform/qt/qt_shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace vellumark {

bool QtShell::Open(const std::string& document, const std::string& parameters,
                   const std::string& working_folder, bool /*hidden*/) {
  const QFileInfo file(QString::fromStdString(document));
  if (document.empty() || !file.exists()) return false;

  if (file.isFile() && file.isExecutable()) {
    return QProcess::startDetached(file.filePath(),
                                   QProcess::splitCommand(QString::fromStdString(parameters)),
                                   QString::fromStdString(working_folder));
  }
  return QDesktopServices::openUrl(QUrl::fromLocalFile(file.filePath()));
}

std::string QtShell::MissingFor(const std::string& /*document*/) { return {}; }

}  // namespace vellumark
