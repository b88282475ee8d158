#include "bench_run.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace vellumark::bench {
namespace {

constexpr const char* kDropCaches = "/proc/sys/vm/drop_caches";

}  // namespace

void Fail(const std::string& why) {
  std::fprintf(stderr, "%s\n", why.c_str());
  std::exit(1);
}

void Require(bool holds, const std::string& otherwise) {
  if (!holds) Fail(otherwise);
}

std::string CorePath(FileSystem& files, const std::filesystem::path& host_path) {
  const std::string absolute = std::filesystem::absolute(host_path).lexically_normal().string();
  const auto path = files.FromHostPath(absolute);
  if (!path) Fail("The path " + absolute + " is no Windows path.");
  return *path;
}

int StartProgram(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t redirections;
  posix_spawn_file_actions_init(&redirections);
  posix_spawn_file_actions_adddup2(&redirections, STDERR_FILENO, STDOUT_FILENO);
  pid_t process = 0;
  const int error =
      posix_spawnp(&process, arguments[0], &redirections, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&redirections);
  Require(error == 0, "Cannot start " + command[0] + ".");
  return process;
}

void WaitForSuccess(int process, const std::string& name) {
  int status = 0;
  const bool ended = waitpid(process, &status, 0) == process;
  Require(ended && WIFEXITED(status) && WEXITSTATUS(status) == 0, name + " has failed.");
}

bool MayDropCaches() { return access(kDropCaches, W_OK) == 0; }

void DropCaches() {
  sync();
  std::ofstream file(kDropCaches);
  file << 3;
  file.close();
  Require(file.good(), "Cannot empty the caches.");
}

}  // namespace vellumark::bench
