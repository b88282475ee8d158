// `*` and `?` in file names, by the rule that players know from Windows.
#ifndef VELLUMARK_PLATFORM_COMMON_WILDCARD_H_
#define VELLUMARK_PLATFORM_COMMON_WILDCARD_H_

#include <string_view>

namespace vellumark {

// Tells whether `name` matches `pattern`; both are given in the same letter case.
//
// `*` stands for any characters. `?` stands for one character that is no dot, and for nothing at
// the end of the name and in front of a dot. A dot with a wildcard behind it is also matched by
// the end of the name, so that `name.*` finds `name`. `*.*` finds everything.
bool MatchesWildcard(std::string_view name, std::string_view pattern);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_WILDCARD_H_
