#include "demo_canvas.h"

#include <QLinearGradient>
#include <QPen>
#include <QPolygonF>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vellumark::demo {
namespace {

constexpr double kFullTurn = 2.0 * std::numbers::pi;

int Channel(double value) { return std::clamp(static_cast<int>(std::lround(value)), 0, 255); }

QColor Lit(const QColor& colour, const QColor& light) {
  return {colour.red() * light.red() / 255, colour.green() * light.green() / 255,
          colour.blue() * light.blue() / 255};
}

}  // namespace

QColor Mix(const QColor& a, const QColor& b, double share) {
  const double part = std::clamp(share, 0.0, 1.0);
  return {Channel(a.red() + (b.red() - a.red()) * part),
          Channel(a.green() + (b.green() - a.green()) * part),
          Channel(a.blue() + (b.blue() - a.blue()) * part),
          Channel(a.alpha() + (b.alpha() - a.alpha()) * part)};
}

QColor Scaled(const QColor& colour, double factor) {
  return {Channel(colour.red() * factor), Channel(colour.green() * factor),
          Channel(colour.blue() * factor), colour.alpha()};
}

QColor Faded(const QColor& colour, double opacity) {
  return {colour.red(), colour.green(), colour.blue(), Channel(255.0 * opacity)};
}

void PaintSky(QPainter& painter, double top, double bottom, const QColor& high,
              const QColor& middle, const QColor& low) {
  QLinearGradient gradient(0.0, top, 0.0, bottom);
  gradient.setColorAt(0.0, high);
  gradient.setColorAt(0.6, middle);
  gradient.setColorAt(1.0, low);
  painter.fillRect(QRectF(0.0, top, kWidth, bottom - top), gradient);
}

void PaintStars(QPainter& painter, Random& random, double horizon, int count) {
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < count; ++i) {
    const QPointF at(random.Real(0.0, kWidth), random.Real(0.0, horizon));
    const double brightness = random.Real(0.2, 1.0) * (1.0 - at.y() / (horizon * 1.1));
    const double radius = random.Chance(0.1) ? 1.4 : random.Real(0.5, 0.9);
    painter.setBrush(Faded(QColor(255, 250, 235), brightness));
    painter.drawEllipse(at, radius, radius);
  }
}

void PaintDisc(QPainter& painter, QPointF centre, double radius, const QColor& colour,
               double halo) {
  PaintGlow(painter, centre, halo, Scaled(colour, 0.35));
  PaintGlow(painter, centre, halo * 0.4, Scaled(colour, 0.45));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(centre, radius, radius);
}

void PaintClouds(QPainter& painter, Random& random, double height, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < 9; ++i) {
    const QPointF centre(random.Real(-60.0, kWidth + 60.0), height + random.Real(-55.0, 55.0));
    for (int puff = 0; puff < 5; ++puff) {
      const double width = random.Real(50.0, 170.0);
      painter.setBrush(Faded(colour, random.Real(0.05, 0.14)));
      painter.drawEllipse(centre + QPointF(random.Real(-70.0, 70.0), random.Real(-5.0, 5.0)), width,
                          random.Real(1.5, 6.0));
    }
  }
}

void PaintGlow(QPainter& painter, QPointF centre, double radius, const QColor& colour) {
  QRadialGradient gradient(centre, radius);
  gradient.setColorAt(0.0, colour);
  gradient.setColorAt(0.35, Faded(Scaled(colour, 0.8), 0.4));
  gradient.setColorAt(1.0, Faded(colour, 0.0));

  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_Plus);
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  painter.drawEllipse(centre, radius, radius);
  painter.restore();
}

void PaintFlame(QPainter& painter, Random& random, QPointF foot, double size) {
  PaintGlow(painter, foot - QPointF(0.0, size * 0.5), size * 5.0, QColor(74, 36, 11));
  PaintGlow(painter, foot - QPointF(0.0, size * 0.5), size * 2.0, QColor(160, 82, 24));

  painter.setPen(Qt::NoPen);
  const std::array<QColor, 3> colours{QColor(255, 140, 30, 210), QColor(255, 205, 80, 235),
                                      QColor(255, 250, 215)};
  double scale = 1.0;
  for (const QColor& colour : colours) {
    const double height = size * scale;
    const double half = height * 0.28;
    const QPointF tip = foot + QPointF(random.Real(-0.2, 0.2) * height, -height);
    QPainterPath tongue(foot);
    tongue.cubicTo(foot + QPointF(-half * 1.9, -height * 0.3),
                   foot + QPointF(-half * 0.3, -height * 0.6), tip);
    tongue.cubicTo(foot + QPointF(half * 0.6, -height * 0.6),
                   foot + QPointF(half * 1.9, -height * 0.3), foot);
    painter.setBrush(colour);
    painter.drawPath(tongue);
    scale *= 0.62;
  }
}

void PaintBeam(QPainter& painter, QPointF top, double top_width, QPointF bottom,
               double bottom_width, const QColor& colour) {
  QLinearGradient gradient(top, bottom);
  gradient.setColorAt(0.0, colour);
  gradient.setColorAt(1.0, Faded(colour, 0.0));

  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_Plus);
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  // Several narrowing layers make soft edges.
  const QPointF along = bottom - top;
  const QPointF across =
      QPointF(-along.y(), along.x()) / std::max(1.0, std::hypot(along.x(), along.y()));
  for (const double share : {1.0, 0.7, 0.4}) {
    const QPointF top_half = across * (top_width * share / 2.0);
    const QPointF bottom_half = across * (bottom_width * share / 2.0);
    painter.drawPolygon(
        QPolygonF({top - top_half, top + top_half, bottom + bottom_half, bottom - bottom_half}));
  }
  painter.restore();
}

QPainterPath Hills(Random& random, double height, double rise, double length) {
  // Room to move the line sideways without showing its ends.
  constexpr int kMargin = 20;
  struct Wave {
    double size, length, phase;
  };
  const std::array<Wave, 3> waves{Wave{0.6, length, random.Real(0.0, kFullTurn)},
                                  Wave{0.3, length * 0.47, random.Real(0.0, kFullTurn)},
                                  Wave{0.1, length * 0.21, random.Real(0.0, kFullTurn)}};

  QPainterPath path(QPointF(-kMargin, kHeight + kMargin));
  for (int x = -kMargin; x <= kWidth + kMargin; x += 4) {
    double y = height;
    for (const Wave& wave : waves) {
      y -= rise * wave.size * std::sin(kFullTurn * x / wave.length + wave.phase);
    }
    path.lineTo(x, y);
  }
  path.lineTo(kWidth + kMargin, kHeight + kMargin);
  path.closeSubpath();
  return path;
}

void PaintTraveller(QPainter& painter, QPointF feet, double height, const QColor& light) {
  const QColor hair = Lit(QColor(74, 48, 32), light);
  const QColor skin = Lit(QColor(214, 158, 122), light);
  const QColor shirt = Lit(QColor(96, 128, 132), light);
  const QColor trousers = Lit(QColor(128, 104, 72), light);
  const QColor leather = Lit(QColor(92, 58, 34), light);

  painter.save();
  painter.translate(feet);
  painter.scale(height, height);
  painter.setPen(Qt::NoPen);
  const auto part = [&painter](const QColor& colour, std::initializer_list<QPointF> points) {
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF(points));
  };

  part(leather, {{-0.10, 0.0}, {-0.10, -0.14}, {-0.03, -0.14}, {-0.03, 0.0}});
  part(leather, {{0.03, -0.02}, {0.035, -0.15}, {0.105, -0.15}, {0.115, -0.02}});
  part(trousers, {{-0.10, -0.14}, {-0.11, -0.48}, {0.0, -0.48}, {-0.03, -0.14}});
  part(trousers, {{0.035, -0.15}, {0.0, -0.48}, {0.11, -0.48}, {0.105, -0.15}});
  part(skin, {{-0.15, -0.79}, {-0.20, -0.50}, {-0.16, -0.47}, {-0.11, -0.72}});
  part(skin, {{0.15, -0.79}, {0.21, -0.52}, {0.17, -0.49}, {0.11, -0.72}});
  part(shirt, {{-0.11, -0.46},
               {-0.10, -0.60},
               {-0.17, -0.72},
               {-0.14, -0.82},
               {0.14, -0.82},
               {0.17, -0.72},
               {0.10, -0.60},
               {0.11, -0.46}});
  part(leather, {{-0.115, -0.46}, {-0.112, -0.50}, {0.112, -0.50}, {0.115, -0.46}});
  painter.setBrush(leather);
  painter.drawRoundedRect(QRectF(-0.085, -0.79, 0.17, 0.24), 0.04, 0.04);
  painter.setBrush(Scaled(leather, 1.3));
  painter.drawRoundedRect(QRectF(-0.085, -0.79, 0.17, 0.09), 0.04, 0.04);
  part(skin, {{-0.03, -0.80}, {-0.03, -0.87}, {0.03, -0.87}, {0.03, -0.80}});
  painter.setBrush(hair);
  painter.drawEllipse(QPointF(0.0, -0.915), 0.062, 0.08);
  painter.restore();
}

void PaintPalm(QPainter& painter, Random& random, QPointF foot, double height, double lean,
               const QColor& colour) {
  const QPointF crown = foot + QPointF(lean * height * 0.4, -height);
  QPainterPath trunk(foot);
  trunk.quadTo(foot + QPointF(-lean * height * 0.05, -height * 0.6), crown);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, height * 0.045, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(trunk);

  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  for (int i = 0; i < 11; ++i) {
    const double angle = kFullTurn * (i + random.Real(-0.25, 0.25)) / 11.0;
    const double reach = height * random.Real(0.36, 0.5);
    const QPointF tip =
        crown + QPointF(std::cos(angle) * reach, std::sin(angle) * reach * 0.45 + reach * 0.28);
    const QPointF bend = (crown + tip) / 2.0 - QPointF(0.0, reach * 0.36);
    QPainterPath frond(crown);
    frond.quadTo(bend, tip);
    frond.quadTo(bend + QPointF(0.0, reach * 0.2), crown);
    painter.drawPath(frond);
  }
}

void FinishPicture(QImage& picture, Random& random) {
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      const double across = 2.0 * x / kWidth - 1.0;
      const double down = 2.0 * y / kHeight - 1.0;
      const double corner = across * across + down * down;
      const double light = 1.0 - 0.17 * corner * corner * 0.6;
      const double grain = random.Real(-5.0, 5.0);
      line[x] =
          qRgb(Channel(qRed(line[x]) * light + grain), Channel(qGreen(line[x]) * light + grain),
               Channel(qBlue(line[x]) * light + grain));
    }
  }
}

}  // namespace vellumark::demo
