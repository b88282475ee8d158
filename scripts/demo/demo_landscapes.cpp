#include "demo_landscapes.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <array>
#include <cmath>

#include "demo_canvas.h"
#include "demo_stage.h"
#include "demo_steps.h"

namespace vellumark::demo {
namespace {

struct Daylight {
  QColor high, middle, low;  // the sky
  QColor disc;               // sun or moon
  QColor lit, shade;         // sand in the light and out of it
  QColor figure;             // the light on a figure in the foreground
  bool stars = false;
};

const std::array<Daylight, 5>& DesertDaylights() {
  static const std::array<Daylight, 5> kDaylights{// dusk
                                                  Daylight{{44, 27, 84},
                                                           {188, 74, 92},
                                                           {250, 182, 106},
                                                           {255, 220, 150},
                                                           {226, 140, 78},
                                                           {84, 42, 62},
                                                           {70, 44, 50},
                                                           true},
                                                  // late afternoon
                                                  Daylight{{54, 108, 172},
                                                           {152, 186, 200},
                                                           {250, 222, 160},
                                                           {255, 244, 204},
                                                           {236, 188, 112},
                                                           {140, 92, 66},
                                                           {190, 170, 150},
                                                           false},
                                                  // night
                                                  Daylight{{5, 9, 34},
                                                           {20, 40, 84},
                                                           {66, 98, 134},
                                                           {236, 240, 250},
                                                           {104, 122, 152},
                                                           {18, 26, 52},
                                                           {46, 56, 84},
                                                           true},
                                                  // dawn
                                                  Daylight{{52, 74, 120},
                                                           {206, 150, 152},
                                                           {255, 220, 176},
                                                           {255, 236, 196},
                                                           {222, 166, 124},
                                                           {92, 66, 88},
                                                           {92, 74, 82},
                                                           false},
                                                  // the red hour
                                                  Daylight{{66, 16, 38},
                                                           {196, 56, 34},
                                                           {255, 156, 54},
                                                           {255, 214, 110},
                                                           {220, 104, 46},
                                                           {62, 20, 30},
                                                           {52, 24, 24},
                                                           false}};
  return kDaylights;
}

void PaintPyramid(QPainter& painter, Random& random, QPointF apex, double base_y, double half,
                  bool light_from_left, const Daylight& day, double distance) {
  const QColor lit = Mix(day.lit, day.low, distance);
  const QColor shade = Mix(day.shade, day.low, distance);
  const QPointF left(apex.x() - half, base_y);
  const QPointF right(apex.x() + half, base_y);
  const QPointF edge(apex.x() + (light_from_left ? 0.3 : -0.3) * half, base_y + half * 0.03);

  const QColor& left_colour = light_from_left ? lit : shade;
  const QColor& right_colour = light_from_left ? shade : lit;
  painter.setPen(Qt::NoPen);
  painter.setBrush(left_colour);
  painter.drawPolygon(QPolygonF({apex, left, edge}));
  painter.setBrush(right_colour);
  painter.drawPolygon(QPolygonF({apex, edge, right}));

  // Courses of stone, worn in places.
  const double height = base_y - apex.y();
  for (const double y : Steps(apex.y() + 4.0, base_y, 4.5)) {
    const double share = (y - apex.y()) / height;
    const double start = apex.x() - half * share;
    const double middle = apex.x() + (edge.x() - apex.x()) * share;
    const double stop = apex.x() + half * share;
    for (const double x : Steps(start, stop, 9.0)) {
      const double length = std::min(random.Real(4.0, 12.0), stop - x);
      const QColor& colour = x < middle ? left_colour : right_colour;
      painter.setPen(QPen(
          Faded(Scaled(colour, random.Chance(0.55) ? 0.72 : 1.18), random.Real(0.3, 0.8)), 1.3));
      painter.drawLine(QPointF(x, y), QPointF(x + length, y));
    }
  }
  painter.setPen(Qt::NoPen);
}

void PaintDunes(QPainter& painter, Random& random, double height, double rise, double length,
                const QColor& lit, const QColor& shade) {
  const QPainterPath path = Hills(random, height, rise, length);
  QLinearGradient gradient(0.0, height - rise, 0.0, height + rise * 2.0 + 70.0);
  gradient.setColorAt(0.0, lit);
  gradient.setColorAt(1.0, shade);
  painter.setPen(QPen(Faded(Scaled(lit, 1.2), 0.7), 1.2));
  painter.setBrush(gradient);
  painter.drawPath(path);

  // The wind's ripples follow the crest.
  painter.save();
  painter.setClipPath(path);
  painter.setBrush(Qt::NoBrush);
  for (int i = 1; i < 26; ++i) {
    painter.setPen(QPen(Faded(i % 2 == 0 ? Scaled(lit, 1.15) : shade, 0.13), 1.0 + i * 0.08));
    painter.drawPath(path.translated(random.Real(-14.0, 14.0), i * (3.0 + i * 0.3)));
  }
  painter.restore();
}

void PaintObelisk(QPainter& painter, QPointF foot, double height, const QColor& lit,
                  const QColor& shade) {
  const double half = height * 0.055;
  const double top = height * 0.92;
  const QPointF tip = foot - QPointF(0.0, height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(lit);
  painter.drawPolygon(
      QPolygonF({foot + QPointF(-half, 0.0), foot + QPointF(half * 0.3, 0.0),
                 foot + QPointF(half * 0.2, -top), tip, foot + QPointF(-half * 0.65, -top)}));
  painter.setBrush(shade);
  painter.drawPolygon(
      QPolygonF({foot + QPointF(half * 0.3, 0.0), foot + QPointF(half, 0.0),
                 foot + QPointF(half * 0.65, -top), tip, foot + QPointF(half * 0.2, -top)}));
}

// A tower as four shrinking storeys under a bud of stone, grown over.
void PaintJungleTower(QPainter& painter, Random& random, QPointF foot, double width, double height,
                      const QColor& colour, const QColor& leaves) {
  QLinearGradient gradient(foot.x() - width / 2.0, 0.0, foot.x() + width / 2.0, 0.0);
  gradient.setColorAt(0.0, Scaled(colour, 1.25));
  gradient.setColorAt(1.0, Scaled(colour, 0.7));
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);

  double y = foot.y();
  double half = width / 2.0;
  for (int storey = 0; storey < 4; ++storey) {
    const double rise = height * (storey == 0 ? 0.3 : 0.13);
    painter.setBrush(gradient);
    painter.drawRect(QRectF(foot.x() - half, y - rise, half * 2.0, rise + 1.0));
    painter.drawRect(QRectF(foot.x() - half * 1.1, y - rise, half * 2.2, height * 0.022));
    painter.setBrush(Scaled(colour, 0.45));
    const int windows = 5 - storey;
    for (int i = 0; i < windows; ++i) {
      const double x = foot.x() - half + half * 2.0 * (i + 0.5) / windows;
      painter.drawRect(QRectF(x - width * 0.025, y - rise * 0.68, width * 0.05, rise * 0.5));
    }
    y -= rise;
    half *= 0.8;
  }

  QPainterPath bud(QPointF(foot.x() - half, y + 1.0));
  const QPointF tip(foot.x(), foot.y() - height);
  bud.cubicTo(QPointF(foot.x() - half * 1.5, y - height * 0.14),
              QPointF(foot.x() - half * 0.3, y - height * 0.2), tip);
  bud.cubicTo(QPointF(foot.x() + half * 0.3, y - height * 0.2),
              QPointF(foot.x() + half * 1.5, y - height * 0.14), QPointF(foot.x() + half, y + 1.0));
  painter.setBrush(gradient);
  painter.drawPath(bud);

  for (int i = 0; i < 26; ++i) {
    const double down = random.Real(0.0, 0.75);
    painter.setBrush(Faded(Scaled(leaves, random.Real(0.7, 1.25)), 0.75));
    painter.drawEllipse(
        foot + QPointF(random.Real(-0.5, 0.5) * width * (1.0 - down * 0.5), -down * height),
        random.Real(2.0, 9.0), random.Real(2.0, 6.0));
  }
}

void PaintFoliage(QPainter& painter, Random& random, double height, double rise, double size,
                  const QColor& colour) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Scaled(colour, 0.8));
  painter.drawPath(Hills(random, height, rise, 300.0));
  for (int i = 0; i < 260; ++i) {
    const double x = random.Real(-10.0, kWidth + 10.0);
    const double y = height + random.Real(-rise, rise * 2.5);
    painter.setBrush(Faded(Scaled(colour, random.Real(0.65, 1.2)), 0.7));
    painter.drawEllipse(QPointF(x, y), size * random.Real(0.4, 1.3), size * random.Real(0.25, 0.7));
  }
}

void PaintVines(QPainter& painter, Random& random, const QColor& colour) {
  for (int i = 0; i < 16; ++i) {
    const double x = random.Chance(0.5) ? random.Real(0.0, 190.0) : random.Real(450.0, 640.0);
    const double length = random.Real(50.0, 230.0);
    const QPointF end(x + random.Real(-24.0, 24.0), length);
    QPainterPath vine(QPointF(x, -4.0));
    vine.quadTo(QPointF(x + random.Real(-20.0, 20.0), length * 0.5), end);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, random.Real(1.5, 3.5)));
    painter.drawPath(vine);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Scaled(colour, 1.4));
    for (int leaf = 0; leaf < 14; ++leaf) {
      painter.drawEllipse(vine.pointAtPercent(random.Real(0.1, 1.0)) +
                              QPointF(random.Real(-6.0, 6.0), random.Real(-3.0, 3.0)),
                          random.Real(2.0, 5.5), random.Real(1.5, 3.0));
    }
  }
}

void PaintSmoke(QPainter& painter, Random& random, QPointF from, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < 46; ++i) {
    const double age = i / 46.0;
    painter.setBrush(Faded(Mix(Scaled(colour, 0.6), colour, age), 0.3 * (1.0 - age)));
    painter.drawEllipse(from + QPointF(-170.0 * age + random.Real(-8.0, 8.0),
                                       -90.0 * std::sqrt(age) + random.Real(-8.0, 8.0)),
                        6.0 + 40.0 * age, 5.0 + 24.0 * age);
  }
}

// A row of goods waggons on the right-hand track, the last one nearest.
void AddTrain(Stage& stage, Random& random, double x, double first, int waggons) {
  static const std::array<QColor, 4> kPaints{QColor(140, 64, 46), QColor(92, 104, 84),
                                             QColor(120, 96, 66), QColor(84, 90, 110)};
  constexpr double kLength = 6.0;
  for (int i = waggons - 1; i >= 0; --i) {
    const double z = first + i * (kLength + 0.7);
    const QColor& paint = random.OneOf(kPaints);
    stage.BeginLayer();
    stage.AddBlock({x + 0.2, 0.3, z + 0.2}, 2.0, 0.5, kLength - 0.4, QColor(40, 36, 40));
    stage.BeginLayer();
    stage.AddBlock({x, 0.8, z}, 2.4, 2.2, kLength, paint);
    stage.BeginLayer();
    for (int plank = 1; plank < 12; ++plank) {
      const double at = z + kLength * plank / 12.0;
      stage.AddFace({Point3{x - 0.01, 0.85, at},
                     {x - 0.01, 0.85, at + 0.06},
                     {x - 0.01, 2.95, at + 0.06},
                     {x - 0.01, 2.95, at}},
                    Scaled(paint, 0.6));
    }
    stage.AddFace({Point3{x - 0.02, 0.9, z + 2.2},
                   {x - 0.02, 0.9, z + 3.8},
                   {x - 0.02, 2.8, z + 3.8},
                   {x - 0.02, 2.8, z + 2.2}},
                  Scaled(paint, 1.25));
    stage.AddBlock({x - 0.12, 3.0, z - 0.1}, 2.64, 0.16, kLength + 0.2, Scaled(paint, 0.7));
    for (const double wheel : {0.5, 1.3, 4.1, 4.9}) {
      stage.AddBlock({x + 0.05, 0.05, z + wheel}, 0.2, 0.6, 0.6, QColor(30, 28, 32));
    }
    stage.AddFace({Point3{x + 0.8, 1.0, z - 0.01},
                   {x + 1.6, 1.0, z - 0.01},
                   {x + 1.6, 2.7, z - 0.01},
                   {x + 0.8, 2.7, z - 0.01}},
                  Scaled(paint, 0.7));
  }
}

void AddTrack(Stage& stage, double x) {
  for (const double z : Steps(60.0, 1.5, -0.75)) {
    stage.AddFace({Point3{x - 0.3, 0.02, z},
                   {x + 2.7, 0.02, z},
                   {x + 2.7, 0.02, z + 0.28},
                   {x - 0.3, 0.02, z + 0.28}},
                  QColor(96, 66, 50));
  }
  stage.BeginLayer();
  for (const double rail : {x + 0.3, x + 2.0}) {
    for (const double z : Steps(60.0, 1.5, -1.5)) {
      stage.AddFace({Point3{rail, 0.12, z},
                     {rail + 0.12, 0.12, z},
                     {rail + 0.12, 0.12, z + 1.5},
                     {rail, 0.12, z + 1.5}},
                    QColor(196, 186, 180));
    }
  }
}

}  // namespace

void PaintDesert(QPainter& painter, Random& random, std::size_t variant) {
  const Daylight& day = DesertDaylights().at(variant % DesertDaylights().size());
  const double horizon = random.Real(285.0, 320.0);
  const QPointF disc(random.Real(90.0, 550.0),
                     horizon - (day.stars ? random.Real(80.0, 210.0) : random.Real(50.0, 150.0)));
  const bool light_from_left = disc.x() < kWidth / 2.0;

  PaintSky(painter, 0.0, horizon + 20.0, day.high, day.middle, day.low);
  if (day.stars) PaintStars(painter, random, horizon, 220);
  PaintDisc(painter, disc, random.Real(15.0, 26.0), day.disc, random.Real(150.0, 240.0));
  PaintClouds(painter, random, horizon - random.Real(70.0, 160.0), Mix(day.low, day.disc, 0.5));

  const int pyramids = random.Whole(1, 3);
  for (int i = 0; i < pyramids; ++i) {
    const double nearness = (i + 1.0) / pyramids;
    const double height = random.Real(80.0, 120.0) + 90.0 * nearness;
    const QPointF apex(random.Real(60.0, 580.0), horizon + 16.0 - height);
    PaintPyramid(painter, random, apex, horizon + 16.0, height * random.Real(0.85, 1.05),
                 light_from_left, day, 0.5 - 0.4 * nearness);
  }

  PaintDunes(painter, random, horizon + 12.0, 8.0, 420.0, Mix(day.lit, day.low, 0.4),
             Mix(day.shade, day.low, 0.4));
  const double middle = horizon + random.Real(42.0, 56.0);
  PaintDunes(painter, random, middle, 16.0, 520.0, Mix(day.lit, day.low, 0.15),
             Mix(day.shade, day.low, 0.1));
  if (random.Chance(0.5)) {
    const double x = random.Real(80.0, 560.0);
    for (const double step : {0.0, 74.0}) {
      PaintObelisk(painter, {x + step, middle + 26.0}, random.Real(110.0, 170.0), day.lit,
                   day.shade);
    }
  }
  if (random.Chance(0.7)) {
    const double x = random.Chance(0.5) ? random.Real(30.0, 170.0) : random.Real(470.0, 600.0);
    for (int i = 0; i < 4; ++i) {
      PaintPalm(painter, random, {x + random.Real(-50.0, 50.0), middle + random.Real(24.0, 50.0)},
                random.Real(70.0, 140.0), random.Real(-1.0, 1.0), Scaled(day.shade, 0.65));
    }
  }

  PaintDunes(painter, random, 400.0, 26.0, 760.0, day.lit, day.shade);
  const double x = random.Real(180.0, 460.0);
  const double feet = 442.0;
  // The traveller's shadow lies away from the light.
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faded(Scaled(day.shade, 0.5), 0.55));
  const double reach = light_from_left ? 150.0 : -150.0;
  painter.drawPolygon(QPolygonF({{x - 9.0, feet},
                                 {x + 9.0, feet},
                                 {x + reach, feet + 26.0},
                                 {x + reach * 0.95, feet + 20.0}}));
  PaintTraveller(painter, {x, feet}, random.Real(80.0, 104.0), day.figure);
}

void PaintRailway(QPainter& painter, Random& random, std::size_t variant) {
  const Daylight& day = DesertDaylights().at(variant % DesertDaylights().size());
  const double horizon = 226.0;
  PaintSky(painter, 0.0, horizon + 20.0, day.high, day.middle, day.low);
  if (day.stars) PaintStars(painter, random, horizon, 160);
  const QPointF disc(random.Real(60.0, 230.0), random.Real(120.0, 190.0));
  PaintDisc(painter, disc, 20.0, day.disc, 200.0);
  PaintClouds(painter, random, 110.0, Mix(day.low, day.disc, 0.5));

  PaintDunes(painter, random, horizon, 14.0, 300.0, Mix(day.lit, day.low, 0.45),
             Mix(day.shade, day.low, 0.4));
  PaintDunes(painter, random, horizon + 22.0, 9.0, 640.0, Mix(day.lit, day.low, 0.1), day.shade);

  Camera camera;
  camera.vanishing_point = {250.0, horizon};
  camera.focal_length = 430.0;
  camera.eye_height = 2.1;
  Stage stage(camera,
              {Mix(day.figure, QColor(255, 255, 255), 0.3), Mix(day.low, day.lit, 0.4), 60.0});
  stage.AddLamp({{-14.0, 9.0, 10.0}, Scaled(day.disc, 0.8), 12.0});
  AddTrack(stage, 1.2);
  AddTrain(stage, random, 1.2, 6.0, 5);
  PaintSmoke(painter, random, stage.Project({2.0, 4.0, 42.0}),
             Mix(day.low, QColor(70, 64, 70), 0.5));
  stage.Paint(painter);

  for (const double z : {44.0, 29.0, 19.0, 12.6, 8.3, 5.5}) {
    const QPointF foot = stage.Project({-2.6, 0.0, z});
    const QPointF top = stage.Project({-2.6, 5.0, z});
    painter.setPen(QPen(Scaled(day.shade, 0.7), stage.Scale(z) * 0.14));
    painter.drawLine(foot, top);
    painter.setPen(QPen(Scaled(day.shade, 0.7), stage.Scale(z) * 0.1));
    painter.drawLine(stage.Project({-3.3, 4.5, z}), stage.Project({-1.9, 4.5, z}));
  }
  PaintTraveller(painter, stage.Project({-0.5, 0.0, 5.2}), stage.Scale(5.2) * 1.7,
                 Mix(day.figure, QColor(255, 255, 255), 0.2));
}

void PaintJungle(QPainter& painter, Random& random, std::size_t variant) {
  struct Mood {
    QColor high, low, tower, leaves;
  };
  static const std::array<Mood, 4> kMoods{
      Mood{{66, 112, 112}, {226, 216, 164}, {122, 120, 96}, {58, 104, 52}},
      Mood{{52, 76, 108}, {238, 188, 138}, {128, 104, 92}, {66, 88, 44}},
      Mood{{36, 84, 78}, {172, 202, 156}, {96, 112, 98}, {34, 92, 58}},
      Mood{{22, 34, 66}, {150, 148, 178}, {92, 92, 112}, {36, 66, 70}}};
  const Mood& mood = kMoods.at(variant % kMoods.size());

  PaintSky(painter, 0.0, 380.0, mood.high, Mix(mood.high, mood.low, 0.55), mood.low);
  const QPointF sun(random.Real(140.0, 500.0), random.Real(90.0, 170.0));
  PaintDisc(painter, sun, 22.0, QColor(255, 246, 206), 120.0);

  PaintFoliage(painter, random, 270.0, 24.0, 20.0, Mix(mood.leaves, mood.low, 0.7));
  const double centre = random.Real(230.0, 410.0);
  const QColor far_tower = Mix(mood.tower, mood.low, 0.45);
  const QColor far_leaves = Mix(mood.leaves, mood.low, 0.4);
  for (const double side : {-1.0, 1.0}) {
    PaintJungleTower(painter, random, {centre + side * 150.0, 345.0}, 92.0,
                     random.Real(170.0, 200.0), far_tower, far_leaves);
  }
  PaintJungleTower(painter, random, {centre, 350.0}, 136.0, random.Real(250.0, 285.0),
                   Mix(mood.tower, mood.low, 0.22), Mix(mood.leaves, mood.low, 0.2));
  PaintFoliage(painter, random, 345.0, 14.0, 15.0, Mix(mood.leaves, mood.low, 0.3));

  for (int i = 0; i < 4; ++i) {
    PaintBeam(painter, {sun.x() + random.Real(-110.0, 110.0), -30.0}, 30.0,
              {random.Real(60.0, 580.0), 430.0}, random.Real(60.0, 130.0), QColor(30, 26, 14));
  }

  // A paved way leads in from the foreground.
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mix(Scaled(mood.leaves, 0.6), QColor(40, 30, 20), 0.45));
  painter.drawPath(Hills(random, 392.0, 5.0, 400.0));
  for (int row = 0; row < 9; ++row) {
    const double y1 = 376.0 + row * row * 1.6;
    const double y2 = 376.0 + (row + 1) * (row + 1) * 1.6;
    const auto edge = [centre](double y, double share) {
      return QPointF(
          centre + (320.0 - centre) * (y - 376.0) / 104.0 + share * (22.0 + (y - 376.0) * 1.7), y);
    };
    for (int slab = 0; slab < 4; ++slab) {
      const double from = -1.0 + slab * 0.5 + 0.02;
      const double to = from + 0.46;
      painter.setBrush(Scaled(mood.tower, random.Real(0.6, 0.95)));
      painter.drawPolygon(
          QPolygonF({edge(y1 + 1.0, from), edge(y1 + 1.0, to), edge(y2, to), edge(y2, from)}));
    }
  }
  PaintTraveller(painter, {centre + (320.0 - centre) * 0.5, 436.0}, 96.0, QColor(150, 150, 130));
  for (int i = 0; i < 3; ++i) {
    const bool left = i % 2 == 0;
    PaintPalm(
        painter, random,
        {left ? random.Real(-10.0, 110.0) : random.Real(530.0, 650.0), random.Real(430.0, 500.0)},
        random.Real(150.0, 300.0), left ? random.Real(0.0, 0.8) : random.Real(-0.8, 0.0),
        Scaled(mood.leaves, 0.4));
  }
  PaintVines(painter, random, Scaled(mood.leaves, 0.5));
}

}  // namespace vellumark::demo
