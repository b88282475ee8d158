#include "foundation/fixed_size_record.h"

#include <algorithm>

#include "foundation/file_utilities.h"
#include "foundation/strings.h"

namespace vellumark {

bool AreFieldText(std::string_view bytes) {
  return std::ranges::none_of(
      bytes, [](char byte) { return static_cast<unsigned char>(byte) < 0x20 && byte != '\0'; });
}

std::optional<std::string> RecordReader::Text() {
  if (rest_.size() < kTextFieldSize) {
    rest_ = {};
    return std::nullopt;
  }
  const std::string_view field = rest_.substr(0, kTextFieldSize);
  rest_.remove_prefix(kTextFieldSize);
  return Trimmed(field.substr(0, field.find('\0')));
}

std::optional<bool> RecordReader::Boolean() {
  const auto word = Word();
  return word ? std::optional(*word != 0) : std::nullopt;
}

std::optional<std::uint16_t> RecordReader::Word() {
  const auto number = Number(2);
  return number ? std::optional(static_cast<std::uint16_t>(*number)) : std::nullopt;
}

std::optional<std::int32_t> RecordReader::Long() {
  const auto number = Number(4);
  return number ? std::optional(static_cast<std::int32_t>(*number)) : std::nullopt;
}

std::optional<std::uint32_t> RecordReader::Number(std::size_t size) {
  if (rest_.size() < size) {
    rest_ = {};
    return std::nullopt;
  }
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i) {
    number |= static_cast<std::uint32_t>(static_cast<unsigned char>(rest_[i])) << (8 * i);
  }
  rest_.remove_prefix(size);
  return number;
}

void RecordWriter::Text(std::string_view text) {
  const std::string_view kept = text.substr(0, kTextFieldSize);
  bytes_.append(kept).append(kTextFieldSize - kept.size(), ' ');
}

void RecordWriter::Boolean(bool value) { Word(value ? 0xFFFF : 0); }

void RecordWriter::Word(std::uint16_t value) { Number(value, 2); }

void RecordWriter::Long(std::int32_t value) { Number(static_cast<std::uint32_t>(value), 4); }

void RecordWriter::Number(std::uint32_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    bytes_.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
  }
}

FileError WriteRecordFile(FileSystem& files, const std::string& path, std::string_view record) {
  const ReadResult old = files.Read(path, FileSystem::kWholeFile);
  if (old.error != FileError::kNone && old.error != FileError::kNotFound) return old.error;
  if (old.error == FileError::kNone && old.bytes.starts_with(record)) return FileError::kNone;

  std::string bytes(record);
  if (old.bytes.size() > record.size()) bytes.append(old.bytes, record.size());
  return ReplaceFile(files, path, bytes);
}

bool IsChangedBehind(FileSystem& files, const std::string& path, std::string_view known,
                     std::string_view record) {
  if (known.empty()) return false;
  const ReadResult now = files.Read(path, record.size());
  return now.error == FileError::kNone && !now.bytes.empty() && now.bytes != known &&
         now.bytes != record;
}

std::optional<std::string> KeepBackupOf(FileSystem& files, const std::string& path) {
  constexpr int kMostBackups = 1000;
  for (int n = 1; n <= kMostBackups; ++n) {
    std::string backup = path + ".bak" + (n == 1 ? "" : std::to_string(n));
    const FileError error = files.Attributes(backup).error;
    if (error == FileError::kNone && SameContent(files, path, backup)) return backup;
    if (error == FileError::kNotFound) {
      if (!CopyFileReplacing(files, path, backup)) return std::nullopt;
      if (files.Flush({backup}) != FileError::kNone) return std::nullopt;
      return backup;
    }
    if (error != FileError::kNone) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace vellumark
