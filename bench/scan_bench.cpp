// Building the catalogue of 10,000 savegames, against a bare loop in C over the same files and
// against rsync looking at the same tree.
// usage: scan_bench ARCHIVE EMPTY-FOLDER
//        scan_bench --once ARCHIVE EMPTY-FOLDER    only builds the catalogue
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

#include "archive/catalogue_builder.h"
#include "bare_scan.h"
#include "bench_run.h"
#include "measurement.h"
#include "platform/system_services.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;

class Scanner {
 public:
  Scanner(const std::string& archive, const std::string& empty_folder)
      : game_folder_(CorePath(*files_, empty_folder)) {
    settings_.MainFolder = CorePath(*files_, archive);
    settings_.SubfolderBaseName = kSubfolderBaseName;
    settings_.MaxSavegame = kSlotsInFolder - 1;
  }

  // The seconds that the catalogue takes.
  double Scan() {
    const double begin = Now();
    const ScannedCatalogue scanned =
        BuildCatalogue(*files_, *text_, {.settings = settings_, .game_folder = game_folder_});
    const double end = Now();
    Check(scanned);
    return end - begin;
  }

 private:
  static void Check(const ScannedCatalogue& scanned) {
    const auto& entries = scanned.catalogue.entries;
    Require(entries.size() == kSavegames && scanned.failures.empty(),
            "The catalogue is not whole.");
    Require(std::ranges::none_of(entries, [](const auto& entry) { return entry.NoteText.empty(); }),
            "The catalogue lacks notes.");
    Require(std::ranges::count(scanned.has_shot, true) == kSavegames / 2,
            "The catalogue lacks screen-shots.");
  }

  const std::unique_ptr<Text> text_ = MakeSystemText();
  const std::unique_ptr<FileSystem> files_ = MakeSystemFileSystem(*text_);
  ArchiveSettings settings_;
  std::string game_folder_;
};

double TimeBareScan(const std::string& archive) {
  const double begin = Now();
  const int savegames = BareScan(archive.c_str(), kSubfolderBaseName);
  const double end = Now();
  Require(savegames == kSavegames, "The bare loop did not read every savegame.");
  return end - begin;
}

// With the caches of the system emptied before.
template <typename Time>
double TimeCold(Time time) {
  DropCaches();
  return time();
}

double TimeProgram(const std::vector<std::string>& command) {
  const double begin = Now();
  WaitForSuccess(StartProgram(command), command[0]);
  return Now() - begin;
}

}  // namespace

int main(int argc, char** argv) {
  const bool once = argc == 4 && std::string_view(argv[1]) == "--once";
  Require(argc == 3 || once, "usage: scan_bench [--once] ARCHIVE EMPTY-FOLDER");
  const std::string archive = argv[argc - 2];
  const std::string empty_folder = argv[argc - 1];
  Scanner scanner(archive, empty_folder);
  if (once) {
    scanner.Scan();
    return 0;
  }

  const auto bare = [&] { return TimeBareScan(archive); };
  const auto ours = [&] { return scanner.Scan(); };
  PrintRatio("scan / bare loop in C", MedianOfFive(bare, ours), 0.60);

  // Whole processes both, as rsync cannot be had otherwise.
  const std::string self = std::filesystem::read_symlink("/proc/self/exe");
  const auto rsync = [&] {
    return TimeProgram({"rsync", "-an", archive + '/', empty_folder + '/'});
  };
  const auto whole = [&] { return TimeProgram({self, "--once", archive, empty_folder}); };
  PrintRatio("scan / rsync -an", MedianOfFive(rsync, whole), 1.0);

  if (!MayDropCaches()) {
    std::fprintf(stderr, "scan: the cold rows are left out: only root may empty the caches\n");
    return 0;
  }
  PrintRatio("scan, cold / bare loop in C",
             MedianOfFive([&] { return TimeCold(bare); }, [&] { return TimeCold(ours); }), 0.45);
  PrintRatio("scan, cold / rsync -an",
             MedianOfFive([&] { return TimeCold(rsync); }, [&] { return TimeCold(whole); }), 1.4);
}
