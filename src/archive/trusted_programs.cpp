#include "archive/trusted_programs.h"

#include <algorithm>
#include <vector>

#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::size_t kMostBytes = 65536;
constexpr std::size_t kMostPrograms = 200;

std::string TrustFile(const Program& program) {
  return program.paths.ProgramFolder + LoadMessage(kTrustFile);
}

// A line of the file holds it as it is.
bool FitsLine(const std::string& path) {
  return !path.empty() && path.size() <= kTextFieldSize &&
         std::ranges::none_of(path, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

// None when the file is missing or is not as it was written.
std::vector<std::string> ReadTrustFile(Program& program) {
  const ReadResult read = program.files.Read(TrustFile(program), kMostBytes + 1);
  const std::string head = LoadMessage(kTrustHead) + kLineBreak;
  if (read.error != FileError::kNone || read.bytes.size() > kMostBytes ||
      !read.bytes.starts_with(head)) {
    return {};
  }
  std::vector<std::string> paths;
  for (std::size_t at = head.size(); at < read.bytes.size();) {
    const std::size_t end = read.bytes.find(kLineBreak, at);
    if (end == std::string::npos) return {};
    paths.push_back(read.bytes.substr(at, end - at));
    if (!FitsLine(paths.back())) return {};
    at = end + 2;
  }
  return paths;
}

bool Holds(const Program& program, const std::vector<std::string>& paths, const std::string& path) {
  return std::ranges::any_of(
      paths, [&](const std::string& known) { return SamePath(program.text, known, path); });
}

}  // namespace

bool IsTrustedProgram(Program& program, const std::string& path) {
  return Holds(program, program.trust.programs, path) ||
         Holds(program, ReadTrustFile(program), path);
}

void TrustProgram(Program& program, const std::string& path) {
  if (!Holds(program, program.trust.programs, path)) program.trust.programs.push_back(path);
  std::vector<std::string> paths = ReadTrustFile(program);
  if (!FitsLine(path) || Holds(program, paths, path)) return;
  paths.push_back(path);
  if (paths.size() > kMostPrograms) paths.erase(paths.begin());
  std::string bytes = LoadMessage(kTrustHead) + kLineBreak;
  for (const std::string& known : paths) bytes += known + kLineBreak;
  ReplaceFile(program.files, TrustFile(program), bytes);
}

}  // namespace vellumark
