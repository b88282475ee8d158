#include "support/faulty_file_system.h"

#include <algorithm>
#include <utility>

namespace vellumark::testing {
namespace {

// Without a real reader, every call fails with the error of its listing.
class FaultyReader final : public FolderReader {
 public:
  FaultyReader(FaultyFileSystem& files, std::unique_ptr<FolderReader> real, FileError error)
      : files_(files), real_(std::move(real)) {
    failed_.error = error;
  }

  const Listing& Contents() const override {
    return real_ == nullptr ? failed_ : real_->Contents();
  }
  ReadResult Read(const FolderEntry& entry, std::size_t limit) override {
    if (real_ == nullptr) return {failed_.error, {}};
    return files_.Pass("Read", entry.name, [&] { return real_->Read(entry, limit); });
  }
  std::unique_ptr<FolderReader> OpenFolder(const FolderEntry& entry) override {
    const FileError error =
        real_ == nullptr ? failed_.error : files_.Count("OpenFolder", entry.name);
    auto inner = error == FileError::kNone ? real_->OpenFolder(entry) : nullptr;
    return std::make_unique<FaultyReader>(files_, std::move(inner), error);
  }

 private:
  FaultyFileSystem& files_;
  std::unique_ptr<FolderReader> real_;
  Listing failed_;
};

}  // namespace

void FaultyFileSystem::FailCall(int call, FileError error) {
  fail_at_ = calls_ + call;
  error_ = error;
}

void FaultyFileSystem::KillAtCall(int call) { kill_at_ = calls_ + call; }

void FaultyFileSystem::FailAlways(const std::string& operation, const std::string& path_ending,
                                  FileError error) {
  always_.emplace_back(operation, path_ending);
  error_ = error;
}

void FaultyFileSystem::Reset() {
  calls_ = fail_at_ = kill_at_ = 0;
  always_.clear();
}

std::unique_ptr<FolderReader> FaultyFileSystem::OpenFolder(const std::string& folder) {
  const FileError error = Count("OpenFolder", folder);
  auto reader = error == FileError::kNone ? real_.OpenFolder(folder) : nullptr;
  return std::make_unique<FaultyReader>(*this, std::move(reader), error);
}

FileError FaultyFileSystem::Count(const std::string& operation, const std::string& path) {
  if (++calls_ == kill_at_) throw Killed();
  if (meanwhile) meanwhile(operation);
  const bool fails = calls_ == fail_at_ || std::ranges::any_of(always_, [&](const auto& rule) {
                       return operation == rule.first && path.ends_with(rule.second);
                     });
  return fails ? error_ : FileError::kNone;
}

}  // namespace vellumark::testing
