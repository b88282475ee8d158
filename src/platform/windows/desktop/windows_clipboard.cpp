#include "platform/windows/desktop/windows_clipboard.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vellumark {
namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::uint64_t kMostColours = 256;

// What lies between the picture's header and its pixels: a table of colours, or the bits that each
// colour takes of a pixel. Later headers hold those bits themselves.
std::uint64_t TableSize(const BITMAPINFOHEADER& header) {
  const bool has_masks =
      header.biCompression == BI_BITFIELDS && header.biSize == sizeof(BITMAPINFOHEADER);
  const std::uint64_t masks = has_masks ? 3 * sizeof(DWORD) : 0;
  if (header.biClrUsed != 0) return masks + std::uint64_t{header.biClrUsed} * sizeof(RGBQUAD);
  if (header.biBitCount == 0 || header.biBitCount > 8) return masks;
  return masks + (std::uint64_t{1} << header.biBitCount) * sizeof(RGBQUAD);
}

void AppendLittleEndian(std::string& bytes, std::uint64_t number) {
  for (int i = 0; i < 4; ++i, number >>= 8U) bytes += static_cast<char>(number & 0xFFU);
}

}  // namespace

std::string ReadClipboardBitmap() {
  // Asked first, because it keeps the clipboard from nobody.
  if (IsClipboardFormatAvailable(CF_DIB) == 0 || OpenClipboard(nullptr) == 0) return {};

  std::string bitmap;
  HANDLE memory = GetClipboardData(CF_DIB);
  if (const void* bytes = memory != nullptr ? GlobalLock(memory) : nullptr) {
    bitmap.assign(static_cast<const char*>(bytes), GlobalSize(memory));
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return bitmap;
}

std::string BmpFileOf(std::string_view bitmap) {
  BITMAPINFOHEADER header = {};
  if (bitmap.size() < sizeof header) return {};
  std::memcpy(&header, bitmap.data(), sizeof header);
  const std::uint64_t pixels = header.biSize + TableSize(header);
  if (header.biSize < sizeof header || header.biClrUsed > kMostColours || pixels >= bitmap.size()) {
    return {};
  }

  std::string file = "BM";
  AppendLittleEndian(file, kFileHeaderSize + bitmap.size());
  AppendLittleEndian(file, 0);
  AppendLittleEndian(file, kFileHeaderSize + pixels);
  return file.append(bitmap);
}

}  // namespace vellumark
