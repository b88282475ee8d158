// The colour of words that stand back, such as those in an empty field.
#ifndef VELLUMARK_UI_QUIET_TEXT_H_
#define VELLUMARK_UI_QUIET_TEXT_H_

namespace vellumark {

// Some dark themes give it no colour of their own, so that it would stay the one of light themes:
// it is made of the text's then, for all windows.
void KeepQuietTextReadable();

}  // namespace vellumark

#endif  // VELLUMARK_UI_QUIET_TEXT_H_
