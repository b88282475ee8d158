#include "program_copies.h"

#include <fstream>

#include "archive/archive_file.h"
#include "bench_run.h"
#include "foundation/fixed_size_record.h"
#include "foundation/preferences_file.h"
#include "foundation/preferences_state.h"
#include "platform/system_services.h"

namespace vellumark::bench {
namespace {

namespace fs = std::filesystem;

void Write(const fs::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  file.close();
  Require(file.good(), "Cannot write " + path.string() + ".");
}

}  // namespace

std::string CopyProgram(const fs::path& program_folder, const fs::path& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder);
  fs::copy(program_folder, folder, fs::copy_options::recursive);
  fs::remove(folder / "manager.prf");
  return fs::absolute(folder / "vellumark").string();
}

std::string WriteRecords(const fs::path& archive, const fs::path& folder, const std::string& name) {
  const auto text = MakeSystemText();
  const auto files = MakeSystemFileSystem(*text);
  fs::create_directories(folder);
  const fs::path archive_file = folder / (name + ".vmk");
  const fs::path preferences_file = folder / (name + ".prf");

  ArchiveSettings settings;
  settings.MainFolder = CorePath(*files, archive);
  settings.SubfolderBaseName = kSubfolderBaseName;
  settings.GameFolder = CorePath(*files, folder / "no game");
  settings.MaxSavegame = kSlotsInFolder - 1;
  Require(settings.MainFolder.size() <= kTextFieldSize, "The path of the archive is too long.");
  Write(archive_file, EncodeArchive(settings));

  Preferences preferences;
  preferences.LastArchive = CorePath(*files, archive_file);
  preferences.ShotFolder = settings.GameFolder;
  Write(preferences_file, EncodePreferences(preferences));
  return fs::absolute(preferences_file).string();
}

}  // namespace vellumark::bench
