#include "support/expectations.h"

#include <set>

namespace vellumark::testing {

::testing::AssertionResult Contains(const std::string& text, const std::string& part) {
  if (text.find(part) != std::string::npos) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "no \"" << part << "\" in: " << text;
}

void ExpectNothingLost(const Files& before, const TemporaryFolder& disk) {
  std::set<std::string> contents;
  for (const auto& [name, bytes] : disk.AllFiles()) contents.insert(bytes);
  for (const auto& [name, bytes] : before) {
    EXPECT_TRUE(contents.contains(bytes)) << name << " is lost";
  }
}

void ExpectUntouched(const Files& before, const TemporaryFolder& disk) {
  const Files after = disk.AllFiles();
  for (const auto& [name, bytes] : before) {
    const auto found = after.find(name);
    EXPECT_TRUE(found != after.end() && found->second == bytes) << name;
  }
}

}  // namespace vellumark::testing
