#include "platform/posix/name_variants.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/common/code_page_text.h"
#include "platform/common/host_names.h"
#include "support/temporary_folder.h"

namespace vellumark {
namespace {

namespace fs = std::filesystem;

// Longer than the tick of the clock that stamps folders.
void WaitForTheNextTick() { std::this_thread::sleep_for(std::chrono::milliseconds(20)); }

class VariantFinderTest : public ::testing::Test {
 protected:
  std::string First(const std::string& name) { return finder_.Find(path_, name).first; }
  std::size_t Count(const std::string& name) { return finder_.Find(path_, name).count; }

  testing::TemporaryFolder folder_;
  const std::string path_ = folder_.path().string();
  CodePageText text_{1252, "en", false};
  PathNames names_{text_};
  VariantFinder finder_{names_, -10};  // remembers every folder at once
};

TEST_F(VariantFinderTest, SeesEveryChangeOfAFolderThatItRemembers) {
  folder_.Write("Arc", "");
  EXPECT_EQ(First("arc"), "Arc");
  EXPECT_EQ(First("arc"), "Arc");

  WaitForTheNextTick();
  folder_.Write("ARC", "");
  EXPECT_EQ(First("arc"), "ARC");
  EXPECT_EQ(Count("arc"), 2U);

  WaitForTheNextTick();
  fs::remove(folder_ / "Arc");
  fs::rename(folder_ / "ARC", folder_ / "aRC");
  EXPECT_EQ(First("arc"), "aRC");
  EXPECT_EQ(Count("arc"), 1U);
}

TEST_F(VariantFinderTest, SeesAChangeBehindARestoredTime) {
  folder_.Write("Arc", "");
  const fs::file_time_type time = fs::last_write_time(path_);
  EXPECT_EQ(First("arc"), "Arc");

  WaitForTheNextTick();
  folder_.Write("ARC", "");
  fs::last_write_time(path_, time);
  EXPECT_EQ(Count("arc"), 2U);
}

TEST_F(VariantFinderTest, DoesNotTakeAnotherFolderForTheOneOfTheSameName) {
  folder_.Write("sub/Arc", "");
  EXPECT_EQ(finder_.Find(folder_ / "sub", "arc").first, "Arc");
  fs::rename(folder_ / "sub", folder_ / "old");
  EXPECT_NE(finder_.Find(folder_ / "sub", "arc").error, 0);
  folder_.Write("sub/aRc", "");
  EXPECT_EQ(finder_.Find(folder_ / "sub", "arc").first, "aRc");
}

// The folder of the process's open files changes without its times telling so.
TEST_F(VariantFinderTest, DoesNotTrustTheTimesOfAFolderThatChangedLately) {
  constexpr std::time_t kYears = 200'000'000;
  const std::string open_files = "/proc/self/fd";
  VariantFinder careful(names_, kYears);
  const int file = fcntl(0, F_DUPFD_CLOEXEC, 500);  // out of the way of the finder itself
  ASSERT_GE(file, 0);
  EXPECT_EQ(careful.Find(open_files, std::to_string(file)).count, 1U);
  close(file);
  EXPECT_EQ(careful.Find(open_files, std::to_string(file)).count, 0U);
}

}  // namespace
}  // namespace vellumark
