// The list of the game's slots in the capture dialog.
#ifndef VELLUMARK_UI_SLOT_LIST_H_
#define VELLUMARK_UI_SLOT_LIST_H_

#include <QListWidget>

namespace vellumark {

// Shows all lines of an ordinary game at once, in columns of a fixed-pitch font.
class SlotList final : public QListWidget {
  Q_OBJECT

 public:
  explicit SlotList(QWidget* parent);

  // Replaces all lines; `chosen` is the one that is chosen, -1 for none. Tells nobody.
  void SetLines(const QStringList& lines, int chosen);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  // Without a current line, the keys that lead down lead from the first one.
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 signals:
  // The user has chosen a line; -1 when none is chosen any more.
  void Chosen(int line);

 private:
  QSize SizeFor(int lines, int columns) const;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SLOT_LIST_H_
