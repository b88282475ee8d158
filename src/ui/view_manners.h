// What the list of savegames and their pictures do alike beyond what Qt's views do.
#ifndef VELLUMARK_UI_VIEW_MANNERS_H_
#define VELLUMARK_UI_VIEW_MANNERS_H_

#include <QElapsedTimer>
#include <QModelIndex>
#include <QString>

class QAbstractItemView;
class QContextMenuEvent;
class QKeyEvent;

namespace vellumark {

// A blank belongs to a level that is being typed; otherwise it is the one that selects a savegame
// together with Ctrl.
class LevelTyping {
 public:
  // Whether what was typed goes to a level.
  bool Takes(const QString& typed);

 private:
  QElapsedTimer typed_;  // since the last letter
};

// The menu of the view's actions; by key it opens at the current savegame.
void ShowContextMenu(QAbstractItemView& view, const QContextMenuEvent& event);

// At the first or last savegame, the keys that lead there have nowhere to go, but select it alone
// all the same. `before` was current before the view took the key.
void SelectAloneAtTheEnd(QAbstractItemView& view, const QModelIndex& before,
                         const QKeyEvent& event);

}  // namespace vellumark

#endif  // VELLUMARK_UI_VIEW_MANNERS_H_
