// The commands of the main window: what each menu item and button does.
#ifndef VELLUMARK_UI_COMMANDS_H_
#define VELLUMARK_UI_COMMANDS_H_

#include <span>

namespace vellumark {

struct Program;

struct Command {
  const char* menu;       // the menu's object name
  const char* item;       // the menu item's object name
  const char* button;     // the button that does the same, or null
  const char* shortcut;   // in Qt's portable form, or empty
  void (*run)(Program&);  // null: not available, shown disabled
  bool of_list = false;   // the shortcut works in the list only
};

// In the order of the menus; an item named "-" is a separator. mnu_Exit has no run of its own: it
// closes the main window.
std::span<const Command> Commands();

}  // namespace vellumark

#endif  // VELLUMARK_UI_COMMANDS_H_
