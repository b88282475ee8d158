// Bytes in and out of open files, with the short transfers and interruptions that the system
// calls allow themselves.
#ifndef VELLUMARK_PLATFORM_POSIX_DESCRIPTOR_IO_H_
#define VELLUMARK_PLATFORM_POSIX_DESCRIPTOR_IO_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace vellumark {

// An open file, closed with this object. Move only.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor();

  bool IsOpen() const { return number_ >= 0; }
  int number() const { return number_; }

  // Closes now; the number of the failure that the system kept back until then, or 0. To be asked
  // wherever something was written.
  int Close();

 private:
  int number_;
};

enum class FileEnd {
  kShortRead,  // what a local file does: a read that is not filled was the last
  kEmptyRead,  // where nothing may be missed: read on until nothing comes
};

// The next `limit` bytes, fewer at the end of the file. Room is made at once for as many as are
// `expected`.
ReadResult ReadUpTo(int file, std::size_t limit, FileEnd end, std::size_t expected = 0);

// Writes all bytes at the file's position; the number of the failure, or 0. `written` counts what
// was written in either case.
int WriteAll(int file, std::string_view bytes, std::size_t* written);

// The same at an offset.
int WriteAllAt(int file, std::uint64_t offset, std::string_view bytes, std::size_t* written);

// Reads exactly as many bytes as `bytes` is long, from an offset; the number of the failure, or 0.
int ReadAllAt(int file, std::uint64_t offset, std::string* bytes);

// Copies from one file's position to the other's until the first ends; the number of the failure,
// or 0.
int CopyAll(int from, int to);

// Reads both files from their beginning; 0 when they hold the same bytes, EIO when they differ,
// otherwise the number of the failure.
int CompareAll(int a, int b);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_DESCRIPTOR_IO_H_
