// What the preferences dialog shows and what its buttons do.
#ifndef VELLUMARK_FOUNDATION_PREFERENCES_COMMANDS_H_
#define VELLUMARK_FOUNDATION_PREFERENCES_COMMANDS_H_

namespace vellumark {

struct Program;

struct PreferenceSwitches {
  bool sound_effects = false;
  bool auto_capture = false;
  bool scan_all_subfolders = false;
};

// The switches to show, with the opening sound; ShotFolder is trimmed.
PreferenceSwitches PreparePreferences(Program& program);

// Stores the switches. A changed scan of sub-folders shows at the next scan.
void AcceptPreferences(Program& program, const PreferenceSwitches& switches);

// Asks for the folder of screen-shots saved by hand and stores it at once.
void ChooseShotFolder(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_PREFERENCES_COMMANDS_H_
