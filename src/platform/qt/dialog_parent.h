// The window that a dialog opens over.
#ifndef VELLUMARK_PLATFORM_QT_DIALOG_PARENT_H_
#define VELLUMARK_PLATFORM_QT_DIALOG_PARENT_H_

#include <QPointer>
#include <QWidget>

namespace vellumark {

// The window that is asking, else the window that is modal at this moment, else the main window
// when it is shown, else null.
QWidget* ModalOpener();

// While it lives, what the program tells or asks opens over this window, which is not modal itself.
class AskingScope {
 public:
  explicit AskingScope(QWidget& window);
  ~AskingScope();
  AskingScope(const AskingScope&) = delete;
  AskingScope& operator=(const AskingScope&) = delete;

 private:
  QPointer<QWidget> window_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_DIALOG_PARENT_H_
