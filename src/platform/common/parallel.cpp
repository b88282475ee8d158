#include "platform/common/parallel.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <system_error>
#include <utility>

namespace vellumark {
namespace {

constexpr std::chrono::milliseconds kMeanwhileInterval{20};

// As many of the threads as the system gives.
void Start(std::size_t count, const std::function<void()>& work,
           std::vector<std::jthread>* threads) {
  try {
    while (threads->size() < count) threads->emplace_back(work);
  } catch (const std::system_error&) {
    // Those that there are do it.
  }
}

}  // namespace

void ForEachIndex(std::size_t count, std::size_t threads,
                  const std::function<void(std::size_t)>& work,
                  const std::function<void(std::size_t)>& meanwhile) {
  std::atomic<std::size_t> next = 0;
  std::size_t done = 0;
  std::mutex mutex;
  std::condition_variable all_done;
  const auto work_on = [&] {
    for (std::size_t i = next++; i < count; i = next++) {
      work(i);
      const std::lock_guard lock(mutex);
      if (++done == count) all_done.notify_all();
    }
  };
  const std::size_t most = std::min(threads, count);
  std::vector<std::jthread> others;
  if (most > 1) Start(meanwhile ? most : most - 1, work_on, &others);
  if (!meanwhile || others.empty()) return work_on();

  std::unique_lock lock(mutex);
  do {
    const std::size_t done_now = done;
    lock.unlock();
    meanwhile(done_now);
    lock.lock();
  } while (!all_done.wait_for(lock, kMeanwhileInterval, [&] { return done == count; }));
}

Workers::Workers(std::size_t threads) {
  Start(
      threads, [this] { Work(); }, &threads_);
}

Workers::~Workers() {
  const std::lock_guard lock(mutex_);
  ends_ = true;
  given_.notify_all();
}

void Workers::Give(std::function<void()> work) {
  if (threads_.empty()) return work();
  constexpr std::size_t kMostWaiting = 64;
  std::unique_lock lock(mutex_);
  taken_.wait(lock, [this] { return waiting_.size() < kMostWaiting; });
  waiting_.push_back(std::move(work));
  given_.notify_one();
}

void Workers::Wait() {
  std::unique_lock lock(mutex_);
  taken_.wait(lock, [this] { return waiting_.empty() && at_work_ == 0; });
}

void Workers::Work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    given_.wait(lock, [this] { return ends_ || !waiting_.empty(); });
    if (waiting_.empty()) return;
    const std::function<void()> work = std::move(waiting_.front());
    waiting_.pop_front();
    ++at_work_;
    lock.unlock();
    work();
    lock.lock();
    --at_work_;
    taken_.notify_one();
  }
}

}  // namespace vellumark
