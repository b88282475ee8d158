#include "platform/game_places.h"

#include <windows.h>

#include <array>
#include <optional>

#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

constexpr std::size_t kLongestValue = 1024;
constexpr DWORD kMostGames = 200;

std::optional<std::string> RegistryText(HKEY root, const std::wstring& key, const wchar_t* value) {
  std::array<wchar_t, kLongestValue> text = {};
  DWORD size = sizeof text;
  if (RegGetValueW(root, key.c_str(), value, RRF_RT_REG_SZ | RRF_SUBKEY_WOW6432KEY, nullptr,
                   text.data(), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return FromWide(text.data());
}

void Add(std::optional<std::string> folder, std::vector<std::string>* folders) {
  if (folder && !folder->empty()) folders->push_back(*folder);
}

void AddGogGames(std::vector<std::string>* folders) {
  const std::wstring list = L"SOFTWARE\\GOG.com\\Games";
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, list.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &key) !=
      ERROR_SUCCESS) {
    return;
  }
  std::array<wchar_t, 256> name = {};
  for (DWORD i = 0; i < kMostGames; ++i) {
    DWORD length = static_cast<DWORD>(name.size());
    if (RegEnumKeyExW(key, i, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      break;
    }
    Add(RegistryText(HKEY_LOCAL_MACHINE, list + L"\\" + name.data(), L"path"), folders);
  }
  RegCloseKey(key);
}

std::optional<std::string> Variable(const wchar_t* name) {
  std::array<wchar_t, kLongestValue> value = {};
  const DWORD length =
      GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
  if (length == 0 || length >= value.size()) return std::nullopt;
  return FromWide(value.data());
}

}  // namespace

GamePlaces KnownGamePlaces() {
  GamePlaces places;
  AddGogGames(&places.game_folders);
  Add(RegistryText(HKEY_CURRENT_USER, L"Software\\Valve\\Steam", L"SteamPath"),
      &places.steam_folders);
  Add(RegistryText(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Valve\\Steam", L"InstallPath"),
      &places.steam_folders);
  for (const wchar_t* folder : {L"ProgramFiles(x86)", L"ProgramFiles", L"ProgramW6432"}) {
    Add(Variable(folder), &places.program_folders);
  }
  if (const auto drive = Variable(L"SystemDrive")) {
    places.program_folders.push_back(*drive + "\\GOG Games");
    places.program_folders.push_back(*drive + "\\Games");
  }
  return places;
}

}  // namespace vellumark
