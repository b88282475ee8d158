#include "maintenance/folder_lines.h"

#include <algorithm>
#include <utility>

#include "foundation/fixed_size_record.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "platform/text.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::size_t kRootSize = 3;

struct SortedLine {
  std::string key;
  FolderLine line;
};

// A number goes in without its leading zeros and behind its length, so that 9 sorts before 10.
std::string SortKey(const Text& text, std::string_view name) {
  constexpr std::string_view kDigits = "0123456789";
  const std::string folded = text.LowerPath(name);
  std::string key(1, name.starts_with('.') ? '\2' : '\1');
  for (std::size_t i = 0; i < folded.size();) {
    if (kDigits.find(folded[i]) == std::string_view::npos) {
      key += folded[i++];
      continue;
    }
    const std::size_t end = std::min(folded.find_first_not_of(kDigits, i), folded.size());
    const std::size_t first = std::min(folded.find_first_not_of('0', i), end);
    key += static_cast<char>(end - first);
    key.append(folded, first, end - first);
    i = end;
  }
  return key;
}

FolderLine WayDownLine(const Text& text, const std::string& path, std::size_t name_at, int depth) {
  return {.shown = text.ToUtf8(std::string_view(path).substr(name_at)),
          .path = path,
          .refusal = {},
          .depth = depth};
}

std::vector<FolderLine> WayDownTo(const Text& text, const std::string& folder) {
  std::vector<FolderLine> lines{WayDownLine(text, folder.substr(0, kRootSize), 0, 0)};
  for (std::size_t at = kRootSize; at < folder.size();) {
    const std::size_t end = std::min(folder.find('\\', at), folder.size());
    lines.push_back(WayDownLine(text, folder.substr(0, end), at, static_cast<int>(lines.size())));
    at = end + 1;
  }
  return lines;
}

int RefusalOf(const FolderEntry& entry, const std::string& path) {
  if (entry.ambiguous) return kFolderRefusedTwice;
  return path.size() > kTextFieldSize ? kFolderRefusedLength : 0;
}

SortedLine LineOf(const Text& text, const std::string& parent, const FolderEntry& entry,
                  int depth) {
  SortedLine sorted{SortKey(text, entry.name), {}};
  sorted.line.shown = text.ToUtf8(entry.name);
  sorted.line.path = parent + entry.name;
  sorted.line.depth = depth;
  const int refusal = RefusalOf(entry, sorted.line.path);
  if (refusal != 0) sorted.line.refusal = LoadMessage(refusal);
  return sorted;
}

SortedLine LineOf(const Text& text, const UnusableName& name, int depth) {
  SortedLine sorted{SortKey(text, text.FromUtf8(name.shown).bytes), {}};
  sorted.line.shown = name.shown;
  sorted.line.depth = depth;
  const bool characters = name.reason == UnusableName::Reason::kNotInCodePage;
  sorted.line.refusal = LoadMessage(characters ? kFolderRefusedCharacters : kFolderRefusedName);
  return sorted;
}

}  // namespace

std::string AsShownFolder(std::string path) {
  if (path.size() == 2 && path[1] == ':') path += '\\';
  return path;
}

FolderLines ReadFolderLines(Program& program, const std::string& folder) {
  FolderLines result{
      .error = FileError::kNone, .folder = folder, .lines = WayDownTo(program.text, folder)};
  result.current = result.lines.size() - 1;

  const std::string parent = folder.ends_with('\\') ? folder : folder + '\\';
  const Listing listing = program.files.List(parent + '*');
  result.error = listing.error;
  if (result.error != FileError::kNone) return result;

  const auto depth = static_cast<int>(result.lines.size());
  std::vector<SortedLine> subfolders;
  for (const FolderEntry& entry : listing.entries) {
    if (entry.folder) subfolders.push_back(LineOf(program.text, parent, entry, depth));
  }
  for (const UnusableName& name : listing.unusable) {
    if (name.folder) subfolders.push_back(LineOf(program.text, name, depth));
  }
  std::ranges::sort(subfolders, {}, &SortedLine::key);
  result.lines.reserve(result.lines.size() + subfolders.size());
  for (SortedLine& sorted : subfolders) result.lines.push_back(std::move(sorted.line));
  return result;
}

}  // namespace vellumark
