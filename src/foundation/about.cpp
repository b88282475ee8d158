#include "foundation/about.h"

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/strings.h"
#include "foundation/version.h"
#include "program.h"

namespace vellumark {

void ShowAbout(Program& program) { Tell(program, LoadMessage(kAbout, {Version(), kLineBreak})); }

std::optional<std::string> TerminalAnswer(std::string_view argument) {
  if (argument == "--version") return LoadMessage(kTerminalVersion, {Version()});
  if (argument == "--help" || argument == "-h") return LoadMessage(kTerminalHelp);
  return std::nullopt;
}

}  // namespace vellumark
