// Pictures of and in the water. `variant` turns through their colours.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_WATERS_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_WATERS_H_

#include <QPainter>
#include <cstddef>

#include "demo_random.h"

namespace vellumark::demo {

// Sunken columns under the surface.
void PaintLake(QPainter& painter, Random& random, std::size_t variant);

// Ruins on the shore, the lighthouse across the bay.
void PaintCoast(QPainter& painter, Random& random, std::size_t variant);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_WATERS_H_
