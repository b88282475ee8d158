#include "platform/qt/qt_shell.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "platform/qt/wine.h"

namespace vellumark {
namespace {

// In the prefix that the program lies in, so that it finds its drives and its settings.
QProcessEnvironment EnvironmentFor(const QString& program) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  const QString name = QStringLiteral("WINEPREFIX");
  const std::string prefix =
      WinePrefixOf(program.toStdString(), environment.value(name).toStdString(),
                   environment.value(QStringLiteral("HOME")).toStdString());
  if (!prefix.empty()) environment.insert(name, QString::fromStdString(prefix));
  return environment;
}

// The permission alone tells nothing: on a disk without permissions every file has it.
bool IsNativeProgram(const QFileInfo& info) {
  QFile file(info.filePath());
  if (!info.isExecutable() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray beginning = file.read(4);
  return beginning == "\177ELF" || beginning.startsWith("#!");
}

}  // namespace

bool QtShell::Open(const std::string& document, const std::string& parameters,
                   const std::string& working_folder, bool /*hidden*/) {
  const QFileInfo file(QString::fromStdString(document));
  if (document.empty() || !file.exists()) return false;

  const bool for_wine = file.isFile() && IsWindowsProgram(file.filePath());
  if (!for_wine && !(file.isFile() && IsNativeProgram(file))) {
    // What only bears a program's name would come up in an editor, or nowhere.
    const bool named_program =
        file.suffix().compare(QLatin1String("exe"), Qt::CaseInsensitive) == 0;
    if (named_program) return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file.filePath()));
  }

  QProcess process;
  QStringList arguments = QProcess::splitCommand(QString::fromStdString(parameters));
  if (for_wine) {
    const QString wine = FindWine(wine_folder_);
    if (wine.isEmpty()) return false;
    process.setProgram(wine);
    process.setProcessEnvironment(EnvironmentFor(file.filePath()));
    arguments.prepend(file.absoluteFilePath());
  } else {
    process.setProgram(file.filePath());
  }
  process.setArguments(arguments);
  process.setWorkingDirectory(QString::fromStdString(working_folder));
  return process.startDetached();
}

std::string QtShell::MissingFor(const std::string& document) {
  const bool needs_wine = IsWindowsProgram(QString::fromStdString(document));
  return needs_wine && FindWine(wine_folder_).isEmpty() ? "Wine" : "";
}

}  // namespace vellumark
