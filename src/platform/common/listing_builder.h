// From the names of a folder, as the disk reports them, to the core's listing.
#ifndef VELLUMARK_PLATFORM_COMMON_LISTING_BUILDER_H_
#define VELLUMARK_PLATFORM_COMMON_LISTING_BUILDER_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/common/host_names.h"
#include "platform/file_system.h"

namespace vellumark {

// What stands behind a name, links followed.
struct EntryKind {
  bool folder = false;
  bool plain = false;  // in the sense of FileAttributes::IsPlainFile
};

struct FolderContents {
  Listing listing;
  std::vector<std::string> host_names;  // of the entries, in their order
};

// Gathers the names that match a pattern. An unusable name is matched by what the code page can
// show of it. Refers to the PathNames, which must outlive it.
class ListingBuilder {
 public:
  ListingBuilder(const PathNames& names, std::string_view pattern);

  // The kind is asked for only when the name matches.
  void Offer(std::string_view host_name, const std::function<EntryKind()>& kind);

  // What was gathered, in alphabetical order, with ambiguous names marked. To be called once.
  FolderContents Finish();

 private:
  struct Row {
    std::string folded;
    FolderEntry entry;
    std::string host;
  };

  static bool ComesBefore(const Row* a, const Row* b);

  const PathNames& names_;
  const bool everything_;
  const std::string wanted_;
  std::vector<Row> rows_;
  std::vector<UnusableName> unusable_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_LISTING_BUILDER_H_
