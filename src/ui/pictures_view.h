// The archive as pictures: a tile for each savegame.
#ifndef VELLUMARK_UI_PICTURES_VIEW_H_
#define VELLUMARK_UI_PICTURES_VIEW_H_

#include <QListView>

namespace vellumark {

class PicturesView final : public QListView {
  Q_OBJECT

 public:
  explicit PicturesView(QWidget* parent);
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PICTURES_VIEW_H_
