#include "platform/qt/opener.h"

#include <QApplication>
#include <QMainWindow>

namespace vellumark {

QWidget* ModalOpener() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) return window;
  }
  return nullptr;
}

}  // namespace vellumark
