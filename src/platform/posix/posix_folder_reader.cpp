#include "platform/posix/posix_folder_reader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <utility>

#include "platform/posix/descriptor_io.h"
#include "platform/posix/file_error.h"

namespace vellumark {
namespace {

// Most file systems tell the kind together with the name; only a link has to be followed.
EntryKind KindOf(const dirent& entry, int folder) {
  if (entry.d_type == DT_REG) return {false, true};
  if (entry.d_type == DT_DIR) return {true, false};
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return {};

  struct stat status = {};
  if (fstatat(folder, entry.d_name, &status, 0) != 0) return {};
  return {S_ISDIR(status.st_mode), S_ISREG(status.st_mode)};
}

}  // namespace

FolderContents ListDirectory(Directory* directory, const PathNames& names,
                             std::string_view pattern) {
  ListingBuilder builder(names, pattern);
  while (const dirent* entry = directory->Next()) {
    builder.Offer(entry->d_name, [&] { return KindOf(*entry, directory->descriptor()); });
  }
  if (directory->error() == 0) return builder.Finish();

  FolderContents contents;
  contents.listing.error = FileErrorFromNumber(directory->error());
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
