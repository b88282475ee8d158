// A picture area that can be looked at closely: it zooms and moves its picture.
#ifndef VELLUMARK_UI_ZOOM_BOX_H_
#define VELLUMARK_UI_ZOOM_BOX_H_

#include <QPointF>

#include "ui/picture_box.h"

namespace vellumark {

class ZoomBox final : public PictureBox {
  Q_OBJECT

 public:
  ZoomBox(FileSystem& files, QWidget* parent);

  // Shows another picture, fitted.
  void ShowFitted(const std::string& path);

  void Fit();
  void ShowPixelByPixel();
  // By some steps, in or out; what is in the middle stays there.
  void ZoomBySteps(double steps);
  // Moves the picture, as far as it goes beyond the box.
  void Move(QPointF by);

  // A fitted picture fills the box; or keeps its shape in it.
  void SetKeepsShape(bool keeps);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  QRect PictureArea() const override;

 private:
  bool IsFitted() const { return scale_ == 0; }
  double FittingScale() const;
  QRectF Place() const;
  void SetScale(double scale, QPointF at);
  void Settle();

  double scale_ = 0;  // of the window's pixels to the picture's; 0: fitted
  QPointF corner_;    // where the zoomed picture begins in the box
  QPointF dragged_from_;
  bool keeps_shape_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_ZOOM_BOX_H_
