#include "platform/windows/desktop/windows_desktop_windows.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <functional>

#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

constexpr DWORD kWaitForOwnFocus = 2000;  // milliseconds
constexpr DWORD kWaitForOtherFocus = 500;
constexpr DWORD kStep = 20;

// Of a window's handle only 32 bits count, with their sign.
WindowHandle ToHandle(HWND window) {
  return static_cast<WindowHandle>(reinterpret_cast<std::uintptr_t>(window));
}

HWND FromHandle(WindowHandle window) {
  const auto number = static_cast<std::intptr_t>(static_cast<std::int32_t>(window));
  return reinterpret_cast<HWND>(number);
}

ProcessId OwnerOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

BOOL CALLBACK AddWindow(HWND window, LPARAM list) {
  std::array<wchar_t, 512> title = {};
  const int length = GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
  auto* windows = reinterpret_cast<std::vector<TopLevelWindow>*>(list);
  const auto size = static_cast<std::size_t>(length);
  windows->push_back({ToHandle(window), FromWide({title.data(), size})});
  return TRUE;
}

bool WaitUntil(const std::function<bool()>& reached, DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!reached()) {
    if (GetTickCount64() >= end) return false;
    // Lets messages of the system through to the program's windows, without which no focus moves.
    MSG message = {};
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    Sleep(kStep);
  }
  return true;
}

// Longer than a key is down when it is pressed once, in milliseconds.
constexpr DWORD kLongestHold = 1000;

// Games look at the keyboard once a frame and would miss a key that is up again at once.
constexpr DWORD kPress = 100;  // milliseconds

constexpr std::array kKeysInTheWay = {VK_RETURN, VK_SHIFT, VK_CONTROL, VK_MENU, VK_LWIN, VK_RWIN};

bool IsHeld(int key) { return (static_cast<unsigned>(GetAsyncKeyState(key)) & 0x8000U) != 0; }

// With the key's place on the keyboard too: games read that.
void SendEnter(DWORD flags) {
  INPUT stroke = {};
  stroke.type = INPUT_KEYBOARD;
  stroke.ki.wVk = VK_RETURN;
  stroke.ki.wScan = static_cast<WORD>(MapVirtualKeyW(VK_RETURN, MAPVK_VK_TO_VSC));
  stroke.ki.dwFlags = flags;
  SendInput(1, &stroke, sizeof(INPUT));
}

}  // namespace

// Joined to the input of the program that is in front, this one may hand that place on.
void ForceToForeground(WindowHandle window) {
  HWND target = FromHandle(window);
  const DWORD own = GetCurrentThreadId();
  const DWORD front = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
  const bool joined = front != 0 && front != own && AttachThreadInput(own, front, TRUE) != 0;
  BringWindowToTop(target);
  SetForegroundWindow(target);
  if (joined) AttachThreadInput(own, front, FALSE);
}

std::vector<TopLevelWindow> WindowsDesktopWindows::List() {
  std::vector<TopLevelWindow> windows;
  EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

WindowHandle WindowsDesktopWindows::ActiveWindow() { return ToHandle(GetForegroundWindow()); }

ProcessId WindowsDesktopWindows::ProcessOf(WindowHandle window) {
  return OwnerOf(FromHandle(window));
}

Activation WindowsDesktopWindows::Activate(WindowHandle window, ProcessId process) {
  const auto is_own_turn = [] { return OwnerOf(GetForegroundWindow()) == GetCurrentProcessId(); };
  if (!WaitUntil(is_own_turn, kWaitForOwnFocus)) return Activation::kNotOurTurn;

  HWND target = FromHandle(window);
  if (IsWindow(target) == 0 || OwnerOf(target) != process) return Activation::kFailed;
  if (IsIconic(target) != 0) ShowWindowAsync(target, SW_RESTORE);
  SetForegroundWindow(target);
  const auto is_in_front = [target] { return GetForegroundWindow() == target; };
  if (WaitUntil(is_in_front, kWaitForOtherFocus)) return Activation::kActivated;

  ForceToForeground(window);
  return WaitUntil(is_in_front, kWaitForOtherFocus) ? Activation::kActivated : Activation::kFailed;
}

void WindowsDesktopWindows::PressEnter() {
  // The key that the user has just answered a dialog with may still be down. Enter cannot be
  // pressed twice, and with a modifier it is another key.
  WaitUntil([] { return std::ranges::none_of(kKeysInTheWay, IsHeld); }, kLongestHold);
  SendEnter(0);
  Sleep(kPress);
  SendEnter(KEYEVENTF_KEYUP);
}

}  // namespace vellumark
