// A play of 15 archived savegames with notes and screen-shots, the backup of 15 own ones included,
// against copying the same files by rsync and by cp; each followed by a sync.
// usage: play_bench WORK-FOLDER
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "bench_run.h"
#include "game/play.h"
#include "measurement.h"
#include "savegames/slot_names.h"
#include "scripted_program.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;
namespace fs = std::filesystem;

constexpr int kPlayed = 15;
constexpr std::size_t kSavegameSize = 16384;
constexpr std::size_t kNoteSize = 100;
constexpr std::size_t kShotSize = 300000;

void WriteRandom(const fs::path& path, std::size_t size, std::mt19937& numbers) {
  std::string bytes(size, '\0');
  std::ranges::generate(bytes, [&] { return static_cast<char>(numbers() & 0x7F); });
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  file.close();
  Require(file.good(), "Cannot write " + path.string() + ".");
}

void MakeSlots(const fs::path& folder, std::mt19937& numbers) {
  fs::create_directories(folder);
  for (int slot = 0; slot < kPlayed; ++slot) {
    WriteRandom(folder / SavegameFileName(slot), kSavegameSize, numbers);
    WriteRandom(folder / NoteFileName(slot), kNoteSize, numbers);
    WriteRandom(folder / ShotFileName(slot), kShotSize, numbers);
  }
}

void Copy(const std::vector<std::string>& command) {
  WaitForSuccess(StartProgram(command), command[0]);
}

class PlayBench {
 public:
  explicit PlayBench(const fs::path& work) : work_(work) {
    std::mt19937 numbers;
    MakeSlots(work / "archive", numbers);
    MakeSlots(work / "own", numbers);
  }

  // The archive's files into the slots, and the slots' files into a backup.
  double TimeCopies(const std::vector<std::string>& copier) {
    const fs::path target = Fresh("copies");
    sync();
    const double begin = Now();
    for (const char* source : {"archive", "own"}) {
      std::vector<std::string> command = copier;
      command.push_back((work_ / source / "").string());
      command.push_back((target / source / "").string());
      Copy(command);
    }
    sync();
    return Now() - begin;
  }

  double TimePlay() {
    const fs::path played = Fresh("played");
    fs::copy(work_ / "own", played / "game");
    fs::create_directories(played / "temp");
    std::ofstream(played / "game/tomb4.exe") << "game";
    ScriptedProgram scripted;
    Program& program = scripted.program;
    Prepare(scripted, played);
    sync();

    const double begin = Now();
    PlaySelectedSavegames(program);
    sync();
    const double end = Now();
    Require(scripted.boxes.shown.empty(), scripted.boxes.AllTexts());
    Require(fs::file_size(played / "game/shot14.jpg") == kShotSize &&
                fs::file_size(played / "temp/shot14.jpg") == kShotSize &&
                program.play.placed.size() == 3 * kPlayed,
            "The savegames have not been played.");
    return end - begin;
  }

 private:
  fs::path Fresh(const char* name) const {
    fs::path folder = work_ / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
  }

  void Prepare(ScriptedProgram& scripted, const fs::path& played) const {
    Program& program = scripted.program;
    const std::string archive = CorePath(*scripted.files, work_ / "archive");
    const std::string game = CorePath(*scripted.files, played / "game");
    program.play.BackupFolder = CorePath(*scripted.files, played / "temp");
    program.paths.ProgramFolder = CorePath(*scripted.files, played);
    program.archive.settings = {.SubfolderBaseName = "Slot",
                                .MainFolder = archive,
                                .GameFolder = game,
                                .GameExecutable = game + "\\tomb4.exe",
                                .MaxSavegame = kPlayed};
    program.trust.programs = {program.archive.settings.GameExecutable};
    for (int slot = 0; slot < kPlayed; ++slot) {
      SavegameEntry entry;
      entry.FolderNumber = 1;
      entry.SavegamePath = archive + '\\' + SavegameFileName(slot);
      entry.NotePath = archive + '\\' + NoteFileName(slot);
      entry.ShotPath = archive + '\\' + ShotFileName(slot);
      program.selection.indices.push_back(static_cast<std::int16_t>(slot));
      program.catalogue.entries.push_back(std::move(entry));
    }
  }

  fs::path work_;
};

}  // namespace

int main(int argc, char** argv) {
  Require(argc == 2, "usage: play_bench WORK-FOLDER");
  PlayBench bench(fs::absolute(argv[1]));
  const auto play = [&] { return bench.TimePlay(); };
  const Medians cp = MedianOfFive(
      [&] {
        return bench.TimeCopies({"cp", "-a", "--reflink=never"});
      },
      play);
  const Medians rsync = MedianOfFive([&] { return bench.TimeCopies({"rsync", "-a"}); }, play);
  PrintRatio("play / faster of cp, rsync", cp.baseline < rsync.baseline ? cp : rsync, 0.9);
}
