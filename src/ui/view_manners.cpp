#include "ui/view_manners.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <iterator>

namespace vellumark {

bool LevelTyping::Takes(const QString& typed) {
  const bool typing = typed_.isValid() && !typed_.hasExpired(QApplication::keyboardInputInterval());
  if (typed == QLatin1String(" ") && !typing) return false;
  typed_.start();
  return true;
}

// Only the beginning of the current savegame need be in sight.
void ShowContextMenu(QAbstractItemView& view, const QContextMenuEvent& event) {
  QPoint place = event.globalPos();
  if (event.reason() == QContextMenuEvent::Keyboard) {
    view.scrollTo(view.currentIndex());
    const QPoint below = view.visualRect(view.currentIndex()).bottomLeft();
    place = view.viewport()->mapToGlobal(QPoint(std::max(0, below.x()), below.y()));
  }
  QMenu::exec(view.actions(), place, nullptr, &view);
}

void SelectAloneAtTheEnd(QAbstractItemView& view, const QModelIndex& before,
                         const QKeyEvent& event) {
  constexpr int kMoves[] = {Qt::Key_Up,   Qt::Key_PageUp,   Qt::Key_Home, Qt::Key_Left,
                            Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End,  Qt::Key_Right};
  const bool moves = std::ranges::find(kMoves, event.key()) != std::end(kMoves);
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (moves && plain && before.isValid() && view.currentIndex() == before) {
    view.selectionModel()->select(before, QItemSelectionModel::ClearAndSelect);
  }
}

}  // namespace vellumark
