// The state of one run, gathered in one place. Each piece is declared by its owner; operations are
// free functions over the whole.
#ifndef VELLUMARK_PROGRAM_H_
#define VELLUMARK_PROGRAM_H_

#include <string>

#include "archive/archive_state.h"
#include "archive/game_search_state.h"
#include "archive/trust_state.h"
#include "foundation/preferences_state.h"
#include "foundation/program_paths_state.h"
#include "foundation/session_state.h"
#include "game/capture_state.h"
#include "game/play_state.h"
#include "maintenance/folder_chooser_state.h"
#include "savegames/catalogue_state.h"
#include "savegames/search_state.h"
#include "savegames/selection_state.h"

namespace vellumark {

class Clipboard;
class DesktopWindows;
class FileDialogs;
class FileSystem;
class MainWindow;
class MessageBoxes;
class Shell;
class SoundPlayer;
class Text;
class Windows;

struct Program {
  // The system and the windows.
  FileSystem& files;
  const Text& text;
  MessageBoxes& boxes;
  FileDialogs& file_dialogs;
  SoundPlayer& sounds;
  Shell& shell;
  DesktopWindows& desktop;
  Clipboard& clipboard;
  Windows& windows;
  MainWindow& main_window;

  SessionState session{};
  ProgramPaths paths{};
  std::string argument_text{};  // the command line's arguments as one text
  Preferences preferences{};
  PreferencesFileState preferences_file{};
  ArchiveState archive{};
  TrustState trust{};
  GameSearchState game_search{};
  Catalogue catalogue{};
  Selection selection{};
  DetailsState details{};
  SearchResult search{};
  PlayState play{};
  CaptureState capture{};
  FolderChooserState chooser{};

  // True while an operation works without waiting for the user; the timer does nothing then. Set by
  // SetWorking.
  bool working = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_PROGRAM_H_
