// Small operations on texts of the code page.
#ifndef VELLUMARK_FOUNDATION_STRINGS_H_
#define VELLUMARK_FOUNDATION_STRINGS_H_

#include <string>
#include <string_view>

namespace vellumark {

// Without the blanks (0x20 only) at both ends.
std::string Trimmed(std::string_view text);

// In double quotes, as messages show paths.
std::string Quoted(std::string_view text);

// In decimal with one blank in front, as some messages show counts.
std::string WithLeadingBlank(int number);

// Equal when the letters A to Z count as a to z; for names and endings that are plain ASCII.
bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b);

// Every `from` replaced by `to`.
std::string WithByteReplaced(std::string_view text, char from, char to);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_STRINGS_H_
