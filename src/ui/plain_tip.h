// Tool tips for texts that come from files.
#ifndef VELLUMARK_UI_PLAIN_TIP_H_
#define VELLUMARK_UI_PLAIN_TIP_H_

#include <QString>

namespace vellumark {

// A tool tip that shows just this text, line breaks and blanks included: what looks like mark-up is
// shown as well. Empty for an empty text.
QString PlainTip(const QString& text);

}  // namespace vellumark

#endif  // VELLUMARK_UI_PLAIN_TIP_H_
