// Sending keys through an X server.
#ifndef VELLUMARK_PLATFORM_X11_X11_KEYBOARD_H_
#define VELLUMARK_PLATFORM_X11_X11_KEYBOARD_H_

namespace vellumark {

class X11Connection;

// Presses the Enter key and lets it go after a tenth of a second, as if on the keyboard; the window
// with the input focus gets it. Waits first, for a second at most, until the user holds neither
// this key nor a modifier. Nothing happens where the server takes no keys from programs or the
// keyboard has no Enter.
void PressEnterKey(X11Connection& x);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_KEYBOARD_H_
