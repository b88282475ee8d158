// Pictures of the city by night. `variant` turns through their colours.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_TOWNS_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_TOWNS_H_

#include <QPainter>
#include <cstddef>

#include "demo_random.h"

namespace vellumark::demo {

// Roofs, domes and minarets under the moon.
void PaintCity(QPainter& painter, Random& random, std::size_t variant);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_TOWNS_H_
