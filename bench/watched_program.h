// A program with a window, started and watched from outside.
#ifndef VELLUMARK_BENCH_WATCHED_PROGRAM_H_
#define VELLUMARK_BENCH_WATCHED_PROGRAM_H_

#include <string>
#include <vector>

#include "display.h"

namespace vellumark::bench {

// Runs until this object ends it.
class WatchedProgram {
 public:
  // Starts the program and returns when its first window stands painted. A window of another title
  // (a question, say) is a failure.
  WatchedProgram(Display& display, const std::vector<std::string>& command,
                 const std::string& title);
  ~WatchedProgram();
  WatchedProgram(const WatchedProgram&) = delete;
  WatchedProgram& operator=(const WatchedProgram&) = delete;

  // From the start to the painted window.
  double seconds_to_window() const { return seconds_to_window_; }

  void Focus() { display_.Focus(window_); }

  // The most memory that it has used so far.
  double PeakKilobytes() const;

  // The processor time that it has used so far, in all its threads.
  double ProcessorSeconds() const;

 private:
  void WaitForWindow(const std::string& title);

  Display& display_;
  int process_;
  xcb_window_t window_ = 0;
  double seconds_to_window_ = 0;
};

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_WATCHED_PROGRAM_H_
