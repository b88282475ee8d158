// Reading the files of a folder that was listed once.
#ifndef VELLUMARK_PLATFORM_WINDOWS_WINDOWS_FOLDER_READER_H_
#define VELLUMARK_PLATFORM_WINDOWS_WINDOWS_FOLDER_READER_H_

#include <cstddef>
#include <memory>
#include <string>

#include "platform/common/host_names.h"
#include "platform/file_system.h"

namespace vellumark {

// Refers to the PathNames, which must outlive it.
class WindowsFolderReader final : public FolderReader {
 public:
  WindowsFolderReader(std::wstring folder, const PathNames& names);
  // A reader of nothing.
  WindowsFolderReader(FileError error, const PathNames& names);

  const Listing& Contents() const override { return listing_; }
  ReadResult Read(const FolderEntry& entry, std::size_t limit) override;
  std::unique_ptr<FolderReader> OpenFolder(const FolderEntry& entry) override;

 private:
  bool Holds(const FolderEntry& entry) const;
  std::wstring PathOf(const FolderEntry& entry) const;

  std::wstring folder_;
  const PathNames& names_;
  Listing listing_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_WINDOWS_FOLDER_READER_H_
