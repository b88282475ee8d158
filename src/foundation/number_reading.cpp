#include "foundation/number_reading.h"

#include <algorithm>
#include <string>

#include "foundation/strings.h"

namespace vellumark {
namespace {

// Takes the digits that a text begins with.
std::string_view TakeDigits(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
  const std::string_view digits = text.substr(0, end);
  text.remove_prefix(end);
  return digits;
}

std::int64_t ValueOf(std::string_view digits) {
  std::int64_t value = 0;
  for (const char digit : digits) {
    value = std::min(value * 10 + (digit - '0'), kFarthestNumber);
  }
  return value;
}

// Whether decimals after an odd or even whole number bring it up to the next one. Compared digit by
// digit: a binary fraction cannot tell every half from its neighbours.
bool RoundsUp(std::string_view decimals, bool odd) {
  if (decimals.empty() || decimals.front() != '5') return !decimals.empty() && decimals > "5";
  return odd || decimals.find_first_not_of('0', 1) != std::string_view::npos;
}

// Takes the number that a text begins with; nothing, and the text stays, when there is none.
std::optional<std::int64_t> TakeNumber(std::string_view& text) {
  std::string_view rest = text;
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);

  const std::string_view digits = TakeDigits(rest);
  if (digits.empty()) return std::nullopt;
  std::string_view decimals;
  if (rest.starts_with('.')) {
    rest.remove_prefix(1);
    decimals = TakeDigits(rest);
  }

  text = rest;
  std::int64_t value = ValueOf(digits);
  if (RoundsUp(decimals, value % 2 != 0)) value = std::min(value + 1, kFarthestNumber);
  return negative ? -value : value;
}

}  // namespace

std::optional<std::int64_t> ReadWholeNumber(std::string_view text) {
  const std::string trimmed = Trimmed(text);
  std::string_view rest = trimmed;
  const auto number = TakeNumber(rest);
  return rest.empty() ? number : std::nullopt;
}

std::int64_t ReadLeadingNumber(std::string_view text) {
  std::string packed(text);
  std::erase(packed, ' ');
  std::string_view rest = packed;
  return TakeNumber(rest).value_or(0);
}

}  // namespace vellumark
