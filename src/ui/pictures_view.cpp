#include "ui/pictures_view.h"

namespace vellumark {

PicturesView::PicturesView(QWidget* parent) : QListView(parent) {
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setUniformItemSizes(true);
}

}  // namespace vellumark
