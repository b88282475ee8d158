#include "ui/view_menu.h"

#include <QActionGroup>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/details.h"
#include "savegames/tile.h"
#include "ui/archive_views.h"
#include "ui/controls.h"
#include "ui/pictures_view.h"

namespace vellumark {

ViewMenu::ViewMenu(ArchiveViews& views, QWidget* parent) : QMenu(parent), views_(views) {
  setObjectName(QStringLiteral("mnu_View"));
  AddViews();
  addSeparator();
  AddSizes();
  addSeparator();
  levels_ = Named(new QMenu(this), "mnu_ViewGoToLevel");
  addMenu(levels_);
  connect(levels_, &QMenu::aboutToShow, this, &ViewMenu::ListLevels);
}

void ViewMenu::AddViews() {
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
    action->setChecked(choice.view == views_.Chosen());
    action->setShortcut(QKeySequence(Qt::CTRL | choice.key));
    addAction(action);
    connect(action, &QAction::triggered, &views_,
            [this, view = choice.view] { views_.Choose(view); });
    connect(&views_, &ArchiveViews::ViewChosen, action,
            [action, view = choice.view](auto chosen) { action->setChecked(view == chosen); });
  }
}

// They are for the pictures, and each for as long as there is another size.
void ViewMenu::AddSizes() {
  PicturesView& pictures = views_.Pictures();
  auto* larger = Named(new QAction(this), "mnu_ViewLarger");
  larger->setShortcuts(
      {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  connect(larger, &QAction::triggered, &pictures, [&pictures] { pictures.StepSize(1); });
  auto* smaller = Named(new QAction(this), "mnu_ViewSmaller");
  smaller->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
  connect(smaller, &QAction::triggered, &pictures, [&pictures] { pictures.StepSize(-1); });
  addAction(larger);
  addAction(smaller);

  const auto enable = [this, &pictures, larger, smaller] {
    const bool shown = views_.Chosen() == ArchiveView::kPictures;
    larger->setEnabled(shown && pictures.Size() != TileSize::kLarge);
    smaller->setEnabled(shown && pictures.Size() != TileSize::kSmall);
  };
  connect(&views_, &ArchiveViews::ViewChosen, larger, enable);
  connect(&pictures, &PicturesView::SizeChanged, larger, enable);
  enable();
}

void ViewMenu::ListLevels() {
  levels_->clear();
  for (const Level& level : LevelsOf(program_->catalogue)) {
    QString caption = ToQString(program_->text, level.heading);
    caption.replace(u'&', QLatin1String("&&"));
    caption += ToQString(program_->text, LoadMessage(kLevelInMenu, {level.count}));
    QAction* action = levels_->addAction(caption);
    connect(action, &QAction::triggered, this, [this, first = level.first] { GoTo(first); });
  }
  if (!levels_->isEmpty()) return;
  levels_->addAction(ToQString(program_->text, LoadMessage(kLevelsNone)))->setEnabled(false);
}

void ViewMenu::GoTo(int index) {
  if (index >= program_->catalogue.EntryCount()) return;
  SelectOnly(*program_, index);
  views_.ScrollToTop(index);
  views_.setFocus();
}

}  // namespace vellumark
