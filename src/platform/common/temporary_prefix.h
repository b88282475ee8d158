// What the names of files in the making begin with.
#ifndef VELLUMARK_PLATFORM_COMMON_TEMPORARY_PREFIX_H_
#define VELLUMARK_PLATFORM_COMMON_TEMPORARY_PREFIX_H_

#include <string_view>

namespace vellumark {

// Matches none of the patterns that the program lists or deletes by. It takes the place of a name's
// first letters, so that a path that just fits the system stays within its limit.
inline constexpr std::string_view kTemporaryPrefix = "~vm~";

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_TEMPORARY_PREFIX_H_
