// Windows programs, and the Wine that runs them.
#ifndef VELLUMARK_PLATFORM_QT_WINE_H_
#define VELLUMARK_PLATFORM_QT_WINE_H_

#include <QString>
#include <string>

namespace vellumark {

// True when the file begins as every Windows program does.
bool IsWindowsProgram(const QString& file);

// The path of the Wine to start programs with: a `wine`, `wine64` or `wine-stable` on PATH, else
// the `wine64` of a folder where a system may keep it beside PATH. Empty when there is none.
QString FindWine(const QString& beside_path);

// True when this Wine, as FindWine answers it, is known to run no 32-bit program: the one that its
// loader or Debian's script in front of it belongs to has only its 64-bit half here.
bool RunsOnly64Bit(const QString& wine, const QString& beside_path);

// The prefix (what WINEPREFIX names) that a program lies in, as an absolute path: the one whose
// drive C is a folder around it, else the first of `wine_prefix` (the value of WINEPREFIX) and
// `.wine` in the folder `home` that has a drive for a folder around it, a drive for the whole file
// system not counting. Empty when no prefix claims the program.
std::string WinePrefixOf(const std::string& program, const std::string& wine_prefix,
                         const std::string& home);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_WINE_H_
