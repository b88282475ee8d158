#include "ui/folder_list_model.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <utility>

#include "platform/qt/qt_text.h"

namespace vellumark {
namespace {

QIcon StandardIcon(QStyle::StandardPixmap icon) {
  return QApplication::style()->standardIcon(icon);
}

// On one row, whatever characters the name has.
QString ShownOnOneRow(const std::string& name) {
  QString shown = QString::fromStdString(name);
  for (QChar& character : shown) {
    if (character.category() == QChar::Other_Control) character = u' ';
  }
  return shown;
}

}  // namespace

FolderListModel::FolderListModel(const Text& text, QObject* parent)
    : QAbstractListModel(parent),
      text_(text),
      drive_(StandardIcon(QStyle::SP_DriveHDIcon)),
      open_(StandardIcon(QStyle::SP_DirOpenIcon)),
      closed_(StandardIcon(QStyle::SP_DirClosedIcon)) {}

void FolderListModel::SetLines(FolderLines lines) {
  beginResetModel();
  lines_ = std::move(lines);
  endResetModel();
}

int FolderListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.lines.size());
}

QVariant FolderListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const FolderLine& line = LineAt(index);
  const auto row = static_cast<std::size_t>(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return ShownOnOneRow(line.shown);
    case Qt::DecorationRole:
      return IconAt(row);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return ToolTipOf(line);
    case Qt::FontRole: {
      if (row != lines_.current) return {};
      QFont font = QApplication::font("QListView");
      font.setBold(true);
      return font;
    }
    case kDepthRole:
      return line.depth;
    default:
      return {};
  }
}

Qt::ItemFlags FolderListModel::flags(const QModelIndex& index) const {
  if (!index.isValid() || !LineAt(index).refusal.empty()) return Qt::ItemNeverHasChildren;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

const FolderLine& FolderListModel::LineAt(const QModelIndex& index) const {
  return lines_.lines[static_cast<std::size_t>(index.row())];
}

QVariant FolderListModel::ToolTipOf(const FolderLine& line) const {
  if (line.refusal.empty()) return {};
  return ToQString(text_, line.refusal);
}

const QIcon& FolderListModel::IconAt(std::size_t row) const {
  if (row == 0) return drive_;
  return row <= lines_.current ? open_ : closed_;
}

}  // namespace vellumark
