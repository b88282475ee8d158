// Scrolling one page in a list of 10,000 savegames with long notes, against the same with short
// ones.
// usage: notes_bench ARCHIVE ARCHIVE-WITH-LONG-NOTES EMPTY-FOLDER
#include "bench_run.h"
#include "filled_window.h"
#include "frame_clock.h"
#include "measurement.h"

int main(int argc, char** argv) {
  using namespace vellumark::bench;
  FrameClock clock(argc, argv);
  Require(argc == 4, "usage: notes_bench ARCHIVE ARCHIVE-WITH-LONG-NOTES EMPTY-FOLDER");
  FilledWindow with_short(clock, argv[1], argv[3]);
  FilledWindow with_long(clock, argv[2], argv[3]);
  with_short.Fill();
  with_long.Fill();
  PrintRatio("notes, page / short notes",
             MedianOfFive([&] { return with_short.ScrollPages(); },
                          [&] { return with_long.ScrollPages(); }),
             1.3);
}
