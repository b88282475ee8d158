// The letters that reach a control by Alt.
#ifndef VELLUMARK_UI_ACCESS_KEYS_H_
#define VELLUMARK_UI_ACCESS_KEYS_H_

#include <QString>

#include "foundation/caption_map.h"

namespace vellumark {

// The caption with the control's access key marked by `&`; unmarked when the control has none or
// the caption lacks the letter. Literal `&` are kept as such.
QString WithAccessKey(WindowId window, const QString& control, QString caption);

// The caption without its mark: byte for byte what the message says.
QString WithoutAccessKey(const QString& caption);

}  // namespace vellumark

#endif  // VELLUMARK_UI_ACCESS_KEYS_H_
