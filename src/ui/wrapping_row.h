// A row of controls that goes on in a further row where the window is too narrow for it.
#ifndef VELLUMARK_UI_WRAPPING_ROW_H_
#define VELLUMARK_UI_WRAPPING_ROW_H_

#include <QLayout>
#include <memory>
#include <vector>

namespace vellumark {

// Gives every item the size that it asks for. The room that a row leaves is shared between its
// items, so that the first stands at the left and the last at the right.
class WrappingRow final : public QLayout {
  Q_OBJECT

 public:
  explicit WrappingRow(QWidget* parent);
  ~WrappingRow() override;

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  QSize sizeHint() const override;     // all in one row
  QSize minimumSize() const override;  // each in a row of its own, of which only one need be seen
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  void setGeometry(const QRect& place) override;

 private:
  struct Row {
    std::size_t end;  // one past its last item
    int width;        // of its items and the gaps between them
    int height;
  };
  Row RowFrom(std::size_t first, int width) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_WRAPPING_ROW_H_
