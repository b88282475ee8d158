// A file system that fails, or ends the program, at a chosen call.
#ifndef VELLUMARK_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_
#define VELLUMARK_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_

#include <functional>
#include <string>

#include "platform/file_system.h"

namespace vellumark::testing {

// Thrown in place of the program's death.
struct Killed {};

class FaultyFileSystem final : public FileSystem {
 public:
  explicit FaultyFileSystem(FileSystem& real) : real_(real) {}

  // Call number `call` from now on (1 is the next) fails with `error` without touching the disk.
  void FailCall(int call, FileError error);
  // The program dies before call number `call` from now on, which is right behind the one before.
  void KillAtCall(int call);
  // Every call with this operation's name on a path that ends so fails, from now on.
  void FailAlways(const std::string& operation, const std::string& path_ending, FileError error);
  // Forgets all of these and counts from 0 again.
  void Reset();

  int calls() const { return calls_; }

  // Called with the operation's name before each call: what another program does meanwhile.
  std::function<void(const std::string&)> meanwhile;

  AttributesResult Attributes(const std::string& path) override;
  Listing List(const std::string& pattern) override;
  std::unique_ptr<FolderReader> OpenFolder(const std::string& folder) override;
  ReadResult Read(const std::string& path, std::size_t limit) override;
  std::optional<FileIdentity> Identity(const std::string& path) override;
  FileError Create(const std::string& path, std::string_view bytes) override;
  FileError Append(const std::string& path, std::string_view bytes) override;
  FileError WriteAt(const std::string& path, std::uint64_t offset, std::string_view bytes) override;
  FileError Copy(const std::string& source, const std::string& target) override;
  FileError Flush(const std::vector<std::string>& paths) override;
  FileError Rename(const std::string& from, const std::string& to, RenameMode mode) override;
  FileError Delete(const std::string& path) override;
  FileError ClearAttributes(const std::string& path) override;
  FileError CreateFolder(const std::string& path) override;
  FileError RemoveFolder(const std::string& path) override;
  std::string CurrentFolder() override;
  FileError SetCurrentFolder(const std::string& folder) override;
  std::vector<Drive> Drives() override;
  std::string HostPath(const std::string& path) override;
  std::optional<std::string> FromHostPath(std::string_view host_path) override;
  std::string FromCommandLine(const std::string& typed) override;
  LockResult LockFolder(const std::string& folder) override;

  // Counts a call, and runs it unless it is to fail: then `failure` makes its answer.
  template <typename Result>
  Result Pass(const std::string& operation, const std::string& path,
              const std::function<Result()>& run, const std::function<Result(FileError)>& failure);

 private:
  FileError Pass(const std::string& operation, const std::string& path,
                 const std::function<FileError()>& run);

  FileSystem& real_;
  int calls_ = 0;
  int fail_at_ = 0;
  int kill_at_ = 0;
  FileError error_ = FileError::kNone;
  std::string fail_operation_;
  std::string fail_ending_;
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_
