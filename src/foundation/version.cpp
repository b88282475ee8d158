#include "foundation/version.h"

namespace vellumark {

const char* Version() { return VELLUMARK_VERSION; }

}  // namespace vellumark
