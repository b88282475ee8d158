// The main window as the core sees it: a list of finished lines, a few fields, a picture.
#ifndef VELLUMARK_SAVEGAMES_MAIN_WINDOW_INTERFACE_H_
#define VELLUMARK_SAVEGAMES_MAIN_WINDOW_INTERFACE_H_

#include <string>
#include <vector>

namespace vellumark {

// What the viewer shows.
struct ViewedShot {
  std::string picture;  // the path of a file; empty for none
  std::string line{};   // counter, level and note of the savegame; empty when it is none's
};

class MainWindow {
 public:
  enum class Field { kTotSavegame, kTotCartelle, kPathSavegame, kNote, kTrovati };

  virtual ~MainWindow() = default;

  // Replaces all lines of the list; none is selected then. Line i is catalogue entry i.
  virtual void ShowLines(std::vector<std::string> lines) = 0;

  // Replaces one line; the selection stays.
  virtual void ReplaceLine(int index, const std::string& line) = 0;

  // The selected lines in rising order.
  virtual std::vector<int> SelectedLines() const = 0;

  // Leaves exactly this line selected, current and in sight.
  virtual void SelectLine(int index) = 0;

  // Shows a text (code page; carriage return, line feed or both break the line).
  virtual void SetField(Field field, const std::string& text) = 0;

  // Shows the picture of a file, scaled to the picture's place; an empty path, or a file that is
  // no readable picture, shows none.
  virtual void ShowPicture(const std::string& path) = 0;

  // Shows a picture in the viewer, opening the viewer when it is not open, with an empty title, in
  // front and without blocking this window.
  virtual void ShowViewer(const ViewedShot& shot) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_MAIN_WINDOW_INTERFACE_H_
