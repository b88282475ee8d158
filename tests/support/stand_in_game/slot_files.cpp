#include "slot_files.h"

#include <cstddef>
#include <fstream>
#include <iterator>

namespace vellumark::stand_in {
namespace {

constexpr std::size_t kCounterOffset = 75;
constexpr std::size_t kSize = 8192;

}  // namespace

std::string DescribeSlot(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (bytes.size() < kCounterOffset + 2) return "too short";

  const int counter = static_cast<unsigned char>(bytes[kCounterOffset]) +
                      256 * static_cast<unsigned char>(bytes[kCounterOffset + 1]);
  return std::to_string(counter) + " " + bytes.substr(0, bytes.find('\0'));
}

bool WriteSlot(int slot, int counter, const std::string& level) {
  std::string bytes = level.substr(0, kCounterOffset - 1);
  bytes.resize(kSize, '\0');
  bytes[kCounterOffset] = static_cast<char>(counter % 256);
  bytes[kCounterOffset + 1] = static_cast<char>(counter / 256);

  std::string name = "savegame.";
  name += std::to_string(slot);
  std::ofstream file(name, std::ios::binary | std::ios::trunc);
  file << bytes << std::flush;
  return file.good();
}

}  // namespace vellumark::stand_in
