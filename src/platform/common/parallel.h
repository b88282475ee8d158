// Work that the system does faster when it is asked for many things at once.
#ifndef VELLUMARK_PLATFORM_COMMON_PARALLEL_H_
#define VELLUMARK_PLATFORM_COMMON_PARALLEL_H_

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace vellumark {

// Calls `work(i)` once for each i from 0 to `count` - 1, on up to `threads` threads; returns when
// all are done. Which comes first is open, but on one thread they come in their order. The calling
// thread works along, or, where `meanwhile` is given, calls that at once and every now and then
// with the number of those done, however long one takes.
void ForEachIndex(std::size_t count, std::size_t threads,
                  const std::function<void(std::size_t)>& work,
                  const std::function<void(std::size_t)>& meanwhile = {});

// Threads that do what they are given, for one giver.
class Workers {
 public:
  explicit Workers(std::size_t threads);
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;
  // Waits until all is done.
  ~Workers();

  // Has it done by a thread; waits while too much waits already. Where there are no threads, the
  // caller does it.
  void Give(std::function<void()> work);
  // Waits until all that was given is done.
  void Wait();

 private:
  void Work();

  std::mutex mutex_;
  std::condition_variable given_;
  std::condition_variable taken_;
  std::deque<std::function<void()>> waiting_;
  std::size_t at_work_ = 0;
  bool ends_ = false;
  std::vector<std::jthread> threads_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_PARALLEL_H_
