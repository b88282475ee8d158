#include "desktop/pictures.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "demo_random.h"
#include "demo_savegames.h"

namespace vellumark::testing {
namespace {

constexpr int kGrain = 8;  // on all colours of a pixel alike
constexpr int kSpeck = 3;  // on each colour

int Channel(int value) { return std::clamp(value, 0, 255); }

QRgb Noisy(QRgb pixel, demo::Random& random) {
  const int grain = random.Whole(-kGrain, kGrain);
  const auto noisy = [&](int value) {
    return Channel(value + grain + random.Whole(-kSpeck, kSpeck));
  };
  const int red = noisy(qRed(pixel));
  const int green = noisy(qGreen(pixel));
  return qRgb(red, green, noisy(qBlue(pixel)));
}

double SquaredDistance(QRgb a, QRgb b) {
  double sum = 0;
  for (const int distance : {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)}) {
    sum += distance * distance;
  }
  return sum;
}

}  // namespace

QImage NoisyScene(const QSize& size) {
  demo::Random random(1);
  QImage picture = QImage::fromData(demo::ShotBytes("The Great Hypostyle Hall", 32))
                       .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) line[x] = Noisy(line[x], random);
  }
  return picture;
}

double SignalToNoise(const QImage& original, const QImage& copy) {
  const QImage a = original.convertToFormat(QImage::Format_RGB32);
  const QImage b = copy.convertToFormat(QImage::Format_RGB32);
  double sum = 0;
  for (int y = 0; y < a.height(); ++y) {
    const auto* line_a = reinterpret_cast<const QRgb*>(a.constScanLine(y));
    const auto* line_b = reinterpret_cast<const QRgb*>(b.constScanLine(y));
    for (int x = 0; x < a.width(); ++x) sum += SquaredDistance(line_a[x], line_b[x]);
  }
  const double mean = sum / (3.0 * a.width() * a.height());
  return 10 * std::log10(255.0 * 255.0 / mean);
}

}  // namespace vellumark::testing
