#include "savegames/savegame_header.h"

#include <algorithm>

namespace vellumark {
namespace {

constexpr std::size_t kCounterOffset = 75;

}  // namespace

SavegameHeader DecodeSavegameHeader(std::string_view bytes) {
  SavegameHeader header;
  std::string_view name = bytes.substr(0, kCounterOffset);
  name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
  header.level_name = name.substr(0, name.find_first_of(std::string_view("\0,\r", 3)));

  header.whole = bytes.size() >= kSavegameHeaderSize;
  if (header.whole) {
    const auto low = static_cast<unsigned char>(bytes[kCounterOffset]);
    const auto high = static_cast<unsigned char>(bytes[kCounterOffset + 1]);
    header.counter = static_cast<std::int16_t>(low | (high << 8));
  }
  return header;
}

SavegameHeader ReadSavegameHeader(FileSystem& files, const std::string& path) {
  return DecodeSavegameHeader(files.Read(path, kSavegameHeaderSize).bytes);
}

FileError WriteInternalCounter(FileSystem& files, const std::string& path, std::int16_t value) {
  const auto word = static_cast<std::uint16_t>(value);
  const char bytes[] = {static_cast<char>(word & 0xFF), static_cast<char>(word >> 8)};
  return files.WriteAt(path, kCounterOffset, std::string_view(bytes, 2));
}

}  // namespace vellumark
