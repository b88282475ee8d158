// Places in a row, for what a picture repeats.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_STEPS_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_STEPS_H_

#include <vector>

#include "demo_random.h"

namespace vellumark::demo {

// `from`, then on in equal steps as long as `to` is not reached. A negative step counts down.
inline std::vector<double> Steps(double from, double to, double step) {
  std::vector<double> places;
  double place = from;
  while (step > 0.0 ? place < to : place > to) {
    places.push_back(place);
    place += step;
  }
  return places;
}

// The same, upwards, with gaps of random length between the two.
inline std::vector<double> RandomSteps(Random& random, double from, double to, double shortest,
                                       double longest) {
  std::vector<double> places;
  double place = from;
  while (place < to) {
    places.push_back(place);
    place += random.Real(shortest, longest);
  }
  return places;
}

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_STEPS_H_
