#include "ui/savegame_list_model.h"

#include <algorithm>
#include <utility>

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
  if (role == Qt::DisplayRole && index.isValid() && index.row() < lines_.size()) {
    return lines_[index.row()];
  }
  return {};
}

}  // namespace vellumark
