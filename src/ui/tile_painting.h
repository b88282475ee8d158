// The looks of a tile: what stands in the place of a picture, and the small marks.
#ifndef VELLUMARK_UI_TILE_PAINTING_H_
#define VELLUMARK_UI_TILE_PAINTING_H_

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QString>

namespace vellumark {

// The ground on which pictures of another shape, and words in place of pictures, stand.
QColor TileGround(const QPalette& palette);

// A picture in the middle of its box, as large as it can be without changing its shape.
void PaintPicture(QPainter& painter, const QRect& box, const QImage& image);

// The level's name in place of a picture.
void PaintPlaceholder(QPainter& painter, const QRect& box, const QString& level,
                      const QPalette& palette);

// A picture that cannot be shown.
void PaintBrokenPicture(QPainter& painter, const QRect& box, const QPalette& palette);

// Small marks: a page with lines, and a letter.
void PaintNoteMark(QPainter& painter, const QRect& box, const QColor& colour);
void PaintLetterMark(QPainter& painter, const QRect& box, const QString& letter,
                     const QColor& colour);

}  // namespace vellumark

#endif  // VELLUMARK_UI_TILE_PAINTING_H_
