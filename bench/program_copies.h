// Copies of the program to run, and the records that make it open an archive.
#ifndef VELLUMARK_BENCH_PROGRAM_COPIES_H_
#define VELLUMARK_BENCH_PROGRAM_COPIES_H_

#include <filesystem>
#include <string>

namespace vellumark::bench {

constexpr const char* kMainTitle = " Vellumark - savegame archive";

// Makes `folder` a fresh copy of the program's folder, as it is before the first run. Answers the
// path of the program in it.
std::string CopyProgram(const std::filesystem::path& program_folder,
                        const std::filesystem::path& folder);

// Writes an archive file for the savegames in `archive` and a preferences file that names it, both
// into `folder` under the given name. There is no game beside them. Answers the path of the
// preferences file.
std::string WriteRecords(const std::filesystem::path& archive, const std::filesystem::path& folder,
                         const std::string& name);

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_PROGRAM_COPIES_H_
