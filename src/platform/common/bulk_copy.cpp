#include "platform/common/bulk_copy.h"

#include <unordered_set>
#include <utility>

#include "platform/common/parallel.h"

namespace vellumark {
namespace {

// A copy waits for the disk more than for a processor.
constexpr std::size_t kThreads = 4;

class BulkCopy {
 public:
  BulkCopy(FileSystem& files, const PrepareCopy& prepare) : files_(files), prepare_(prepare) {}

  void Copy(CopyGroup& group) {
    if (auto ready = Prepare(group)) {
      under_way_.push_back({&group, std::move(*ready)});
      const UnderWay& copies = under_way_.back();
      return workers_.Give([&copies] {
        CopyInOrder(*copies.group,
                    [&copies](std::size_t i, const CopyJob&) { return copies.ready[i].copy(); });
      });
    }
    Finish();
    CopyInOrder(group, [this](std::size_t, const CopyJob& job) {
      return files_.CopyVerified(job.source, job.target);
    });
  }

  // Waits for all copies.
  void Finish() {
    workers_.Wait();
    for (const UnderWay& copies : under_way_) {
      for (std::size_t i = 0; i < copies.ready.size(); ++i) {
        if ((*copies.group)[i].error == FileError::kNone) copies.ready[i].made();
      }
    }
    under_way_.clear();
    keys_.clear();
  }

 private:
  struct UnderWay {
    CopyGroup* group;
    std::vector<ReadyCopy> ready;
  };

  std::optional<std::vector<ReadyCopy>> Prepare(const CopyGroup& group) {
    std::vector<ReadyCopy> all;
    for (const CopyJob& job : group) {
      std::optional<ReadyCopy> ready = prepare_(job);
      if (!ready || !keys_.insert(ready->key).second) return std::nullopt;
      all.push_back(std::move(*ready));
    }
    return all;
  }

  FileSystem& files_;
  const PrepareCopy& prepare_;
  std::unordered_set<std::string> keys_;  // of the copies under way
  std::deque<UnderWay> under_way_;        // their places stay
  Workers workers_{kThreads};             // ends first
};

}  // namespace

void CopyOnThreads(FileSystem& files, std::vector<CopyGroup>& groups,
                   const std::function<bool(std::size_t)>& begin, const PrepareCopy& prepare) {
  BulkCopy copy(files, prepare);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (!begin(i)) {
      StopCopying(groups, i);
      break;
    }
    copy.Copy(groups[i]);
  }
  copy.Finish();
}

void StopCopying(std::vector<CopyGroup>& groups, std::size_t first) {
  for (std::size_t i = first; i < groups.size(); ++i) {
    for (CopyJob& job : groups[i]) job.error = FileError::kStopped;
  }
}

}  // namespace vellumark
