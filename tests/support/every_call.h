// Gives every call of the file system its turn to fail, or to be the program's last.
#ifndef VELLUMARK_TESTS_SUPPORT_EVERY_CALL_H_
#define VELLUMARK_TESTS_SUPPORT_EVERY_CALL_H_

#include <gtest/gtest.h>

#include "support/faulty_file_system.h"

namespace vellumark::testing {

// Each time in a new world: lets the next call of `run(world)` fail, then `check(world)`, until a
// run has fewer calls.
template <typename World, typename Run, typename Check>
void FailEveryCall(FileError error, const Run& run, const Check& check) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(::testing::Message() << "call " << call << " fails");
    World world;
    const int start = world.files.calls();
    world.files.FailCall(call, error);
    run(world);
    if (world.files.calls() - start < call) {
      EXPECT_GT(call, 1) << "nothing was called";
      return;
    }
    check(world);
  }
}

// The same with a program that dies before the call.
template <typename World, typename Run, typename Check>
void DieAtEveryCall(const Run& run, const Check& check) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(::testing::Message() << "it dies before call " << call);
    World world;
    world.files.KillAtCall(call);
    try {
      run(world);
      return;
    } catch (const Killed&) {
    }
    check(world);
  }
}

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_EVERY_CALL_H_
