#include "foundation/work_scope.h"

#include <utility>

#include "foundation/windows_interface.h"
#include "program.h"

namespace vellumark {

bool SetWorking(Program& program, bool working) {
  const bool was = std::exchange(program.working, working);
  if (was != working) program.windows.ShowBusy(working);
  return was;
}

bool IsEnding(Program& program) {
  SessionState& session = program.session;
  session.ending = session.ending || program.windows.SessionEnds();
  return session.ending;
}

}  // namespace vellumark
