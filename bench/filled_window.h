// The real main window over scripted services, filled with an archive.
#ifndef VELLUMARK_BENCH_FILLED_WINDOW_H_
#define VELLUMARK_BENCH_FILLED_WINDOW_H_

#include <QScrollBar>
#include <memory>
#include <string>

#include "archive/scan.h"
#include "bench_run.h"
#include "frame_clock.h"
#include "measurement.h"
#include "platform/system_services.h"
#include "program.h"
#include "support/faulty_file_system.h"
#include "support/scripted_desktop.h"
#include "ui/principale.h"
#include "ui/savegame_list.h"

namespace vellumark::bench {

class FilledWindow {
 public:
  FilledWindow(FrameClock& clock, const std::string& archive, const std::string& empty_folder)
      : clock_(clock) {
    ArchiveSettings& settings = program_.archive.settings;
    settings.MainFolder = CorePath(files_, archive);
    settings.GameFolder = CorePath(files_, empty_folder);
    settings.SubfolderBaseName = kSubfolderBaseName;
    settings.MaxSavegame = kSlotsInFolder - 1;

    // The game's folder is the last that a scan opens, and nothing is in it.
    files_.meanwhile = [this](const std::string& operation) {
      if (operation == "OpenFolder") scan_ended_ = Now();
    };
    window_.Attach(program_);
    window_.show();
  }

  // From the end of the scan to the first frame that shows the list.
  double Fill() {
    clock_.Settle();
    ScanArchive(program_);
    const double shown = clock_.WaitForFrame(List()->viewport());
    Require(program_.catalogue.entries.size() == kSavegames && services_.boxes.shown.empty(),
            "The list is not whole.");
    return shown - scan_ended_;
  }

  SavegameList* List() { return window_.findChild<SavegameList*>(); }
  QSize Size() const { return window_.size(); }

  // The mean time of scrolling on by one page, over a good part of the list.
  double ScrollPages() {
    constexpr int kPages = 100;
    QScrollBar* bar = List()->verticalScrollBar();
    bar->setValue(0);
    clock_.Settle();
    const double begin = Now();
    for (int page = 0; page < kPages; ++page) {
      bar->setValue(bar->value() + bar->pageStep());
      clock_.WaitForFrame(List()->viewport());
    }
    return (Now() - begin) / kPages;
  }

  QStringList Lines() {
    QStringList lines;
    const QAbstractItemModel* model = List()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
      lines.append(model->index(row, 0).data().toString());
    }
    return lines;
  }

 private:
  FrameClock& clock_;
  std::unique_ptr<Text> text_ = MakeSystemText();
  std::unique_ptr<FileSystem> real_files_ = MakeSystemFileSystem(*text_);
  testing::FaultyFileSystem files_{*real_files_};
  testing::ScriptedServices services_;
  Principale window_{files_, *text_};
  Program program_ = services_.NewProgram(files_, *text_, window_, window_);
  double scan_ended_ = 0;
};

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_FILLED_WINDOW_H_
