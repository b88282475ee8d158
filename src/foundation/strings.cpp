#include "foundation/strings.h"

#include <algorithm>

namespace vellumark {
namespace {

char AsciiLower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string WithLeadingBlank(int number) { return std::string(" ").append(std::to_string(number)); }

bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, AsciiLower, AsciiLower);
}

std::string WithByteReplaced(std::string_view text, char from, char to) {
  std::string result(text);
  std::ranges::replace(result, from, to);
  return result;
}

}  // namespace vellumark
