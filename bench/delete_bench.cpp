// Deleting 10,000 savegames with their notes and screen-shots, against `xargs rm -f` of the same
// files, and comparing their slot numbers, against reading these once.
// usage: delete_bench ARCHIVE WORK-FOLDER
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "archive/catalogue_builder.h"
#include "bench_run.h"
#include "maintenance/copy_move.h"
#include "maintenance/delete_selected.h"
#include "measurement.h"
#include "scripted_program.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;
namespace fs = std::filesystem;

class DeletingProgram {
 public:
  explicit DeletingProgram(const std::string& archive) {
    program_.archive.settings.MainFolder = CorePath(*scripted_.files, archive);
    program_.archive.settings.SubfolderBaseName = kSubfolderBaseName;
    program_.archive.settings.MaxSavegame = kSlotsInFolder - 1;
    program_.catalogue = BuildCatalogue(*scripted_.files, *scripted_.text,
                                        {.settings = program_.archive.settings, .game_folder = {}})
                             .catalogue;
    Require(program_.catalogue.entries.size() == kSavegames, "The catalogue is not whole.");
    for (int index = 0; index < kSavegames; ++index) {
      program_.selection.indices.push_back(static_cast<std::int16_t>(index));
    }
    scripted_.boxes.answers = {BoxAnswer::kYes};
  }

  // The paths on the disk of all files of the catalogue, one a line.
  void WriteFileNames(const std::string& list) {
    std::ofstream names(list, std::ios::binary);
    for (const SavegameEntry& entry : program_.catalogue.entries) {
      for (const std::string& path : {entry.SavegamePath, entry.NotePath, entry.ShotPath}) {
        names << scripted_.files->HostPath(path) << '\n';
      }
    }
    names.close();
    Require(names.good(), "Cannot write " + list + ".");
  }

  // The seconds from the answer to the question to the report.
  double Delete() {
    double begin = 0;
    double end = 0;
    scripted_.boxes.while_waiting = [&] {
      if (scripted_.boxes.shown.size() == 1) begin = Now();
      if (scripted_.boxes.shown.size() == 2) end = Now();
    };
    scripted_.boxes.shown.clear();
    program_.archive.settings = {};  // no scan behind the report
    DeleteSelectedSavegames(program_);
    Require(scripted_.boxes.shown.size() >= 2 &&
                scripted_.boxes.shown[1].text == "Removed 10000 savegames",
            "The savegames were not deleted.");
    return end - begin;
  }

  std::vector<SavegameFiles> Selected() const {
    return FilesOf(program_.catalogue, program_.selection.indices);
  }

 private:
  ScriptedProgram scripted_;
  Program& program_ = scripted_.program;
};

// The archive's files with little in them, safe on the disk, so that neither run pays for writing
// them.
void MakeCopy(const std::string& archive, const std::string& copy) {
  fs::remove_all(copy);
  for (const auto& folder : fs::directory_iterator(archive)) {
    const fs::path made = copy / folder.path().filename();
    fs::create_directories(made);
    for (const auto& file : fs::directory_iterator(folder)) {
      std::ofstream stream(made / file.path().filename(), std::ios::binary);
      stream << std::string(100, 'x');
      Require(stream.flush().good(), "Cannot write to " + made.string() + ".");
    }
  }
  sync();
}

void RequireNoFiles(const std::string& folder) {
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    Require(entry.is_directory(), "There are files left in " + folder + ".");
  }
}

double TimeSync() {
  const double begin = Now();
  sync();
  return Now() - begin;
}

void CompareDeleting(const std::string& archive, const std::string& work) {
  const std::string copy = work + "/to-delete";
  const std::string list = work + "/files";
  MakeCopy(archive, copy);
  DeletingProgram(copy).WriteFileNames(list);

  const auto by_rm = [&] {
    MakeCopy(archive, copy);
    const double begin = Now();
    WaitForSuccess(StartProgram({"xargs", "-a", list, "rm", "-f"}), "rm");
    const double seconds = Now() - begin + TimeSync();
    RequireNoFiles(copy);
    return seconds;
  };
  const auto by_us = [&] {
    MakeCopy(archive, copy);
    const double seconds = DeletingProgram(copy).Delete() + TimeSync();
    RequireNoFiles(copy);
    return seconds;
  };
  PrintRatio("delete / xargs rm -f", MedianOfFive(by_rm, by_us), 1.3);
  fs::remove_all(copy);
}

void CompareSlotNumbers(const std::string& archive) {
  constexpr int kRounds = 200;  // one round is too short for a clock
  std::vector<SavegameFiles> savegames = DeletingProgram(archive).Selected();
  std::int16_t slot = 0;
  for (SavegameFiles& savegame : savegames) savegame.slot = slot++;

  volatile int read = 0;
  const auto reading = [&] {
    const double begin = Now();
    for (int round = 0; round < kRounds; ++round) {
      int sum = 0;
      for (const SavegameFiles& savegame : savegames) sum += savegame.slot;
      read = sum;
    }
    return (Now() - begin) / kRounds;
  };
  const auto comparing = [&] {
    const double begin = Now();
    for (int round = 0; round < kRounds; ++round) {
      Require(!SelectionHasSameSlot(savegames), "There are no equal slot numbers.");
    }
    return (Now() - begin) / kRounds;
  };
  const Medians seconds = MedianOfFive(reading, comparing);
  PrintRow("delete slots / reading", Rounded(seconds.ours * 1e6, 1) + " us",
           Rounded(seconds.baseline * 1e6, 1) + " us", Rounded(seconds.ours / seconds.baseline, 2),
           "10.00", seconds.ours <= 10 * seconds.baseline);
}

}  // namespace

int main(int argc, char** argv) {
  Require(argc == 3, "usage: delete_bench ARCHIVE WORK-FOLDER");
  CompareDeleting(argv[1], argv[2]);
  CompareSlotNumbers(argv[1]);
}
