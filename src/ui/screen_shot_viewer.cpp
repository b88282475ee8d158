#include "ui/screen_shot_viewer.h"

#include <QScreen>
#include <algorithm>

#include "ui/picture_box.h"

namespace vellumark {
namespace {

// What the window is larger than its picture, frame included.
constexpr int kSpareWidth = 9;
constexpr int kSpareHeight = 27;

}  // namespace

ScreenShotViewer::ScreenShotViewer(FileSystem& files, QWidget* main_window)
    : QDialog(main_window, Qt::Window), picture_(new PictureBox(files, this)) {
  setObjectName(QStringLiteral("Dialog_ScreenShot"));
  picture_->setObjectName(QStringLiteral("Image1"));
  setAttribute(Qt::WA_DeleteOnClose);
  setMinimumSize(160, 120);
}

void ScreenShotViewer::ShowPicture(const std::string& path) {
  picture_->ShowFile(path);
  setWindowTitle(QString());
  if (!isVisible()) {
    constexpr double kMostOfScreen = 0.8;
    const QSize shown = picture_->Picture().isNull() ? QSize(640, 480) : picture_->Picture().size();
    const QSize most = screen()->availableGeometry().size() * kMostOfScreen;
    const QSize fitting =
        shown.boundedTo(most) == shown ? shown : shown.scaled(most, Qt::KeepAspectRatio);
    resize(fitting + QSize(kSpareWidth, kSpareHeight));
  }
  show();
  raise();
  activateWindow();
}

void ScreenShotViewer::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (!isMinimized()) FitPicture();
}

// The window manager puts its frame around a new window by moving it; only then is the frame known.
void ScreenShotViewer::moveEvent(QMoveEvent* event) {
  QDialog::moveEvent(event);
  if (!isMinimized()) FitPicture();
}

void ScreenShotViewer::FitPicture() {
  const QSize window = frameGeometry().size();
  picture_->setGeometry(0, 0, std::max(0, window.width() - kSpareWidth),
                        std::max(0, window.height() - kSpareHeight));
}

}  // namespace vellumark
