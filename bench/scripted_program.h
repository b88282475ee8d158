// A program on the real file system whose windows and services are scripted: they answer no
// question by themselves and open nothing.
#ifndef VELLUMARK_BENCH_SCRIPTED_PROGRAM_H_
#define VELLUMARK_BENCH_SCRIPTED_PROGRAM_H_

#include <memory>

#include "platform/system_services.h"
#include "program.h"
#include "support/scripted_desktop.h"

namespace vellumark::bench {

struct ScriptedProgram : vellumark::testing::ScriptedServices {
  std::unique_ptr<Text> text = MakeSystemText();
  std::unique_ptr<FileSystem> files = MakeSystemFileSystem(*text);
  Program program = NewProgram(*files, *text, windows, windows);
};

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_SCRIPTED_PROGRAM_H_
