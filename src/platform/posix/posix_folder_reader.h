// Listing host folders, and reading the files of a folder that is held open.
#ifndef VELLUMARK_PLATFORM_POSIX_POSIX_FOLDER_READER_H_
#define VELLUMARK_PLATFORM_POSIX_POSIX_FOLDER_READER_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/common/host_names.h"
#include "platform/common/listing_builder.h"
#include "platform/file_system.h"
#include "platform/posix/host_directory.h"

namespace vellumark {

// The names of an open folder that match `pattern`, in alphabetical order.
FolderContents ListDirectory(Directory* directory, const PathNames& names,
                             std::string_view pattern);

// Refers to the PathNames, which must outlive it.
class PosixFolderReader final : public FolderReader {
 public:
  PosixFolderReader(Directory directory, const PathNames& names);
  // A reader of nothing.
  PosixFolderReader(FileError error, const PathNames& names);

  const Listing& Contents() const override { return contents_.listing; }
  ReadResult Read(const FolderEntry& entry, std::size_t limit) override;
  std::unique_ptr<FolderReader> OpenFolder(const FolderEntry& entry) override;

 private:
  std::optional<std::size_t> IndexOf(const FolderEntry& entry) const;

  Directory directory_;
  const PathNames& names_;
  FolderContents contents_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_POSIX_FOLDER_READER_H_
