#include "game/capture.h"

#include "program.h"

namespace vellumark {

void OnTimer(Program& program) {
  if (!program.capture.CaptureArmed || !program.preferences.AutoCapture || program.working) return;
}

}  // namespace vellumark
