// Finds a name in a host folder without regard to letter case.
#ifndef VELLUMARK_PLATFORM_POSIX_NAME_VARIANTS_H_
#define VELLUMARK_PLATFORM_POSIX_NAME_VARIANTS_H_

#include <sys/stat.h>

#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/common/host_names.h"

namespace vellumark {

// The host names of a folder that are one and the same name to the core.
struct NameVariants {
  int error = 0;          // number of the failure to read the folder, or 0
  std::string first;      // the first in byte order
  std::size_t count = 0;  // more than one: the name is ambiguous
};

// Looks names up by listing their folder. A folder at rest is listed once and remembered; what is
// remembered serves only as long as the folder carries the same times of change, and only when
// these lie so far back that no later change can carry them too.
class VariantFinder {
 public:
  // The coarsest clock of a file system in use ticks every two seconds (FAT).
  static constexpr std::time_t kRestSeconds = 3;

  // `rest`: for how many seconds a folder has been left alone when it counts as at rest.
  explicit VariantFinder(const PathNames& names, std::time_t rest = kRestSeconds)
      : names_(names), rest_(rest) {}

  NameVariants Find(const std::string& host_folder, std::string_view name);

  // From Hold to the LetGo that belongs to it each folder is listed once and then taken for
  // unchanged but for what Added tells, until Forget.
  void Hold() { ++holds_; }
  void LetGo();
  void Added(const std::string& host_folder, const std::string& host_name);
  void Forget() { held_.clear(); }

 private:
  using VariantsByName = std::unordered_map<std::string, NameVariants>;

  static NameVariants Known(const VariantsByName& names, const std::string& folded);

  struct Stamp {
    explicit Stamp(const struct stat& status);
    bool operator==(const Stamp&) const;
    bool IsAtRest(std::time_t rest) const;

    dev_t device;
    ino_t index;
    timespec modified;
    timespec changed;
  };

  struct Remembered {
    Stamp stamp;
    VariantsByName by_folded_name;
  };

  const PathNames& names_;
  const std::time_t rest_;
  std::unordered_map<std::string, Remembered> folders_;  // by host path
  int holds_ = 0;
  std::unordered_map<std::string, VariantsByName> held_;  // by host path
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_NAME_VARIANTS_H_
