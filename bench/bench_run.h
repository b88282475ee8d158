// What every benchmark's program does alike: its failures, and its files.
#ifndef VELLUMARK_BENCH_BENCH_RUN_H_
#define VELLUMARK_BENCH_BENCH_RUN_H_

#include <filesystem>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vellumark::bench {

// Prints why there is no figure, and ends the program with 1.
[[noreturn]] void Fail(const std::string& why);

// Fails unless `holds`: a figure for work that was not done is worth nothing.
void Require(bool holds, const std::string& otherwise);

// The archive that the benchmarks read.
constexpr int kFolders = 625;
constexpr int kSlotsInFolder = 16;
constexpr int kSavegames = kFolders * kSlotsInFolder;
constexpr const char* kSubfolderBaseName = "Slot";

// A host path, relative or absolute, in the core's form.
std::string CorePath(FileSystem& files, const std::filesystem::path& host_path);

// Starts a program, its output going to the error output. The number of the process.
int StartProgram(const std::vector<std::string>& command);

// Fails unless the process ends well.
void WaitForSuccess(int process, const std::string& name);

// Whether this user may empty the system's caches of files and folders.
bool MayDropCaches();

// Empties them, as they are after the system has started.
void DropCaches();

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_BENCH_RUN_H_
