#include "platform/qt/qt_shell.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>
#include <QUrl>
#include <algorithm>

#include "platform/qt/file_manager.h"
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

// A shell stays behind the program and writes how it ended, whether this program still runs or not.
constexpr const char* kRunAndSayTheEnd = "\"$@\" >&2; echo \"$0 $?\" >&2";
constexpr const char* kEndMark = "vellumark: ended with";

constexpr const char* kDebianWineFor32Bit = "wine32:i386";

// Less the advice of Debian's Wine to install its 32-bit half, which stands before whatever runs.
QByteArray WithoutAdvice(const QByteArray& log) {
  const qsizetype advice = log.lastIndexOf(kDebianWineFor32Bit);
  const qsizetype end = advice < 0 ? -1 : log.indexOf('\n', advice);
  return log.mid(end + 1);
}

StartedProgram ReadLog(const QByteArray& log) {
  StartedProgram started;
  for (const QByteArray& line : WithoutAdvice(log).split('\n')) {
    if (line.startsWith(kEndMark)) {
      started.ended = true;
      started.exit_code = line.mid(QByteArrayView(kEndMark).size()).trimmed().toUInt();
      break;
    }
    if (!line.trimmed().isEmpty()) started.last_words = line.trimmed().toStdString();
  }
  return started;
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
  const bool runs = for_wine || (file.isFile() && IsNativeProgram(file));
  // What only bears a program's name would come up in an editor, or nowhere.
  const bool named_program = file.suffix().compare(QLatin1String("exe"), Qt::CaseInsensitive) == 0;
  if (!runs && !named_program) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file.filePath()));
  }
  log_.reset();
  if (!runs) return false;

  QStringList command = QProcess::splitCommand(QString::fromStdString(parameters));
  command.prepend(file.absoluteFilePath());
  QProcess process;
  if (for_wine) {
    const QString wine = FindWine(wine_folder_);
    if (wine.isEmpty()) return false;
    command.prepend(wine);
    process.setProcessEnvironment(EnvironmentFor(file.filePath()));
  }
  process.setProgram(QStringLiteral("/bin/sh"));
  process.setArguments(
      QStringList{QStringLiteral("-c"), QLatin1String(kRunAndSayTheEnd), QLatin1String(kEndMark)} +
      command);
  process.setWorkingDirectory(QString::fromStdString(working_folder));

  // The file loses its name at once, so that nothing is left of it when the program has ended.
  QTemporaryFile log;
  if (log.open()) {
    process.setStandardErrorFile(log.fileName(), QIODevice::Append);
    log_ = std::make_unique<QFile>(log.fileName());
    if (!log_->open(QIODevice::ReadOnly)) log_.reset();
  }
  return process.startDetached();
}

bool QtShell::ShowInFolder(const std::string& file) {
  const QFileInfo info(QString::fromStdString(file));
  if (file.empty() || !info.dir().exists()) return false;
  if (info.exists() && SelectInFileManager(info.absoluteFilePath())) return true;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(info.absolutePath()));
}

StartedProgram QtShell::LastStarted() {
  constexpr qint64 kEnd = 8192;
  if (log_ == nullptr || !log_->seek(std::max<qint64>(log_->size() - kEnd, 0))) return {};
  return ReadLog(log_->readAll());
}

MissingPart QtShell::MissingFor(const std::string& document, bool is_32_bit) {
  using Kind = MissingPart::Kind;
  if (!IsWindowsProgram(QString::fromStdString(document))) return {};
  const QString wine = FindWine(wine_folder_);
  if (wine.isEmpty()) return {.kind = Kind::kWine};
  if (!is_32_bit || !RunsOnly64Bit(wine, wine_folder_)) return {};
  const bool is_debian = QFile::exists(wine_folder_ + QStringLiteral("/wine64"));
  return {.kind = Kind::kWineFor32Bit, .package = is_debian ? kDebianWineFor32Bit : ""};
}

}  // namespace vellumark
