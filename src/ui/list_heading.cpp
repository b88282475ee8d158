#include "ui/list_heading.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace vellumark {
namespace {

constexpr int kMargin = 2;  // above and below a line

int LegendWidth(const QString& legend) {
  return QFontMetrics(QApplication::font()).horizontalAdvance(legend);
}

// Where the text of a line of the list begins.
int LeftMargin(const QWidget& list) {
  return list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
}

}  // namespace

ListHeading::ListHeading(QWidget* list) : QWidget(list) { hide(); }

void ListHeading::SetTexts(const QString& columns, const QString& legend,
                           const QString& description) {
  columns_ = columns;
  legend_ = legend;
  setToolTip(description);
  setAccessibleName(description);
}

int ListHeading::HeightFor(int width) const {
  const bool beside = LegendColumn() + LegendWidth(legend_) + 2 * kMargin <= width;
  return (beside ? 1 : 2) * LineHeight();
}

void ListHeading::ScrollTo(int left) {
  scrolled_ = left;
  update();
}

int ListHeading::LegendColumn() const {
  constexpr int kBlanks = 4;
  const QFontMetrics metrics(parentWidget()->font());
  return LeftMargin(*parentWidget()) + metrics.horizontalAdvance(columns_) +
         kBlanks * metrics.horizontalAdvance(u' ');
}

int ListHeading::LineHeight() const {
  return std::max(QFontMetrics(parentWidget()->font()).height(),
                  QFontMetrics(QApplication::font()).height()) +
         2 * kMargin;
}

void ListHeading::paintEvent(QPaintEvent* /*event*/) {
  const int line = LineHeight();
  const bool beside = height() < 2 * line;
  const int left = LeftMargin(*parentWidget());
  QPainter painter(this);

  painter.setFont(parentWidget()->font());
  painter.drawText(QRect(left - scrolled_, height() - line, 2 * width() + scrolled_, line),
                   Qt::AlignVCenter, columns_);
  painter.setFont(QApplication::font());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(QRect(beside ? LegendColumn() - scrolled_ : left, 0, width() + scrolled_, line),
                   Qt::AlignVCenter, legend_);
}

}  // namespace vellumark
