#include "platform/qt/dialog_parent.h"

#include <QApplication>
#include <QMainWindow>
#include <QVariant>

namespace vellumark {
namespace {

constexpr const char* kAsks = "vellumark_asks";

QWidget* AskingWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->property(kAsks).toBool()) return window;
  }
  return nullptr;
}

bool IsOver(const QWidget* window, const QWidget* other) {
  while (window != nullptr && window != other) window = window->parentWidget();
  return window != nullptr;
}

}  // namespace

QWidget* ModalOpener() {
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* asking = AskingWindow();
  if (asking != nullptr && !IsOver(modal, asking)) return asking;
  if (modal != nullptr) return modal;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) return window;
  }
  return nullptr;
}

AskingScope::AskingScope(QWidget& window) : window_(&window) { window.setProperty(kAsks, true); }

AskingScope::~AskingScope() {
  if (window_ != nullptr) window_->setProperty(kAsks, false);
}

}  // namespace vellumark
