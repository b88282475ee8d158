// Files that are dropped on the main window.
#ifndef VELLUMARK_SESSION_DROP_H_
#define VELLUMARK_SESSION_DROP_H_

#include <string>
#include <string_view>

namespace vellumark {

struct PictureFormats;
struct Program;

enum class DropKind { kNone, kArchive, kPicture };

// What a file would be taken for, by the ending of its name, in whatever letter case. Nothing is
// looked for on the disk.
DropKind KindOfDrop(std::string_view name, const PictureFormats& formats);

// Takes a file (a host path): an archive is opened as LoadArchive does, a picture becomes the
// screen-shot of the savegame of this path. A path that the code page cannot express is refused.
void TakeDrop(Program& program, const std::string& host_path, const std::string& savegame,
              const PictureFormats& formats);

}  // namespace vellumark

#endif  // VELLUMARK_SESSION_DROP_H_
