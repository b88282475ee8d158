#include "pictures.h"

#include <cstdint>

namespace vellumark::stand_in {
namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr int kBytesPerPixel = 3;
constexpr int kInfoHeaderSize = 40;

void Append(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i, number >>= 8U) bytes += static_cast<char>(number & 0xFFU);
}

// The colour of a pixel as 0xRRGGBB.
std::uint32_t Colour(int x, int y) {
  const bool left = x < kWidth / 2;
  if (y < kHeight / 2) return left ? 0xE00000U : 0x00E000U;
  return left ? 0x0000E0U : 0xFFFFFFU;
}

}  // namespace

std::string PictureAsBmp() {
  constexpr std::uint32_t kPixelBytes = kWidth * kHeight * kBytesPerPixel;
  constexpr std::uint32_t kPixelsBegin = kBmpFileHeaderSize + kInfoHeaderSize;

  std::string bytes = "BM";
  Append(bytes, kPixelsBegin + kPixelBytes, 4);
  Append(bytes, 0, 4);
  Append(bytes, kPixelsBegin, 4);

  Append(bytes, kInfoHeaderSize, 4);
  Append(bytes, kWidth, 4);
  Append(bytes, kHeight, 4);
  Append(bytes, 1, 2);
  Append(bytes, 8 * kBytesPerPixel, 2);
  Append(bytes, 0, 4);
  Append(bytes, kPixelBytes, 4);
  bytes.append(16, '\0');

  // The lowest row comes first; a row of this width needs no padding.
  for (int y = kHeight - 1; y >= 0; --y) {
    for (int x = 0; x < kWidth; ++x) Append(bytes, Colour(x, y), kBytesPerPixel);
  }
  return bytes;
}

}  // namespace vellumark::stand_in
