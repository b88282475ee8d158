// The pictures of 10,000 savegames with screen-shots of 640 by 480 in the real main window:
// switching to them, a step of the wheel, their memory, and their processor time when left alone;
// against a bare program that decodes the pictures of the first page. usage: pictures_bench ARCHIVE
// EMPTY-FOLDER
#include <sys/resource.h>

#include <QAction>
#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QScrollBar>
#include <QThread>
#include <QThreadPool>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "archive/scan.h"
#include "bench_run.h"
#include "frame_clock.h"
#include "measurement.h"
#include "platform/system_services.h"
#include "program.h"
#include "support/scripted_desktop.h"
#include "ui/archive_views.h"
#include "ui/picture_queue.h"
#include "ui/pictures_view.h"
#include "ui/principale.h"
#include "ui/savegame_list.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;

constexpr double kMilli = 1000;

void Print(const std::string& name, double ours, const std::string& unit, double limit,
           const std::string& baseline = "-") {
  PrintRow(name, Rounded(ours, 2) + unit, baseline, "-", Rounded(limit, 2) + unit, ours <= limit);
}

double PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

class Window {
 public:
  Window(FrameClock& clock, const std::string& archive, const std::string& empty_folder)
      : clock_(clock) {
    ArchiveSettings& settings = program_.archive.settings;
    settings.MainFolder = CorePath(*files_, archive);
    settings.GameFolder = CorePath(*files_, empty_folder);
    settings.SubfolderBaseName = kSubfolderBaseName;
    settings.MaxSavegame = kSlotsInFolder - 1;
    window_.Attach(program_);
    window_.show();
    ScanArchive(program_);
    Require(program_.catalogue.entries.size() == kSavegames && services_.boxes.shown.empty(),
            "The list is not whole.");
    clock_.WaitForFrame(Views().List().viewport());
    clock_.Settle();
  }

  ArchiveViews& Views() { return *window_.findChild<ArchiveViews*>(); }
  PicturesView& Pictures() { return Views().Pictures(); }

  // The host paths of the pictures in sight; empty while one of them has not come.
  std::vector<std::string> Seen() {
    std::vector<std::string> paths;
    const QRect seen = Pictures().viewport()->rect();
    const QAbstractItemModel* model = Pictures().model();
    for (int row = 0; row < model->rowCount(); ++row) {
      const QRect tile = Pictures().visualRect(model->index(row, 0));
      if (!tile.intersects(seen)) {
        if (!paths.empty()) break;
        continue;
      }
      const std::string& path = program_.catalogue.entries[static_cast<std::size_t>(row)].ShotPath;
      const SmallPicture* picture = Pictures().Queue().Find(path);
      if (picture == nullptr) return {};
      Require(!picture->image.isNull(), "A picture is not shown.");
      paths.push_back(files_->HostPath(path));
    }
    return paths;
  }

  struct Switched {
    double frame = 0;  // seconds until the view is painted
    double page = 0;   // seconds until all its pictures are
  };

  // Switches to the pictures as after a scan, when none of them is known.
  Switched Switch() {
    Views().Choose(ArchiveView::kList);
    Pictures().reset();
    clock_.Settle();
    const double begin = Now();
    Views().Choose(ArchiveView::kPictures);
    Switched switched;
    switched.frame = clock_.WaitForFrame(Pictures().viewport()) - begin;
    while (Seen().empty()) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      Require(Now() - begin < 30, "The pictures do not come.");
    }
    Pictures().viewport()->repaint();
    switched.page = Now() - begin;
    return switched;
  }

  // Seconds that the window's thread takes for one step of the wheel, painting included.
  double WheelStep() {
    QWheelEvent event(QPointF(100, 100), QPointF(100, 100), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    const double begin = Now();
    QCoreApplication::sendEvent(Pictures().viewport(), &event);
    return clock_.WaitForFrame(Pictures().viewport()) - begin;
  }

  void ScrollThrough() {
    QScrollBar* bar = Pictures().verticalScrollBar();
    for (int at = 0; at < bar->maximum(); at += 4 * bar->pageStep()) {
      bar->setValue(at);
      QCoreApplication::processEvents();
      // Here and there the pictures have the time to come.
      if (at / bar->pageStep() % 40 == 0) WaitForPage();
    }
    bar->setValue(bar->maximum());
    WaitForPage();
  }

 private:
  void WaitForPage() {
    const double begin = Now();
    while (Seen().empty()) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
      Require(Now() - begin < 30, "The pictures do not come.");
    }
  }

  FrameClock& clock_;
  std::unique_ptr<Text> text_ = MakeSystemText();
  std::unique_ptr<FileSystem> files_ = MakeSystemFileSystem(*text_);
  vellumark::testing::ScriptedServices services_;
  Principale window_{*files_, *text_};
  Program program_ = services_.NewProgram(*files_, *text_, window_, window_);
};

// Decodes files to the size of a tile on all processors, and keeps nothing.
double DecodeBare(const std::vector<std::string>& paths, QSize size) {
  const double begin = Now();
  QThreadPool threads;
  threads.setMaxThreadCount(QThread::idealThreadCount());
  for (const std::string& path : paths) {
    threads.start([path, size] {
      QImageReader reader(QString::fromStdString(path));
      reader.setScaledSize(size);
      Require(!reader.read().isNull(), "A picture cannot be decoded.");
    });
  }
  threads.waitForDone();
  return Now() - begin;
}

}  // namespace

int main(int argc, char** argv) {
  FrameClock clock(argc, argv);
  Require(argc == 3, "usage: pictures_bench ARCHIVE EMPTY-FOLDER");
  Window window(clock, argv[1], argv[2]);
  const double list_peak = PeakMegabytes();

  window.Switch();
  const std::vector<std::string> first_page = window.Seen();
  std::vector<double> frames;
  const Medians page = MedianOfFive(
      [&] {
        return DecodeBare(first_page, {192, 144});
      },
      [&] {
        const auto switched = window.Switch();
        frames.push_back(switched.frame);
        return switched.page;
      });
  std::ranges::sort(frames);
  Print("pictures, frame", frames[frames.size() / 2] * kMilli, " ms", 50);
  PrintRatio("pictures, page / bare", page, 1.3);

  std::vector<double> steps;
  for (int i = 0; i < 100; ++i) steps.push_back(window.WheelStep());
  std::ranges::sort(steps);
  Print("pictures, wheel step", steps[steps.size() / 2] * kMilli, " ms", 8);

  window.ScrollThrough();
  PrintRow("pictures, memory / list", Rounded(PeakMegabytes(), 1) + " MB",
           Rounded(list_peak, 1) + " MB",
           std::string("+").append(Rounded(PeakMegabytes() - list_peak, 1)).append(" MB"), "+64 MB",
           PeakMegabytes() - list_peak <= 64);

  clock.Settle();
  constexpr double kSeconds = 10;
  const double before = ProcessorSeconds();
  const double begin = Now();
  while (Now() - begin < kSeconds) {
    QTimer::singleShot(1000, [] {});
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  const double percent = (ProcessorSeconds() - before) / kSeconds * 100;
  Print("pictures, idle", percent, " %", 0.2);
}
