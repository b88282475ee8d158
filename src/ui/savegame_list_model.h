// The finished lines of the list.
#ifndef VELLUMARK_UI_SAVEGAME_LIST_MODEL_H_
#define VELLUMARK_UI_SAVEGAME_LIST_MODEL_H_

#include <QAbstractListModel>
#include <QStringList>
#include <functional>
#include <utility>

namespace vellumark {

class SavegameListModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void SetLines(QStringList lines);
  void ReplaceLine(int index, const QString& line);

  // What a screen reader says of a savegame; none: its line.
  void SetSpoken(std::function<QString(int)> spoken) { spoken_ = std::move(spoken); }

  // Whether a savegame's line says that it has a screen-shot.
  bool HasShot(int index) const;

  // The length of the longest line, in characters.
  qsizetype LongestLine() const { return longest_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  // What is typed into a view goes to the lines whose level begins with it, in whatever case.
  QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                        Qt::MatchFlags flags) const override;

 private:
  QStringList lines_;
  qsizetype longest_ = 0;
  std::function<QString(int)> spoken_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_SAVEGAME_LIST_MODEL_H_
