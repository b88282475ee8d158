#include "platform/posix/new_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/common/temporary_prefix.h"
#include "platform/posix/free_name_rename.h"

namespace vellumark {
namespace {

bool IsInsideCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

bool IsTemporary(const std::string& host, std::size_t name) {
  return host.compare(name, kTemporaryPrefix.size(), kTemporaryPrefix) == 0;
}

// A leftover of a run that was cut off gives way.
int MakeEmpty(const std::string& host, bool leftover_may_go) {
  constexpr int kFlags = O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC;
  const int file = open(host.c_str(), kFlags, 0666);
  if (file >= 0 || errno != EEXIST || !leftover_may_go) return file;
  return unlink(host.c_str()) == 0 ? open(host.c_str(), kFlags, 0666) : -1;
}

int FailureToBeFree(const std::string& host) {
  struct stat status = {};
  if (lstat(host.c_str(), &status) == 0) return EEXIST;
  return errno == ENOENT ? 0 : errno;
}

}  // namespace

// Beside the file; the same name when that, or its folder's, is a temporary one already.
std::string NewFile::MadeAs(const std::string& host) {
  const std::size_t name = host.rfind('/') + 1;
  const std::size_t folder = name < 2 ? 0 : host.rfind('/', name - 2) + 1;
  if (IsTemporary(host, name) || IsTemporary(host, folder)) return host;
  std::size_t rest = std::min(name + kTemporaryPrefix.size(), host.size());
  while (rest < host.size() && IsInsideCharacter(host[rest])) ++rest;
  return host.substr(0, name).append(kTemporaryPrefix).append(host.substr(rest));
}

NewFile::NewFile(std::string host)
    : host_(std::move(host)),
      made_(MadeAs(host_)),
      error_(FailureToBeFree(host_)),
      file_(error_ == 0 ? MakeEmpty(made_, made_ != host_) : -1) {
  if (error_ == 0 && !file_.IsOpen()) error_ = errno;
}

NewFile::~NewFile() {
  if (error_ == 0 && !stays_) unlink(made_.c_str());
}

int NewFile::Finish() {
  int failure = file_.Close();
  if (failure == 0 && made_ != host_) failure = RenameToFreeName(made_, host_);
  stays_ = failure == 0;
  return failure;
}

}  // namespace vellumark
