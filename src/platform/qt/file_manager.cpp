#include "platform/qt/file_manager.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace vellumark {
namespace {

// Asking without one would start a bus of its own.
bool HasSessionBus() {
  const QString bus = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") || QFile::exists(bus);
}

// One that has to be started first may take a moment; it has the request then all the same.
bool Runs(const QString& program, const QStringList& arguments) {
  constexpr int kPatience = 2000;  // milliseconds
  QProcess process;
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start(program, arguments);
  if (!process.waitForStarted(kPatience)) return false;
  if (!process.waitForFinished(kPatience)) return process.error() == QProcess::Timedout;
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

}  // namespace

bool SelectInFileManager(const QString& file) {
  const QString sender = QStandardPaths::findExecutable(QStringLiteral("dbus-send"));
  if (sender.isEmpty() || !HasSessionBus()) return false;
  // A comma would begin another file.
  QByteArray address = QUrl::fromLocalFile(file).toEncoded();
  address.replace(',', "%2C");
  return Runs(sender, {QStringLiteral("--session"), QStringLiteral("--print-reply"),
                       QStringLiteral("--reply-timeout=1500"),
                       QStringLiteral("--dest=org.freedesktop.FileManager1"),
                       QStringLiteral("/org/freedesktop/FileManager1"),
                       QStringLiteral("org.freedesktop.FileManager1.ShowItems"),
                       QStringLiteral("array:string:") + QString::fromLatin1(address),
                       QStringLiteral("string:")});
}

}  // namespace vellumark
