#include "foundation/parallel.h"

#include <gtest/gtest.h>

#include <atomic>
#include <vector>

namespace vellumark {
namespace {

TEST(ForEachIndexTest, DoesEachPieceOfWorkOnceWhateverTheNumberOfThreads) {
  for (const std::size_t threads : {1U, 3U}) {
    for (const std::size_t count : {0U, 1U, 2U, 50U}) {
      std::vector<std::atomic<int>> calls(count + 1);
      ForEachIndex(count, threads, [&](std::size_t i) { ++calls.at(i); });
      for (std::size_t i = 0; i <= count; ++i) EXPECT_EQ(calls[i], i < count ? 1 : 0) << i;
    }
  }
}

}  // namespace
}  // namespace vellumark
