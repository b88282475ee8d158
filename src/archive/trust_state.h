// The programs that this user lets Vellumark start.
#ifndef VELLUMARK_ARCHIVE_TRUST_STATE_H_
#define VELLUMARK_ARCHIVE_TRUST_STATE_H_

#include <string>
#include <vector>

namespace vellumark {

struct TrustState {
  std::vector<std::string> programs;  // chosen or confirmed in this run
};

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_TRUST_STATE_H_
