// The program's peak memory with 10,000 savegames in its list, against the same with none.
// usage: memory_bench PROGRAM-FOLDER ARCHIVE EMPTY-FOLDER WORK-FOLDER
#include <unistd.h>

#include <filesystem>
#include <string>

#include "bench_run.h"
#include "measured.h"
#include "program_world.h"
#include "watched_program.h"

int main(int argc, char** argv) {
  using namespace vellumark::bench;
  Require(argc == 5, "usage: memory_bench PROGRAM-FOLDER ARCHIVE EMPTY-FOLDER WORK-FOLDER");
  const std::filesystem::path work = argv[4];
  const std::string full = WriteRecords(argv[2], work, "full");
  const std::string empty = WriteRecords(argv[3], work, "empty");
  Display display;

  const auto peak = [&](const std::string& preferences) {
    const std::string program = CopyProgram(argv[1], work / "program");
    const WatchedProgram running(display, {program, preferences}, kMainTitle);
    sleep(1);  // what is put off until the window stands counts as well
    return running.PeakKilobytes() / 1024;
  };
  const Medians megabytes = MedianOfFive([&] { return peak(empty); }, [&] { return peak(full); });

  constexpr double kMostMore = 25;
  const double more = megabytes.ours - megabytes.baseline;
  PrintRow("memory / empty list", Rounded(megabytes.ours, 1) + " MB",
           Rounded(megabytes.baseline, 1) + " MB", "+" + Rounded(more, 1) + " MB",
           "+" + Rounded(kMostMore, 0) + " MB", more <= kMostMore);
}
