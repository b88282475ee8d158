#include "platform/posix/descriptor_io.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/posix/file_error.h"

namespace vellumark {
namespace {

using Block = std::array<char, std::size_t{64} * 1024>;

// A size that a file only claims costs no memory.
constexpr std::size_t kMostReserved = std::size_t{1024} * 1024;

ssize_t ReadOnce(int file, char* to, std::size_t size) {
  ssize_t count = 0;
  do {
    count = read(file, to, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

// Repeats `transfer(done)`, which moves some bytes beginning with number `done`, until all `size`
// are moved.
template <typename Transfer>
int TransferAll(std::size_t size, std::size_t* done, Transfer transfer) {
  *done = 0;
  while (*done < size) {
    const ssize_t count = transfer(*done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) return EIO;
    *done += static_cast<std::size_t>(count);
  }
  return 0;
}

}  // namespace

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }

Descriptor::~Descriptor() { Close(); }

int Descriptor::Close() {
  if (number_ < 0) return 0;
  const int result = close(number_);
  number_ = -1;
  // An interrupted close has closed all the same.
  return result == 0 || errno == EINTR ? 0 : errno;
}

ReadResult ReadUpTo(int file, std::size_t limit, FileEnd end, std::size_t expected) {
  ReadResult result;
  result.bytes.reserve(std::min({limit, expected, kMostReserved}));
  Block block;
  while (result.bytes.size() < limit) {
    const std::size_t wanted = std::min(limit - result.bytes.size(), block.size());
    const ssize_t count = ReadOnce(file, block.data(), wanted);
    if (count < 0) {
      result.error = FileErrorFromNumber(errno);
      break;
    }
    result.bytes.append(block.data(), static_cast<std::size_t>(count));
    const bool filled = static_cast<std::size_t>(count) == wanted;
    if (count == 0 || (end == FileEnd::kShortRead && !filled)) break;
  }
  return result;
}

int WriteAll(int file, std::string_view bytes, std::size_t* written) {
  return TransferAll(bytes.size(), written, [&](std::size_t done) {
    return write(file, bytes.data() + done, bytes.size() - done);
  });
}

int WriteAllAt(int file, std::uint64_t offset, std::string_view bytes, std::size_t* written) {
  return TransferAll(bytes.size(), written, [&](std::size_t done) {
    return pwrite(file, bytes.data() + done, bytes.size() - done,
                  static_cast<off_t>(offset + done));
  });
}

int ReadAllAt(int file, std::uint64_t offset, std::string* bytes) {
  std::size_t read_so_far = 0;
  return TransferAll(bytes->size(), &read_so_far, [&](std::size_t done) {
    return pread(file, bytes->data() + done, bytes->size() - done,
                 static_cast<off_t>(offset + done));
  });
}

int CopyAll(int from, int to) {
  Block block;
  for (;;) {
    const ssize_t count = ReadOnce(from, block.data(), block.size());
    if (count < 0) return errno;
    if (count == 0) return 0;

    std::size_t written = 0;
    const std::string_view bytes(block.data(), static_cast<std::size_t>(count));
    if (const int failure = WriteAll(to, bytes, &written); failure != 0) return failure;
  }
}

int CompareAll(int a, int b) {
  Block first;
  Block second;
  if (lseek(a, 0, SEEK_SET) < 0 || lseek(b, 0, SEEK_SET) < 0) return errno;
  for (;;) {
    const ssize_t count = ReadOnce(a, first.data(), first.size());
    if (count < 0) return errno;
    if (count == 0) {
      const ssize_t more = ReadOnce(b, second.data(), second.size());
      return more < 0 ? errno : more == 0 ? 0 : EIO;
    }

    for (ssize_t done = 0; done < count;) {
      const ssize_t part = ReadOnce(b, second.data(), static_cast<std::size_t>(count - done));
      if (part < 0) return errno;
      if (part == 0) return EIO;
      if (!std::equal(second.begin(), second.begin() + part, first.begin() + done)) return EIO;
      done += part;
    }
  }
}

}  // namespace vellumark
