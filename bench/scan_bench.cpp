// Building the catalogue of 10,000 savegames, against a bare loop in C over the same files and
// against rsync looking at the same tree.
// usage: scan_bench ARCHIVE EMPTY-FOLDER
//        scan_bench --once ARCHIVE EMPTY-FOLDER    only builds the catalogue
#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include "archive/catalogue_builder.h"
#include "bare_scan.h"
#include "bench_run.h"
#include "measured.h"
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

  PrintRatio("scan / bare loop in C",
             MedianOfFive([&] { return TimeBareScan(archive); }, [&] { return scanner.Scan(); }),
             1.25);

  // Whole processes both, as rsync cannot be had otherwise.
  const std::string self = std::filesystem::read_symlink("/proc/self/exe");
  PrintRatio("scan / rsync -an",
             MedianOfFive(
                 [&] {
                   return TimeProgram({"rsync", "-an", archive + '/', empty_folder + '/'});
                 },
                 [&] {
                   return TimeProgram({self, "--once", archive, empty_folder});
                 }),
             1.0);
}
