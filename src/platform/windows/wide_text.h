// Text as the system calls of Windows take it.
#ifndef VELLUMARK_PLATFORM_WINDOWS_WIDE_TEXT_H_
#define VELLUMARK_PLATFORM_WINDOWS_WIDE_TEXT_H_

#include <string>
#include <string_view>

namespace vellumark {

// From UTF-8 and back. What cannot be converted becomes U+FFFD.
std::wstring ToWide(std::string_view utf8);
std::string FromWide(std::wstring_view wide);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_WIDE_TEXT_H_
