// Message boxes as the core uses them. None is shown once the session ends (IsEnding).
#ifndef VELLUMARK_FOUNDATION_MESSAGE_BOX_TALK_H_
#define VELLUMARK_FOUNDATION_MESSAGE_BOX_TALK_H_

#include <string>
#include <vector>

#include "platform/message_boxes.h"

namespace vellumark {

struct Program;

// The line breaks that callers put into messages.
inline constexpr const char* kCarriageReturn = "\r";
inline constexpr const char* kLineBreak = "\r\n";

// Shows a text with an OK button.
void Tell(Program& program, const std::string& text, BoxIcon icon = BoxIcon::kNone);

// The same with lines below that the code page may not hold (UTF-8).
void TellNames(Program& program, const std::string& text, const std::vector<std::string>& lines,
               BoxIcon icon);

// Asks with Yes and No, Yes being the default. True for Yes.
bool AskYesNo(Program& program, const std::string& text, BoxIcon icon = BoxIcon::kNone);

// Asks with Yes and No, No being the default and the answer of closing the box. True for Yes.
bool AskFromNo(Program& program, const std::string& text, BoxIcon icon = BoxIcon::kNone);

// The same as AskYesNo for a question whose No acts too: Escape answers nothing. Once the session
// ends the answer is Yes, which is to be the one that keeps more.
bool AskWhich(Program& program, const std::string& text);

// Asks with OK and Cancel, OK being the default. True for OK.
bool AskOkCancel(Program& program, const std::string& text, BoxIcon icon = BoxIcon::kNone);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_MESSAGE_BOX_TALK_H_
