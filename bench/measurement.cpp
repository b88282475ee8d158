#include "measurement.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace vellumark::bench {
namespace {

using Five = std::array<double, 5>;

double Median(Five figures) {
  std::ranges::sort(figures);
  return figures[2];
}

}  // namespace

double Now() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

Medians MedianOfFive(const std::function<double()>& baseline, const std::function<double()>& ours) {
  baseline();
  ours();

  Five of_baseline = {};
  Five of_ours = {};
  for (std::size_t run = 0; run < of_ours.size(); ++run) {
    of_baseline[run] = baseline();
    of_ours[run] = ours();
  }
  return {.ours = Median(of_ours), .baseline = Median(of_baseline)};
}

void PrintRow(const std::string& name, const std::string& ours, const std::string& baseline,
              const std::string& ratio, const std::string& limit, bool ok) {
  std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", name.c_str(), ours.c_str(), baseline.c_str(),
              ratio.c_str(), limit.c_str(), ok ? "ok" : "MISSED");
  std::fflush(stdout);
}

void PrintRatio(const std::string& name, const Medians& seconds, double limit) {
  constexpr double kMilliseconds = 1000;
  const double ratio = seconds.ours / seconds.baseline;
  PrintRow(name, Rounded(seconds.ours * kMilliseconds, 1) + " ms",
           Rounded(seconds.baseline * kMilliseconds, 1) + " ms", Rounded(ratio, 2),
           Rounded(limit, 2), ratio <= limit);
}

std::string Rounded(double number, int digits) {
  std::array<char, 64> text = {};
  std::snprintf(text.data(), text.size(), "%.*f", digits, number);
  return text.data();
}

}  // namespace vellumark::bench
