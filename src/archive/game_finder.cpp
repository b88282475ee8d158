#include "archive/game_finder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <set>
#include <string_view>

#include "archive/steam_libraries.h"
#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "platform/file_system.h"
#include "platform/text.h"

namespace vellumark {
namespace {

constexpr std::size_t kLongestList = std::size_t{1} << 20U;
constexpr std::size_t kMostFiles = 64;
constexpr std::size_t kMostFolders = 200;
constexpr std::int16_t kUsualHighestSlot = 15;
constexpr std::array<std::string_view, 4> kWords = {"tomb raider", "tombraider", "last revelation",
                                                    "trlr"};
constexpr std::array<std::string_view, 6> kMakers = {
    "Core Design", "Eidos Interactive", "Eidos", "Square Enix", "GOG Games", "GOG Galaxy\\Games"};
constexpr std::array<std::string_view, 4> kProgramFolders = {"Program Files (x86)", "Program Files",
                                                             "GOG Games", "Games"};

std::string Below(const std::string& folder, std::string_view name) {
  return InFolder(folder, name);
}

// The value of `name: value` in a line of a list of settings; empty for any other line.
std::string ValueIn(std::string_view line, std::string_view name) {
  const std::size_t begin = std::min(line.find_first_not_of(" \t"), line.size());
  line.remove_prefix(begin);
  if (!line.starts_with(name) || !line.substr(name.size()).starts_with(": ")) return {};
  std::string value = Trimmed(line.substr(name.size() + 2));
  if (!value.empty() && value.back() == '\r') value.pop_back();
  const bool quoted = value.size() > 1 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// The disk until the time is up; from then on nothing is there. The search has no other way to it,
// so it is over after the look that was under way.
class TimedDisk {
 public:
  TimedDisk(FileSystem& files, std::chrono::milliseconds limit)
      : files_(files), end_(std::chrono::steady_clock::now() + limit) {}

  // The core's path of a folder that a host path names.
  std::optional<std::string> FromHost(const std::string& path) const {
    return HasTime() ? files_.FromHostPath(path) : std::nullopt;
  }
  // A folder by its drive's letter where it is the root of a drive.
  std::string ByLetter(const std::string& folder) const {
    return FromHost(HasTime() ? files_.HostPath(folder) : std::string()).value_or(folder);
  }
  std::vector<FolderEntry> Entries(const std::string& pattern) const {
    return HasTime() ? files_.List(pattern).entries : std::vector<FolderEntry>();
  }
  // Nothing of a file that is longer than a list is.
  std::string ReadList(const std::string& file) const {
    if (!HasTime()) return {};
    const ReadResult read = files_.Read(file, kLongestList + 1);
    const bool whole = read.error == FileError::kNone && read.bytes.size() <= kLongestList;
    return whole ? read.bytes : std::string();
  }
  bool HasFile(const std::string& path) const { return HasTime() && FileExists(files_, path); }
  bool HasFolder(const std::string& path) const { return HasTime() && FolderExists(files_, path); }
  std::int16_t HighestSlot(const std::string& folder) const {
    return HasTime() ? HighestSlotIn(files_, folder) : kUsualHighestSlot;
  }

 private:
  bool HasTime() const { return std::chrono::steady_clock::now() < end_; }

  FileSystem& files_;
  const std::chrono::steady_clock::time_point end_;
};

class Search {
 public:
  Search(FileSystem& files, const Text& text, const GamePlaces& places,
         std::chrono::milliseconds limit)
      : disk_(files, limit), text_(text), places_(places) {}

  std::vector<FoundGame> Run() {
    for (const std::string& folder : places_.game_folders) LookInHost(folder);
    for (const std::string& steam : places_.steam_folders) SearchSteam(steam);
    for (const std::string& folder : places_.program_folders) {
      if (const auto path = FromHost(folder)) LookInPrograms(*path);
    }
    for (const std::string& prefix : places_.wine_prefixes) {
      if (const auto path = FromHost(prefix)) LookInPrefix(*path);
    }
    for (const std::string& folder : places_.heroic_folders) SearchHeroic(folder);
    for (const std::string& folder : places_.lutris_folders) SearchLutris(folder);
    // The games' own prefixes are many, and the game is rarely in one of another's.
    for (const std::string& library : libraries_) {
      const std::string tools = Below(library, "steamapps\\compatdata");
      for (const std::string& prefix : FoldersIn(tools, kMostFiles)) {
        LookInPrefix(Below(tools, prefix + "\\pfx"));
      }
    }
    return std::move(games_);
  }

 private:
  // Nothing for what is not absolute or leads to another computer.
  std::optional<std::string> FromHost(const std::string& path) const {
    const bool rooted = !path.empty() && (path[0] == '/' || path.substr(1, 1) == ":");
    return rooted && !path.starts_with("//") ? disk_.FromHost(path) : std::nullopt;
  }

  std::vector<std::string> FoldersIn(const std::string& folder, std::size_t most) const {
    std::vector<std::string> names;
    for (const FolderEntry& entry : disk_.Entries(Below(folder, "*"))) {
      if (entry.folder && !entry.ambiguous && names.size() < most) names.push_back(entry.name);
    }
    return names;
  }

  bool SpeaksOfGame(const std::string& name) const {
    const std::string folded = text_.Fold(name);
    return std::ranges::any_of(kWords, [&](std::string_view word) {
      return folded.find(text_.Fold(std::string(word))) != std::string::npos;
    });
  }

  bool IsKnown(const std::string& folder) const {
    return std::ranges::any_of(
        games_, [&](const FoundGame& game) { return SamePath(text_, game.folder, folder); });
  }

  void LookIn(const std::string& folder) {
    const std::string executable = Below(folder, LoadMessage(331));
    if (executable.size() > kTextFieldSize || IsKnown(folder) || !disk_.HasFile(executable)) return;
    games_.push_back({folder, executable, disk_.HighestSlot(folder)});
  }

  void LookInHost(const std::string& folder) {
    if (const auto path = FromHost(folder)) LookIn(*path);
  }

  void LookInGames(const std::string& folder) {
    for (const std::string& name : FoldersIn(folder, kMostFolders)) {
      if (SpeaksOfGame(name)) LookIn(Below(folder, name));
    }
  }

  void LookInPrograms(const std::string& folder) {
    LookInGames(folder);
    for (const std::string_view maker : kMakers) {
      const std::string made = Below(folder, maker);
      for (const std::string& name : FoldersIn(made, kMostFolders)) LookIn(Below(made, name));
    }
  }

  void LookInPrefix(const std::string& prefix) {
    if (!prefixes_.insert(text_.LowerPath(prefix)).second) return;
    const std::string drive = Below(prefix, "drive_c");
    if (!disk_.HasFolder(drive)) return;
    // By the letter where this prefix is the one in use.
    const std::string root = disk_.ByLetter(drive);
    LookInGames(root);
    for (const std::string_view name : kProgramFolders) LookInPrograms(Below(root, name));
  }

  void SearchSteam(const std::string& folder) {
    const auto steam = FromHost(folder);
    if (!steam) return;
    SearchLibrary(*steam);
    const auto listed =
        ReadSteamLibraries(disk_.ReadList(Below(*steam, "steamapps\\libraryfolders.vdf")));
    if (!listed) return;
    for (const std::string& library : *listed) {
      if (const auto path = FromHost(library)) SearchLibrary(*path);
    }
  }

  void SearchLibrary(const std::string& library) {
    const bool known = std::ranges::any_of(
        libraries_, [&](const std::string& other) { return SamePath(text_, other, library); });
    if (known) return;
    libraries_.push_back(library);
    LookInGames(Below(library, "steamapps\\common"));
  }

  void LookInListed(const std::string& file, std::string_view name) {
    const std::string json = disk_.ReadList(file);
    if (json.empty() || !places_.json_texts) return;
    for (const std::string& folder : places_.json_texts(json, name)) LookInHost(folder);
  }

  void SearchHeroic(const std::string& folder) {
    const auto heroic = FromHost(folder);
    if (!heroic) return;
    LookInListed(Below(*heroic, "gog_store\\installed.json"), "install_path");
    LookInListed(Below(*heroic, "legendaryConfig\\legendary\\installed.json"), "install_path");
    LookInListed(Below(*heroic, "nile_config\\nile\\installed.json"), "path");
    LookInListed(Below(*heroic, "sideload_apps\\library.json"), "folder_name");
    for (const std::string& file : FilesIn(Below(*heroic, "GamesConfig"), "*.json")) {
      const std::string json = disk_.ReadList(file);
      if (json.empty() || !places_.json_texts) continue;
      for (const std::string& prefix : places_.json_texts(json, "winePrefix")) {
        const auto path = FromHost(prefix);
        if (!path) continue;
        LookInPrefix(*path);
        LookInPrefix(Below(*path, "pfx"));
      }
    }
  }

  void SearchLutris(const std::string& folder) {
    const auto lutris = FromHost(folder);
    if (!lutris) return;
    for (const std::string& file : FilesIn(*lutris, "*.yml")) {
      const std::string settings = disk_.ReadList(file);
      for (std::string_view rest = settings; !rest.empty();) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (const auto program = FromHost(ValueIn(line, "exe"))) LookIn(FolderOf(*program));
        if (const auto prefix = FromHost(ValueIn(line, "prefix"))) LookInPrefix(*prefix);
      }
    }
  }

  std::vector<std::string> FilesIn(const std::string& folder, const char* pattern) const {
    std::vector<std::string> paths;
    for (const FolderEntry& entry : disk_.Entries(Below(folder, pattern))) {
      if (entry.plain && paths.size() < kMostFiles) paths.push_back(Below(folder, entry.name));
    }
    return paths;
  }

  const TimedDisk disk_;
  const Text& text_;
  const GamePlaces& places_;
  std::vector<FoundGame> games_;
  std::vector<std::string> libraries_;
  std::set<std::string> prefixes_;
};

}  // namespace

std::vector<FoundGame> FindGames(FileSystem& files, const Text& text, const GamePlaces& places,
                                 std::chrono::milliseconds limit) {
  return Search(files, text, places, limit).Run();
}

std::int16_t HighestSlotIn(FileSystem& files, const std::string& folder) {
  constexpr std::int16_t kFewer = 10;
  constexpr int kMost = 99;
  constexpr std::string_view kName = "savegame.";
  std::set<int> slots;
  for (const FolderEntry& entry : files.List(Below(folder, "savegame.*")).entries) {
    if (!entry.plain || entry.name.size() <= kName.size()) continue;
    const char* const end = entry.name.data() + entry.name.size();
    int number = -1;
    const auto read = std::from_chars(entry.name.data() + kName.size(), end, number);
    if (read.ptr == end && number >= 0 && number <= kMost) slots.insert(number);
  }
  if (slots.empty()) return kUsualHighestSlot;
  const int highest = *slots.rbegin();
  if (highest == kFewer && slots.size() == std::size_t{kFewer} + 1) return kFewer;
  return std::max(kUsualHighestSlot, static_cast<std::int16_t>(highest));
}

}  // namespace vellumark
