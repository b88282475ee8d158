// The fixed-size, little-endian records in which the program stores its settings.
#ifndef VELLUMARK_FOUNDATION_FIXED_SIZE_RECORD_H_
#define VELLUMARK_FOUNDATION_FIXED_SIZE_RECORD_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace vellumark {

constexpr std::size_t kTextFieldSize = 256;

// False for bytes that the program writes into no text field: control characters. A NUL may stand
// where a field was never set.
bool AreFieldText(std::string_view bytes);

// Takes the fields of a record one after the other. A field that the bytes do not hold whole comes
// back empty, and so do all that follow.
class RecordReader {
 public:
  explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

  std::optional<std::string> Text();  // up to the first NUL, without the blanks at both ends
  std::optional<bool> Boolean();      // 16 bits; anything but 0 is true
  std::optional<std::uint16_t> Word();
  std::optional<std::int32_t> Long();

 private:
  std::optional<std::uint32_t> Number(std::size_t size);

  std::string_view rest_;
};

// Writes the fields of a record one after the other.
class RecordWriter {
 public:
  void Text(std::string_view text);  // padded with blanks, cut at 256 characters
  void Boolean(bool value);          // -1 or 0 in 16 bits
  void Word(std::uint16_t value);
  void Long(std::int32_t value);

  const std::string& bytes() const { return bytes_; }

 private:
  void Number(std::uint32_t value, std::size_t size);

  std::string bytes_;
};

// Writes a record over the beginning of a file, making the file when it is missing; what lies
// beyond the record stays. The file is replaced in one step.
FileError WriteRecordFile(FileSystem& files, const std::string& path, std::string_view record);

// True when a file's record is neither what this run knows of it nor what it is about to write:
// another program has written it meanwhile. False while nothing is known of the file.
bool IsChangedBehind(FileSystem& files, const std::string& path, std::string_view known,
                     std::string_view record);

// Copies a file to `<path>.bak`, or `<path>.bak2`, ... when that holds something else already.
// Answers the copy's path, or nothing when the file could not be copied.
std::optional<std::string> KeepBackupOf(FileSystem& files, const std::string& path);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_FIXED_SIZE_RECORD_H_
