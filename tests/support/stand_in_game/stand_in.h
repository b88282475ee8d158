// A small program that plays the game's part in tests: its window bears the game's title, it lives
// in its working folder, and it writes down there what it sees. What it does on any system.
#ifndef VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_STAND_IN_H_
#define VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_STAND_IN_H_

#include <cstddef>
#include <fstream>
#include <string>

namespace vellumark::stand_in {

inline constexpr char kWindowTitle[] = "Tomb Raider - The Last Revelation";

// How often a window lets the stand-in look for commands, in milliseconds.
inline constexpr int kCommandInterval = 50;

// What the stand-in asks of its window on one system.
class Window {
 public:
  virtual ~Window() = default;

  // Puts a picture on the clipboard: the bytes of a BMP file, as Print Screen would leave it.
  virtual void PutOnClipboard(const std::string& bmp_file) = 0;

  virtual void Minimize() = 0;

  // Ends the program.
  virtual void Quit() = 0;
};

// Adds lines to the file `stand-in.log` in the working folder, one for each thing that happens:
//   start                      and, next, the two below
//   folder PATH                the working folder
//   slot NAME COUNTER LEVEL    for each savegame there, in the order of their names
//   focus in | focus out
//   key NAME                   a key pressed while the window has the focus
//   done COMMAND               a command that was obeyed
// and obeys the lines that a test appends to the file `stand-in.commands`, which it empties at its
// start:
//   save SLOT COUNTER LEVEL    writes a fresh savegame over the slot's file, as a saving game does
//   print-screen               puts a picture on the clipboard
//   minimize
//   quit
class StandIn {
 public:
  explicit StandIn(Window& window);

  void ObeyNewCommands();
  void KeyPressed(const std::string& name);
  void FocusChanged(bool has_focus);

 private:
  void Write(const std::string& line);
  void LookAtSlots();
  bool Obey(const std::string& command);

  Window& window_;
  std::ofstream log_;
  std::size_t commands_read_ = 0;  // bytes of the command file
};

}  // namespace vellumark::stand_in

#endif  // VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_STAND_IN_H_
