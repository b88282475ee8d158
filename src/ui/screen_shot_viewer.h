// The window that shows a screen-shot at any size.
#ifndef VELLUMARK_UI_SCREEN_SHOT_VIEWER_H_
#define VELLUMARK_UI_SCREEN_SHOT_VIEWER_H_

#include <QDialog>
#include <string>

namespace vellumark {

class FileSystem;
class PictureBox;

class ScreenShotViewer final : public QDialog {
  Q_OBJECT

 public:
  ScreenShotViewer(FileSystem& files, QWidget* main_window);

  // Shows the picture of a file, in front, with an empty title, without blocking other windows.
  void ShowPicture(const std::string& path);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ResizeForPicture();
  QSize OpeningSize() const;

  QSize opened_;  // as it opened; the user may have changed it

  PictureBox* picture_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SCREEN_SHOT_VIEWER_H_
