#include "foundation/preferences_commands.h"

#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "program.h"

namespace vellumark {

PreferenceSwitches PreparePreferences(Program& program) {
  Preferences& preferences = program.preferences;
  preferences.ShotFolder = Trimmed(preferences.ShotFolder);
  PlaySoundEffect(program, SoundEffect::kOpening);
  return {.sound_effects = preferences.SoundEffects,
          .auto_capture = preferences.AutoCapture,
          .scan_all_subfolders = preferences.ScanAllSubfolders};
}

void AcceptPreferences(Program& program, const PreferenceSwitches& switches) {
  program.preferences.ScanAllSubfolders = switches.scan_all_subfolders;
  program.preferences.AutoCapture = switches.auto_capture;
  program.preferences.SoundEffects = switches.sound_effects;
}

void ChooseShotFolder(Program& program) {
  program.chooser.FolderChooserMode = ChooserMode::kPlain;
  program.chooser.Confirmed = false;
  program.windows.ShowModal(WindowId::kDialogGetDir);
  if (program.chooser.Confirmed) program.preferences.ShotFolder = program.chooser.ChosenFolder;
}

}  // namespace vellumark
