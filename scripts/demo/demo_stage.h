// A room of stone seen by a visitor: flat faces in space, lit by torches, painted from far to
// near. Lengths are metres; the visitor's feet are at the origin, x goes right, y up, z ahead.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_STAGE_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_STAGE_H_

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <array>
#include <vector>

#include "demo_random.h"

namespace vellumark::demo {

struct Point3 {
  double x = 0.0, y = 0.0, z = 0.0;
};

Point3 operator+(const Point3& a, const Point3& b);
Point3 operator-(const Point3& a, const Point3& b);
Point3 operator*(const Point3& a, double factor);

struct Camera {
  QPointF vanishing_point;      // where all lines that run ahead meet, in pixels
  double focal_length = 450.0;  // in pixels; larger is narrower
  double eye_height = 1.7;
};

struct Air {
  QColor ambient;         // the light that is everywhere
  QColor haze;            // what the distance fades to
  double clarity = 20.0;  // how far one sees well
};

struct Lamp {
  Point3 at;
  QColor colour;
  double reach = 3.0;  // where it shines half as bright
};

class Stage {
 public:
  Stage(const Camera& camera, const Air& air) : camera_(camera), air_(air) {}

  // Lamps light the faces that are added after them.
  void AddLamp(const Lamp& lamp) { lamps_.push_back(lamp); }

  // What is added from here on is painted over all that came before, whatever the distances.
  void BeginLayer() { ++layer_; }

  void AddFace(const std::array<Point3, 4>& corners, const QColor& colour);

  // A wall, floor or ceiling of staggered blocks: the parallelogram from `origin` along `across`
  // and `up`, in `rows` rows of `columns` blocks.
  void AddMasonry(Random& random, const Point3& origin, const Point3& across, const Point3& up,
                  int columns, int rows, const QColor& colour);

  // A round column from its foot up, with painted bands and a base and a capital.
  void AddColumn(Random& random, const Point3& foot, double radius, double height,
                 const QColor& colour, const QColor& paint);

  // A block standing on the floor; `corner` is its near left foot.
  void AddBlock(const Point3& corner, double width, double height, double depth,
                const QColor& colour);

  // A band of picture-writing along a wall: signs of `height` from `origin` along `direction`
  // (a unit vector), over `length`.
  void AddSigns(Random& random, const Point3& origin, const Point3& direction, double length,
                double height, const QColor& colour);

  // The light that falls on a small thing at a place.
  QColor LightAt(const Point3& place) const;

  QPointF Project(const Point3& point) const;
  // How many pixels a metre is at that distance.
  double Scale(double z) const { return camera_.focal_length / z; }

  void Paint(QPainter& painter) const;

 private:
  struct Face {
    std::array<QPointF, 4> corners;
    QColor colour;
    int layer = 0;
    double distance = 0.0;
  };

  // `behind` metres are added to the distance by which the faces are put in order.
  void AddLitFace(const std::array<Point3, 4>& corners, const Point3& normal, const QColor& colour,
                  double behind = 0.0);

  Camera camera_;
  Air air_;
  std::vector<Lamp> lamps_;
  std::vector<Face> faces_;
  int layer_ = 0;
};

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_STAGE_H_
