// Work that the system does faster when it is asked for many things at once.
#ifndef VELLUMARK_FOUNDATION_PARALLEL_H_
#define VELLUMARK_FOUNDATION_PARALLEL_H_

#include <cstddef>
#include <functional>

namespace vellumark {

// Calls `work(i)` once for each i from 0 to `count` - 1, on up to `threads` threads, the calling
// one among them; returns when all are done. Which comes first is open, but on one thread they come
// in their order.
void ForEachIndex(std::size_t count, std::size_t threads,
                  const std::function<void(std::size_t)>& work);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PARALLEL_H_
