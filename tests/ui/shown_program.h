// A program with its real main window, shown, over a disk and services of its own.
#ifndef VELLUMARK_TESTS_UI_SHOWN_PROGRAM_H_
#define VELLUMARK_TESTS_UI_SHOWN_PROGRAM_H_

#include <QtTest>
#include <memory>

#include "foundation/start_up.h"
#include "program.h"
#include "support/test_world.h"
#include "ui/principale.h"

namespace vellumark {

// Starts the program in T:\Program as main() does.
inline void ShowProgram(testing::TestWorld& world, std::unique_ptr<Principale>& window,
                        std::unique_ptr<Program>& program) {
  window = std::make_unique<Principale>(world.files, world.text);
  program.reset(new Program{.files = world.files,
                            .text = world.text,
                            .boxes = world.boxes,
                            .file_dialogs = world.dialogs,
                            .sounds = world.sounds,
                            .shell = world.shell,
                            .desktop = world.desktop,
                            .clipboard = world.clipboard,
                            .windows = *window,
                            .main_window = *window});
  program->paths.ProgramFolder = "T:\\Program";
  window->Attach(*program);
  MainWindowLoaded(*program);
  window->show();
  QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_UI_SHOWN_PROGRAM_H_
