// The processor time of the program while it is shown, has the focus and is left alone, with 10,000
// savegames in its list.
// usage: idle_bench PROGRAM-FOLDER ARCHIVE WORK-FOLDER
#include <unistd.h>

#include <filesystem>
#include <string>

#include "bench_run.h"
#include "measurement.h"
#include "program_copies.h"
#include "watched_program.h"

int main(int argc, char** argv) {
  using namespace vellumark::bench;
  Require(argc == 4, "usage: idle_bench PROGRAM-FOLDER ARCHIVE WORK-FOLDER");
  const std::filesystem::path work = argv[3];
  const std::string preferences = WriteRecords(argv[2], work, "full");
  const std::string program = CopyProgram(argv[1], work / "program");
  Display display;
  WatchedProgram running(display, {program, preferences}, kMainTitle);
  running.Focus();
  sleep(3);

  constexpr unsigned kSeconds = 60;
  constexpr double kMostPercent = 0.2;
  const double before = running.ProcessorSeconds();
  sleep(kSeconds);
  const double used = running.ProcessorSeconds() - before;
  const double percent = used / kSeconds * 100;
  PrintRow("idle / one core for 60 s", Rounded(used * 1000, 0) + " ms", Rounded(kSeconds, 0) + " s",
           Rounded(percent, 2) + " %", Rounded(kMostPercent, 1) + " %", percent <= kMostPercent);
}
