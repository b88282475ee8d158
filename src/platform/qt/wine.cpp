#include "platform/qt/wine.h"

#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <vector>

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

std::string BeginningOf(const fs::path& file) {
  QFile opened(QString::fromStdString(file.string()));
  constexpr qint64 kEnoughForAScript = 8192;
  if (!opened.open(QIODevice::ReadOnly)) return {};
  return opened.read(kEnoughForAScript).toStdString();
}

bool IsElf(std::string_view beginning) { return beginning.starts_with("\177ELF"); }

bool IsElf32(std::string_view beginning) {
  return IsElf(beginning) && beginning.size() > 4 && beginning[4] == 1;
}

// The folder of the loader that this Wine runs; empty when a script does not tell.
fs::path LoaderFolder(const fs::path& wine, const fs::path& beside_path) {
  const std::string beginning = BeginningOf(wine);
  if (IsElf(beginning)) return wine.parent_path();
  const bool leads_there = beginning.find((beside_path / "wine64").string()) != std::string::npos;
  return leads_there ? beside_path : fs::path();
}

// The folders in which a Wine with its loader in `folder` keeps its libraries, those of other
// Wines perhaps among them.
std::vector<fs::path> LibraryFolders(const fs::path& folder) {
  std::vector<fs::path> found;
  const fs::path above = folder.parent_path();
  for (const fs::path& root : {above, above / "lib", above / "lib32", above / "lib64"}) {
    found.push_back(root / "wine");
    std::error_code failure;
    for (fs::directory_iterator at(root, failure), end; !failure && at != end;
         at.increment(failure)) {
      found.push_back(at->path() / "wine");
    }
  }
  return found;
}

bool HasAnyOf(const std::vector<fs::path>& folders, std::initializer_list<const char*> names) {
  return std::ranges::any_of(folders, [&](const fs::path& folder) {
    return std::ranges::any_of(names, [&](const char* name) {
      std::error_code failure;
      return fs::exists(folder / name, failure);
    });
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

bool RunsOnly64Bit(const QString& wine, const QString& beside_path) {
  std::error_code failure;
  const fs::path real = fs::canonical(wine.toStdString(), failure);
  const fs::path folder = LoaderFolder(real, beside_path.toStdString());
  if (failure || folder.empty() || IsElf32(BeginningOf(real))) return false;
  if (IsElf32(BeginningOf(folder / "wine"))) return false;
  // A folder alone tells nothing: Debian's holds a library or two of a half that is not there.
  const std::vector<fs::path> libraries = LibraryFolders(folder);
  return HasAnyOf(libraries, {"x86_64-unix/ntdll.so", "x86_64-windows/ntdll.dll"}) &&
         !HasAnyOf(libraries, {"i386-unix/ntdll.so", "i386-windows/ntdll.dll"});
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
