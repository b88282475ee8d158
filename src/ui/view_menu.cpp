#include "ui/view_menu.h"

#include <QActionGroup>

#include "ui/archive_views.h"
#include "ui/controls.h"

namespace vellumark {

ViewMenu::ViewMenu(ArchiveViews& views, QWidget* parent) : QMenu(parent) {
  setObjectName(QStringLiteral("mnu_View"));
  auto* group = new QActionGroup(this);
  const struct {
    const char* name;
    Qt::Key key;
    ArchiveView view;
  } choices[] = {{"mnu_ViewList", Qt::Key_1, ArchiveView::kList},
                 {"mnu_ViewPictures", Qt::Key_2, ArchiveView::kPictures}};
  for (const auto& choice : choices) {
    auto* action = Named(new QAction(group), choice.name);
    action->setCheckable(true);
    action->setChecked(choice.view == views.Chosen());
    action->setShortcut(QKeySequence(Qt::CTRL | choice.key));
    addAction(action);
    connect(action, &QAction::triggered, &views,
            [&views, view = choice.view] { views.Choose(view); });
    connect(&views, &ArchiveViews::ViewChosen, action,
            [action, view = choice.view](auto chosen) { action->setChecked(view == chosen); });
  }
}

}  // namespace vellumark
