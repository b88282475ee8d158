// Makes a small world to try the program in: a game folder with savegames, an archive with notes
// and screen-shots, and a preferences file that names it. The last line that it prints is the
// path of the preferences file.
#include <QGuiApplication>
#include <QStringList>
#include <cstdio>

#include "demo_world.h"

int main(int argc, char** argv) {
  // The pictures need no display, and nothing shall depend on the user's settings.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  const QGuiApplication application(argc, argv);

  const QStringList arguments = QGuiApplication::arguments();
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
