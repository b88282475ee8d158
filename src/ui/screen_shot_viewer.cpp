#include "ui/screen_shot_viewer.h"

#include "ui/picture_box.h"
#include "ui/screen_room.h"

namespace vellumark {

ScreenShotViewer::ScreenShotViewer(FileSystem& files, QWidget* main_window)
    : QDialog(main_window, Qt::Window), picture_(new PictureBox(files, this)) {
  setObjectName(QStringLiteral("Dialog_ScreenShot"));
  picture_->setObjectName(QStringLiteral("Image1"));
  connect(picture_, &PictureBox::Arrived, this, [this] {
    if (size() == opened_) ResizeForPicture();
  });
  setAttribute(Qt::WA_DeleteOnClose);
  setMinimumSize(160, 120);
}

void ScreenShotViewer::ShowPicture(const std::string& path) {
  picture_->ShowFile(path);
  setWindowTitle(QString());
  if (!isVisible()) ResizeForPicture();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void ScreenShotViewer::ResizeForPicture() {
  opened_ = OpeningSize();
  resize(opened_);
}

// The picture's own size, but neither smaller than a small window nor larger than most of the
// screen.
QSize ScreenShotViewer::OpeningSize() const {
  constexpr QSize kLeast(640, 480);
  constexpr double kMostOfScreen = 0.8;
  const QSize room = RoomOnScreen(*this);
  const QSize most = room * kMostOfScreen;
  if (picture_->Picture().isNull()) return kLeast.boundedTo(room);

  QSize size = picture_->Picture().size();
  if (size.boundedTo(most) != size) size.scale(most, Qt::KeepAspectRatio);
  if (size.expandedTo(kLeast) != size) size.scale(kLeast, Qt::KeepAspectRatioByExpanding);
  if (size.boundedTo(room) != size) size.scale(room, Qt::KeepAspectRatio);
  return size;
}

void ScreenShotViewer::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (!isMinimized()) picture_->setGeometry(rect());
}

}  // namespace vellumark
