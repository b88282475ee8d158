// The stand-in as a Linux program.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QRasterWindow>
#include <memory>

#include "stand_in.h"

namespace vellumark::stand_in {
namespace {

class QtWindow final : public QRasterWindow, public Window {
 public:
  QtWindow() {
    setTitle(QLatin1String(kWindowTitle));
    setGeometry(60, 60, 480, 360);
    startTimer(kCommandInterval);
  }

  void PutOnClipboard(const std::string& bmp_file) override {
    auto content = std::make_unique<QMimeData>();
    content->setData(QStringLiteral("image/bmp"), QByteArray::fromStdString(bmp_file));
    QGuiApplication::clipboard()->setMimeData(content.release());
  }

  void Minimize() override { showMinimized(); }

  void Quit() override { QCoreApplication::quit(); }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override { stand_in_.ObeyNewCommands(); }
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    stand_in_.KeyPressed(key == Qt::Key_Return ? "Return" : "code " + std::to_string(key));
  }
  void focusInEvent(QFocusEvent* /*event*/) override { stand_in_.FocusChanged(true); }
  void focusOutEvent(QFocusEvent* /*event*/) override { stand_in_.FocusChanged(false); }

 private:
  StandIn stand_in_{*this};
};

}  // namespace
}  // namespace vellumark::stand_in

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  vellumark::stand_in::QtWindow window;
  window.show();
  return QCoreApplication::exec();
}
