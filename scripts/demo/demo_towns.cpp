#include "demo_towns.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <array>

#include "demo_canvas.h"
#include "demo_steps.h"

namespace vellumark::demo {
namespace {

struct Night {
  QColor high, middle, low, moon, wall, window;
};

void PaintDome(QPainter& painter, QPointF foot, double half) {
  QPainterPath dome(foot - QPointF(half, 0.0));
  const QPointF tip = foot - QPointF(0.0, half * 1.5);
  dome.cubicTo(foot + QPointF(-half * 1.25, -half * 0.8), foot + QPointF(-half * 0.4, -half * 1.1),
               tip);
  dome.cubicTo(foot + QPointF(half * 0.4, -half * 1.1), foot + QPointF(half * 1.25, -half * 0.8),
               foot + QPointF(half, 0.0));
  painter.drawPath(dome);
  painter.drawRect(QRectF(tip.x() - 0.8, tip.y() - half * 0.4, 1.6, half * 0.5));
}

void PaintMinaret(QPainter& painter, QPointF foot, double width, double height) {
  const double x = foot.x();
  const double top = foot.y() - height;
  painter.drawRect(QRectF(x - width / 2.0, top + height * 0.3, width, height * 0.7));
  painter.drawRect(QRectF(x - width * 0.85, top + height * 0.29, width * 1.7, height * 0.025));
  painter.drawRect(QRectF(x - width * 0.36, top + height * 0.12, width * 0.72, height * 0.2));
  painter.drawRect(QRectF(x - width * 0.6, top + height * 0.12, width * 1.2, height * 0.02));
  PaintDome(painter, {x, top + height * 0.12}, width * 0.4);
}

void PaintWindow(QPainter& painter, Random& random, QPointF at, double size, const Night& night) {
  QPainterPath window(at + QPointF(-size * 0.3, size * 0.5));
  window.lineTo(at + QPointF(-size * 0.3, -size * 0.2));
  window.quadTo(at + QPointF(0.0, -size * 0.75), at + QPointF(size * 0.3, -size * 0.2));
  window.lineTo(at + QPointF(size * 0.3, size * 0.5));
  window.closeSubpath();
  const bool lit = random.Chance(0.4);
  if (lit) PaintGlow(painter, at, size * 2.2, QColor(88, 52, 16));
  painter.setPen(Qt::NoPen);
  painter.setBrush(lit ? Scaled(night.window, random.Real(0.75, 1.0)) : Scaled(night.wall, 0.35));
  painter.drawPath(window);
}

struct Row {
  double foot = 0.0;      // where the houses stand
  double low = 0.0;       // the lowest roof above the foot
  double high = 0.0;      // the highest
  double distance = 0.0;  // 0 near, 1 lost in the haze
  double window = 8.0;    // the size of a window
};

void PaintHouses(QPainter& painter, Random& random, const Row& row, const Night& night) {
  const QColor wall = Mix(night.wall, night.low, row.distance);
  const auto brush = [&](double top, double tone) {
    QLinearGradient gradient(0.0, top, 0.0, row.foot);
    gradient.setColorAt(0.0, Scaled(Mix(wall, night.moon, 0.1), tone));
    gradient.setColorAt(1.0, Mix(Scaled(wall, tone * 0.8), night.low, row.distance * 0.7));
    return gradient;
  };

  double x = random.Real(-60.0, -10.0);
  while (x < kWidth) {
    const double width = row.window * random.Real(5.0, 10.0);
    const double top = row.foot - random.Real(row.low, row.high);
    const double tone = random.Real(0.8, 1.15);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush(top, tone));
    if (random.Chance(0.22)) {
      PaintDome(painter, {x + width / 2.0, top + 1.0}, width * 0.36);
    } else if (random.Chance(0.16)) {
      PaintMinaret(painter, {x + width * 0.3, top + 30.0}, row.window * 1.3,
                   random.Real(1.0, 1.5) * row.high);
    }
    painter.setBrush(brush(top, tone));
    painter.drawRect(QRectF(x, top, width + 1.0, kHeight - top));
    painter.setBrush(Scaled(wall, tone * 1.25));
    painter.drawRect(QRectF(x - 1.0, top, width + 3.0, row.window * 0.22));
    painter.setBrush(Faded(QColor(0, 0, 0), 0.28));
    painter.drawRect(QRectF(x + width * 0.82, top + 2.0, width * 0.18 + 1.0, kHeight - top));

    const double step = row.window * 2.0;
    for (const double y : Steps(top + step * 0.8, row.foot, step * 1.15)) {
      for (const double at : Steps(x + step * 0.6, x + width * 0.8, step)) {
        if (random.Chance(0.75)) PaintWindow(painter, random, {at, y}, row.window, night);
      }
    }
    x += width;
  }
}

// The roof in front, on which the traveller stands.
void PaintParapet(QPainter& painter, Random& random, const Night& night) {
  const double top = 414.0;
  const double gap = random.Real(180.0, 420.0);
  painter.setPen(Qt::NoPen);
  QLinearGradient gradient(0.0, top, 0.0, kHeight);
  gradient.setColorAt(0.0, Scaled(Mix(night.wall, night.moon, 0.12), 0.8));
  gradient.setColorAt(1.0, Scaled(night.wall, 0.3));
  painter.setBrush(gradient);
  painter.drawRect(QRectF(0.0, top, kWidth, kHeight - top));
  for (const double x : Steps(random.Real(-30.0, 0.0), kWidth, 46.0)) {
    if (x > gap - 60.0 && x < gap + 50.0) continue;

    painter.setBrush(gradient);
    painter.drawRect(QRectF(x, top - 22.0, 30.0, 24.0));
    painter.setBrush(Faded(night.moon, 0.22));
    painter.drawRect(QRectF(x, top - 22.0, 30.0, 2.0));
  }
  for (int i = 0; i < 90; ++i) {
    const double y = top + 4.0 + 14.0 * random.Whole(0, 4);
    painter.setBrush(Faded(random.Chance(0.5) ? QColor(0, 0, 0) : night.moon, 0.07));
    painter.drawRect(QRectF(random.Real(-20.0, kWidth), y, random.Real(18.0, 46.0), 12.0));
  }
  PaintTraveller(painter, {gap, top + 34.0}, 118.0, Mix(night.wall, night.moon, 0.35));

  const double lamp =
      gap < 300.0 ? gap + random.Real(150.0, 260.0) : gap - random.Real(150.0, 260.0);
  painter.setPen(QPen(QColor(24, 20, 26), 3.0));
  painter.drawLine(QPointF(lamp, top - 20.0), QPointF(lamp, top - 92.0));
  PaintFlame(painter, random, {lamp, top - 88.0}, 17.0);
}

}  // namespace

void PaintCity(QPainter& painter, Random& random, std::size_t variant) {
  static const std::array<Night, 4> kNights{
      Night{
          {6, 8, 30}, {26, 34, 84}, {84, 84, 132}, {240, 240, 226}, {92, 86, 104}, {255, 202, 110}},
      Night{{10, 20, 30},
            {24, 66, 84},
            {96, 140, 140},
            {226, 246, 240},
            {84, 98, 100},
            {255, 214, 130}},
      Night{{34, 12, 44},
            {112, 40, 84},
            {226, 118, 96},
            {255, 226, 190},
            {112, 74, 88},
            {255, 208, 116}},
      Night{{16, 14, 20},
            {58, 42, 46},
            {148, 104, 76},
            {252, 226, 180},
            {110, 88, 70},
            {255, 196, 100}}};
  const Night& night = kNights.at(variant % kNights.size());

  PaintSky(painter, 0.0, 330.0, night.high, night.middle, night.low);
  PaintStars(painter, random, 260.0, 240);
  PaintDisc(painter, {random.Real(80.0, 560.0), random.Real(50.0, 120.0)}, random.Real(18.0, 34.0),
            night.moon, random.Real(130.0, 210.0));
  PaintClouds(painter, random, random.Real(110.0, 190.0), Mix(night.low, night.moon, 0.3));

  PaintHouses(painter, random, {330.0, 30.0, 90.0, 0.72, 5.0}, night);
  PaintHouses(painter, random, {380.0, 60.0, 130.0, 0.42, 9.0}, night);
  PaintHouses(painter, random, {420.0, 50.0, 150.0, 0.12, 15.0}, night);
  PaintParapet(painter, random, night);
}

}  // namespace vellumark::demo
