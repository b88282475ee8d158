#include "foundation/failures.h"

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/strings.h"

namespace vellumark {

std::string ReasonFor(FileError error) {
  switch (error) {
    case FileError::kNone:
      return LoadMessage(kReasonNotWhole);
    case FileError::kNotFound:
      return LoadMessage(kReasonNotFound);
    case FileError::kAlreadyExists:
      return LoadMessage(kReasonAlreadyExists);
    case FileError::kAccessDenied:
      return LoadMessage(kReasonAccessDenied);
    case FileError::kDiskFull:
      return LoadMessage(kReasonDiskFull);
    case FileError::kNotReady:
      return LoadMessage(kReasonNotReady);
    case FileError::kBadName:
      return LoadMessage(kReasonBadName);
    case FileError::kAmbiguous:
      return LoadMessage(kReasonAmbiguous);
    case FileError::kNotEmpty:
      return LoadMessage(kReasonNotEmpty);
    case FileError::kNotAFolder:
      return LoadMessage(kReasonNotAFolder);
    case FileError::kIsAFolder:
      return LoadMessage(kReasonFolder);
    case FileError::kInUse:
      return LoadMessage(kReasonInUse);
    case FileError::kTooShort:
      return LoadMessage(kReasonTooShort);
    case FileError::kStopped:
      return LoadMessage(kReasonStopped);
    case FileError::kInputOutput:
      break;
  }
  return LoadMessage(kReasonInputOutput);
}

Failure FailureOfCopy(FileSystem& files, const std::string& source, const std::string& target,
                      FileError error) {
  const bool is_readable = files.Read(source, 1).error == FileError::kNone;
  return {source, error, is_readable ? target : std::string()};
}

std::string DescribeFailures(const std::vector<Failure>& failures) {
  constexpr std::size_t kMostLines = 200;
  std::string text;
  for (const Failure& failure : failures) {
    if (&failure - failures.data() == kMostLines) {
      const auto left_out = static_cast<int>(failures.size() - kMostLines);
      return text + kLineBreak + LoadMessage(kMoreFailures, {left_out});
    }
    text += kLineBreak + LoadMessage(kFailureLine, {ReasonFor(failure.why), Quoted(failure.path)});
    if (!failure.target.empty()) text += LoadMessage(kFailureAtTarget, {Quoted(failure.target)});
  }
  return text;
}

}  // namespace vellumark
