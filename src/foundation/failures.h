// What went wrong during an operation, gathered and told in one message at its end.
#ifndef VELLUMARK_FOUNDATION_FAILURES_H_
#define VELLUMARK_FOUNDATION_FAILURES_H_

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vellumark {

struct Failure {
  std::string path;
  FileError why = FileError::kNone;
  std::string target{};  // of a copy that failed at its target; empty where `path` is at fault

  bool operator==(const Failure&) const = default;
};

// The reason in words, without a full stop. kNone, for a file that was read but is too short or
// not what it should be, has words too.
std::string ReasonFor(FileError error);

// The failure to copy `source`, at its target unless the source cannot be read.
Failure FailureOfCopy(FileSystem& files, const std::string& source, const std::string& target,
                      FileError error);

// One line for each failure: the path in quotes and the reason, with the target where that failed.
// Long lists end with the number of failures left out.
std::string DescribeFailures(const std::vector<Failure>& failures);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_FAILURES_H_
