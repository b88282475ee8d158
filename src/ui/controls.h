// Making the controls of a window.
#ifndef VELLUMARK_UI_CONTROLS_H_
#define VELLUMARK_UI_CONTROLS_H_

#include <QWidget>
#include <initializer_list>

namespace vellumark {

// Gives a control the object name by which captions, access keys and tests find it.
template <typename Object>
Object* Named(Object* object, const char* name) {
  object->setObjectName(QLatin1String(name));
  return object;
}

// Makes a control with an object name.
template <typename Widget>
Widget* Named(const char* name, QWidget* parent) {
  return Named(new Widget(parent), name);
}

// Tab goes through the controls in this order.
inline void SetTabSequence(std::initializer_list<QWidget*> controls) {
  QWidget* previous = nullptr;
  for (QWidget* control : controls) {
    if (previous != nullptr) QWidget::setTabOrder(previous, control);
    previous = control;
  }
}

}  // namespace vellumark

#endif  // VELLUMARK_UI_CONTROLS_H_
