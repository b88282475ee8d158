#include "foundation/operation_report.h"

#include "foundation/message_box_talk.h"

namespace vellumark {

void Report::Add(const std::string& paragraph) {
  if (paragraph.empty()) return;
  if (!text_.empty()) text_ += std::string(kLineBreak) + kLineBreak;
  text_ += paragraph;
}

void Report::Show(Program& program) const {
  if (!text_.empty()) Tell(program, text_, BoxIcon::kExclamation);
}

}  // namespace vellumark
