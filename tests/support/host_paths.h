// Paths of the host in UTF-8, whatever the system takes narrow characters for.
#ifndef VELLUMARK_TESTS_SUPPORT_HOST_PATHS_H_
#define VELLUMARK_TESTS_SUPPORT_HOST_PATHS_H_

#include <filesystem>
#include <string>

namespace vellumark::testing {

inline std::filesystem::path FromUtf8(const std::string& path) {
  return {std::u8string(path.begin(), path.end())};
}

// With slashes between the names.
inline std::string ToUtf8(const std::filesystem::path& path) {
  const std::u8string utf8 = path.generic_u8string();
  return {utf8.begin(), utf8.end()};
}

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_HOST_PATHS_H_
