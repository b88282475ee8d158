// The page in the place of the list while there is none.
#ifndef VELLUMARK_UI_FIRST_PAGE_VIEW_H_
#define VELLUMARK_UI_FIRST_PAGE_VIEW_H_

#include <QScrollArea>

class QLabel;
class QPushButton;

namespace vellumark {

struct FirstPage;
class Text;

class FirstPageView final : public QScrollArea {
  Q_OBJECT

 public:
  FirstPageView(const Text& text, QWidget* parent);

  void Describe(const FirstPage& page);

 signals:
  void NewChosen();
  void OpenChosen();
  void HelpChosen();
  void LookAgainChosen();

 private:
  QPushButton* AddButton(const char* name, int caption);
  void SetCaption(QPushButton* button, const QString& caption);

  const Text& text_;
  QLabel* label_;
  QPushButton* look_again_;
  QPushButton* new_;
  QPushButton* open_;
  QPushButton* help_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_FIRST_PAGE_VIEW_H_
