#include "platform/common/listing_builder.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

#include "platform/common/wildcard.h"

namespace vellumark {
namespace {

UnusableName Unusable(std::string_view host, NameUse use, bool folder) {
  UnusableName name;
  name.shown = ShownName(host);
  name.reason = use == NameUse::kNotInCodePage ? UnusableName::Reason::kNotInCodePage
                                               : UnusableName::Reason::kNotAWindowsName;
  name.folder = folder;
  return name;
}

}  // namespace

ListingBuilder::ListingBuilder(const PathNames& names, std::string_view pattern)
    : names_(names), everything_(pattern == "*" || pattern == "*.*"), wanted_(names.Fold(pattern)) {
  rows_.reserve(64);
}

bool ListingBuilder::ComesBefore(const Row* a, const Row* b) {
  return std::tie(a->folded, a->entry.name, a->host) < std::tie(b->folded, b->entry.name, b->host);
}

void ListingBuilder::Offer(std::string_view host_name, const std::function<EntryKind()>& kind) {
  CoreName name = names_.FromHost(host_name);
  std::string folded = names_.Fold(name.bytes);
  if (!everything_ && !MatchesWildcard(folded, wanted_)) return;

  const EntryKind found = kind();
  if (name.use != NameUse::kUsable) {
    unusable_.push_back(Unusable(host_name, name.use, found.folder));
    return;
  }
  Row& row = rows_.emplace_back();
  row.folded = std::move(folded);
  row.entry.name = std::move(name.bytes);
  row.entry.folder = found.folder;
  row.entry.plain = found.plain;
  row.host = host_name;
}

FolderContents ListingBuilder::Finish() {
  std::vector<Row*> sorted;  // rows are dear to move
  sorted.reserve(rows_.size());
  for (Row& row : rows_) sorted.push_back(&row);
  std::sort(sorted.begin(), sorted.end(), ComesBefore);
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    if (sorted[i - 1]->folded != sorted[i]->folded) continue;
    sorted[i - 1]->entry.ambiguous = true;
    sorted[i]->entry.ambiguous = true;
  }

  FolderContents contents;
  contents.listing.entries.reserve(rows_.size());
  contents.host_names.reserve(rows_.size());
  for (Row* row : sorted) {
    contents.listing.entries.push_back(std::move(row->entry));
    contents.host_names.push_back(std::move(row->host));
  }
  std::sort(unusable_.begin(), unusable_.end(),
            [](const UnusableName& a, const UnusableName& b) { return a.shown < b.shown; });
  contents.listing.unusable = std::move(unusable_);
  return contents;
}

}  // namespace vellumark
