// Which class stands for which modal dialog.
#include "program.h"
#include "ui/modal_dialog.h"

namespace vellumark {

std::unique_ptr<ModalDialog> MakeModalDialog(WindowId /*window*/, Program& /*program*/) {
  return nullptr;  // there is none yet
}

}  // namespace vellumark
