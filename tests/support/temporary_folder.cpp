#include "support/temporary_folder.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "support/host_paths.h"
#include "support/test_drives.h"

namespace vellumark::testing {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() : path_(FromUtf8(MakeTemporaryFolder())) {}

TemporaryFolder::~TemporaryFolder() { RemoveTemporaryFolder(ToUtf8(path_)); }

std::string TemporaryFolder::operator/(const std::string& name) const {
  return ToUtf8(path_ / FromUtf8(name));
}

void TemporaryFolder::Write(const std::string& file, std::string_view bytes) const {
  fs::create_directories((path_ / FromUtf8(file)).parent_path());
  std::ofstream stream(path_ / FromUtf8(file), std::ios::binary | std::ios::trunc);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream.flush()) throw std::runtime_error("cannot write " + file);
}

std::string TemporaryFolder::Read(const std::string& file) const {
  std::ifstream stream(path_ / FromUtf8(file), std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return bytes.str();
}

bool TemporaryFolder::Exists(const std::string& file) const {
  return fs::exists(fs::symlink_status(path_ / FromUtf8(file)));
}

void TemporaryFolder::MakeFolder(const std::string& folder) const {
  fs::create_directories(path_ / FromUtf8(folder));
}

void TemporaryFolder::MakeReadOnly(const std::string& file) const {
  fs::permissions(path_ / FromUtf8(file),
                  fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
}

void TemporaryFolder::Remove(const std::vector<std::string>& names) const {
  for (const std::string& name : names) {
    const fs::path path = path_ / FromUtf8(name);
    if (fs::is_regular_file(fs::symlink_status(path))) {
      // Windows deletes nothing that is read-only.
      fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
    }
    if (fs::remove_all(path) == 0) throw std::runtime_error("no " + name);
  }
}

std::vector<std::string> TemporaryFolder::Names(const std::string& folder) const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(path_ / FromUtf8(folder))) {
    names.push_back(ToUtf8(entry.path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string TemporaryFolder::Listed(const std::string& folder) const {
  std::string list;
  for (const std::string& name : Names(folder)) list += name + '|';
  return list;
}

Files TemporaryFolder::AllFiles(const std::string& folder) const {
  Files files;
  const fs::path start = path_ / FromUtf8(folder);
  for (const auto& entry : fs::recursive_directory_iterator(start)) {
    if (!entry.is_regular_file()) continue;
    files[ToUtf8(entry.path().lexically_relative(start))] =
        Read(ToUtf8(entry.path().lexically_relative(path_)));
  }
  return files;
}

}  // namespace vellumark::testing
