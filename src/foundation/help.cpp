#include "foundation/help.h"

#include "foundation/companion_files.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {

void ShowHelp(Program& program) {
  const std::string help_file = CompanionFile(program.files, program.paths, LoadMessage(272));
  if (!FileExists(program.files, help_file)) {
    Tell(program, LoadMessage(273) + help_file, BoxIcon::kCritical);
    return;
  }
  if (!OpenWithShell(program.files, program.text, program.shell, help_file, "", false, "")) {
    Tell(program, LoadMessage(kNothingOpens, {Quoted(help_file)}), BoxIcon::kExclamation);
  }
}

}  // namespace vellumark
