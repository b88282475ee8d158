#include "demo_pictures.h"

#include <QBuffer>
#include <QPainter>

#include "demo_canvas.h"
#include "demo_interiors.h"
#include "demo_landscapes.h"
#include "demo_towns.h"
#include "demo_waters.h"

namespace vellumark::demo {
namespace {

constexpr int kJpegQuality = 85;

void PaintScenery(QPainter& painter, Random& random, Scenery scenery, std::size_t variant) {
  switch (scenery) {
    case Scenery::kJungle:
      return PaintJungle(painter, random, variant);
    case Scenery::kTomb:
      return PaintTomb(painter, random, variant);
    case Scenery::kTemple:
      return PaintTemple(painter, random, variant);
    case Scenery::kDesert:
      return PaintDesert(painter, random, variant);
    case Scenery::kLake:
      return PaintLake(painter, random, variant);
    case Scenery::kRailway:
      return PaintRailway(painter, random, variant);
    case Scenery::kCoast:
      return PaintCoast(painter, random, variant);
    case Scenery::kCatacombs:
      return PaintCatacombs(painter, random, variant);
    case Scenery::kCity:
      return PaintCity(painter, random, variant);
  }
}

}  // namespace

QImage DrawPicture(Scenery scenery, std::size_t variant, std::uint64_t seed) {
  Random random(seed);
  QImage picture(kWidth, kHeight, QImage::Format_RGB32);
  picture.fill(Qt::black);

  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintScenery(painter, random, scenery, variant);
  painter.end();

  FinishPicture(picture, random);
  return picture;
}

QByteArray JpegBytes(const QImage& picture) {
  QBuffer buffer;
  if (!buffer.open(QIODevice::WriteOnly)) return {};
  if (!picture.save(&buffer, "JPEG", kJpegQuality)) return {};
  return buffer.data();
}

}  // namespace vellumark::demo
