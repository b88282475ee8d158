// Pictures of rooms under roofs, drawn as lit stages of stone.
// `variant` turns through the colours and what the rooms end with.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_INTERIORS_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_INTERIORS_H_

#include <QPainter>
#include <cstddef>

#include "demo_random.h"

namespace vellumark::demo {

// A passage with picture-writing and torches; at its end a door or a stone coffin.
void PaintTomb(QPainter& painter, Random& random, std::size_t variant);

// A hall of painted columns, by torch light or with the day falling in.
void PaintTemple(QPainter& painter, Random& random, std::size_t variant);

// A vaulted passage with niches and candles.
void PaintCatacombs(QPainter& painter, Random& random, std::size_t variant);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_INTERIORS_H_
