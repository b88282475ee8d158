// The window that shows a screen-shot at any size.
#ifndef VELLUMARK_UI_SCREEN_SHOT_VIEWER_H_
#define VELLUMARK_UI_SCREEN_SHOT_VIEWER_H_

#include <QDialog>
#include <QTimer>
#include <initializer_list>
#include <string>

class QAction;
class QLabel;
class QToolButton;

namespace vellumark {

class FileSystem;
class ZoomBox;

class ScreenShotViewer final : public QDialog {
  Q_OBJECT

 public:
  ScreenShotViewer(FileSystem& files, QWidget* main_window);

  // Shows the picture of a file, in front, with an empty title, without blocking other windows;
  // what it is of stands in the line below.
  void ShowPicture(const std::string& path, const QString& line);

  // Whether the line below is shown.
  bool ShowsLine() const;
  void SetShowsLine(bool shows);

 signals:
  // The user wants to see the one before, or the one after.
  void PreviousWanted();
  void NextWanted();
  void LineToggled(bool shows);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  template <typename Slot>
  QAction* AddAction(const char* name, std::initializer_list<const char*> keys, Slot slot);
  QToolButton* StepButton(const char* name, Qt::ArrowType arrow);
  void BuildActions();
  void ShowButtons();
  void HideButtons();
  void PlaceParts();
  void ResizeForPicture();
  QSize OpeningSize() const;
  int LineHeight() const;

  QSize opened_;  // as it opened; the user may have changed it

  ZoomBox* picture_;
  QLabel* line_;
  QToolButton* previous_;
  QToolButton* next_;
  QAction* line_action_ = nullptr;
  QString whole_line_;   // the label has what there is room for
  QTimer hide_buttons_;  // when the mouse has not moved for a while
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SCREEN_SHOT_VIEWER_H_
