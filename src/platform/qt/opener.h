// The window that a modal dialog opens over.
#ifndef VELLUMARK_PLATFORM_QT_OPENER_H_
#define VELLUMARK_PLATFORM_QT_OPENER_H_

class QWidget;

namespace vellumark {

// The window that is modal at this moment, else the main window when it is shown, else null.
QWidget* ModalOpener();

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_OPENER_H_
