#include "ui/tile_painting.h"

#include <QPainterPath>
#include <algorithm>

namespace vellumark {

// Between the ground of the view and its text: quiet on a light one and on a dark one.
QColor TileGround(const QPalette& palette) {
  constexpr int kOfText = 10;  // of 100
  const QColor ground = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const auto mixed = [](int a, int b) { return (a * (100 - kOfText) + b * kOfText) / 100; };
  return {mixed(ground.red(), text.red()), mixed(ground.green(), text.green()),
          mixed(ground.blue(), text.blue())};
}

void PaintPicture(QPainter& painter, const QRect& box, const QImage& image) {
  QRect place(QPoint(), image.size().scaled(box.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
  place.moveCenter(box.center());
  // One that was decoded to fill the box needs no scaling, not even by a fraction of a pixel.
  const qreal ratio = painter.device()->devicePixelRatioF();
  const QSizeF size = QSizeF(image.size()) / ratio;
  if (qAbs(size.width() - place.width()) < 1 && qAbs(size.height() - place.height()) < 1) {
    QImage sharp = image;
    sharp.setDevicePixelRatio(ratio);
    return painter.drawImage(place.topLeft(), sharp);
  }
  painter.drawImage(place, image);
}

void PaintPlaceholder(QPainter& painter, const QRect& box, const QString& level,
                      const QPalette& palette) {
  constexpr int kMargin = 8;
  painter.setPen(palette.color(QPalette::PlaceholderText));
  painter.drawText(box.adjusted(kMargin, kMargin, -kMargin, -kMargin),
                   Qt::AlignCenter | Qt::TextWordWrap, level);
}

// A sheet with a picture of hills, torn across.
void PaintBrokenPicture(QPainter& painter, const QRect& box, const QPalette& palette) {
  const int unit = std::max(2, box.height() / 16);
  QRectF sheet(0, 0, 8 * unit, 6 * unit);
  sheet.moveCenter(QRectF(box).center());
  const auto at = [&](qreal x, qreal y) {
    return QPointF(sheet.left() + x * unit, sheet.top() + y * unit);
  };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette.color(QPalette::PlaceholderText), std::max(1.5, unit / 4.0),
                      Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF{at(4, 0), at(0, 0), at(0, 6), at(3.5, 6), at(4.2, 4.5),
                                 at(3.2, 3.2), at(4.6, 1.6), at(4, 0)});
  painter.drawPolyline(QPolygonF{at(5.4, 0), at(8, 0), at(8, 6), at(4.9, 6), at(5.6, 4.5),
                                 at(4.6, 3.2), at(6, 1.6), at(5.4, 0)});
  painter.restore();
}

void PaintNoteMark(QPainter& painter, const QRect& box, const QColor& colour) {
  painter.save();
  painter.setPen(QPen(colour, 1));
  painter.setBrush(Qt::NoBrush);
  const int width = box.width() * 3 / 4;
  const QRect page(box.left() + (box.width() - width) / 2, box.top(), width, box.height() - 1);
  painter.drawRect(page);
  for (int line = 1; line <= 3; ++line) {
    const int y = page.top() + line * page.height() / 4;
    painter.drawLine(page.left() + 2, y, page.right() - 2, y);
  }
  painter.restore();
}

void PaintLetterMark(QPainter& painter, const QRect& box, const QString& letter,
                     const QColor& colour) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  QFont font = painter.font();
  font.setPixelSize(std::max(6, box.height() - 4));
  painter.setFont(font);
  painter.drawText(box, Qt::AlignCenter, letter);
  painter.restore();
}

}  // namespace vellumark
