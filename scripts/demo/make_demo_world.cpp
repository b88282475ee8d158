// Makes a small world to try the program in: a game folder with savegames, an archive with notes
// and screen-shots, and a preferences file that names it. The last line that it prints is the
// path of the preferences file.
#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QStringList>
#include <QTimeZone>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "demo_records.h"
#include "demo_savegames.h"
#include "demo_story.h"

namespace vellumark::demo {
namespace {

constexpr std::string_view kStandIn =
    "This is a stand-in for the game, not a program. It only lets the archive name a file.\r\n";

// Drive Z is the host's root.
std::string WindowsPath(const QString& host_path) {
  return "Z:" + QString(host_path).replace('/', '\\').toStdString();
}

bool IsWindowsName(const QString& name) {
  static const QString kForbidden = QStringLiteral("\\:*?\"<>|");
  for (const QChar character : name) {
    if (character < u' ' || character > u'~' || kForbidden.contains(character)) return false;
  }
  return !name.endsWith('.') && !name.endsWith(' ');
}

// All names of an absolute path can stand in a record that any code page reads alike.
bool IsPortable(const QString& path) {
  for (const QString& name : path.split('/', Qt::SkipEmptyParts)) {
    if (!IsWindowsName(name)) return false;
  }
  return true;
}

int LastArchivedCounter() { return ArchivedSavegames().back().back().counter; }

// Writes files until one fails; everything after the first failure is left out.
class WorldWriter {
 public:
  explicit WorldWriter(QString root) : root_(std::move(root)) {}

  QString HostPath(const QString& name) const { return root_ + '/' + name; }
  const QString& problem() const { return problem_; }

  void MakeFolder(const QString& name) {
    if (!problem_.isEmpty()) return;

    if (!QDir().mkpath(HostPath(name))) problem_ = "Cannot make the folder " + HostPath(name);
  }

  // `counter` tells when in the player's story the file was last changed.
  void Write(const QString& name, std::string_view bytes, int counter) {
    if (!problem_.isEmpty()) return;

    const QString path = HostPath(name);
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), size) != size ||
        !file.flush() || !file.setFileTime(StoryTime(counter), QFile::FileModificationTime)) {
      problem_ = "Cannot write " + path + ": " + file.errorString();
    }
  }

  void WriteSavegames(const QString& folder, const std::vector<StorySavegame>& savegames) {
    for (const StorySavegame& savegame : savegames) WriteSavegame(folder, savegame);
  }

 private:
  static QDateTime StoryTime(int counter) {
    const QDateTime start(QDate(2001, 1, 6), QTime(18, 30), QTimeZone::utc());
    return start.addSecs(qint64{counter} * 97 * 60);
  }

  void WriteSavegame(const QString& folder, const StorySavegame& savegame) {
    const std::string_view level = savegame.level;
    const int counter = savegame.counter;
    const QString number = QString::number(savegame.slot);
    Write(folder + "/savegame." + number, SavegameBytes(level, counter), counter);
    if (!savegame.note.empty()) {
      Write(folder + "/note" + number + ".txt", NoteBytes(savegame.note), counter);
    }
    if (!savegame.shot || !problem_.isEmpty()) return;

    const QByteArray jpeg = ShotBytes(level, counter);
    if (jpeg.isEmpty()) problem_ = "Cannot read the picture of " + folder + "/savegame." + number;
    Write(folder + "/shot" + number + ".jpg",
          {jpeg.constData(), static_cast<std::size_t>(jpeg.size())}, counter);
  }

  QString root_;
  QString problem_;
};

// Why a world cannot be made in this folder; empty when it can.
QString Refusal(const QString& root, const ArchivePaths& paths) {
  if (!IsPortable(root)) {
    return "The path " + root + " cannot be written as a Windows path in plain ASCII.";
  }
  if (paths.game_executable.size() > kTextFieldWidth) return "The path " + root + " is too long.";

  const QFileInfo present(root);
  if (!present.exists()) return {};
  if (!present.isDir()) return root + " is not a folder.";

  const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  return QDir(root).isEmpty(everything) ? QString() : "The folder " + root + " is not empty.";
}

// Fills the sub-folders and lists them in the info file. Returns the number of savegames.
int WriteArchive(WorldWriter& writer, const QString& archive) {
  std::string info;
  std::size_t savegame_count = 0;
  int number = 0;
  for (const std::vector<StorySavegame>& savegames : ArchivedSavegames()) {
    const std::string name = std::string(kSubfolderBaseName) + std::to_string(++number);
    const QString folder = archive + '/' + QString::fromStdString(name);
    writer.MakeFolder(folder);
    writer.WriteSavegames(folder, savegames);
    info += InfoSection(WindowsPath(writer.HostPath(folder)), savegames);
    savegame_count += savegames.size();
  }

  writer.Write(archive + "/info.txt", info, LastArchivedCounter());
  return static_cast<int>(savegame_count);
}

struct WorldResult {
  QString problem;           // what went wrong, for the user; empty on success
  QString preferences_file;  // the host path of the preferences file that names the archive
};

// Makes the world in a folder, which must not exist yet or be empty. A failure half way leaves
// what was made until then.
WorldResult MakeDemoWorld(const QString& folder) {
  const QString game = QStringLiteral("Tomb Raider");
  const QString executable = game + "/tomb4.exe";
  const QString archive = QStringLiteral("Archive");
  const QString archive_file = QStringLiteral("Tower.vmk");
  const QString preferences_file = QStringLiteral("demo.prf");

  const QString root = QDir::cleanPath(QDir(folder).absolutePath());
  WorldWriter writer(root);
  const ArchivePaths paths{WindowsPath(writer.HostPath(archive)),
                           WindowsPath(writer.HostPath(game)),
                           WindowsPath(writer.HostPath(executable))};
  const QString refusal = Refusal(root, paths);
  if (!refusal.isEmpty()) return {refusal, {}};

  writer.MakeFolder(game);
  writer.Write(executable, kStandIn, 0);
  writer.WriteSavegames(game, GameFolderSavegames());
  const int savegame_count = WriteArchive(writer, archive);
  writer.Write(archive_file, ArchiveRecord(paths, savegame_count), LastArchivedCounter());
  writer.Write(preferences_file,
               PreferencesRecord(WindowsPath(writer.HostPath(archive_file)), paths.game_folder),
               LastArchivedCounter());
  return {writer.problem(), writer.HostPath(preferences_file)};
}

}  // namespace
}  // namespace vellumark::demo

int main(int argc, char** argv) {
  // Nothing shall depend on the user's settings.
  qputenv("LC_ALL", "C.UTF-8");
  const QCoreApplication application(argc, argv);

  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2 || arguments.at(1).isEmpty()) {
    std::fputs("Usage: make_demo_world <folder>\nThe folder must not exist yet or be empty.\n",
               stderr);
    return 1;
  }

  const vellumark::demo::WorldResult result = vellumark::demo::MakeDemoWorld(arguments.at(1));
  if (!result.problem.isEmpty()) {
    std::fprintf(stderr, "make_demo_world: %s\n", qPrintable(result.problem));
    return 1;
  }

  std::printf("%s\n", qPrintable(result.preferences_file));
  return 0;
}
