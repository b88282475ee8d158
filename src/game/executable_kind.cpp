#include "game/executable_kind.h"

#include <cstdint>

#include "platform/file_system.h"

namespace vellumark {
namespace {

// Linkers put the header into the first kilobyte; packed programs have it a little later.
constexpr std::size_t kReadBytes = 65536;

constexpr std::size_t kOffsetOfHeader = 0x3C;
constexpr std::string_view kWindowsMark("PE\0\0", 4);
constexpr std::uint32_t kIntel386 = 0x14C;

// Little-endian; the bytes must be there.
std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i > 0; --i) {
    number = number << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return number;
}

// Programs for Windows before 95, and their drivers.
bool IsOlderMark(std::string_view mark) { return mark == "NE" || mark == "LE" || mark == "LX"; }

}  // namespace

ProgramKind KindOfProgram(std::string_view beginning, bool whole) {
  if (!beginning.starts_with("MZ")) return ProgramKind::kForeign;
  const ProgramKind cut_off = whole ? ProgramKind::kBroken : ProgramKind::kWindows;
  if (beginning.size() < kOffsetOfHeader + 4) return cut_off;

  const std::uint32_t at = NumberAt(beginning, kOffsetOfHeader, 4);
  if (at >= beginning.size()) return cut_off;
  const std::string_view header = beginning.substr(at);
  if (IsOlderMark(header.substr(0, 2))) return ProgramKind::kWindows;
  if (header.size() < kWindowsMark.size() + 2) return cut_off;
  if (!header.starts_with(kWindowsMark)) return ProgramKind::kBroken;
  const std::uint32_t machine = NumberAt(header, kWindowsMark.size(), 2);
  return machine == kIntel386 ? ProgramKind::kWindows32 : ProgramKind::kWindows;
}

ProgramKind ReadProgramKind(FileSystem& files, const std::string& path) {
  const ReadResult read = files.Read(path, kReadBytes);
  if (read.error != FileError::kNone) return ProgramKind::kUnreadable;
  return KindOfProgram(read.bytes, read.bytes.size() < kReadBytes);
}

}  // namespace vellumark
