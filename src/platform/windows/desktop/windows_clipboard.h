// Pictures as the clipboard of Windows holds them.
#ifndef VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_CLIPBOARD_H_
#define VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_CLIPBOARD_H_

#include <string>
#include <string_view>

namespace vellumark {

// The clipboard's device-independent bitmap; empty when there is none, or no access to it now.
std::string ReadClipboardBitmap();

// Puts the header of a BMP file before a device-independent bitmap. Empty for one that is cut off
// before its pixels.
std::string BmpFileOf(std::string_view bitmap);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_CLIPBOARD_H_
