#include "watched_program.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <sstream>

#include "bench_run.h"
#include "measurement.h"

namespace vellumark::bench {
namespace {

std::string ProcessFile(int process, const std::string& name) {
  std::ifstream file("/proc/" + std::to_string(process) + '/' + name);
  std::stringstream content;
  content << file.rdbuf();
  return content.str();
}

}  // namespace

WatchedProgram::WatchedProgram(Display& display, const std::vector<std::string>& command,
                               const std::string& title)
    : display_(display) {
  const double begin = Now();
  process_ = StartProgram(command);
  WaitForWindow(title);
  seconds_to_window_ = Now() - begin;
}

WatchedProgram::~WatchedProgram() {
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
  display_.WaitUntilGone(window_);
  while (display_.NextMapped()) {
  }
}

double WatchedProgram::PeakKilobytes() const {
  const std::string status = ProcessFile(process_, "status");
  const std::string label = "VmHWM:";
  const auto at = status.find(label);
  Require(at != std::string::npos, "The system does not tell the memory of a program.");
  return std::stod(status.substr(at + label.size()));
}

double WatchedProgram::ProcessorSeconds() const {
  // The name, in brackets, may hold blanks; the state is the first field behind it.
  const std::string stat = ProcessFile(process_, "stat");
  std::istringstream fields(stat.substr(stat.rfind(')') + 1));
  constexpr int kFieldsBefore = 11;
  std::string other;
  for (int i = 0; i < kFieldsBefore; ++i) fields >> other;
  double in_program = 0;
  double in_system = 0;
  fields >> in_program >> in_system;
  Require(!fields.fail(), "The system does not tell the processor time of a program.");
  return (in_program + in_system) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

void WatchedProgram::WaitForWindow(const std::string& title) {
  constexpr useconds_t kPause = 200;
  constexpr double kLongest = 30;
  const double begin = Now();
  while (window_ == 0 || !display_.IsPainted(window_)) {
    if (const auto mapped = display_.NextMapped(); mapped && window_ == 0) {
      window_ = *mapped;
      const std::string found = display_.Title(window_);
      Require(found == title, "Another window than the expected one has come up: " + found);
    }
    Require(waitpid(process_, nullptr, WNOHANG) == 0, "The program has ended before it showed.");
    Require(Now() - begin < kLongest, "No window has been painted.");
    usleep(kPause);
  }
}

}  // namespace vellumark::bench
