// Opening documents by the desktop, Windows programs by Wine.
#ifndef VELLUMARK_PLATFORM_QT_QT_SHELL_H_
#define VELLUMARK_PLATFORM_QT_QT_SHELL_H_

#include <QFile>
#include <QString>
#include <memory>

#include "platform/shell.h"

namespace vellumark {

class QtShell final : public Shell {
 public:
  // `wine_folder` is searched for Wine after PATH; the default is Debian's own place for it.
  explicit QtShell(QString wine_folder = QStringLiteral("/usr/lib/wine"))
      : wine_folder_(std::move(wine_folder)) {}

  // Nothing here can keep a started program from showing a window: `hidden` changes nothing.
  bool Open(const std::string& document, const std::string& parameters,
            const std::string& working_folder, bool hidden) override;
  bool ShowInFolder(const std::string& file) override;
  StartedProgram LastStarted() override;
  MissingPart MissingFor(const std::string& document, bool is_32_bit) override;

 private:
  QString wine_folder_;
  std::unique_ptr<QFile> log_;  // what the program that was started last says
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_SHELL_H_
