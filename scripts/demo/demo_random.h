// A small generator of pseudo-random numbers. The standard library's distributions may change with
// the library; with this one the same seed keeps giving the same demo world.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_RANDOM_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_RANDOM_H_

#include <cstdint>

namespace vellumark::demo {

class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  // 32 random bits.
  std::uint32_t Bits() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return static_cast<std::uint32_t>((mixed ^ (mixed >> 31U)) >> 32U);
  }

  // A whole number from `low` to `high`, both included.
  int Whole(int low, int high) {
    const auto span = static_cast<std::uint32_t>(high - low + 1);
    return low + static_cast<int>(Bits() % span);
  }

  // A number from `low` up to, not including, `high`.
  double Real(double low, double high) {
    return low + (high - low) * (static_cast<double>(Bits()) / 4294967296.0);
  }

  // True with a probability from 0 to 1.
  bool Chance(double probability) { return Real(0.0, 1.0) < probability; }

 private:
  std::uint64_t state_;
};

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_RANDOM_H_
