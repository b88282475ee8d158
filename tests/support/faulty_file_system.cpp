#include "support/faulty_file_system.h"

#include <utility>

namespace vellumark::testing {
namespace {

Listing FailedListing(FileError error) { return {error, {}, {}}; }

ReadResult FailedRead(FileError error) { return {error, {}}; }

class FailedReader final : public FolderReader {
 public:
  explicit FailedReader(FileError error) : listing_(FailedListing(error)) {}

  const Listing& Contents() const override { return listing_; }
  ReadResult Read(const FolderEntry& /*entry*/, std::size_t /*limit*/) override {
    return FailedRead(listing_.error);
  }
  std::unique_ptr<FolderReader> OpenFolder(const FolderEntry& /*entry*/) override {
    return std::make_unique<FailedReader>(listing_.error);
  }

 private:
  Listing listing_;
};

std::unique_ptr<FolderReader> MakeFailedReader(FileError error) {
  return std::make_unique<FailedReader>(error);
}

class FaultyReader final : public FolderReader {
 public:
  FaultyReader(FaultyFileSystem& files, std::unique_ptr<FolderReader> real)
      : files_(files), real_(std::move(real)) {}

  const Listing& Contents() const override { return real_->Contents(); }
  ReadResult Read(const FolderEntry& entry, std::size_t limit) override {
    return files_.Pass<ReadResult>(
        "Read", entry.name, [&] { return real_->Read(entry, limit); }, FailedRead);
  }
  std::unique_ptr<FolderReader> OpenFolder(const FolderEntry& entry) override {
    return files_.Pass<std::unique_ptr<FolderReader>>(
        "OpenFolder", entry.name,
        [&] { return std::make_unique<FaultyReader>(files_, real_->OpenFolder(entry)); },
        MakeFailedReader);
  }

 private:
  FaultyFileSystem& files_;
  std::unique_ptr<FolderReader> real_;
};

}  // namespace

void FaultyFileSystem::FailCall(int call, FileError error) {
  fail_at_ = calls_ + call;
  error_ = error;
}

void FaultyFileSystem::KillAtCall(int call) { kill_at_ = calls_ + call; }

void FaultyFileSystem::FailAlways(const std::string& operation, const std::string& path_ending,
                                  FileError error) {
  fail_operation_ = operation;
  fail_ending_ = path_ending;
  error_ = error;
}

void FaultyFileSystem::Reset() {
  calls_ = fail_at_ = kill_at_ = 0;
  fail_operation_.clear();
}

template <typename Result>
Result FaultyFileSystem::Pass(const std::string& operation, const std::string& path,
                              const std::function<Result()>& run,
                              const std::function<Result(FileError)>& failure) {
  if (++calls_ == kill_at_) throw Killed();
  if (meanwhile) meanwhile(operation);
  if (calls_ == fail_at_ || (operation == fail_operation_ && path.ends_with(fail_ending_))) {
    return failure(error_);
  }
  return run();
}

FileError FaultyFileSystem::Pass(const std::string& operation, const std::string& path,
                                 const std::function<FileError()>& run) {
  return Pass<FileError>(operation, path, run, [](FileError error) { return error; });
}

AttributesResult FaultyFileSystem::Attributes(const std::string& path) {
  return Pass<AttributesResult>(
      "Attributes", path, [&] { return real_.Attributes(path); },
      [](FileError error) {
        return AttributesResult{error, {}};
      });
}

Listing FaultyFileSystem::List(const std::string& pattern) {
  return Pass<Listing>(
      "List", pattern, [&] { return real_.List(pattern); }, FailedListing);
}

std::unique_ptr<FolderReader> FaultyFileSystem::OpenFolder(const std::string& folder) {
  return Pass<std::unique_ptr<FolderReader>>(
      "OpenFolder", folder,
      [&] { return std::make_unique<FaultyReader>(*this, real_.OpenFolder(folder)); },
      MakeFailedReader);
}

ReadResult FaultyFileSystem::Read(const std::string& path, std::size_t limit) {
  return Pass<ReadResult>(
      "Read", path, [&] { return real_.Read(path, limit); }, FailedRead);
}

std::optional<FileIdentity> FaultyFileSystem::Identity(const std::string& path) {
  return Pass<std::optional<FileIdentity>>(
      "Identity", path, [&] { return real_.Identity(path); },
      [](FileError /*error*/) { return std::nullopt; });
}

FileError FaultyFileSystem::Create(const std::string& path, std::string_view bytes) {
  return Pass("Create", path, [&] { return real_.Create(path, bytes); });
}

FileError FaultyFileSystem::Append(const std::string& path, std::string_view bytes) {
  return Pass("Append", path, [&] { return real_.Append(path, bytes); });
}

FileError FaultyFileSystem::WriteAt(const std::string& path, std::uint64_t offset,
                                    std::string_view bytes) {
  return Pass("WriteAt", path, [&] { return real_.WriteAt(path, offset, bytes); });
}

FileError FaultyFileSystem::Copy(const std::string& source, const std::string& target) {
  return Pass("Copy", source, [&] { return real_.Copy(source, target); });
}

FileError FaultyFileSystem::Flush(const std::vector<std::string>& paths) {
  return Pass("Flush", "", [&] { return real_.Flush(paths); });
}

FileError FaultyFileSystem::Rename(const std::string& from, const std::string& to,
                                   RenameMode mode) {
  return Pass("Rename", from, [&] { return real_.Rename(from, to, mode); });
}

FileError FaultyFileSystem::Delete(const std::string& path) {
  return Pass("Delete", path, [&] { return real_.Delete(path); });
}

FileError FaultyFileSystem::ClearAttributes(const std::string& path) {
  return Pass("ClearAttributes", path, [&] { return real_.ClearAttributes(path); });
}

FileError FaultyFileSystem::CreateFolder(const std::string& path) {
  return Pass("CreateFolder", path, [&] { return real_.CreateFolder(path); });
}

FileError FaultyFileSystem::RemoveFolder(const std::string& path) {
  return Pass("RemoveFolder", path, [&] { return real_.RemoveFolder(path); });
}

std::string FaultyFileSystem::CurrentFolder() { return real_.CurrentFolder(); }

FileError FaultyFileSystem::SetCurrentFolder(const std::string& folder) {
  return real_.SetCurrentFolder(folder);
}

std::vector<Drive> FaultyFileSystem::Drives() { return real_.Drives(); }

std::string FaultyFileSystem::HostPath(const std::string& path) { return real_.HostPath(path); }

std::optional<std::string> FaultyFileSystem::FromHostPath(std::string_view host_path) {
  return real_.FromHostPath(host_path);
}

std::string FaultyFileSystem::FromCommandLine(const std::string& typed) {
  return real_.FromCommandLine(typed);
}

LockResult FaultyFileSystem::LockFolder(const std::string& folder) {
  return real_.LockFolder(folder);
}

}  // namespace vellumark::testing
