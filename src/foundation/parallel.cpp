#include "foundation/parallel.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace vellumark {

void ForEachIndex(std::size_t count, std::size_t threads,
                  const std::function<void(std::size_t)>& work) {
  std::atomic<std::size_t> next = 0;
  const auto work_on = [&] {
    for (std::size_t i = next++; i < count; i = next++) work(i);
  };
  std::vector<std::jthread> others;
  try {
    for (std::size_t i = 1; i < std::min(threads, count); ++i) others.emplace_back(work_on);
  } catch (const std::system_error&) {
    // The threads that there are do it.
  }
  work_on();
}

}  // namespace vellumark
