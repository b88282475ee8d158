// A label for a path: it never widens its window, and shows the ends of a path that is too long.
#ifndef VELLUMARK_UI_PATH_LABEL_H_
#define VELLUMARK_UI_PATH_LABEL_H_

#include <QLabel>

namespace vellumark {

class PathLabel final : public QLabel {
  Q_OBJECT

 public:
  PathLabel(const char* name, QWidget* parent);

  // The whole path also becomes the tool tip.
  void SetPath(const QString& path);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PATH_LABEL_H_
