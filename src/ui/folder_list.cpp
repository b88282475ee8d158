#include "ui/folder_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "ui/folder_list_model.h"

namespace vellumark {
namespace {

// Indents a line by its depth. Every line has the same size, whatever its name: a name that is
// too long for the list is cut.
class IndentingDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    constexpr int kMargin = 6;
    const int icon = option.decorationSize.height();
    return {0, std::max(option.fontMetrics.height(), icon) + kMargin};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    const int depth = index.data(FolderListModel::kDepthRole).toInt();
    const int most = option.rect.width() / 2;
    indented.rect.setLeft(option.rect.left() +
                          std::min(depth * option.decorationSize.width(), most));
    QStyledItemDelegate::paint(painter, indented, index);
  }
};

}  // namespace

FolderList::FolderList(const Text& text, QWidget* parent)
    : QListView(parent), folders_(new FolderListModel(text, this)) {
  setModel(folders_);
  setItemDelegate(new IndentingDelegate(this));
  setUniformItemSizes(true);
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
  setIconSize({icon, icon});
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListView::clicked, this, &FolderList::Pick);
}

void FolderList::SetLines(FolderLines lines) {
  constexpr int kLinesAbove = 3;
  folders_->SetLines(std::move(lines));
  const auto current = static_cast<int>(folders_->Lines().current);
  setCurrentIndex(folders_->index(current));
  scrollTo(folders_->index(std::max(current - kLinesAbove, 0)), PositionAtTop);
}

const std::string& FolderList::Folder() const { return folders_->Lines().folder; }

void FolderList::ShowFolder(const std::string& path) {
  const auto& lines = folders_->Lines().lines;
  const auto line = std::ranges::find(lines, path, &FolderLine::path);
  if (line != lines.end()) scrollTo(folders_->index(static_cast<int>(line - lines.begin())));
}

void FolderList::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Pick(currentIndex());
    case Qt::Key_Backspace:
      return GoUp();
    case Qt::Key_F5:
      emit RereadWanted();
      return;
    default:
      return QListView::keyPressEvent(event);
  }
}

// The first click has gone to the folder already; the second is not meant for the line that has
// come under the pointer since.
void FolderList::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void FolderList::Pick(const QModelIndex& index) {
  if (!index.isValid() || !index.flags().testFlag(Qt::ItemIsEnabled)) return;
  // A copy: the lines change while the folder is gone to.
  const std::string path = folders_->Lines().lines[static_cast<std::size_t>(index.row())].path;
  emit FolderPicked(path);
}

void FolderList::GoUp() {
  const FolderLines& shown = folders_->Lines();
  if (shown.current == 0) return;
  const std::string path = shown.lines[shown.current - 1].path;
  emit FolderPicked(path);
}

}  // namespace vellumark
