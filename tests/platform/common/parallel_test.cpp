#include "platform/common/parallel.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
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

TEST(ForEachIndexTest, ThreadsWorkWhileTheCallerShowsHowFarTheyAre) {
  const auto caller = std::this_thread::get_id();
  std::atomic<bool> shown_twice = false;
  std::size_t last = 0;
  int times = 0;
  ForEachIndex(
      5, 2,
      [&](std::size_t i) {
        EXPECT_NE(std::this_thread::get_id(), caller);
        // A piece of work that takes its time stops nothing.
        while (i == 4 && !shown_twice) std::this_thread::sleep_for(std::chrono::milliseconds(1));
      },
      [&](std::size_t done) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_TRUE(done >= last && done < 5);
        last = done;
        shown_twice = ++times >= 2;
      });
  EXPECT_GE(times, 2);
}

TEST(WorkersTest, ThreadsHaveDoneAllWhenTheWaitIsOver) {
  for (const std::size_t threads : {0U, 3U}) {
    std::atomic<int> done = 0;
    Workers workers(threads);
    for (int i = 0; i < 500; ++i) workers.Give([&done] { ++done; });
    workers.Wait();
    EXPECT_EQ(done, 500);
    workers.Give([&done] { ++done; });
    workers.Wait();
    EXPECT_EQ(done, 501);
  }
}

}  // namespace
}  // namespace vellumark
