#include "ui/path_label.h"

#include <QPainter>
#include <QStyle>

#include "ui/plain_tip.h"

namespace vellumark {

PathLabel::PathLabel(const char* name, QWidget* parent) : QLabel(parent) {
  setObjectName(QLatin1String(name));
  setTextFormat(Qt::PlainText);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setMargin(3);
}

void PathLabel::SetPath(const QString& path) {
  setText(path);
  setToolTip(PlainTip(path));
}

QSize PathLabel::minimumSizeHint() const { return {120, QLabel::minimumSizeHint().height()}; }

QSize PathLabel::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 48, QLabel::sizeHint().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect place = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, place.width());
  style()->drawItemText(&painter, place, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                        palette(), isEnabled(), shown, foregroundRole());
}

}  // namespace vellumark
