// The line over the list of savegames that names its columns and says what the marks stand for.
#ifndef VELLUMARK_UI_LIST_HEADING_H_
#define VELLUMARK_UI_LIST_HEADING_H_

#include <QWidget>

namespace vellumark {

class ListHeading final : public QWidget {
  Q_OBJECT

 public:
  // The list's font is that of the columns.
  explicit ListHeading(QWidget* list);

  // The names stand in the columns of a line; the description is for those who do not see them.
  void SetTexts(const QString& columns, const QString& legend, const QString& description);

  // The legend takes a line of its own where it has no room beside the names.
  int HeightFor(int width) const;

  // Follows the list to the side, by pixels from the left.
  void ScrollTo(int left);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int LegendColumn() const;  // where it stands beside the names, in pixels from the first of them
  int LineHeight() const;

  QString columns_;
  QString legend_;
  int scrolled_ = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_LIST_HEADING_H_
