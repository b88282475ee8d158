#include "demo_waters.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <algorithm>
#include <array>

#include "demo_canvas.h"
#include "demo_steps.h"

namespace vellumark::demo {
namespace {

// A fluted column, whole or broken off, lit from one side.
void PaintColumn(QPainter& painter, Random& random, QPointF foot, double width, double height,
                 bool broken, const QColor& lit, const QColor& shade) {
  const double half = width / 2.0;
  QLinearGradient gradient(foot.x() - half, 0.0, foot.x() + half, 0.0);
  gradient.setColorAt(0.0, Mix(lit, shade, 0.4));
  gradient.setColorAt(0.3, lit);
  gradient.setColorAt(1.0, shade);

  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  QPolygonF shaft({foot + QPointF(-half, 0.0), foot + QPointF(-half * 0.86, -height)});
  for (int i = 1; i < 6; ++i) {
    const double jag = broken ? random.Real(-0.12, 0.12) * height : 0.0;
    shaft << foot + QPointF(half * (-0.86 + 0.344 * i * 0.833), -height + jag);
  }
  shaft << foot + QPointF(half * 0.86, -height) << foot + QPointF(half, 0.0);
  painter.drawPolygon(shaft);

  for (int i = 1; i < 7; ++i) {
    const double x = -1.0 + 2.0 * i / 7.0;
    painter.setPen(QPen(Faded(Scaled(shade, 0.7), 0.5), width * 0.035));
    painter.drawLine(foot + QPointF(x * half, 0.0),
                     foot + QPointF(x * half * 0.86, -height * (broken ? 0.9 : 1.0)));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  painter.drawRect(
      QRectF(foot.x() - half * 1.25, foot.y() - width * 0.22, half * 2.5, width * 0.24));
  if (broken) return;

  const double top = foot.y() - height;
  painter.drawPolygon(QPolygonF({{foot.x() - half * 0.9, top + width * 0.3},
                                 {foot.x() + half * 0.9, top + width * 0.3},
                                 {foot.x() + half * 1.3, top},
                                 {foot.x() - half * 1.3, top}}));
  painter.drawRect(QRectF(foot.x() - half * 1.4, top - width * 0.16, half * 2.8, width * 0.18));
}

void PaintWeed(QPainter& painter, Random& random, QPointF foot, double height,
               const QColor& colour) {
  for (int i = 0; i < 6; ++i) {
    const QPointF root = foot + QPointF(random.Real(-16.0, 16.0), 0.0);
    const double reach = height * random.Real(0.5, 1.0);
    const double sway = random.Real(-0.3, 0.3) * reach;
    QPainterPath blade(root);
    blade.cubicTo(root + QPointF(sway, -reach * 0.35), root + QPointF(-sway, -reach * 0.65),
                  root + QPointF(sway * 0.7, -reach));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Scaled(colour, random.Real(0.7, 1.3)), random.Real(2.0, 5.0), Qt::SolidLine,
                        Qt::RoundCap));
    painter.drawPath(blade);
  }
}

void PaintFish(QPainter& painter, QPointF at, double size, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(at, std::abs(size), std::abs(size) * 0.34);
  painter.drawPolygon(
      QPolygonF({at - QPointF(size * 0.8, 0.0), at - QPointF(size * 1.5, size * 0.4),
                 at - QPointF(size * 1.5, -size * 0.4)}));
}

void PaintBubbles(QPainter& painter, Random& random, QPointF from) {
  for (int i = 0; i < 16; ++i) {
    const QPointF at = from + QPointF(random.Real(-14.0, 14.0), -random.Real(8.0, 150.0));
    const double radius = random.Real(1.2, 4.6);
    painter.setPen(QPen(QColor(220, 250, 255, 150), 1.0));
    painter.setBrush(QColor(200, 240, 255, 46));
    painter.drawEllipse(at, radius, radius);
  }
}

void PaintSwimmer(QPainter& painter, Random& random, QPointF at, const QColor& light) {
  PaintBubbles(painter, random, at + QPointF(26.0, -20.0));
  painter.save();
  painter.translate(at);
  painter.rotate(random.Real(52.0, 74.0));
  PaintTraveller(painter, {0.0, 56.0}, 112.0, light);
  painter.restore();
}

// The net of light that the waves throw on the ground.
void PaintCaustics(QPainter& painter, Random& random, double top, const QColor& colour) {
  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_Plus);
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < 70; ++i) {
    const double depth = random.Real(0.05, 1.0);
    const QPointF at(random.Real(-20.0, kWidth + 20.0), top + depth * (kHeight - top));
    const double width = 60.0 * depth * random.Real(0.5, 1.3);
    painter.setPen(QPen(Scaled(colour, random.Real(0.2, 0.7)), 1.0 + 1.6 * depth));
    QPainterPath line(at);
    line.quadTo(at + QPointF(width * 0.5, -8.0 * depth), at + QPointF(width, 2.0 * depth));
    painter.drawPath(line);
  }
  painter.restore();
}

void PaintLighthouse(QPainter& painter, QPointF foot, double height, const QColor& lit,
                     const QColor& shade) {
  struct Storey {
    double half, top;
  };
  const std::array<Storey, 3> storeys{Storey{0.13, 0.5}, Storey{0.09, 0.78}, Storey{0.055, 0.93}};
  double from = 0.0;
  for (const Storey& storey : storeys) {
    const double half = storey.half * height;
    QLinearGradient gradient(foot.x() - half, 0.0, foot.x() + half, 0.0);
    gradient.setColorAt(0.0, lit);
    gradient.setColorAt(1.0, shade);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawPolygon(
        QPolygonF({foot + QPointF(-half, -from * height), foot + QPointF(half, -from * height),
                   foot + QPointF(half * 0.85, -storey.top * height),
                   foot + QPointF(-half * 0.85, -storey.top * height)}));
    painter.drawRect(
        QRectF(foot.x() - half * 1.02, foot.y() - storey.top * height, half * 2.04, height * 0.02));
    painter.setBrush(Scaled(shade, 0.55));
    for (const double y : Steps(from + 0.08, storey.top - 0.05, 0.1)) {
      painter.drawRect(QRectF(foot.x() - 1.5, foot.y() - y * height - 6.0, 3.0, 7.0));
    }
    from = storey.top;
  }
  const QPointF lamp = foot - QPointF(0.0, height * 0.97);
  PaintGlow(painter, lamp, 70.0, QColor(255, 206, 120));
  painter.setBrush(QColor(255, 246, 210));
  painter.drawEllipse(lamp, 4.0, 4.0);
}

void PaintSea(QPainter& painter, Random& random, double horizon, double sun, const QColor& far,
              const QColor& near, const QColor& glint) {
  QLinearGradient gradient(0.0, horizon, 0.0, kHeight);
  gradient.setColorAt(0.0, far);
  gradient.setColorAt(1.0, near);
  painter.fillRect(QRectF(0.0, horizon, kWidth, kHeight - horizon), gradient);

  painter.setPen(Qt::NoPen);
  for (int i = 0; i < 420; ++i) {
    const double depth = random.Real(0.0, 1.0);
    const double y = horizon + 2.0 + depth * depth * (kHeight - horizon);
    const double length = 4.0 + 34.0 * depth * random.Real(0.5, 1.0);
    const double spread = 26.0 + 120.0 * depth;
    const bool mirrored = random.Chance(0.5);
    const double x = mirrored ? sun + random.Real(-spread, spread) : random.Real(-20.0, kWidth);
    const QColor& colour = mirrored ? glint : (random.Chance(0.5) ? far : Scaled(near, 0.7));
    painter.setBrush(Faded(colour, mirrored ? random.Real(0.25, 0.7) : 0.25));
    painter.drawEllipse(QPointF(x, y), length / 2.0, 0.6 + 1.3 * depth);
  }
}

}  // namespace

void PaintLake(QPainter& painter, Random& random, std::size_t variant) {
  struct Water {
    QColor high, low, stone, weed;
  };
  static const std::array<Water, 3> kWaters{
      Water{{108, 206, 216}, {6, 42, 84}, {150, 180, 176}, {40, 120, 90}},
      Water{{128, 214, 178}, {6, 58, 62}, {160, 178, 140}, {54, 122, 58}},
      Water{{116, 168, 226}, {16, 22, 78}, {150, 156, 190}, {60, 92, 130}}};
  const Water& water = kWaters.at(variant % kWaters.size());
  const auto at_depth = [&water](const QColor& colour, double haze) {
    return Mix(colour, Mix(water.high, water.low, 0.7), haze);
  };

  PaintSky(painter, 0.0, kHeight, water.high, Mix(water.high, water.low, 0.75), water.low);
  const double source = random.Real(180.0, 460.0);
  PaintGlow(painter, {source, -20.0}, 300.0, Scaled(water.high, 0.7));

  for (int row = 0; row < 3; ++row) {
    const double haze = 0.78 - 0.3 * row;
    const double foot = 356.0 + 34.0 * row;
    painter.setPen(Qt::NoPen);
    QLinearGradient ground(0.0, foot - 20.0, 0.0, foot + 110.0);
    ground.setColorAt(0.0, at_depth(Scaled(water.stone, 0.85), haze));
    ground.setColorAt(1.0, at_depth(Scaled(water.stone, 0.35), haze));
    painter.setBrush(ground);
    painter.drawPath(Hills(random, foot - 8.0, 10.0, 340.0));
    for (const double x : RandomSteps(random, random.Real(-30.0, 70.0), kWidth, 90.0, 190.0)) {
      const double width = 20.0 + 15.0 * row;
      const bool broken = random.Chance(0.55);
      const double height = broken ? random.Real(50.0, 150.0) : 210.0 + 34.0 * row;
      PaintColumn(painter, random, {x, foot + random.Real(0.0, 14.0)}, width, height, broken,
                  at_depth(water.stone, haze), at_depth(Scaled(water.stone, 0.4), haze));
      if (random.Chance(0.6)) {
        PaintWeed(painter, random, {x + random.Real(20.0, 60.0), foot + 16.0}, 60.0 + 30.0 * row,
                  at_depth(water.weed, haze));
      }
    }
    for (int i = 0; i < 5; ++i) {
      const double size = random.Real(4.0, 8.0) + 2.0 * row;
      PaintFish(painter, {random.Real(0.0, kWidth), random.Real(90.0, 330.0)},
                random.Chance(0.5) ? size : -size, at_depth(Scaled(water.stone, 0.6), haze));
    }
  }

  PaintCaustics(painter, random, 380.0, water.high);
  for (int i = 0; i < 7; ++i) {
    const double shift = random.Real(-150.0, 150.0);
    PaintBeam(painter, {source + shift, -30.0}, random.Real(14.0, 40.0),
              {source + shift * 2.4, random.Real(320.0, 450.0)}, random.Real(50.0, 120.0),
              Scaled(water.high, 0.16));
  }
  PaintSwimmer(painter, random, {random.Real(240.0, 400.0), random.Real(210.0, 290.0)},
               Mix(water.high, QColor(255, 255, 255), 0.35));
}

void PaintCoast(QPainter& painter, Random& random, std::size_t variant) {
  struct Evening {
    QColor high, middle, low, sun, far_sea, near_sea, stone;
  };
  static const std::array<Evening, 3> kEvenings{Evening{{48, 60, 122},
                                                        {202, 120, 126},
                                                        {255, 206, 136},
                                                        {255, 232, 170},
                                                        {206, 150, 132},
                                                        {30, 50, 88},
                                                        {206, 160, 120}},
                                                Evening{{30, 104, 160},
                                                        {126, 186, 206},
                                                        {250, 236, 196},
                                                        {255, 250, 226},
                                                        {140, 196, 200},
                                                        {16, 84, 116},
                                                        {226, 208, 172}},
                                                Evening{{14, 20, 58},
                                                        {52, 66, 124},
                                                        {166, 132, 156},
                                                        {250, 236, 222},
                                                        {116, 112, 150},
                                                        {14, 22, 54},
                                                        {146, 138, 156}}};
  const Evening& evening = kEvenings.at(variant % kEvenings.size());
  const double horizon = random.Real(232.0, 262.0);
  const double sun = random.Real(120.0, 300.0);

  PaintSky(painter, 0.0, horizon, evening.high, evening.middle, evening.low);
  PaintClouds(painter, random, random.Real(80.0, 140.0), Mix(evening.low, evening.sun, 0.5));
  PaintClouds(painter, random, random.Real(160.0, 200.0), Mix(evening.low, evening.sun, 0.5));
  PaintDisc(painter, {sun, horizon - random.Real(24.0, 60.0)}, 22.0, evening.sun, 220.0);
  PaintSea(painter, random, horizon, sun, evening.far_sea, evening.near_sea, evening.sun);

  const QPointF island(random.Real(400.0, 540.0), horizon + 8.0);
  PaintBeam(painter, island - QPointF(0.0, 145.0), 6.0, {-40.0, random.Real(20.0, 90.0)}, 90.0,
            QColor(60, 52, 32));
  PaintLighthouse(painter, island, 150.0, Mix(evening.stone, evening.low, 0.2),
                  Mix(Scaled(evening.stone, 0.4), evening.low, 0.15));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mix(Scaled(evening.stone, 0.35), evening.low, 0.15));
  painter.drawEllipse(island + QPointF(0.0, 3.0), 120.0, 9.0);

  // The shore with what is left of a colonnade.
  const QColor lit = evening.stone;
  const QColor shade = Scaled(evening.stone, 0.38);
  QLinearGradient ground(0.0, 380.0, 0.0, kHeight);
  ground.setColorAt(0.0, Scaled(lit, 0.8));
  ground.setColorAt(1.0, Scaled(shade, 0.7));
  painter.setBrush(ground);
  painter.drawPath(Hills(random, 398.0, 9.0, 700.0));
  for (int step = 0; step < 3; ++step) {
    painter.setBrush(Mix(lit, shade, 0.15 + 0.25 * step));
    painter.drawRect(QRectF(0.0, 400.0 + 18.0 * step, kWidth, 7.0));
    painter.setBrush(Mix(lit, shade, 0.7 + 0.12 * step));
    painter.drawRect(QRectF(0.0, 407.0 + 18.0 * step, kWidth, 11.0));
  }
  for (const double x : {44.0, 132.0, 512.0, 596.0}) {
    const bool broken = random.Chance(0.45);
    PaintColumn(painter, random, {x + random.Real(-10.0, 10.0), 424.0}, 44.0,
                broken ? random.Real(70.0, 190.0) : 292.0, broken, lit, shade);
  }
  painter.setPen(QPen(Faded(QColor(30, 30, 40), 0.7), 1.8));
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < 6; ++i) {
    const QPointF at(random.Real(160.0, 480.0), random.Real(60.0, 180.0));
    const double span = random.Real(5.0, 10.0);
    QPainterPath gull(at - QPointF(span, 0.0));
    gull.quadTo(at - QPointF(span * 0.5, span * 0.6), at);
    gull.quadTo(at + QPointF(span * 0.5, -span * 0.6), at + QPointF(span, 0.0));
    painter.drawPath(gull);
  }
  PaintTraveller(painter, {random.Real(250.0, 400.0), 452.0}, 112.0,
                 Mix(evening.low, evening.high, 0.25));
}

}  // namespace vellumark::demo
