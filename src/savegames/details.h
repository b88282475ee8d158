// Keeps the selection and the details of the main window in step with the list.
#ifndef VELLUMARK_SAVEGAMES_DETAILS_H_
#define VELLUMARK_SAVEGAMES_DETAILS_H_

#include <cstdint>

namespace vellumark {

struct Program;

// Rebuilds the selection from the list's selected lines and answers its count.
std::int16_t BuildSelection(Program& program);

// Rebuilds the selection and shows the path, note and picture of the one selected savegame, or the
// count of several. Of a very long note the beginning is shown, and that it goes on.
void RefreshDetails(Program& program);

// Leaves exactly this catalogue entry's line selected and shows its details.
void SelectOnly(Program& program, int index);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_DETAILS_H_
