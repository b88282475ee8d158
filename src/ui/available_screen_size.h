// The room that a screen has for windows.
#ifndef VELLUMARK_UI_AVAILABLE_SCREEN_SIZE_H_
#define VELLUMARK_UI_AVAILABLE_SCREEN_SIZE_H_

#include <QScreen>
#include <QWidget>

namespace vellumark {

// The largest size at which a window lies with its frame inside an area of this size.
inline QSize RoomIn(QSize area) {
  constexpr QSize kFrame(16, 40);  // at most; how large it is shows only later
  return area - kFrame;
}

// The largest size at which a window lies with its frame inside the free area of its screen.
inline QSize RoomOnScreen(const QWidget& window) {
  return RoomIn(window.screen()->availableGeometry().size());
}

}  // namespace vellumark

#endif  // VELLUMARK_UI_AVAILABLE_SCREEN_SIZE_H_
