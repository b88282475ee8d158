// The list of 10,000 savegames, from the end of the scan to the first frame that shows it, against
// a bare list view that is given the same lines finished.
// usage: list_bench ARCHIVE EMPTY-FOLDER
#include <QListView>
#include <QStringListModel>
#include <string>
#include <utility>

#include "archive/scan.h"
#include "bench_run.h"
#include "frame_clock.h"
#include "measured.h"
#include "platform/system_services.h"
#include "program.h"
#include "support/faulty_file_system.h"
#include "support/scripted_desktop.h"
#include "ui/principale.h"
#include "ui/savegame_list.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;

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

  double Fill() {
    clock_.Settle();
    ScanArchive(program_);
    const double shown = clock_.WaitForFrame(List()->viewport());
    Require(program_.catalogue.entries.size() == kSavegames && boxes_.shown.empty(),
            "The list is not whole.");
    return shown - scan_ended_;
  }

  SavegameList* List() { return window_.findChild<SavegameList*>(); }
  QSize Size() const { return window_.size(); }

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
  vellumark::testing::FaultyFileSystem files_{*real_files_};
  vellumark::testing::ScriptedMessageBoxes boxes_;
  vellumark::testing::ScriptedFileDialogs dialogs_;
  vellumark::testing::RecordedSounds sounds_;
  vellumark::testing::RecordedShell shell_;
  vellumark::testing::ScriptedDesktopWindows desktop_;
  vellumark::testing::ScriptedClipboard clipboard_;
  Principale window_{files_, *text_};
  Program program_{.files = files_,
                   .text = *text_,
                   .boxes = boxes_,
                   .file_dialogs = dialogs_,
                   .sounds = sounds_,
                   .shell = shell_,
                   .desktop = desktop_,
                   .clipboard = clipboard_,
                   .windows = window_,
                   .main_window = window_};
  double scan_ended_ = 0;
};

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
