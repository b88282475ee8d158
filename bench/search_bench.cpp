// Searching 10,000 savegames by a text in their notes, against grep on a file with the same notes.
// usage: search_bench WORK-FOLDER
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench_run.h"
#include "measurement.h"
#include "savegames/search.h"
#include "scripted_program.h"

namespace {

using namespace vellumark;
using namespace vellumark::bench;

constexpr std::size_t kNoteSize = 200;
constexpr int kNotesForOneRareWord = 1000;

// The same notes every time. The rare word is written in another case than it is searched in.
std::vector<std::string> MakeNotes() {
  static constexpr std::array<std::string_view, 12> kWords = {"before", "the",  "second", "lever",
                                                              "with",   "full", "health", "jump",
                                                              "left",   "key",  "trap",   "door"};
  std::mt19937 numbers;
  std::vector<std::string> notes;
  for (int index = 1; index <= kSavegames; ++index) {
    std::string note;
    while (note.size() < kNoteSize) {
      note += kWords[numbers() % kWords.size()];
      note += ' ';
    }
    note.resize(kNoteSize);
    if (index % kNotesForOneRareWord == 0) note.replace(kNoteSize / 2, 11, " Crocodile ");
    notes.push_back(std::move(note));
  }
  return notes;
}

void WriteLines(const std::string& path, const std::vector<std::string>& lines) {
  std::ofstream file(path, std::ios::binary);
  for (const std::string& line : lines) file << line << '\n';
  file.close();
  Require(file.good(), "Cannot write " + path + ".");
}

class SearchedProgram {
 public:
  SearchedProgram(const std::string& folder, const std::vector<std::string>& notes) {
    static constexpr std::array<const char*, 6> kLevels = {
        "Angkor Wat",      "Race For The Iris",   "The Tomb Of Seth",
        "Burial Chambers", "Valley Of The Kings", "The Mastabas"};
    const std::string archive = CorePath(*scripted_.files, folder) + '\\' + kSubfolderBaseName;
    for (const std::string& note : notes) {
      const int index = static_cast<int>(program_.catalogue.entries.size());
      const std::string number = std::to_string(index % kSlotsInFolder);
      SavegameEntry entry;
      entry.LevelName = kLevels[static_cast<std::size_t>(index) % kLevels.size()];
      entry.NoteText = note;
      entry.NotePath = archive + std::to_string(index / kSlotsInFolder + 1);
      entry.SavegamePath = entry.ShotPath = entry.NotePath;
      entry.SavegamePath.append("\\savegame.").append(number);
      entry.NotePath.append("\\note").append(number).append(".txt");
      entry.ShotPath.append("\\shot").append(number).append(".jpg");
      program_.catalogue.entries.push_back(std::move(entry));
    }
    program_.preferences.SearchInLevelName = true;
    program_.preferences.SearchInNotes = true;
  }

  double Search(const std::string& searched, int found) {
    const SearchRequest request = {.text = scripted_.text->FromUtf8(searched)};
    scripted_.boxes.shown.clear();
    scripted_.windows.events.clear();
    const double begin = Now();
    RunSearch(program_, request);
    const double end = Now();
    Require(program_.search.FoundCount() == found, "The search has not found what there is.");
    return end - begin;
  }

 private:
  ScriptedProgram scripted_;
  Program& program_ = scripted_.program;
};

// Starts grep with its output going to `output`. The number of the process.
pid_t StartGrep(const std::string& searched, const std::string& file, int output) {
  std::vector<std::string> command = {"grep", "-aic", searched, file};
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t redirections;
  posix_spawn_file_actions_init(&redirections);
  posix_spawn_file_actions_adddup2(&redirections, output, STDOUT_FILENO);
  pid_t process = 0;
  const int error =
      posix_spawnp(&process, arguments[0], &redirections, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&redirections);
  Require(error == 0, "Cannot start grep.");
  return process;
}

// The count goes through a pipe: grep stops at the first line found when its output is discarded.
double TimeGrep(const std::string& searched, const std::string& file, int found) {
  std::array<int, 2> pipe_ends = {};
  Require(pipe2(pipe_ends.data(), O_CLOEXEC) == 0, "Cannot make a pipe.");
  const int reading = pipe_ends[0];
  const int writing = pipe_ends[1];

  const double begin = Now();
  const pid_t process = StartGrep(searched, file, writing);
  close(writing);
  std::string printed;
  std::array<char, 64> part = {};
  for (ssize_t size = 0; (size = read(reading, part.data(), part.size())) > 0;) {
    printed.append(part.data(), static_cast<std::size_t>(size));
  }
  const bool ended = waitpid(process, nullptr, 0) == process;
  const double end = Now();

  close(reading);
  Require(ended && printed == std::to_string(found) + '\n', "grep has not found what there is.");
  return end - begin;
}

double TimePlainLoop(const std::string& searched, const std::vector<std::string>& notes,
                     int found) {
  int count = 0;
  const double begin = Now();
  for (const std::string& note : notes) {
    if (strcasestr(note.c_str(), searched.c_str()) != nullptr) ++count;
  }
  const double end = Now();
  Require(count == found, "The plain loop has not found what there is.");
  return end - begin;
}

struct Baselines {
  std::string file;
  std::vector<std::string> notes;
};

void Compare(const std::string& name, SearchedProgram& program, const Baselines& baselines,
             const std::string& searched, int found) {
  const auto ours = [&] { return program.Search(searched, found); };
  PrintRatio(name + " / grep -aic",
             MedianOfFive([&] { return TimeGrep(searched, baselines.file, found); }, ours), 1.5);

  // For comparison only, without a limit and so not in the table.
  const Medians seconds =
      MedianOfFive([&] { return TimePlainLoop(searched, baselines.notes, found); }, ours);
  std::fprintf(stderr, "%s: %.2f ms; a plain loop of strcasestr over the same notes %.2f ms\n",
               name.c_str(), seconds.ours * 1000, seconds.baseline * 1000);
}

}  // namespace

int main(int argc, char** argv) {
  Require(argc == 2, "usage: search_bench WORK-FOLDER");
  const std::string folder = argv[1];
  const Baselines baselines = {.file = folder + "/notes.txt", .notes = MakeNotes()};
  WriteLines(baselines.file, baselines.notes);
  SearchedProgram program(folder, baselines.notes);

  Compare("search few", program, baselines, "crocodile", kSavegames / kNotesForOneRareWord);
  Compare("search none", program, baselines, "hieroglyph", 0);
}
