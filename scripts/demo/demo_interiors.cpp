#include "demo_interiors.h"

#include <QColor>
#include <QLinearGradient>
#include <QPointF>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "demo_canvas.h"
#include "demo_stage.h"
#include "demo_steps.h"

namespace vellumark::demo {
namespace {

constexpr double kNear = 1.2;  // where floors and walls begin, safely outside the picture

const QColor kTorchLight(255, 176, 92);

struct Room {
  double half_width = 2.0;
  double height = 3.2;
  double end = 12.0;
};

struct Stone {
  QColor wall, floor, ambient, haze;
};

Camera RandomCamera(Random& random, double focal_length) {
  Camera camera;
  camera.vanishing_point = {random.Real(255.0, 385.0), random.Real(195.0, 245.0)};
  camera.focal_length = focal_length;
  return camera;
}

void AddShell(Stage& stage, Random& random, const Room& room, const Stone& stone,
              double block_length) {
  const double depth = room.end - kNear;
  const int along = static_cast<int>(depth / block_length);
  const int across = std::max(2, static_cast<int>(2.0 * room.half_width / 0.8));
  const int up = static_cast<int>(room.height / 0.42);
  const Point3 ahead{0.0, 0.0, depth};
  const Point3 right{2.0 * room.half_width, 0.0, 0.0};
  const Point3 rise{0.0, room.height, 0.0};
  const Point3 left_foot{-room.half_width, 0.0, kNear};
  const Point3 right_foot{room.half_width, 0.0, kNear};

  stage.AddMasonry(random, left_foot, right, ahead, across, along, stone.floor);
  stage.AddMasonry(random, left_foot + rise, right, ahead, across, along, Scaled(stone.wall, 0.75));
  stage.AddMasonry(random, left_foot, ahead, rise, along, up, stone.wall);
  stage.AddMasonry(random, right_foot, ahead, rise, along, up, stone.wall);
  stage.AddMasonry(random, left_foot + ahead, right, rise, across * 2, up, stone.wall);
}

void PaintShadow(QPainter& painter, const Stage& stage, const Point3& feet, double radius) {
  const QPointF centre = stage.Project(feet);
  const double reach = stage.Scale(feet.z) * radius;
  QRadialGradient gradient(QPointF(0.0, 0.0), reach);
  gradient.setColorAt(0.0, QColor(0, 0, 0, 170));
  gradient.setColorAt(1.0, QColor(0, 0, 0, 0));
  painter.save();
  painter.translate(centre);
  painter.scale(1.0, 0.32);
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  painter.drawEllipse(QPointF(0.0, 0.0), reach, reach);
  painter.restore();
}

// The visitor stands a little to the side, so as not to hide what the room ends with.
void PaintVisitor(QPainter& painter, Random& random, const Stage& stage, double distance) {
  const double aside = random.Real(0.55, 1.0);
  const Point3 feet{random.Chance(0.5) ? aside : -aside, 0.0, distance};
  PaintShadow(painter, stage, feet, 0.6);
  PaintTraveller(painter, stage.Project(feet), stage.Scale(feet.z) * 1.7,
                 stage.LightAt(feet + Point3{0.0, 1.0, -0.5}));
}

// Flames at the lamps' places, the far ones first.
void PaintFlames(QPainter& painter, Random& random, const Stage& stage, std::vector<Point3> places,
                 double size) {
  std::sort(places.begin(), places.end(),
            [](const Point3& a, const Point3& b) { return a.z > b.z; });
  for (const Point3& place : places) {
    PaintFlame(painter, random, stage.Project(place), stage.Scale(place.z) * size);
  }
}

// A doorway in the wall at the end; its glow is the promise of another room.
void AddDoorway(Stage& stage, double width, double height, double end, const QColor& frame,
                const QColor& opening) {
  const double z = end - 0.3;
  stage.AddBlock({-width / 2.0 - 0.35, 0.0, z}, 0.35, height, 0.3, frame);
  stage.AddBlock({width / 2.0, 0.0, z}, 0.35, height, 0.3, frame);
  stage.AddBlock({-width / 2.0 - 0.55, height, z}, width + 1.1, 0.4, 0.3, Scaled(frame, 1.1));
  const double x = width / 2.0;
  stage.AddFace(
      {Point3{-x, 0.0, z + 0.1}, {x, 0.0, z + 0.1}, {x, height, z + 0.1}, {-x, height, z + 0.1}},
      opening);
}

// A coffin on a step, with a banded lid.
void AddCoffin(Stage& stage, double z, const QColor& stone, const QColor& gold) {
  stage.AddBlock({-1.1, 0.0, z}, 2.2, 0.25, 1.6, Scaled(stone, 0.9));
  stage.BeginLayer();
  stage.AddBlock({-0.75, 0.25, z + 0.25}, 1.5, 0.7, 1.1, stone);
  stage.BeginLayer();
  for (int band = 0; band < 5; ++band) {
    const double x = -0.68 + 0.3 * band;
    const QColor colour = band % 2 == 0 ? gold : QColor(46, 84, 130);
    stage.AddFace({Point3{x, 0.35, z + 0.24},
                   {x + 0.17, 0.35, z + 0.24},
                   {x + 0.17, 0.85, z + 0.24},
                   {x, 0.85, z + 0.24}},
                  colour);
  }
  stage.AddBlock({-0.85, 0.95, z + 0.2}, 1.7, 0.18, 1.2, Mix(stone, gold, 0.6));
}

// A seated figure of stone, as they guard the ends of halls.
void AddColossus(Stage& stage, double z, const QColor& stone, const QColor& gold) {
  stage.AddBlock({-1.5, 0.0, z}, 3.0, 0.6, 2.2, Scaled(stone, 0.85));
  stage.BeginLayer();
  stage.AddBlock({-1.0, 0.6, z + 1.4}, 2.0, 3.1, 0.6, Scaled(stone, 0.8));
  stage.BeginLayer();
  stage.AddBlock({-0.75, 1.7, z + 1.0}, 1.5, 1.7, 0.6, stone);
  stage.BeginLayer();
  for (const double x : {-0.75, 0.2}) {
    stage.AddBlock({x, 0.6, z + 0.3}, 0.55, 1.4, 0.6, stone);
    stage.AddBlock({x, 1.7, z + 0.3}, 0.55, 0.35, 0.9, Scaled(stone, 1.1));
  }
  stage.BeginLayer();
  stage.AddBlock({-0.55, 3.3, z + 0.9}, 1.1, 0.9, 0.5, Mix(stone, gold, 0.5));
  stage.BeginLayer();
  stage.AddBlock({-0.32, 3.4, z + 0.8}, 0.64, 0.75, 0.3, stone);
  stage.BeginLayer();
  stage.AddBlock({-0.25, 4.2, z + 1.0}, 0.5, 0.8, 0.3, Mix(stone, gold, 0.75));
}

// Two rows of niches along the walls; jars, scrolls and bones lie on their dark shelves.
void AddNiches(Stage& stage, Random& random, double half_width, double end, const QColor& stone) {
  constexpr double kStep = 1.5;
  constexpr double kWide = 1.05;
  constexpr double kHigh = 0.42;
  const std::array<double, 2> sills{0.45, 1.05};
  const auto patch = [&stage](double x, double y, double z, double length, double height,
                              double narrowing, const QColor& colour) {
    stage.AddFace({Point3{x, y, z},
                   {x, y, z + length},
                   {x, y + height, z + length - narrowing},
                   {x, y + height, z + narrowing}},
                  colour);
  };

  stage.BeginLayer();
  for (const double z : Steps(2.0, end - 1.0, kStep)) {
    for (const double y : sills) {
      for (const double x : {-half_width, half_width}) {
        patch(x * 0.995, y, z, kWide, kHigh, 0.0, Scaled(stone, 0.17));
      }
    }
  }
  stage.BeginLayer();
  for (const double z : Steps(2.0, end - 1.0, kStep)) {
    for (const double y : sills) {
      for (const double x : {-half_width, half_width}) {
        patch(x * 0.99, y - 0.05, z - 0.06, kWide + 0.12, 0.06, 0.0, Scaled(stone, 1.15));
        for (const double at : RandomSteps(random, z + 0.08, z + kWide - 0.2, 0.16, 0.34)) {
          const double wide = random.Real(0.1, 0.16);
          patch(x * 0.99, y, at, wide, random.Real(0.08, 0.33), wide * random.Real(0.0, 0.35),
                random.Chance(0.6) ? QColor(214, 198, 164) : QColor(150, 84, 58));
        }
      }
    }
  }
}

}  // namespace

void PaintTomb(QPainter& painter, Random& random, std::size_t variant) {
  static const std::array<Stone, 4> kStones{
      Stone{{202, 160, 104}, {166, 132, 92}, {44, 38, 44}, {14, 10, 10}},
      Stone{{176, 150, 118}, {142, 124, 104}, {34, 40, 54}, {8, 12, 20}},
      Stone{{196, 138, 96}, {150, 104, 78}, {50, 34, 34}, {22, 8, 6}},
      Stone{{164, 164, 122}, {128, 126, 100}, {34, 44, 38}, {6, 14, 12}}};
  const Stone& stone = kStones.at(variant % kStones.size());
  const Room room{random.Real(1.7, 2.6), random.Real(2.9, 3.9), random.Real(10.0, 15.0)};
  const QColor paint = random.Chance(0.5) ? QColor(52, 40, 34) : QColor(236, 186, 84);
  const bool coffin = variant % 3 == 1;

  Stage stage(RandomCamera(random, random.Real(400.0, 500.0)), {stone.ambient, stone.haze, 16.0});
  std::vector<Point3> torches;
  bool left = random.Chance(0.5);
  for (const double z : RandomSteps(random, random.Real(3.6, 4.6), room.end - 0.5, 2.6, 3.6)) {
    const double x = (left ? -1.0 : 1.0) * (room.half_width - 0.22);
    torches.push_back({x, 2.0, z});
    stage.AddLamp({{x * 0.85, 2.2, z}, kTorchLight, 2.3});
    left = !left;
  }
  if (coffin) stage.AddLamp({{0.0, 2.4, room.end - 2.0}, QColor(255, 214, 130), 2.0});

  AddShell(stage, random, room, stone, 0.75);
  stage.BeginLayer();
  const double wall = room.half_width - 0.01;
  for (const double x : {-wall, wall}) {
    for (const double y : {1.05, 1.5}) {
      stage.AddSigns(random, {x, y, 2.0}, {0.0, 0.0, 1.0}, room.end - 2.2, 0.34, paint);
    }
  }
  stage.AddSigns(random, {-wall, room.height - 0.75, room.end - 0.02}, {1.0, 0.0, 0.0}, 2.0 * wall,
                 0.5, paint);

  stage.BeginLayer();
  if (coffin) {
    AddCoffin(stage, room.end - 3.2, stone.wall, QColor(226, 170, 62));
  } else {
    AddDoorway(stage, 1.3, 2.2, room.end, Scaled(stone.wall, 1.15),
               variant % 2 == 0 ? QColor(10, 8, 8) : QColor(255, 206, 120));
  }
  stage.BeginLayer();
  for (const double z : Steps(room.end - 1.0, 2.6, -3.0)) {
    for (const double x : {-room.half_width, room.half_width - 0.3}) {
      stage.AddBlock({x, 0.0, z}, 0.3, room.height, 0.45, Scaled(stone.wall, 1.05));
    }
  }
  for (const Point3& torch : torches) {
    stage.AddBlock({torch.x - 0.04, torch.y - 0.4, torch.z}, 0.08, 0.4, 0.08, QColor(120, 84, 52));
  }
  stage.Paint(painter);

  PaintFlames(painter, random, stage, torches, 0.36);
  PaintVisitor(painter, random, stage, random.Real(3.6, 5.4));
}

void PaintTemple(QPainter& painter, Random& random, std::size_t variant) {
  static const std::array<Stone, 4> kStones{
      Stone{{214, 170, 112}, {176, 142, 100}, {62, 50, 50}, {34, 22, 18}},
      Stone{{160, 158, 160}, {116, 122, 136}, {48, 62, 92}, {20, 34, 62}},
      Stone{{206, 150, 100}, {154, 110, 84}, {70, 44, 40}, {48, 20, 14}},
      Stone{{170, 172, 130}, {126, 130, 104}, {54, 68, 58}, {22, 40, 34}}};
  static const std::array<QColor, 3> kPaints{QColor(34, 92, 140), QColor(168, 54, 36),
                                             QColor(30, 112, 92)};
  const Stone& stone = kStones.at(variant % kStones.size());
  const QColor& paint = kPaints.at(variant % kPaints.size());
  const double aisle = random.Real(2.5, 3.1);
  const Room room{aisle * 2.1 + 1.6, random.Real(6.5, 8.5), random.Real(19.0, 24.0)};

  Stage stage(RandomCamera(random, random.Real(400.0, 470.0)), {stone.ambient, stone.haze, 26.0});
  std::vector<Point3> bowls;
  for (const double z : RandomSteps(random, random.Real(5.0, 6.5), room.end - 3.0, 4.5, 6.0)) {
    for (const double side : {-1.0, 1.0}) {
      const double x = side * (aisle - 0.95);
      bowls.push_back({x, 1.0, z});
      stage.AddLamp({{x, 1.6, z}, kTorchLight, 2.2});
    }
  }
  stage.AddLamp({{0.0, 5.0, room.end - 4.5}, QColor(255, 224, 170), 4.5});

  AddShell(stage, random, room, stone, 1.3);
  stage.BeginLayer();
  if (variant % 2 == 0) {
    AddColossus(stage, room.end - 3.0, stone.wall, QColor(226, 176, 70));
  } else {
    AddDoorway(stage, 2.2, 4.4, room.end, Scaled(stone.wall, 1.15), QColor(255, 222, 150));
  }

  stage.BeginLayer();
  for (const double z : Steps(room.end - 2.0, 4.4, -3.1)) {
    for (const double x : {-aisle * 2.1, -aisle, aisle, aisle * 2.1}) {
      stage.AddColumn(random, {x, 0.0, z}, 0.55, room.height, stone.wall, paint);
    }
    stage.AddBlock({-room.half_width, room.height - 0.7, z - 0.4}, room.half_width * 2.0, 0.7, 0.8,
                   Scaled(stone.wall, 0.85));
  }
  for (const Point3& bowl : bowls) {
    stage.AddBlock({bowl.x - 0.09, 0.0, bowl.z - 0.09}, 0.18, 0.8, 0.18, QColor(70, 56, 44));
    stage.AddBlock({bowl.x - 0.26, 0.8, bowl.z - 0.26}, 0.52, 0.2, 0.52, QColor(110, 84, 54));
  }
  stage.Paint(painter);

  PaintFlames(painter, random, stage, bowls, 0.55);
  const int beams = random.Whole(0, 4);
  for (int i = 0; i < beams; ++i) {
    const double x = random.Real(120.0, 560.0);
    PaintBeam(painter, {x, -20.0}, random.Real(20.0, 46.0),
              {x - random.Real(60.0, 170.0), random.Real(330.0, 430.0)}, random.Real(70.0, 120.0),
              Scaled(Mix(QColor(255, 224, 168), stone.haze, 0.35), 0.18));
  }
  PaintVisitor(painter, random, stage, random.Real(4.2, 6.5));
}

void PaintCatacombs(QPainter& painter, Random& random, std::size_t variant) {
  static const std::array<Stone, 3> kStones{
      Stone{{138, 150, 138}, {104, 116, 112}, {34, 50, 52}, {6, 18, 22}},
      Stone{{150, 138, 120}, {112, 104, 96}, {40, 42, 56}, {12, 12, 26}},
      Stone{{156, 130, 104}, {116, 98, 86}, {48, 38, 40}, {20, 12, 14}}};
  const Stone& stone = kStones.at(variant % kStones.size());
  const double half = random.Real(1.7, 2.2);
  const double spring = random.Real(1.5, 2.0);
  const double end = random.Real(12.0, 16.0);
  const double depth = end - kNear;
  const Point3 ahead{0.0, 0.0, depth};
  const int along = static_cast<int>(depth / 0.6);

  Stage stage(RandomCamera(random, random.Real(400.0, 480.0)), {stone.ambient, stone.haze, 14.0});
  std::vector<Point3> candles;
  for (const double z : RandomSteps(random, 3.4, end - 1.0, 1.2, 2.4)) {
    const double x = (random.Chance(0.5) ? -1.0 : 1.0) * random.Real(half * 0.7, half * 0.88);
    candles.push_back({x, 0.25, z});
    stage.AddLamp({{x * 0.9, 0.6, z}, kTorchLight, 1.5});
  }
  const bool blue_end = variant % 2 == 0;
  stage.AddLamp(
      {{0.0, 2.0, end - 1.5}, blue_end ? QColor(120, 220, 255) : QColor(255, 190, 110), 2.4});

  const Point3 left_foot{-half, 0.0, kNear};
  const Point3 rise{0.0, spring, 0.0};
  stage.AddMasonry(random, left_foot, {2.0 * half, 0.0, 0.0}, ahead, 5, along, stone.floor);
  stage.AddMasonry(random, left_foot, ahead, rise, along, 5, stone.wall);
  stage.AddMasonry(random, {half, 0.0, kNear}, ahead, rise, along, 5, stone.wall);
  stage.AddMasonry(random, {-half, 0.0, end}, {2.0 * half, 0.0, 0.0}, {0.0, spring + half, 0.0}, 8,
                   8, Scaled(stone.wall, 0.8));

  constexpr int kVault = 10;
  const auto arch = [&](double step, double reach, double z) {
    const double angle = std::numbers::pi * step / kVault;
    return Point3{-std::cos(angle) * reach, spring + std::sin(angle) * reach, z};
  };
  for (int i = 0; i < kVault; ++i) {
    const Point3 foot = arch(i, half, kNear);
    stage.AddMasonry(random, foot, ahead, arch(i + 1, half, kNear) - foot, along, 1, stone.wall);
  }

  AddNiches(stage, random, half, end, stone.wall);

  // Ribs carry the vault.
  stage.BeginLayer();
  for (const double z : Steps(end - 1.2, 2.4, -2.6)) {
    for (const double side : {-1.0, 1.0}) {
      const double x = side < 0.0 ? -half : half - 0.22;
      stage.AddBlock({x, 0.0, z}, 0.22, spring, 0.35, Scaled(stone.wall, 1.1));
    }
    for (int i = 0; i < kVault; ++i) {
      const double inner = half - 0.22;
      stage.AddFace(
          {arch(i, inner, z), arch(i + 1, inner, z), arch(i + 1, half, z), arch(i, half, z)},
          Scaled(stone.wall, i % 2 == 0 ? 1.12 : 1.0));
      stage.AddFace({arch(i, inner, z), arch(i + 1, inner, z), arch(i + 1, inner, z + 0.35),
                     arch(i, inner, z + 0.35)},
                    Scaled(stone.wall, 0.9));
    }
  }

  stage.BeginLayer();
  AddDoorway(stage, 1.1, 2.0, end, stone.wall,
             blue_end ? QColor(150, 235, 255) : QColor(255, 200, 120));
  for (const Point3& candle : candles) {
    stage.AddBlock({candle.x - 0.05, 0.0, candle.z}, 0.1, 0.25, 0.1, QColor(236, 224, 190));
  }
  stage.Paint(painter);

  PaintGlow(painter, stage.Project({0.0, 1.2, end}), 120.0,
            blue_end ? QColor(40, 90, 110) : QColor(110, 66, 26));
  PaintFlames(painter, random, stage, candles, 0.14);
  PaintVisitor(painter, random, stage, random.Real(3.8, 5.6));
}

}  // namespace vellumark::demo
