// The screen-shots of the demo world: stylised views, one for each seed.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_PICTURES_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_PICTURES_H_

#include <QByteArray>
#include <QImage>
#include <cstddef>
#include <cstdint>

#include "demo_story.h"

namespace vellumark::demo {

// 640 by 480 pixels. `variant`, counted from 0, turns through the colours and the main features of
// a scenery, so that pictures with following variants are easily told apart.
QImage DrawPicture(Scenery scenery, std::size_t variant, std::uint64_t seed);

// The bytes of a JPEG file; empty when this Qt cannot write JPEG.
QByteArray JpegBytes(const QImage& picture);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_PICTURES_H_
