// An area that shows a picture, scaled to fill it.
#ifndef VELLUMARK_UI_PICTURE_BOX_H_
#define VELLUMARK_UI_PICTURE_BOX_H_

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <atomic>
#include <memory>
#include <string>

namespace vellumark {

class FileSystem;
struct DecodedPicture;

class PictureBox : public QWidget {
  Q_OBJECT

 public:
  PictureBox(FileSystem& files, QWidget* parent);

  // Shows the picture of a file, not larger than the screen; for one that takes long to decode the
  // window does not wait. An empty path shows nothing, a file without a picture says why.
  void ShowFile(const std::string& path);

  void ShowImage(const QImage& image);

  // A picture that belongs to nothing selected stays, but is seen to be in the background.
  void SetDimmed(bool dimmed);

  const QImage& Picture() const { return picture_; }

  // The size that the picture has in its file; what is shown may have been made smaller.
  QSize WholeSize() const { return whole_size_; }

 signals:
  // A picture that took long is there.
  void Arrived();

 protected:
  void paintEvent(QPaintEvent* event) override;

  // Reads the picture again, as large as it is in its file, when it was made smaller. What is shown
  // stays until it is there.
  void LoadWhole();

  // Where the picture is painted.
  virtual QRect PictureArea() const { return rect(); }

 private:
  void Load(QSize most);
  void Take(const DecodedPicture& decoded);
  void PaintWords();
  void ShowWords(const QString& words);

  FileSystem& files_;
  std::string path_;
  QImage picture_;
  QSize whole_size_;
  bool whole_asked_ = false;
  QString words_;  // in the place of a picture
  // The number of the last picture asked for; a thread that gets to an older one drops it.
  std::shared_ptr<std::atomic<int>> asked_ = std::make_shared<std::atomic<int>>(0);
  bool dimmed_ = false;
  QPixmap scaled_;  // the picture at the size it was painted last
};

// The picture in the main window: always 4:3, in the middle of its place. The place is never higher
// than that.
class ShotBox final : public PictureBox {
  Q_OBJECT

 public:
  ShotBox(FileSystem& files, QWidget* parent);

  QSize sizeHint() const override { return {320, 240}; }

 protected:
  QRect PictureArea() const override;
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PICTURE_BOX_H_
