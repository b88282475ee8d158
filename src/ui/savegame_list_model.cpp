#include "ui/savegame_list_model.h"

#include <algorithm>
#include <utility>

#include "savegames/list_line.h"

namespace vellumark {

void SavegameListModel::SetLines(QStringList lines) {
  beginResetModel();
  lines_ = std::move(lines);
  longest_ = 0;
  for (const QString& line : std::as_const(lines_)) longest_ = std::max(longest_, line.size());
  endResetModel();
}

void SavegameListModel::ReplaceLine(int index, const QString& line) {
  lines_[index] = line;
  longest_ = std::max(longest_, line.size());
  const QModelIndex changed = createIndex(index, 0);
  emit dataChanged(changed, changed);
}

int SavegameListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant SavegameListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= lines_.size()) return {};
  if (role == Qt::DisplayRole) return lines_[index.row()];
  if (role == Qt::AccessibleTextRole && spoken_) return spoken_(index.row());
  return {};
}

bool SavegameListModel::HasShot(int index) const {
  return lines_[index].size() > qsizetype{kShotColumn} && lines_[index][kShotColumn] != u' ';
}

QModelIndexList SavegameListModel::match(const QModelIndex& start, int /*role*/,
                                         const QVariant& value, int hits,
                                         Qt::MatchFlags flags) const {
  const QString typed = value.toString();
  const int first = start.row();
  const int end = flags.testFlag(Qt::MatchWrap) ? first + rowCount() : rowCount();
  QModelIndexList found;
  for (int row = first; row < end && found.size() != hits; ++row) {
    const int at = row % rowCount();
    const auto level = QStringView(lines_[at]).mid(kLevelColumn, kNoteColumn - kLevelColumn);
    if (level.startsWith(typed, Qt::CaseInsensitive)) found.append(index(at));
  }
  return found;
}

}  // namespace vellumark
