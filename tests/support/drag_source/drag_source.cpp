// A small window in the upper left corner of the screen. A drag that begins in it carries the file
// that the program was given; when it ends, its outcome is printed: what the target did with it.
#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <cstdio>

namespace {

class DragSource final : public QLabel {
 public:
  explicit DragSource(const QString& file) : QLabel(QStringLiteral("Drag")), file_(file) {
    setWindowTitle(QStringLiteral("Drag source"));
    setWindowFlags(Qt::X11BypassWindowManagerHint | Qt::WindowStaysOnTopHint);
    setGeometry(0, 0, 60, 40);
  }

 protected:
  void mouseMoveEvent(QMouseEvent* event) override {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    auto* content = new QMimeData;
    content->setUrls({QUrl::fromLocalFile(file_)});
    auto* drag = new QDrag(this);
    drag->setMimeData(content);
    const Qt::DropAction action = drag->exec(Qt::CopyAction | Qt::MoveAction);
    std::printf("%s\n", action == Qt::CopyAction     ? "copied"
                        : action == Qt::IgnoreAction ? "refused"
                                                     : "moved");
    std::fflush(stdout);
    // The target may take the content only after the button was released.
    constexpr auto kTargetsTime = std::chrono::seconds(2);
    QTimer::singleShot(kTargetsTime, qApp, &QApplication::quit);
  }

 private:
  const QString file_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  DragSource source(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
  source.show();
  return QApplication::exec();
}
