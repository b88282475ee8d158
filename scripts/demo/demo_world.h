// The demo world on the disk.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_WORLD_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_WORLD_H_

#include <QString>

namespace vellumark::demo {

struct WorldResult {
  QString problem;           // what went wrong, for the user; empty on success
  QString preferences_file;  // the host path of the preferences file that names the archive
};

// Makes the world in a folder, which must not exist yet or be empty. A failure half way leaves
// what was made until then.
WorldResult MakeDemoWorld(const QString& folder);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_WORLD_H_
