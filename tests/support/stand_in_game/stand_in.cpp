#include "stand_in.h"

#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>

#include "pictures.h"
#include "slot_files.h"

namespace vellumark::stand_in {
namespace {

constexpr char kLogFile[] = "stand-in.log";
constexpr char kCommandFile[] = "stand-in.commands";

std::string ContentOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

StandIn::StandIn(Window& window)
    : window_(window), log_(kLogFile, std::ios::binary | std::ios::app) {
  const std::ofstream empty(kCommandFile, std::ios::trunc);
  Write("start");
  Write("folder " + std::filesystem::current_path().string());
  LookAtSlots();
}

void StandIn::Write(const std::string& line) { log_ << line + "\n" << std::flush; }

void StandIn::LookAtSlots() {
  std::set<std::string> lines;
  for (const auto& file : std::filesystem::directory_iterator(".")) {
    const std::string name = file.path().filename().string();
    if (name.rfind("savegame.", 0) == 0) lines.insert("slot " + name + " " + DescribeSlot(name));
  }
  for (const std::string& line : lines) Write(line);
}

void StandIn::ObeyNewCommands() {
  const std::string commands = ContentOf(kCommandFile);
  std::size_t end = 0;
  // A line without its end is still being written.
  while ((end = commands.find('\n', commands_read_)) != std::string::npos) {
    const std::string command = commands.substr(commands_read_, end - commands_read_);
    commands_read_ = end + 1;
    Write((Obey(command) ? "done " : "not done ") + command);
  }
}

bool StandIn::Obey(const std::string& command) {
  std::istringstream words(command);
  std::string verb;
  words >> verb;
  if (verb == "save") {
    int slot = 0;
    int counter = 0;
    std::string level;
    if (!(words >> slot >> counter >> std::ws && std::getline(words, level))) return false;
    return WriteSlot(slot, counter, level);
  }

  if (verb == "print-screen") {
    window_.PutOnClipboard(PictureAsBmp());
  } else if (verb == "minimize") {
    window_.Minimize();
  } else if (verb == "quit") {
    window_.Quit();
  } else {
    return false;
  }
  return true;
}

void StandIn::KeyPressed(const std::string& name) { Write("key " + name); }

void StandIn::FocusChanged(bool has_focus) { Write(has_focus ? "focus in" : "focus out"); }

}  // namespace vellumark::stand_in
