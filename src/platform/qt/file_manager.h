// The desktop's file manager on Linux.
#ifndef VELLUMARK_PLATFORM_QT_FILE_MANAGER_H_
#define VELLUMARK_PLATFORM_QT_FILE_MANAGER_H_

#include <QString>

namespace vellumark {

// Asks the desktop's file manager to show a file (an absolute path) selected in its folder. False
// where none takes such a request.
bool SelectInFileManager(const QString& file);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_FILE_MANAGER_H_
