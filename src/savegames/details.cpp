#include "savegames/details.h"

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/strings.h"
#include "program.h"
#include "savegames/main_window_interface.h"
#include "savegames/notes.h"

namespace vellumark {

using Field = MainWindow::Field;

std::int16_t BuildSelection(Program& program) {
  program.selection.indices.clear();
  for (const int line : program.main_window.SelectedLines()) {
    program.selection.indices.push_back(static_cast<std::int16_t>(line));
  }
  return program.selection.Count();
}

void RefreshDetails(Program& program) {
  constexpr std::size_t kMostShown = 8000;
  const std::int16_t count = BuildSelection(program);
  MainWindow& window = program.main_window;

  if (count == 0) {
    window.SetField(Field::kPathSavegame, "");
  } else if (count == 1) {
    const auto index = static_cast<std::size_t>(program.selection.indices.front());
    const SavegameEntry& entry = program.catalogue.entries[index];
    window.SetField(Field::kPathSavegame, entry.SavegamePath);
    program.details.shown = {entry.SavegamePath, program.selection.indices.front()};
    window.SetField(Field::kNote, BeginningForTextBox(entry.NoteText, kMostShown));
    program.details.CurrentShotPath =
        FileExists(program.files, entry.ShotPath) ? entry.ShotPath : program.paths.DefaultShotPath;
    window.ShowPicture(program.details.CurrentShotPath);
  } else {
    window.SetField(Field::kPathSavegame, LoadMessage(321, {WithLeadingBlank(count)}));
    window.SetField(Field::kNote, "");
  }
}

void SelectOnly(Program& program, int index) {
  program.main_window.SelectLine(index);
  RefreshDetails(program);
}

}  // namespace vellumark
