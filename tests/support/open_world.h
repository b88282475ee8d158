// A world whose program has the archive open and plays sounds, with what its tests expect of it.
#ifndef VELLUMARK_TESTS_SUPPORT_OPEN_WORLD_H_
#define VELLUMARK_TESTS_SUPPORT_OPEN_WORLD_H_

#include <map>
#include <string>

#include "support/expectations.h"
#include "support/test_world.h"

namespace vellumark::testing {

class OpenWorld : public TestWorld {
 public:
  explicit OpenWorld(std::map<char, std::string> more_drives = {});

  // Lists what is on the disk now, as if nothing had been changed, shown, heard or called before.
  void Rescan();

  // Forgets what was shown and heard.
  void Forget();

  // The text of the only box since the last call, which looks and sounds like a refusal.
  std::string TakeRefusal();

  Program program = NewProgram();
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_OPEN_WORLD_H_
