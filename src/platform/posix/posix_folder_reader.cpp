#include "platform/posix/posix_folder_reader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <tuple>
#include <utility>

#include "platform/posix/descriptor_io.h"
#include "platform/posix/file_error.h"
#include "platform/posix/wildcard.h"

namespace vellumark {
namespace {

struct Kind {
  bool folder = false;
  bool plain = false;
};

// Most file systems tell the kind together with the name; only a link has to be followed.
Kind KindOf(const dirent& entry, int folder) {
  if (entry.d_type == DT_REG) return {false, true};
  if (entry.d_type == DT_DIR) return {true, false};
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return {};

  struct stat status = {};
  if (fstatat(folder, entry.d_name, &status, 0) != 0) return {};
  return {S_ISDIR(status.st_mode), S_ISREG(status.st_mode)};
}

struct Row {
  std::string folded;
  FolderEntry entry;
  std::string host;
};

bool ComesBefore(const Row* a, const Row* b) {
  return std::tie(a->folded, a->entry.name, a->host) < std::tie(b->folded, b->entry.name, b->host);
}

UnusableName Unusable(std::string_view host, NameUse use, bool folder) {
  UnusableName name;
  name.shown = ShownName(host);
  name.reason = use == NameUse::kNotInCodePage ? UnusableName::Reason::kNotInCodePage
                                               : UnusableName::Reason::kNotAWindowsName;
  name.folder = folder;
  return name;
}

}  // namespace

FolderContents ListDirectory(Directory* directory, const PathNames& names,
                             std::string_view pattern) {
  FolderContents contents;
  const bool everything = pattern == "*" || pattern == "*.*";
  const std::string wanted = names.Fold(pattern);
  std::vector<Row> rows;
  rows.reserve(64);

  while (const dirent* entry = directory->Next()) {
    CoreName name = names.FromHost(entry->d_name);
    std::string folded = names.Fold(name.bytes);
    if (!everything && !MatchesWildcard(folded, wanted)) continue;

    const Kind kind = KindOf(*entry, directory->descriptor());
    if (name.use != NameUse::kUsable) {
      contents.listing.unusable.push_back(Unusable(entry->d_name, name.use, kind.folder));
    } else {
      Row& row = rows.emplace_back();
      row.folded = std::move(folded);
      row.entry.name = std::move(name.bytes);
      row.entry.folder = kind.folder;
      row.entry.plain = kind.plain;
      row.host = entry->d_name;
    }
  }
  if (directory->error() != 0) {
    contents.listing = {FileErrorFromNumber(directory->error()), {}, {}};
    return contents;
  }

  std::vector<Row*> sorted;  // rows are dear to move
  sorted.reserve(rows.size());
  for (Row& row : rows) sorted.push_back(&row);
  std::sort(sorted.begin(), sorted.end(), ComesBefore);
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    if (sorted[i - 1]->folded != sorted[i]->folded) continue;
    sorted[i - 1]->entry.ambiguous = true;
    sorted[i]->entry.ambiguous = true;
  }

  contents.listing.entries.reserve(rows.size());
  contents.host_names.reserve(rows.size());
  for (Row* row : sorted) {
    contents.listing.entries.push_back(std::move(row->entry));
    contents.host_names.push_back(std::move(row->host));
  }
  std::sort(contents.listing.unusable.begin(), contents.listing.unusable.end(),
            [](const UnusableName& a, const UnusableName& b) { return a.shown < b.shown; });
  return contents;
}

PosixFolderReader::PosixFolderReader(Directory directory, const PathNames& names)
    : directory_(std::move(directory)),
      names_(names),
      contents_(ListDirectory(&directory_, names_, "*")) {}

PosixFolderReader::PosixFolderReader(FileError error, const PathNames& names) : names_(names) {
  contents_.listing.error = error;
}

std::optional<std::size_t> PosixFolderReader::IndexOf(const FolderEntry& entry) const {
  const std::vector<FolderEntry>& entries = contents_.listing.entries;
  const FolderEntry* const begin = entries.data();
  const FolderEntry* const end = begin + entries.size();
  const std::less<> before;

  const FolderEntry* found = &entry;
  if (before(found, begin) || !before(found, end)) {
    found = std::find_if(begin, end, [&](const FolderEntry& e) { return e.name == entry.name; });
    if (found == end) return std::nullopt;
  }
  return static_cast<std::size_t>(found - begin);
}

ReadResult PosixFolderReader::Read(const FolderEntry& entry, std::size_t limit) {
  const std::optional<std::size_t> index = IndexOf(entry);
  if (!index) return {FileError::kNotFound, {}};
  // A pipe or a device could keep the caller waiting for ever.
  if (!contents_.listing.entries[*index].plain) return {FileError::kAccessDenied, {}};

  const std::string& host = contents_.host_names[*index];
  const Descriptor file(
      openat(directory_.descriptor(), host.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  if (!file.IsOpen()) return {FileErrorFromNumber(errno), {}};
  return ReadUpTo(file.number(), limit, FileEnd::kShortRead);
}

std::unique_ptr<FolderReader> PosixFolderReader::OpenFolder(const FolderEntry& entry) {
  const std::optional<std::size_t> index = IndexOf(entry);
  if (!index) return std::make_unique<PosixFolderReader>(FileError::kNotFound, names_);

  Directory directory = Directory::OpenAt(directory_.descriptor(), contents_.host_names[*index]);
  if (directory.error() != 0) {
    return std::make_unique<PosixFolderReader>(FileErrorFromNumber(directory.error()), names_);
  }
  return std::make_unique<PosixFolderReader>(std::move(directory), names_);
}

}  // namespace vellumark
