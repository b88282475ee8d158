#include "support/open_world.h"

#include <gtest/gtest.h>

#include <utility>

#include "archive/scan.h"

namespace vellumark::testing {

OpenWorld::OpenWorld(std::map<char, std::string> more_drives) : TestWorld(std::move(more_drives)) {
  program.archive.settings = WorldSettings();
  program.preferences.SoundEffects = true;
}

void OpenWorld::Rescan() {
  ScanArchive(program);
  program.archive.ArchiveChanged = false;
  Forget();
  files.Reset();
}

void OpenWorld::Forget() {
  boxes.shown.clear();
  sounds.played.clear();
  windows.events.clear();
}

std::string OpenWorld::TakeRefusal() {
  EXPECT_EQ(boxes.shown.size(), 1U) << boxes.AllTexts();
  EXPECT_EQ(sounds.Take(), "s5|");
  if (boxes.shown.empty()) return {};
  const ScriptedMessageBoxes::Shown box = boxes.shown.front();
  EXPECT_EQ(box.icon, BoxIcon::kCritical) << box.text;
  boxes.shown.clear();
  return box.text;
}

}  // namespace vellumark::testing
