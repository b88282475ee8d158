// The two record files, byte for byte.
#include <gtest/gtest.h>

#include "archive/archive_file.h"
#include "foundation/fixed_size_record.h"
#include "foundation/preferences_file.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

using testing::TestWorld;

TEST(PreferencesRecordTest, HasItsFieldsAtTheirOffsets) {
  Preferences preferences;
  preferences.LastArchive = std::string(300, 'a');
  preferences.reserved = 0xBEEF;
  preferences.ShotFolder = "C:\\Shots";
  preferences.SearchInNotes = false;
  preferences.SoundEffects = true;
  const std::string bytes = EncodePreferences(preferences);

  ASSERT_EQ(bytes.size(), 524U);
  EXPECT_EQ(bytes.substr(0, 256), std::string(256, 'a'));
  EXPECT_EQ(bytes.substr(256, 2), "\xEF\xBE");
  EXPECT_EQ(bytes.substr(258, 256), "C:\\Shots" + std::string(248, ' '));
  EXPECT_EQ(bytes.substr(514), std::string("\0\0\xFF\xFF\0\0\xFF\xFF\xFF\xFF", 10));

  Preferences back;
  DecodePreferences(bytes, back);
  preferences.LastArchive.resize(256);
  EXPECT_EQ(back, preferences);
}

TEST(PreferencesRecordTest, KeepsDefaultsForFieldsThatAreCutOff) {
  Preferences written;
  written.LastArchive = "C:\\a.vmk";
  written.ShotFolder = "C:\\Shots";
  written.SearchInNotes = false;
  Preferences read;
  read.ShotFolder = "default";
  DecodePreferences(EncodePreferences(written).substr(0, 515), read);

  EXPECT_EQ(read.LastArchive, "C:\\a.vmk");
  EXPECT_EQ(read.ShotFolder, "C:\\Shots");
  EXPECT_TRUE(read.SearchInNotes) << "its second byte is missing";
  EXPECT_TRUE(read.AutoCapture);
}

TEST(ArchiveRecordTest, HasItsFieldsAtTheirOffsets) {
  const ArchiveSettings settings{"Slot", "C:\\Arc", "C:\\Game", "C:\\Game\\tomb4.exe", 15, 0x10203};
  const std::string bytes = EncodeArchive(settings);

  ASSERT_EQ(bytes.size(), 1030U);
  EXPECT_EQ(bytes.substr(0, 6), "Slot  ");
  EXPECT_EQ(bytes.substr(256, 8), "C:\\Arc  ");
  EXPECT_EQ(bytes.substr(512, 9), "C:\\Game  ");
  EXPECT_EQ(bytes.substr(768, 7), "C:\\Game");
  EXPECT_EQ(bytes.substr(1024), std::string("\x0F\0\x03\x02\x01\0", 6));
  EXPECT_EQ(DecodeArchive(bytes), settings);
}

TEST(ArchiveRecordTest, TellsWholeFilesFromShortAndForeignOnes) {
  TestWorld world;
  world.WriteArchiveFile();
  EXPECT_EQ(ReadArchiveFile(world.files, "T:\\Archive.vmk").state, ArchiveReadState::kWhole);

  world.disk.Write("short.vmk", world.disk.Read("Archive.vmk").substr(0, 600));
  const ArchiveRead part = ReadArchiveFile(world.files, "T:\\short.vmk");
  EXPECT_EQ(part.state, ArchiveReadState::kInPart);
  EXPECT_EQ(part.settings.MainFolder, "T:\\Archive");
  EXPECT_EQ(part.settings.GameFolder, "");
  EXPECT_EQ(part.settings.MaxSavegame, 0);

  world.disk.Write("save.vmk", testing::SavegameBytes("Tower", 3) + std::string(2000, '\1'));
  EXPECT_EQ(ReadArchiveFile(world.files, "T:\\save.vmk").state, ArchiveReadState::kNotArchive);
  EXPECT_EQ(ReadArchiveFile(world.files, "T:\\none.vmk").error, FileError::kNotFound);
}

TEST(WriteRecordFileTest, KeepsWhatLiesBeyondTheRecord) {
  TestWorld world;
  world.disk.Write("r", std::string(1000, 'x'));
  EXPECT_EQ(WriteRecordFile(world.files, "T:\\r", std::string(524, 'n')), FileError::kNone);
  EXPECT_EQ(world.disk.Read("r"), std::string(524, 'n') + std::string(476, 'x'));

  EXPECT_EQ(WriteRecordFile(world.files, "T:\\new", "record"), FileError::kNone);
  EXPECT_EQ(world.disk.Read("new"), "record");
}

TEST(KeepBackupOfTest, NeverReplacesAnOlderBackup) {
  TestWorld world;
  world.disk.Write("r", "one");
  EXPECT_EQ(KeepBackupOf(world.files, "T:\\r"), "T:\\r.bak");
  EXPECT_EQ(KeepBackupOf(world.files, "T:\\r"), "T:\\r.bak") << "it holds just that";
  world.disk.Write("r", "two");
  EXPECT_EQ(KeepBackupOf(world.files, "T:\\r"), "T:\\r.bak2");
  EXPECT_EQ(world.disk.Read("r.bak"), "one");
  EXPECT_EQ(world.disk.Read("r.bak2"), "two");
}

}  // namespace
}  // namespace vellumark
