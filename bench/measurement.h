// Timing two things against each other, and the line of the table that comes of it.
#ifndef VELLUMARK_BENCH_MEASUREMENT_H_
#define VELLUMARK_BENCH_MEASUREMENT_H_

#include <functional>
#include <string>

namespace vellumark::bench {

// Seconds on a clock that only goes forward.
double Now();

struct Medians {
  double ours = 0;
  double baseline = 0;
};

// Runs each once to warm up, then each five times by turns, the baseline first, so that whatever
// else the machine does falls on both. Each run answers its own figure.
Medians MedianOfFive(const std::function<double()>& baseline, const std::function<double()>& ours);

// Prints a line of the table, its columns parted by tabs: name, ours, baseline, ratio, limit, and
// ok or MISSED.
void PrintRow(const std::string& name, const std::string& ours, const std::string& baseline,
              const std::string& ratio, const std::string& limit, bool ok);

// The same for two times in seconds and the highest ratio allowed.
void PrintRatio(const std::string& name, const Medians& seconds, double limit);

// A number with this many digits behind the point.
std::string Rounded(double number, int digits);

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_MEASUREMENT_H_
