// Pictures like screen-shots, and how much of one is left.
#ifndef VELLUMARK_TESTS_DESKTOP_PICTURES_H_
#define VELLUMARK_TESTS_DESKTOP_PICTURES_H_

#include <QImage>

namespace vellumark::testing {

// One of the demo world's scenes at another size, with noise on each pixel.
QImage NoisyScene(const QSize& size);

// The peak signal-to-noise ratio of a copy, in decibels. Both pictures have the same size.
double SignalToNoise(const QImage& original, const QImage& copy);

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_DESKTOP_PICTURES_H_
