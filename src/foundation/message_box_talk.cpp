#include "foundation/message_box_talk.h"

#include "foundation/work_scope.h"
#include "program.h"

namespace vellumark {
namespace {

// Nobody is there to read it: a notice is kept for the next start, a question is not asked.
BoxAnswer NotShown(Program& program, const std::string& text, BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOk:
      program.session.untold += text + kLineBreak + kLineBreak;
      return BoxAnswer::kOk;
    case BoxButtons::kOkCancel:
      return BoxAnswer::kCancel;
    case BoxButtons::kYesNoBothAct:
      return BoxAnswer::kYes;
    case BoxButtons::kYesNo:
    case BoxButtons::kYesNoFromNo:
      break;
  }
  return BoxAnswer::kNo;
}

// While the user is asked, nothing works: the timer may act.
BoxAnswer Show(Program& program, const std::string& text, BoxButtons buttons, BoxIcon icon) {
  if (IsEnding(program)) return NotShown(program, text, buttons);
  const bool was_working = SetWorking(program, false);
  const BoxAnswer answer = program.boxes.Show(text, buttons, icon);
  SetWorking(program, was_working);
  return answer;
}

}  // namespace

void Tell(Program& program, const std::string& text, BoxIcon icon) {
  Show(program, text, BoxButtons::kOk, icon);
}

void TellNames(Program& program, const std::string& text, const std::vector<std::string>& lines,
               BoxIcon icon) {
  if (IsEnding(program)) return static_cast<void>(NotShown(program, text, BoxButtons::kOk));
  const bool was_working = SetWorking(program, false);
  program.boxes.ShowNames(text, lines, icon);
  SetWorking(program, was_working);
}

bool AskYesNo(Program& program, const std::string& text, BoxIcon icon) {
  return Show(program, text, BoxButtons::kYesNo, icon) == BoxAnswer::kYes;
}

bool AskFromNo(Program& program, const std::string& text, BoxIcon icon) {
  return Show(program, text, BoxButtons::kYesNoFromNo, icon) == BoxAnswer::kYes;
}

bool AskWhich(Program& program, const std::string& text) {
  return Show(program, text, BoxButtons::kYesNoBothAct, BoxIcon::kNone) == BoxAnswer::kYes;
}

bool AskOkCancel(Program& program, const std::string& text, BoxIcon icon) {
  return Show(program, text, BoxButtons::kOkCancel, icon) == BoxAnswer::kOk;
}

}  // namespace vellumark
