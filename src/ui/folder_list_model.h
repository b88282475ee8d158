// The lines of the folder list.
#ifndef VELLUMARK_UI_FOLDER_LIST_MODEL_H_
#define VELLUMARK_UI_FOLDER_LIST_MODEL_H_

#include <QAbstractListModel>
#include <QIcon>

#include "maintenance/folder_lines.h"

namespace vellumark {

class Text;

// A folder that cannot be taken is disabled and has the reason as its tool tip.
class FolderListModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  static constexpr int kDepthRole = Qt::UserRole;  // steps below the drive's root

  FolderListModel(const Text& text, QObject* parent);

  void SetLines(FolderLines lines);
  const FolderLines& Lines() const { return lines_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const FolderLine& LineAt(const QModelIndex& index) const;
  QVariant ToolTipOf(const FolderLine& line) const;
  const QIcon& IconAt(std::size_t row) const;

  const Text& text_;
  const QIcon drive_;
  const QIcon open_;
  const QIcon closed_;
  FolderLines lines_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_FOLDER_LIST_MODEL_H_
