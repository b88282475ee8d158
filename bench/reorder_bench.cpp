// Reordering 10,000 savegames into a new archive, against the faster of cp and rsync copying the
// same files; and the sort alone, against a plain exchange sort of the counters.
// usage: reorder_bench ARCHIVE WORK-FOLDER
//        reorder_bench --clones ARCHIVE WORK-FOLDER    only the copies, on a disk that clones files
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "archive/catalogue_builder.h"
#include "bench_run.h"
#include "maintenance/reorder.h"
#include "maintenance/reorder_plan.h"
#include "measurement.h"
#include "scripted_program.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;
namespace fs = std::filesystem;

constexpr int kFilesOfSavegames = 2 * kSavegames;

void RunProgram(const std::vector<std::string>& command) {
  WaitForSuccess(StartProgram(command), command[0]);
}

// The archive with every second note left out, so that half of the savegames have one.
void MakeSource(const fs::path& archive, const fs::path& source) {
  RunProgram({"cp", "-a", archive.string(), source.string()});
  for (int k = 1; k <= kFolders; ++k) {
    for (int slot = 1; slot < kSlotsInFolder; slot += 2) {
      fs::remove(source / (kSubfolderBaseName + std::to_string(k)) /
                 ("note" + std::to_string(slot) + ".txt"));
    }
  }
}

int FilesBelow(const fs::path& folder) {
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) ++files;
  }
  return files;
}

// Times copies of the files, each into a folder of its own. These go only when all is done: ext4
// passes over the places of files deleted a short time ago one by one, and whoever copies next
// would pay for that.
class CopyTimer {
 public:
  explicit CopyTimer(fs::path work) : work_(std::move(work)) {}
  CopyTimer(const CopyTimer&) = delete;
  CopyTimer& operator=(const CopyTimer&) = delete;
  ~CopyTimer() {
    for (; copies_ > 0; --copies_) fs::remove_all(Target());
  }

  // The seconds that `copy(target)` takes to fill an empty folder. Nothing waits to be written when
  // it begins.
  template <typename Copy>
  double Time(Copy copy) {
    ++copies_;
    const fs::path target = Target();
    fs::create_directory(target);
    RunProgram({"sync"});
    const double begin = Now();
    copy(target);
    const double end = Now();
    Require(FilesBelow(target) == kFilesOfSavegames, "Not every file has been copied.");
    return end - begin;
  }

 private:
  fs::path Target() const { return work_ / ("target" + std::to_string(copies_)); }

  fs::path work_;
  int copies_ = 0;
};

class ReorderingProgram {
 public:
  ReorderingProgram(const fs::path& source, const fs::path& game)
      : source_(CorePath(*scripted_.files, source)) {
    program_.archive.settings.GameFolder = CorePath(*scripted_.files, game);
  }

  // Makes the source the current archive again.
  void Prepare() {
    ArchiveSettings& settings = program_.archive.settings;
    settings.MainFolder = source_;
    settings.SubfolderBaseName = kSubfolderBaseName;
    settings.MaxSavegame = kSlotsInFolder - 1;
    program_.catalogue = BuildCatalogue(*scripted_.files, *scripted_.text,
                                        {.settings = settings, .game_folder = settings.GameFolder})
                             .catalogue;
    Require(program_.catalogue.entries.size() == kSavegames, "The catalogue is not whole.");
    scripted_.boxes.shown.clear();
  }

  void Reorder(const fs::path& target) {
    const ReorderSettings settings{.BasePath = CorePath(*scripted_.files, target),
                                   .FolderName = "Part",
                                   .MaxSlot = kSlotsInFolder - 1};
    const bool done = ReorderArchive(program_, settings, [](int) {});
    Require(done && scripted_.boxes.shown.size() == 1, "The archive has not been reordered.");
    Require(program_.catalogue.entries.size() == kSavegames, "The new archive is not whole.");
  }

 private:
  ScriptedProgram scripted_;
  Program& program_ = scripted_.program;
  std::string source_;
};

void CompareCopying(const fs::path& archive, const fs::path& work, const std::string& name,
                    double limit) {
  const fs::path source = work / "source";
  const fs::path game = work / "game";
  MakeSource(archive, source);
  fs::create_directory(game);

  CopyTimer timer(work);
  const auto copy_by = [&](std::vector<std::string> command) {
    command.push_back(source.string() + "/.");
    return [&timer, command] {
      return timer.Time([command](const fs::path& target) mutable {
        command.push_back(target.string());
        RunProgram(command);
        RunProgram({"sync"});
      });
    };
  };
  const auto cp = copy_by({"cp", "-a", "--reflink=never"});
  const auto rsync = copy_by({"rsync", "-a"});
  const Medians copiers = MedianOfFive(cp, rsync);
  std::fprintf(stderr, "reorder: cp %.0f ms, rsync %.0f ms\n", copiers.baseline * 1000,
               copiers.ours * 1000);

  ReorderingProgram program(source, game);
  const auto ours = [&] {
    program.Prepare();
    return timer.Time([&program](const fs::path& target) { program.Reorder(target); });
  };
  const bool cp_is_faster = copiers.baseline < copiers.ours;
  PrintRatio(name + (cp_is_faster ? " / cp -a, sync" : " / rsync -a, sync"),
             cp_is_faster ? MedianOfFive(cp, ours) : MedianOfFive(rsync, ours), limit);
}

// All counters falling, all levels the same.
std::vector<std::int16_t> FallingCounters() {
  std::vector<std::int16_t> counters;
  for (int i = 0; i < kSavegames; ++i) counters.push_back(static_cast<std::int16_t>(-i));
  return counters;
}

void CompareSorting() {
  const std::vector<std::int16_t> counters = FallingCounters();
  const std::string level = "Valley Of The Kings";
  std::vector<std::int16_t> sorted;
  const auto plain = [&] {
    sorted = counters;
    const double begin = Now();
    for (std::size_t i = 0; i + 1 < sorted.size(); ++i) {
      for (std::size_t j = i + 1; j < sorted.size(); ++j) {
        if (sorted[i] > sorted[j]) std::swap(sorted[i], sorted[j]);
      }
    }
    return Now() - begin;
  };

  Catalogue catalogue;
  for (const std::int16_t counter : counters) {
    SavegameEntry& entry = catalogue.entries.emplace_back();
    entry.LevelName = level;
    entry.InternalCounter = counter;
    entry.FolderNumber = 1;
  }
  ReorderPlan plan;
  const auto ours = [&] {
    const double begin = Now();
    plan = PlanReorder(catalogue, {.MaxSlot = 15, .RemoveEquals = true});
    return Now() - begin;
  };
  const Medians seconds = MedianOfFive(plain, ours);
  std::vector<std::int16_t> ordered;
  for (const std::size_t index : plan.order) ordered.push_back(counters[index]);
  Require(ordered == sorted && plan.equals == 0, "The two sorts differ.");
  PrintRatio("reorder, sort / plain sort", seconds, 1.2);
}

}  // namespace

int main(int argc, char** argv) {
  const bool clones = argc == 4 && std::string_view(argv[1]) == "--clones";
  Require(argc == 3 || clones, "usage: reorder_bench [--clones] ARCHIVE WORK-FOLDER");
  const fs::path archive = argv[argc - 2];
  const fs::path work = argv[argc - 1];
  if (clones) {
    CompareCopying(archive, work, "reorder, clones", 0.4);
    return 0;
  }
  CompareSorting();
  CompareCopying(archive, work, "reorder", 0.8);
}
