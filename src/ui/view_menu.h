// The menu that chooses how the main window shows the archive, and where in it.
#ifndef VELLUMARK_UI_VIEW_MENU_H_
#define VELLUMARK_UI_VIEW_MENU_H_

#include <QMenu>

namespace vellumark {

struct Program;
class ArchiveViews;

class ViewMenu final : public QMenu {
  Q_OBJECT

 public:
  ViewMenu(ArchiveViews& views, QWidget* parent);

  // The program in whose archive the levels are.
  void Attach(Program& program) { program_ = &program; }

 private:
  void AddViews();
  void AddSizes();
  void ListLevels();
  void GoTo(int index);

  ArchiveViews& views_;
  Program* program_ = nullptr;
  QMenu* levels_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_VIEW_MENU_H_
