// Finds savegames by a text, and steps through what was found.
#ifndef VELLUMARK_SAVEGAMES_SEARCH_H_
#define VELLUMARK_SAVEGAMES_SEARCH_H_

#include "platform/text.h"

namespace vellumark {

struct Program;

struct SearchRequest {
  EncodedText text;  // as it was typed; empty to find every savegame

  // Only savegames that have the file now; with both, either file is enough.
  bool with_note = false;
  bool with_shot = false;
};

// Opens the search dialog; tells the user when there is nothing to search in.
void OpenSearch(Program& program);

// Replaces the last result by the savegames whose level name or note, as far as the preferences
// say to look there, contain the text without regard to case. Closes the dialog and shows the
// first. False when there is none: the user is told so, and the dialog stays.
bool RunSearch(Program& program, const SearchRequest& request);

// Selects the found savegame at FoundPosition, which must exist, and shows the position.
void ShowFoundEntry(Program& program);

// A step that leads nowhere only sounds.
void ShowPreviousFound(Program& program);
void ShowNextFound(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SEARCH_H_
