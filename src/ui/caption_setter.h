// Puts the captions of the message table onto a window's controls.
#ifndef VELLUMARK_UI_CAPTION_SETTER_H_
#define VELLUMARK_UI_CAPTION_SETTER_H_

#include "foundation/caption_map.h"

class QWidget;

namespace vellumark {

class Text;

// Finds each control by its object name. A caption becomes the accessible name, without blanks at
// its ends; a label gives its name to its buddy.
void SetWindowCaptions(QWidget& widget, WindowId window, const Text& text);

}  // namespace vellumark

#endif  // VELLUMARK_UI_CAPTION_SETTER_H_
