// The program's peak memory with 10,000 savegames in its list, against the same with none; and with
// long notes, against the same with short ones.
// usage: memory_bench PROGRAM-FOLDER ARCHIVE ARCHIVE-WITH-LONG-NOTES EMPTY-FOLDER WORK-FOLDER
#include <unistd.h>

#include <filesystem>
#include <string>

#include "bench_run.h"
#include "measurement.h"
#include "program_copies.h"
#include "watched_program.h"

int main(int argc, char** argv) {
  using namespace vellumark::bench;
  Require(argc == 6,
          "usage: memory_bench PROGRAM-FOLDER ARCHIVE ARCHIVE-WITH-LONG-NOTES EMPTY-FOLDER "
          "WORK-FOLDER");
  const std::filesystem::path work = argv[5];
  const std::string full = WriteRecords(argv[2], work, "full");
  const std::string with_long = WriteRecords(argv[3], work, "long");
  const std::string empty = WriteRecords(argv[4], work, "empty");
  Display display;

  const auto peak = [&](const std::string& preferences) {
    const std::string program = CopyProgram(argv[1], work / "program");
    const WatchedProgram running(display, {program, preferences}, kMainTitle);
    sleep(1);  // what is put off until the window stands counts as well
    return running.PeakKilobytes() / 1024;
  };
  const auto print_more = [&](const std::string& name, const std::string& less,
                              const std::string& more, double most) {
    const Medians megabytes = MedianOfFive([&] { return peak(less); }, [&] { return peak(more); });
    const double difference = megabytes.ours - megabytes.baseline;
    PrintRow(name, Rounded(megabytes.ours, 1) + " MB", Rounded(megabytes.baseline, 1) + " MB",
             "+" + Rounded(difference, 1) + " MB", "+" + Rounded(most, 0) + " MB",
             difference <= most);
  };
  print_more("memory / empty list", empty, full, 25);
  print_more("memory / short notes", full, with_long, 16);
}
