// What many tests expect of a text or a disk.
#ifndef VELLUMARK_TESTS_SUPPORT_EXPECTATIONS_H_
#define VELLUMARK_TESTS_SUPPORT_EXPECTATIONS_H_

#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.h"

namespace vellumark::testing {

::testing::AssertionResult Contains(const std::string& text, const std::string& part);

// Every content is somewhere on the disk still, under whatever name.
void ExpectNothingLost(const Files& before, const TemporaryFolder& disk);

// Every file is as it was; others may have come.
void ExpectUntouched(const Files& before, const TemporaryFolder& disk);

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_EXPECTATIONS_H_
