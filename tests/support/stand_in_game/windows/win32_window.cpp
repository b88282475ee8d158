// The stand-in as a Windows program.
#include <windows.h>

#include <cstring>
#include <memory>
#include <string>

#include "pictures.h"
#include "stand_in.h"

namespace vellumark::stand_in {
namespace {

constexpr char kClassName[] = "StandIn";

class Win32Window final : public Window {
 public:
  Win32Window() {
    WNDCLASSA window_class{};
    window_class.lpfnWndProc = Receive;
    window_class.hInstance = GetModuleHandleA(nullptr);
    window_class.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    window_class.lpszClassName = kClassName;
    RegisterClassA(&window_class);
    handle_ = CreateWindowA(kClassName, kWindowTitle, WS_OVERLAPPEDWINDOW, 60, 60, 480, 360,
                            nullptr, nullptr, window_class.hInstance, nullptr);
    SetPropA(handle_, kClassName, this);
  }

  void Run() {
    stand_in_ = std::make_unique<StandIn>(*this);
    SetTimer(handle_, 1, kCommandInterval, nullptr);
    ShowWindow(handle_, SW_SHOW);
    SetForegroundWindow(handle_);

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  }

  void PutOnClipboard(const std::string& bmp_file) override {
    if (OpenClipboard(handle_) == 0) return;
    EmptyClipboard();
    const std::size_t size = bmp_file.size() - kBmpFileHeaderSize;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(memory), bmp_file.data() + kBmpFileHeaderSize, size);
    GlobalUnlock(memory);
    SetClipboardData(CF_DIB, memory);
    CloseClipboard();
  }

  void Minimize() override { ShowWindow(handle_, SW_MINIMIZE); }

  void Quit() override { PostQuitMessage(0); }

 private:
  static LRESULT CALLBACK Receive(HWND handle, UINT message, WPARAM what, LPARAM more) {
    auto* window = static_cast<Win32Window*>(GetPropA(handle, kClassName));
    if (window == nullptr || !window->stand_in_) {
      return DefWindowProcA(handle, message, what, more);
    }

    switch (message) {
      case WM_TIMER:
        window->stand_in_->ObeyNewCommands();
        return 0;
      case WM_KEYDOWN:
        window->stand_in_->KeyPressed(what == VK_RETURN ? "Return"
                                                        : "code " + std::to_string(what));
        return 0;
      case WM_SETFOCUS:
      case WM_KILLFOCUS:
        window->stand_in_->FocusChanged(message == WM_SETFOCUS);
        return 0;
      case WM_CLOSE:
        window->Quit();
        return 0;
      default:
        return DefWindowProcA(handle, message, what, more);
    }
  }

  HWND handle_ = nullptr;
  std::unique_ptr<StandIn> stand_in_;
};

}  // namespace
}  // namespace vellumark::stand_in

int main() {
  vellumark::stand_in::Win32Window window;
  window.Run();
}
