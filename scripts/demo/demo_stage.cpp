#include "demo_stage.h"

#include <QPen>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "demo_canvas.h"
#include "demo_steps.h"

namespace vellumark::demo {
namespace {

constexpr int kColumnSides = 18;
constexpr double kJoint = 0.02;  // the width of the dark lines between blocks

double Dot(const Point3& a, const Point3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

double Length(const Point3& a) { return std::sqrt(Dot(a, a)); }

Point3 Unit(const Point3& a) { return a * (1.0 / std::max(Length(a), 1e-9)); }

Point3 Cross(const Point3& a, const Point3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

QColor Painted(const QColor& colour, double red, double green, double blue) {
  const auto channel = [](int value, double light) {
    return std::clamp(static_cast<int>(value * light), 0, 255);
  };
  return {channel(colour.red(), red), channel(colour.green(), green), channel(colour.blue(), blue)};
}

}  // namespace

Point3 operator+(const Point3& a, const Point3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Point3 operator-(const Point3& a, const Point3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Point3 operator*(const Point3& a, double factor) {
  return {a.x * factor, a.y * factor, a.z * factor};
}

QPointF Stage::Project(const Point3& point) const {
  const double scale = Scale(point.z);
  return camera_.vanishing_point + QPointF(point.x * scale, (camera_.eye_height - point.y) * scale);
}

void Stage::AddFace(const std::array<Point3, 4>& corners, const QColor& colour) {
  const Point3 normal = Cross(corners[1] - corners[0], corners[3] - corners[0]);
  AddLitFace(corners, normal, colour);
}

void Stage::AddLitFace(const std::array<Point3, 4>& corners, const Point3& normal,
                       const QColor& colour, double behind) {
  const Point3 centre = (corners[0] + corners[1] + corners[2] + corners[3]) * 0.25;
  const Point3 to_eye = Point3{0.0, camera_.eye_height, 0.0} - centre;
  Point3 outward = Unit(normal);
  if (Dot(outward, to_eye) < 0.0) outward = outward * -1.0;

  double red = air_.ambient.redF();
  double green = air_.ambient.greenF();
  double blue = air_.ambient.blueF();
  for (const Lamp& lamp : lamps_) {
    const Point3 to_lamp = lamp.at - centre;
    const double distance = Length(to_lamp) / lamp.reach;
    const double facing = std::max(0.0, Dot(outward, Unit(to_lamp)));
    const double strength = (0.2 + 0.8 * facing) / (1.0 + distance * distance);
    red += lamp.colour.redF() * strength;
    green += lamp.colour.greenF() * strength;
    blue += lamp.colour.blueF() * strength;
  }

  Face face;
  for (std::size_t i = 0; i < corners.size(); ++i) face.corners.at(i) = Project(corners.at(i));
  const double haze = 1.0 - std::exp(-centre.z / air_.clarity);
  face.colour = Mix(Painted(colour, red, green, blue), air_.haze, haze);
  face.layer = layer_;
  face.distance = Length(to_eye) + behind;
  faces_.push_back(face);
}

void Stage::AddMasonry(Random& random, const Point3& origin, const Point3& across, const Point3& up,
                       int columns, int rows, const QColor& colour) {
  // The dark ground shows between the blocks.
  constexpr int kPatches = 3;
  constexpr double kGroundBehind = 1.0;
  const double joint_across = kJoint / (Length(across) / columns);
  const double joint_up = kJoint / (Length(up) / rows);
  const Point3 normal = Cross(across, up);
  const auto at = [&](double u, double v) {
    return origin + across * (std::clamp(u, 0.0, double(columns)) / columns) +
           up * (std::clamp(v, 0.0, double(rows)) / rows);
  };
  const auto face = [&](double u1, double v1, double u2, double v2, double tone, double behind) {
    AddLitFace({at(u1, v1), at(u2, v1), at(u2, v2), at(u1, v2)}, normal, Scaled(colour, tone),
               behind);
  };

  for (int row = 0; row < rows; ++row) {
    const double shift = row % 2 == 0 ? 0.0 : -0.5;
    for (int column = 0; column <= columns; ++column) {
      const double left = column + shift;
      if (left >= columns) continue;

      face(left, row, left + 1.0, row + 1.0, 0.45, kGroundBehind);
      const double tone = random.Real(0.8, 1.08);
      const double u = left + joint_across;
      const double v = row + joint_up;
      const double width = (1.0 - 2.0 * joint_across) / kPatches;
      const double height = (1.0 - 2.0 * joint_up) / kPatches;
      for (int i = 0; i < kPatches; ++i) {
        for (int j = 0; j < kPatches; ++j) {
          face(u + i * width, v + j * height, u + (i + 1) * width, v + (j + 1) * height,
               tone * random.Real(0.9, 1.08), 0.0);
        }
      }
    }
  }
}

void Stage::AddColumn(Random& random, const Point3& foot, double radius, double height,
                      const QColor& colour, const QColor& paint) {
  constexpr int kDrums = 16;
  const auto radius_at = [&](int drum) {
    if (drum == 0) return radius * 1.3;
    if (drum >= kDrums - 1) return radius * 1.55;
    if (drum == kDrums - 2) return radius * 1.3;
    if (drum == kDrums - 3) return radius * 0.98;
    return radius * (1.04 - 0.08 * drum / kDrums);
  };
  const auto around = [&](int side, double reach, double y) {
    const double angle = 2.0 * std::numbers::pi * side / kColumnSides;
    return Point3{foot.x + std::sin(angle) * reach, y, foot.z - std::cos(angle) * reach};
  };

  const Point3 eye{0.0, camera_.eye_height, 0.0};
  for (int drum = 0; drum < kDrums; ++drum) {
    const double low = foot.y + height * drum / kDrums;
    const double high = foot.y + height * (drum + 1) / kDrums;
    const double reach = radius_at(drum);
    const bool painted = drum == kDrums - 4 || drum == kDrums - 6 || drum == 2;
    const QColor drum_colour =
        painted ? Mix(colour, paint, 0.55) : Scaled(colour, random.Real(0.93, 1.05));
    for (int side = 0; side < kColumnSides; ++side) {
      const Point3 middle = around(side, reach, low) + around(side + 1, reach, low);
      const Point3 normal{middle.x / 2.0 - foot.x, 0.0, middle.z / 2.0 - foot.z};
      if (Dot(normal, eye - middle * 0.5) <= 0.0) continue;

      AddLitFace({around(side, reach, low), around(side + 1, reach, low),
                  around(side + 1, reach, high), around(side, reach, high)},
                 normal, Scaled(drum_colour, side % 2 == 0 ? 0.96 : 1.04));
    }
  }
}

void Stage::AddBlock(const Point3& corner, double width, double height, double depth,
                     const QColor& colour) {
  const Point3 right{width, 0.0, 0.0};
  const Point3 up{0.0, height, 0.0};
  const Point3 back{0.0, 0.0, depth};
  const Point3 side = corner.x + width < 0.0 ? corner + right : corner;
  if (corner.y + height < camera_.eye_height) {
    AddFace({corner + up, corner + up + right, corner + up + right + back, corner + up + back},
            colour);
  }
  AddFace({side, side + back, side + back + up, side + up}, Scaled(colour, 0.9));
  AddFace({corner, corner + right, corner + right + up, corner + up}, colour);
}

void Stage::AddSigns(Random& random, const Point3& origin, const Point3& direction, double length,
                     double height, const QColor& colour) {
  const Point3 up{0.0, height, 0.0};
  const auto shape = [&](const Point3& foot, double u1, double v1, double u2, double v2,
                         double slant) {
    const Point3 a = direction * (height * u1);
    const Point3 b = direction * (height * u2);
    const Point3 lean = direction * (height * slant);
    AddFace({foot + a + up * v1, foot + b + up * v1, foot + b + lean + up * v2,
             foot + a + lean + up * v2},
            colour);
  };

  for (const double along : Steps(0.0, length - height, height * 0.9)) {
    const Point3 foot = origin + direction * along;
    switch (random.Whole(0, 6)) {
      case 0:  // a reed
        shape(foot, 0.25, 0.0, 0.35, 1.0, 0.0);
        shape(foot, 0.35, 0.5, 0.6, 1.0, -0.05);
        break;
      case 1:  // water
        for (int i = 0; i < 4; ++i) {
          shape(foot, 0.05 + 0.18 * i, 0.3, 0.15 + 0.18 * i, 0.55, i % 2 == 0 ? 0.12 : -0.12);
        }
        break;
      case 2:  // a sun over the horizon
        shape(foot, 0.1, 0.1, 0.7, 0.2, 0.0);
        shape(foot, 0.25, 0.4, 0.55, 0.75, 0.0);
        break;
      case 3:  // a bird
        shape(foot, 0.1, 0.3, 0.5, 0.6, 0.1);
        shape(foot, 0.5, 0.6, 0.65, 0.9, 0.0);
        shape(foot, 0.3, 0.0, 0.36, 0.3, 0.0);
        break;
      case 4:  // a key of life
        shape(foot, 0.34, 0.0, 0.44, 0.6, 0.0);
        shape(foot, 0.15, 0.45, 0.63, 0.55, 0.0);
        shape(foot, 0.28, 0.62, 0.5, 0.95, 0.0);
        break;
      case 5:  // a seated man
        shape(foot, 0.15, 0.0, 0.65, 0.25, 0.0);
        shape(foot, 0.2, 0.25, 0.45, 0.7, 0.0);
        shape(foot, 0.25, 0.74, 0.42, 0.95, 0.0);
        break;
      default:  // two strokes
        shape(foot, 0.2, 0.1, 0.3, 0.9, 0.0);
        shape(foot, 0.48, 0.1, 0.58, 0.9, 0.0);
    }
  }
}

QColor Stage::LightAt(const Point3& place) const {
  double red = air_.ambient.redF();
  double green = air_.ambient.greenF();
  double blue = air_.ambient.blueF();
  for (const Lamp& lamp : lamps_) {
    const double distance = Length(lamp.at - place) / lamp.reach;
    const double strength = 0.8 / (1.0 + distance * distance);
    red += lamp.colour.redF() * strength;
    green += lamp.colour.greenF() * strength;
    blue += lamp.colour.blueF() * strength;
  }
  return Painted(QColor(255, 255, 255), red, green, blue);
}

void Stage::Paint(QPainter& painter) const {
  std::vector<Face> sorted = faces_;
  std::stable_sort(sorted.begin(), sorted.end(), [](const Face& a, const Face& b) {
    return a.layer != b.layer ? a.layer < b.layer : a.distance > b.distance;
  });

  for (const Face& face : sorted) {
    // The thin line of the face's own colour closes the seams between neighbours.
    painter.setPen(QPen(face.colour, 0.7));
    painter.setBrush(face.colour);
    painter.drawPolygon(face.corners.data(), static_cast<int>(face.corners.size()));
  }
}

}  // namespace vellumark::demo
