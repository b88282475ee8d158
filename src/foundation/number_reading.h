// Numbers as users type them into text fields.
#ifndef VELLUMARK_FOUNDATION_NUMBER_READING_H_
#define VELLUMARK_FOUNDATION_NUMBER_READING_H_

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace vellumark {

// A number is an optional sign, digits, and optionally a point with decimals. It is rounded to the
// nearest whole number, a half to the even neighbour. One beyond this comes back as this, with its
// sign.
constexpr std::int64_t kFarthestNumber = 1'000'000'000'000;

// The number that is the whole of a text but for blanks around it; nothing when it is none.
std::optional<std::int64_t> ReadWholeNumber(std::string_view text);

// The number that a text begins with, as if it had no blanks; 0 when it does not begin with one.
std::int64_t ReadLeadingNumber(std::string_view text);

// True when a signed 16-bit field can hold the number.
constexpr bool FitsInt16(std::int64_t number) {
  using Limits = std::numeric_limits<std::int16_t>;
  return number >= Limits::min() && number <= Limits::max();
}

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_NUMBER_READING_H_
