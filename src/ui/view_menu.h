// The menu that chooses how the main window shows the archive.
#ifndef VELLUMARK_UI_VIEW_MENU_H_
#define VELLUMARK_UI_VIEW_MENU_H_

#include <QMenu>

namespace vellumark {

class ArchiveViews;

class ViewMenu final : public QMenu {
  Q_OBJECT

 public:
  ViewMenu(ArchiveViews& views, QWidget* parent);
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_VIEW_MENU_H_
