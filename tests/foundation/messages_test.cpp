#include "foundation/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "foundation/caption_map.h"
#include "foundation/captions.h"
#include "foundation/failures.h"
#include "foundation/message_table.h"
#include "foundation/own_messages.h"
#include "support/expectations.h"
#include "support/scripted_desktop.h"

namespace vellumark {
namespace {

using testing::Contains;
TEST(LoadMessageTest, FillsPlaceholdersInOrderInTheRunningText) {
  EXPECT_EQ(LoadMessage(262, {3}), "Removed 3 savegames");
  EXPECT_EQ(LoadMessage(264),
            "Warning: No selected savegames.~1If you want start Tomb Raider with current savegames "
            "configuration, press [Start Tomb Raider] button");
  EXPECT_EQ(LoadMessage(198, {"a\r", "b\r", "c\r", "d\r"}),
            "Created new archive in a\rSubfolders name = b\rSavegames = c\rSubfolders = d\rEqual "
            "savegames erased = ");
  EXPECT_EQ(LoadMessage(103, {"unused"}), "Cancel");
}

TEST(LoadMessageTest, AValueTakesInTheValuesOfLaterPlaceholdersButNotOfItsOwn) {
  const std::string text = LoadMessage(310, {"C:\\PROGRA~2", "<2>"});
  EXPECT_TRUE(text.starts_with("In folder C:\\PROGRA<2> there are")) << text;
  EXPECT_TRUE(Contains(text, "any savegames.~2Import"));
  EXPECT_EQ(LoadMessage(262, {"~1"}), "Removed ~1 savegames");
  EXPECT_EQ(LoadMessage(kFolderNotOpened, {"C:\\PROGRA~2", "it is away"}),
            "The folder C:\\PROGRA~2 cannot be opened: it is away.");
}

TEST(MessageTableTest, IsSortedAndKeepsBlanksAndSpelling) {
  EXPECT_TRUE(std::ranges::is_sorted(MessageTable(), {}, &TableMessage::number));
  EXPECT_TRUE(std::ranges::is_sorted(OwnMessageTable(), {}, &TableMessage::number));
  EXPECT_EQ(MessageTable().size(), 221U);
  EXPECT_EQ(LoadMessage(226), "Start Tomb Raider ");
  EXPECT_EQ(LoadMessage(243), "Import  savegames from Tomb Raider folder");
}

TEST(OwnMessagesTest, EveryReasonHasWords) {
  std::set<std::string> reasons;
  for (int error = 0; error <= static_cast<int>(FileError::kInputOutput); ++error) {
    reasons.insert(ReasonFor(static_cast<FileError>(error)));
  }
  EXPECT_EQ(reasons.size(), static_cast<std::size_t>(FileError::kInputOutput) + 1);
  EXPECT_EQ(reasons.count(""), 0U);
}

TEST(OwnMessagesTest, LongListsOfFailuresSayHowManyAreLeftOut) {
  const std::vector<Failure> failures(240, {"C:\\x", FileError::kDiskFull});
  const std::string text = DescribeFailures(failures);
  EXPECT_TRUE(text.starts_with("\r\n\"C:\\x\": the disk is full")) << text;
  EXPECT_TRUE(text.ends_with("... and 40 more")) << text;
}

TEST(LoadCaptionsTest, EveryWindowHasATitleAndNoControlHasTwoCaptions) {
  testing::ScriptedWindows windows;
  LoadCaptions(windows);
  for (const auto& [event, window] : windows.events) {
    std::set<std::string> controls;
    for (const Caption& caption : CaptionsOf(window)) {
      EXPECT_TRUE(controls.insert(caption.control).second) << caption.control;
      EXPECT_FALSE(LoadMessage(caption.message).empty());
    }
    EXPECT_TRUE(controls.contains(""));
  }
}

}  // namespace
}  // namespace vellumark
