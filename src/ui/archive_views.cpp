#include "ui/archive_views.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_text.h"
#include "program.h"
#include "savegames/tile.h"
#include "ui/controls.h"
#include "ui/pictures_view.h"
#include "ui/savegame_list.h"
#include "ui/savegame_list_model.h"

namespace vellumark {

ArchiveViews::ArchiveViews(FileSystem& files, QWidget* parent)
    : QStackedWidget(parent),
      lines_(new SavegameListModel(this)),
      list_(Named(new SavegameList(*lines_, this), "List1")),
      pictures_(Named(new PicturesView(files, *lines_, this), "Pictures1")) {
  pictures_->setModel(lines_);
  pictures_->setSelectionModel(list_->selectionModel());
  connect(&Selection(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (own_change_) return;
    told_ = true;
    emit SelectionTouched();
  });
  for (const ArchiveView view : {ArchiveView::kList, ArchiveView::kPictures}) {
    QAbstractItemView& shown = ViewOf(view);
    addWidget(&shown);
    shown.viewport()->installEventFilter(this);
    connect(&shown, &QAbstractItemView::clicked, this, [this] {
      // A click that changed the selection has been told with the change.
      if (!told_) emit SelectionTouched();
    });
  }
  setFocusProxy(list_);
}

void ArchiveViews::Attach(const Program& program) {
  program_ = &program;
  pictures_->Attach(program);
}

QItemSelectionModel& ArchiveViews::Selection() const { return *list_->selectionModel(); }

QAbstractItemView& ArchiveViews::ViewOf(ArchiveView view) const {
  if (view == ArchiveView::kPictures) return *pictures_;
  return *list_;
}

void ArchiveViews::Choose(ArchiveView view) {
  if (chosen_ == view) return;
  chosen_ = view;
  // The lines of the list are read as they stand there.
  if (view == ArchiveView::kPictures) {
    lines_->SetSpoken([this](int index) {
      const SavegameEntry& entry = program_->catalogue.entries[static_cast<std::size_t>(index)];
      return ToDisplayText(program_->text, SpokenTile(entry, lines_->HasShot(index)));
    });
  } else {
    lines_->SetSpoken({});
  }
  if (instead_ == nullptr) ShowPage(&ViewOf(view));
  ViewOf(view).scrollTo(ViewOf(view).currentIndex());
  emit ViewChosen(view);
}

void ArchiveViews::ShowInstead(QWidget* page) {
  instead_ = page;
  ShowPage(page != nullptr ? page : &ViewOf(chosen_));
}

// The focus stays in the middle of the window when it was there.
void ArchiveViews::ShowPage(QWidget* page) {
  const bool focused = currentWidget() != nullptr && (currentWidget()->hasFocus() ||
                                                      currentWidget()->isAncestorOf(focusWidget()));
  setCurrentWidget(page);
  setFocusProxy(page);
  if (focused) page->setFocus();
}

void ArchiveViews::AddCommand(QAction* command) {
  list_->addAction(command);
  pictures_->addAction(command);
}

int ArchiveViews::LineAt(QPoint global) const {
  const QAbstractItemView& view = ViewOf(chosen_);
  const QPoint at = view.viewport()->mapFromGlobal(global);
  if (instead_ != nullptr || !view.viewport()->rect().contains(at)) return -1;
  return view.indexAt(at).row();
}

QRect ArchiveViews::RectOf(int line) const {
  const QAbstractItemView& view = ViewOf(chosen_);
  const QRect seen = view.visualRect(lines_->index(line)) & view.viewport()->rect();
  return {view.viewport()->mapToGlobal(seen.topLeft()), seen.size()};
}

void ArchiveViews::SetLines(QStringList lines) {
  const QScopedValueRollback own_change(own_change_, true);
  lines_->SetLines(std::move(lines));
}

void ArchiveViews::ReplaceLine(int index, const QString& line) { lines_->ReplaceLine(index, line); }

std::vector<int> ArchiveViews::SelectedLines() const {
  std::vector<int> selected;
  for (const QItemSelectionRange& range : Selection().selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) selected.push_back(row);
  }
  std::ranges::sort(selected);
  return selected;
}

void ArchiveViews::SelectLine(int index) {
  const QScopedValueRollback own_change(own_change_, true);
  const QModelIndex line = lines_->index(index);
  Selection().setCurrentIndex(line, QItemSelectionModel::ClearAndSelect);
  ViewOf(chosen_).scrollTo(line);
}

void ArchiveViews::ScrollToTop(int index) {
  ViewOf(chosen_).scrollTo(lines_->index(index), QAbstractItemView::PositionAtTop);
}

bool ArchiveViews::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) told_ = false;
  return QStackedWidget::eventFilter(watched, event);
}

}  // namespace vellumark
