// What every picture is made with: colours, light, skies, lines of hills, a traveller. All
// pictures are kWidth by kHeight pixels.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_CANVAS_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_CANVAS_H_

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

#include "demo_random.h"

namespace vellumark::demo {

constexpr int kWidth = 640;
constexpr int kHeight = 480;

// `share` from 0 (all `a`) to 1 (all `b`).
QColor Mix(const QColor& a, const QColor& b, double share);
// Darker below 1, brighter above.
QColor Scaled(const QColor& colour, double factor);
// `opacity` from 0 to 1.
QColor Faded(const QColor& colour, double opacity);

// A vertical run of three colours from `top` to `bottom` over the whole width.
void PaintSky(QPainter& painter, double top, double bottom, const QColor& high,
              const QColor& middle, const QColor& low);
void PaintStars(QPainter& painter, Random& random, double horizon, int count);
// A sun or a moon with the light around it.
void PaintDisc(QPainter& painter, QPointF centre, double radius, const QColor& colour, double halo);
// Long flat clouds around a height.
void PaintClouds(QPainter& painter, Random& random, double height, const QColor& colour);

// Adds light: bright in the middle, nothing at `radius`.
void PaintGlow(QPainter& painter, QPointF centre, double radius, const QColor& colour);
// A burning flame with its glow; `size` is its height.
void PaintFlame(QPainter& painter, Random& random, QPointF foot, double size);
// A slanting beam of added light from `top` down to `bottom`.
void PaintBeam(QPainter& painter, QPointF top, double top_width, QPointF bottom,
               double bottom_width, const QColor& colour);

// A line of hills across the picture, closed at the bottom edge. `length` is the width of a
// typical hill, all in pixels.
QPainterPath Hills(Random& random, double height, double rise, double length);

// A traveller with a backpack, seen from behind. `light` is the colour of the light that falls on
// the figure; a dark one leaves a silhouette.
void PaintTraveller(QPainter& painter, QPointF feet, double height, const QColor& light);

// A palm with its foot at `foot`; `lean` from -1 to 1.
void PaintPalm(QPainter& painter, Random& random, QPointF foot, double height, double lean,
               const QColor& colour);

// Darkens the corners and adds grain, as the last step of a picture.
void FinishPicture(QImage& picture, Random& random);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_CANVAS_H_
