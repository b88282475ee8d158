// What the savegame properties dialog shows and what its buttons do.
#ifndef VELLUMARK_SAVEGAMES_SAVEGAME_PROPERTIES_H_
#define VELLUMARK_SAVEGAMES_SAVEGAME_PROPERTIES_H_

#include <functional>
#include <optional>
#include <string>

#include "savegames/typed_note.h"

namespace vellumark {

struct Program;

// The command: opens the dialog on the one selected savegame. Another number of selected savegames
// is refused.
void ShowSavegameProperties(Program& program);

// The dialog's fields. Its other operations take the index: it stays with the savegame that it was
// opened on, whatever is selected meanwhile.
struct SavegameProperties {
  int index = 0;       // in the catalogue
  std::string note{};  // in its stored form
  std::string path{};
  std::string level{};
  std::string counter{};
  std::string shot{};  // empty when there is no screen-shot
};

// The fields for the first selected savegame, the note as it is on the disk now, with the opening
// sound.
SavegameProperties PrepareSavegameProperties(Program& program);

// The path of a savegame's screen-shot; empty when the file does not exist.
std::string LinkedShot(Program& program, int index);

// A larger file is taken for no picture.
inline constexpr std::size_t kMostPictureBytes = std::size_t{256} << 20;

// The pictures that can be shown.
struct PictureFormats {
  std::string patterns;  // of the names of their files: "*.jpg;*.png"
  // A picture file's bytes as those of a JPEG file: the same where it is one, nothing where they
  // are no picture.
  std::function<std::optional<std::string>(const std::string& bytes)> as_jpeg;
};

// Asks for a picture and puts it at once in the place of the savegame's screen-shot, as a JPEG
// file; a file that is no picture as it is, and only after a question. False when nothing has
// changed; a failure was told.
bool ChooseScreenShot(Program& program, int index, const PictureFormats& formats);

// The same for a picture that was put on a savegame outside the dialog. Before it takes the place
// of another the user is asked, and list and details show it then.
void LinkDroppedPicture(Program& program, int index, const std::string& chosen,
                        const PictureFormats& formats);

struct SavegameChanges {
  int index = 0;
  std::string shown_note{};         // the note that the dialog was opened with, in its stored form
  std::optional<TypedNote> note{};  // nothing while the user has not changed it
  std::string counter{};            // as typed; what is no number leaves the counter as it is
  bool remove_shot = false;
};

enum class ChangesAnswer {
  kRefused,         // the user was told why; nothing has been written
  kNoteNotWritten,  // the changed note could not be written, and nothing else has been done
  kDone,            // failures were told
};

// Writes the note, removes the screen-shot when asked to, writes a changed counter, and brings the
// list and the details in step. A file that cannot be changed keeps what it held, and so does its
// field in the catalogue; all such files are told in one message at the end. What the note's file
// holds beside the note that was shown is kept: untouched when the user has not changed the note,
// as `<name>.bak` under a changed one, which is told.
ChangesAnswer ApplySavegameChanges(Program& program, const SavegameChanges& changes);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SAVEGAME_PROPERTIES_H_
