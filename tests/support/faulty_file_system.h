// A file system that fails, or ends the program, at a chosen call.
#ifndef VELLUMARK_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_
#define VELLUMARK_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

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

  std::optional<std::uint64_t> free_room;  // instead of what the disk has

  AttributesResult Attributes(const std::string& path) override {
    return Pass("Attributes", path, [&] { return real_.Attributes(path); });
  }
  Listing List(const std::string& pattern) override {
    return Pass("List", pattern, [&] { return real_.List(pattern); });
  }
  std::unique_ptr<FolderReader> OpenFolder(const std::string& folder) override;
  ReadResult Read(const std::string& path, std::size_t limit) override {
    return Pass("Read", path, [&] { return real_.Read(path, limit); });
  }
  std::optional<FileIdentity> Identity(const std::string& path) override {
    return Pass("Identity", path, [&] { return real_.Identity(path); });
  }
  std::optional<std::uint64_t> FreeRoom(const std::string& folder) override {
    return free_room ? free_room : real_.FreeRoom(folder);
  }
  bool MayMakeFilesIn(const std::string& folder) override {
    return Pass("MayMakeFilesIn", folder, [&] { return real_.MayMakeFilesIn(folder); });
  }
  std::string FinalPath(const std::string& path) override { return real_.FinalPath(path); }
  FileError Create(const std::string& path, std::string_view bytes) override {
    return Pass("Create", path, [&] { return real_.Create(path, bytes); });
  }
  FileError Append(const std::string& path, std::string_view bytes) override {
    return Pass("Append", path, [&] { return real_.Append(path, bytes); });
  }
  FileError WriteAt(const std::string& path, std::uint64_t offset,
                    std::string_view bytes) override {
    return Pass("WriteAt", path, [&] { return real_.WriteAt(path, offset, bytes); });
  }
  FileError Copy(const std::string& source, const std::string& target) override {
    return Pass("Copy", source, [&] { return real_.Copy(source, target); });
  }
  FileError Flush(const std::vector<std::string>& paths) override {
    return Pass("Flush", paths.empty() ? "" : paths.back(), [&] { return real_.Flush(paths); });
  }
  FileError Rename(const std::string& from, const std::string& to, RenameMode mode) override {
    return Pass("Rename", from, [&] { return real_.Rename(from, to, mode); });
  }
  FileError Delete(const std::string& path) override {
    return Pass("Delete", path, [&] { return real_.Delete(path); });
  }
  std::unique_ptr<FolderHold> HoldFolders() override { return real_.HoldFolders(); }
  FileError ClearAttributes(const std::string& path) override {
    return Pass("ClearAttributes", path, [&] { return real_.ClearAttributes(path); });
  }
  FileError CreateFolder(const std::string& path) override {
    return Pass("CreateFolder", path, [&] { return real_.CreateFolder(path); });
  }
  FileError RemoveFolder(const std::string& path) override {
    return Pass("RemoveFolder", path, [&] { return real_.RemoveFolder(path); });
  }

  // These do not touch files: they neither count nor fail.
  std::string CurrentFolder() override { return real_.CurrentFolder(); }
  FileError SetCurrentFolder(const std::string& folder) override {
    return real_.SetCurrentFolder(folder);
  }
  std::vector<Drive> Drives() override { return real_.Drives(); }
  std::string HostPath(const std::string& path) override { return real_.HostPath(path); }
  std::optional<std::string> FromHostPath(std::string_view host_path) override {
    return real_.FromHostPath(host_path);
  }
  std::string FromCommandLine(const std::string& typed) override {
    return real_.FromCommandLine(typed);
  }
  LockResult LockFolder(const std::string& folder) override { return real_.LockFolder(folder); }

  // Counts a call; the error that it is to fail with, or kNone.
  FileError Count(const std::string& operation, const std::string& path);

  // Counts a call, and runs it unless it is to fail: then its answer holds the error, if it can.
  template <typename Run>
  std::invoke_result_t<Run> Pass(const std::string& operation, const std::string& path,
                                 const Run& run) {
    const FileError error = Count(operation, path);
    if (error == FileError::kNone) return run();
    std::invoke_result_t<Run> failed{};
    if constexpr (std::is_same_v<decltype(failed), FileError>) {
      failed = error;
    } else if constexpr (requires { failed.error; }) {
      failed.error = error;
    }
    return failed;
  }

 private:
  FileSystem& real_;
  int calls_ = 0;
  int fail_at_ = 0;
  int kill_at_ = 0;
  FileError error_ = FileError::kNone;
  std::vector<std::pair<std::string, std::string>> always_;  // operation, end of the path
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_
