// What the main window remembers from one run to the next: a file of its own in the program folder,
// which nothing else depends on.
#ifndef VELLUMARK_UI_WINDOW_MEMORY_H_
#define VELLUMARK_UI_WINDOW_MEMORY_H_

#include <QRect>
#include <QStringList>
#include <optional>
#include <string>

class QWidget;

namespace vellumark {

class FileSystem;

struct WindowMemory {
  std::optional<QRect> place{};  // while neither maximised nor minimised, without the frame
  bool maximised = false;
  std::optional<int> details_width{};  // of what stands on the right of the splitter
  bool pictures = false;               // the archive is shown as pictures, not as the list
  std::optional<int> tile_size{};      // of the pictures, as a number of TileSize
  bool viewer_line = true;             // the viewer shows the line below its picture
  QStringList archives{};              // the last ones opened, the latest first
};

// What the file holds; the defaults for whatever it does not hold, or holds in no sensible form,
// and for a file that cannot be read or that a later version has written.
WindowMemory ReadWindowMemory(FileSystem& files, const std::string& program_folder);

// Writes the file in one step. A failure changes nothing, nor is the file of a later version
// touched.
void WriteWindowMemory(FileSystem& files, const std::string& program_folder,
                       const WindowMemory& memory);

// The place of a window now.
void RememberPlace(const QWidget& window, WindowMemory& memory);

// Gives a window that is not shown yet the size and state that are remembered, on a screen that is
// there, and the place if its screen is there.
void RestorePlace(QWidget& window, const WindowMemory& memory);

}  // namespace vellumark

#endif  // VELLUMARK_UI_WINDOW_MEMORY_H_
