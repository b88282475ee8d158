#include "platform/qt/wine.h"

#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/posix/drive_map.h"

namespace vellumark {
namespace {

namespace fs = std::filesystem;

bool IsBelow(const fs::path& path, const fs::path& folder) {
  const auto [in_folder, in_path] = std::ranges::mismatch(folder, path);
  return in_folder == folder.end();
}

// The parent of the innermost `drive_c` around the program that belongs to a prefix.
std::string PrefixAround(const fs::path& program) {
  std::error_code failure;
  for (fs::path folder = program.parent_path(); folder.has_relative_path();
       folder = folder.parent_path()) {
    if (folder.filename() == "drive_c" &&
        fs::is_directory(folder.parent_path() / "dosdevices", failure)) {
      return folder.parent_path().string();
    }
  }
  return {};
}

bool HasDriveFor(const std::string& prefix, const fs::path& real_program) {
  const DriveMap drives = ReadDriveMap(prefix, "");
  return std::ranges::any_of(drives.roots, [&](const auto& drive) {
    const fs::path root = drive.second;
    return root != root.root_path() && IsBelow(real_program, root);
  });
}

}  // namespace

bool IsWindowsProgram(const QString& file) {
  QFile opened(file);
  return opened.open(QIODevice::ReadOnly) && opened.read(2) == "MZ";
}

QString FindWine(const QString& beside_path) {
  for (const char* name : {"wine", "wine64", "wine-stable"}) {
    QString found = QStandardPaths::findExecutable(QLatin1String(name));
    if (!found.isEmpty()) return found;
  }
  return QStandardPaths::findExecutable(QStringLiteral("wine64"), {beside_path});
}

std::string WinePrefixOf(const std::string& program, const std::string& wine_prefix,
                         const std::string& home) {
  std::error_code failure;
  const fs::path spelled = fs::absolute(program, failure).lexically_normal();
  const fs::path real = fs::weakly_canonical(spelled, failure);
  for (const fs::path& path : {spelled, real}) {
    std::string prefix = PrefixAround(path);
    if (!prefix.empty()) return prefix;
  }

  const fs::path usual = home.empty() ? fs::path() : fs::path(home) / ".wine";
  for (const fs::path& prefix : {fs::path(wine_prefix), usual}) {
    if (!prefix.empty() && HasDriveFor(prefix.string(), real)) {
      return fs::absolute(prefix, failure).string();
    }
  }
  return {};
}

}  // namespace vellumark
