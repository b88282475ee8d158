// Pictures of open country. `variant` turns through their colours.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_LANDSCAPES_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_LANDSCAPES_H_

#include <QPainter>
#include <cstddef>

#include "demo_random.h"

namespace vellumark::demo {

// Pyramids behind dunes, from dawn to night.
void PaintDesert(QPainter& painter, Random& random, std::size_t variant);

// A goods train on its track through the dunes.
void PaintRailway(QPainter& painter, Random& random, std::size_t variant);

// Overgrown towers in the morning mist.
void PaintJungle(QPainter& painter, Random& random, std::size_t variant);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_LANDSCAPES_H_
