// A first start, from the start of the process to the painted window, against a program that shows
// an empty main window, and one that shows the same controls with nothing behind them.
// usage: start_bench PROGRAM-FOLDER BARE-WINDOW PLAIN-WINDOW WORK-FOLDER
#include <unistd.h>

#include <filesystem>
#include <string>

#include "bench_run.h"
#include "measurement.h"
#include "program_copies.h"
#include "watched_program.h"

int main(int argc, char** argv) {
  using namespace vellumark::bench;
  namespace fs = std::filesystem;
  Require(argc == 5, "usage: start_bench PROGRAM-FOLDER BARE-WINDOW PLAIN-WINDOW WORK-FOLDER");
  const fs::path program_folder = argv[1];
  const fs::path bare_window = argv[2];
  const fs::path plain_window = argv[3];
  const fs::path work = argv[4];
  Display display;

  // All are copied anew before each start: what a fresh copy costs, it costs each. The copying
  // itself is given the time to come to rest.
  constexpr useconds_t kPause = 100'000;
  const auto start_other = [&](const fs::path& program, const std::string& title) {
    const fs::path copy = work / program.filename();
    fs::create_directories(work);
    fs::copy_file(program, copy, fs::copy_options::overwrite_existing);
    usleep(kPause);
    return WatchedProgram(display, {fs::absolute(copy)}, title).seconds_to_window();
  };
  const auto start_ours = [&] {
    const std::string program = CopyProgram(program_folder, work / "program");
    usleep(kPause);
    return WatchedProgram(display, {program}, kMainTitle).seconds_to_window();
  };
  const auto start_bare = [&] { return start_other(bare_window, "Bare window"); };
  const auto start_plain = [&] { return start_other(plain_window, "Plain window"); };
  PrintRatio("start / bare QMainWindow", MedianOfFive(start_bare, start_ours), 1.3);
  PrintRatio("start / same controls", MedianOfFive(start_plain, start_ours), 1.1);
}
