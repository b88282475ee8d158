// The list of 10,000 savegames, from the end of the scan to the first frame that shows it, against
// a bare list view that is given the same lines finished.
// usage: list_bench ARCHIVE EMPTY-FOLDER
#include <QListView>
#include <QStringListModel>
#include <string>
#include <utility>

#include "bench_run.h"
#include "filled_window.h"
#include "frame_clock.h"
#include "measurement.h"

namespace {

using namespace vellumark::bench;

class BareList {
 public:
  BareList(FrameClock& clock, QStringList lines, const QFont& font, QSize size)
      : clock_(clock), lines_(std::move(lines)) {
    list_.setModel(&model_);
    list_.setFont(font);
    list_.resize(size);
    list_.show();
  }

  double Fill() {
    model_.setStringList({});
    clock_.Settle();
    const double begin = Now();
    model_.setStringList(lines_);
    return clock_.WaitForFrame(list_.viewport()) - begin;
  }

 private:
  FrameClock& clock_;
  QStringList lines_;
  QStringListModel model_;
  QListView list_;
};

}  // namespace

int main(int argc, char** argv) {
  FrameClock clock(argc, argv);
  Require(argc == 3, "usage: list_bench ARCHIVE EMPTY-FOLDER");
  FilledWindow ours(clock, argv[1], argv[2]);
  ours.Fill();
  BareList bare(clock, ours.Lines(), ours.List()->font(), ours.Size());
  PrintRatio("list / bare QListView",
             MedianOfFive([&] { return bare.Fill(); }, [&] { return ours.Fill(); }), 1.2);
}
