// The program's version.
#ifndef VELLUMARK_FOUNDATION_VERSION_H_
#define VELLUMARK_FOUNDATION_VERSION_H_

namespace vellumark {

// Three numbers, for example "1.0.0"; the build says which.
const char* Version();

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_VERSION_H_
