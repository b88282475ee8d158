#include "platform/windows/windows_folder_reader.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "platform/windows/disk_names.h"
#include "platform/windows/file_error.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/wide_text.h"

namespace vellumark {

WindowsFolderReader::WindowsFolderReader(std::wstring folder, const PathNames& names)
    : folder_(std::move(folder)),
      names_(names),
      listing_(ListFolder(folder_, names_, "*").listing) {}

WindowsFolderReader::WindowsFolderReader(FileError error, const PathNames& names) : names_(names) {
  listing_.error = error;
}

bool WindowsFolderReader::Holds(const FolderEntry& entry) const {
  const FolderEntry* const begin = listing_.entries.data();
  const FolderEntry* const end = begin + listing_.entries.size();
  const std::less<> before;
  if (!before(&entry, begin) && before(&entry, end)) return true;
  return std::any_of(begin, end, [&](const FolderEntry& e) { return e.name == entry.name; });
}

std::wstring WindowsFolderReader::PathOf(const FolderEntry& entry) const {
  return WithName(folder_, ToWide(names_.ToHost(entry.name)));
}

ReadResult WindowsFolderReader::Read(const FolderEntry& entry, std::size_t limit) {
  if (!Holds(entry)) return {FileError::kNotFound, {}};

  const FileHandle file = OpenExisting(PathOf(entry), GENERIC_READ);
  if (!file.IsOpen()) return {ErrorUnless(false), {}};
  return ReadUpTo(file, limit);
}

std::unique_ptr<FolderReader> WindowsFolderReader::OpenFolder(const FolderEntry& entry) {
  if (!Holds(entry)) return std::make_unique<WindowsFolderReader>(FileError::kNotFound, names_);
  return std::make_unique<WindowsFolderReader>(PathOf(entry), names_);
}

}  // namespace vellumark
