// Copying on several threads, held against copying one file after the other.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "platform/disk_fixture.h"
#include "support/faulty_file_system.h"

namespace vellumark {
namespace {

using Groups = std::vector<CopyGroup>;

// Files of which some get in each other's way.
struct OddDisk {
  OddDisk() {
    for (int i = 0; i < 150; ++i) {
      const std::string number = std::to_string(i);
      disk.Write("From/s" + number, std::string(static_cast<std::size_t>(i) * 37, 's'));
      if (i % 3 != 0) disk.Write("From/n" + number, "note " + number);
    }
    disk.Write("From/large", std::string(700000, 'l'));
    disk.Write("From/exact", std::string(std::size_t{512} * 1024, 'e'));
    disk.Write("To/Taken", "old");
    disk.Write("To/~vm~ver", "of a run that was cut off");
    disk.MakeFolder("From/folder");
    disk.MakeFolder("~vm~New");
    disk.Write("~vm~New/taken", "old");
  }

  static CopyJob Job(const std::string& source, const std::string& target) {
    return {"T:\\from\\" + source, "T:\\" + target};
  }

  static Groups Jobs() {
    Groups groups;
    const auto add_many = [&groups](const std::string& folder) {
      for (int i = 0; i < 150; ++i) {
        const std::string number = std::to_string(i);
        groups.push_back({Job("s" + number, folder + "\\s" + number),
                          Job("n" + number, folder + "\\n" + number)});
      }
    };
    add_many("To");
    for (const CopyGroup& group :
         Groups{{Job("none", "To\\a1"), Job("s1", "To\\a2")},      // nothing to begin with
                {Job("s1", "To\\a2")},                             // left free by that
                {Job("s2", "To\\TAKEN"), Job("s3", "To\\a3")},     // the name is taken
                {Job("s4", "To\\b1")},                             // the same target thrice
                {Job("s5", "To\\b1"), Job("s6", "To\\b2")},        //
                {Job("s7", "To\\B1")},                             //
                {Job("none", "To\\b3")},                           // the first one fails
                {Job("s8", "To\\b3")},                             //
                {Job("s9", "To\\c1"), Job("s10", "To\\c1")},       // twice in one group
                {{"T:\\to\\c1", "T:\\To\\c2"}},                    // a target before is the source
                {{"T:\\to\\c2", "T:\\From\\back"}},                //
                {Job("back", "To\\c3")},                           //
                {Job("s11", "From\\s12")},                         // a source is the target
                {Job("s12", "From\\s12")},                         // itself
                {Job("s13", "To\\abcd_x"), Job("s14", "To\\e")},   // one temporary name for three
                {Job("s15", "To\\efgh_x"), Job("s16", "To\\f")},   //
                {Job("s17", "To\\~vm~_x"), Job("s18", "To\\g")},   //
                {Job("s19", "To\\savever")},                       // where a leftover lies
                {Job("folder", "To\\h1"), Job("s20", "To\\h2")},   //
                {Job("s21", "To\\s1\\in"), Job("s22", "To\\h2")},  // a file instead of a folder
                {Job("s23", "none\\in"), Job("s24", "To\\h3")},    //
                {Job("s25", "To\\aux.x"), Job("s26", "To\\h4")},   //
                {Job("large", "To\\large"), Job("exact", "To\\exact")},
                {Job("s27", "~vm~New\\TAKEN")},  // no detour there
                {}}) {
      groups.push_back(group);
    }
    add_many("~vm~New");
    add_many("~vm~new");  // all taken
    return groups;
  }

  testing::TemporaryFolder disk;
  CodePageText text{1252, "en", false};
  testing::TestDrives drives{text, {{'T', disk.path().string()}}};
  testing::FaultyFileSystem in_order{drives.files()};
};

std::vector<FileError> ErrorsOf(const Groups& groups) {
  std::vector<FileError> errors;
  for (const CopyGroup& group : groups) {
    for (const CopyJob& job : group) errors.push_back(job.error);
  }
  return errors;
}

TEST(BulkCopyTest, ManyThreadsCopyWhatOneCopies) {
  for (const bool held : {false, true}) {
    OddDisk one;
    OddDisk many;
    Groups expected = OddDisk::Jobs();
    Groups groups = expected;
    FileSystem& files = many.drives.files();
    {
      FileSystem& in_order = one.in_order;
      const auto hold_one = held ? in_order.HoldFolders() : nullptr;
      const auto hold_many = held ? files.HoldFolders() : nullptr;
      in_order.CopyAllVerified(expected, [](std::size_t) { return true; });
      std::size_t next = 0;
      files.CopyAllVerified(groups, [&, caller = std::this_thread::get_id()](std::size_t i) {
        EXPECT_EQ(i, next++);
        EXPECT_EQ(std::this_thread::get_id(), caller);
        return true;
      });
      EXPECT_EQ(next, groups.size());
    }
    EXPECT_EQ(ErrorsOf(groups), ErrorsOf(expected));
    EXPECT_TRUE(many.disk.AllFiles() == one.disk.AllFiles());
    EXPECT_EQ(many.disk.Read("To/b1"), std::string(std::size_t{4} * 37, 's'));
    EXPECT_EQ(many.disk.Read("To/c3"), std::string(std::size_t{9} * 37, 's'));
    EXPECT_EQ(many.disk.Read("~vm~New/taken"), "old");
    EXPECT_EQ(many.disk.Read("To/large").size(), 700000U);
  }
}

TEST(BulkCopyTest, ManyThreadsStopWhereOneStops) {
  OddDisk many;
  Groups groups = OddDisk::Jobs();
  many.drives.files().CopyAllVerified(groups, [](std::size_t i) { return i < 20; });
  for (std::size_t i = 0; i < groups.size(); ++i) {
    for (const CopyJob& job : groups[i]) EXPECT_EQ(job.error == FileError::kStopped, i >= 20);
  }
  EXPECT_TRUE(many.disk.Exists("To/s19"));
  EXPECT_FALSE(many.disk.Exists("To/s20"));
}

}  // namespace
}  // namespace vellumark
