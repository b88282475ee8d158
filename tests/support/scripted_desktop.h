// The windows and services of a program under test: they answer by script and remember what they
// were asked.
#ifndef VELLUMARK_TESTS_SUPPORT_SCRIPTED_DESKTOP_H_
#define VELLUMARK_TESTS_SUPPORT_SCRIPTED_DESKTOP_H_

#include <deque>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "foundation/windows_interface.h"
#include "platform/clipboard.h"
#include "platform/desktop_windows.h"
#include "platform/file_dialogs.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/sound_player.h"
#include "savegames/main_window_interface.h"

namespace vellumark {
class FileSystem;
class Text;
struct Program;
}  // namespace vellumark

namespace vellumark::testing {

class ScriptedMessageBoxes final : public MessageBoxes {
 public:
  struct Shown {
    std::string text;
    BoxButtons buttons;
    BoxIcon icon;
  };

  BoxAnswer Show(const std::string& text, BoxButtons buttons, BoxIcon icon) override;
  void ShowNames(const std::string& text, const std::vector<std::string>& lines,
                 BoxIcon icon) override;

  std::vector<Shown> shown;
  std::deque<BoxAnswer> answers;        // for the next questions; without one, the default button
  std::function<void()> while_waiting;  // what happens while the user looks at a box

  // All texts, one after the other.
  std::string AllTexts() const;
};

class ScriptedFileDialogs final : public FileDialogs {
 public:
  std::optional<std::string> Open(const FileDialogRequest& request) override {
    return Answer(request);
  }
  std::optional<std::string> Save(const FileDialogRequest& request) override {
    return Answer(request);
  }

  std::vector<FileDialogRequest> requests;
  std::deque<std::optional<std::string>> answers;  // without one, the user cancels

 private:
  std::optional<std::string> Answer(const FileDialogRequest& request);
};

class RecordedSounds final : public SoundPlayer {
 public:
  void Play(const std::string& host_path) override { played.push_back(host_path); }

  // The names of the files played since the last call, without their extension, with a bar behind
  // each.
  std::string Take();

  std::vector<std::string> played;
};

class RecordedShell final : public Shell {
 public:
  bool Open(const std::string& document, const std::string& parameters,
            const std::string& working_folder, bool hidden) override {
    opened.push_back({document, parameters, working_folder, hidden});
    return answer;
  }
  bool ShowInFolder(const std::string& file) override {
    shown.push_back(file);
    return answer;
  }
  StartedProgram LastStarted() override { return started; }
  MissingPart MissingFor(const std::string& /*document*/, bool is_32_bit) override {
    const bool lacks = missing.kind != MissingPart::Kind::kWineFor32Bit || is_32_bit;
    return lacks ? missing : MissingPart{};
  }

  struct Opened {
    std::string document;
    std::string parameters;
    std::string working_folder;
    bool hidden;
  };
  std::vector<Opened> opened;
  std::vector<std::string> shown;  // in its folder
  bool answer = true;
  StartedProgram started;
  MissingPart missing;
};

// The windows of other programs.
class ScriptedDesktopWindows final : public DesktopWindows {
 public:
  std::vector<TopLevelWindow> List() override { return open; }
  WindowHandle ActiveWindow() override { return active; }
  ProcessId ProcessOf(WindowHandle window) override { return window + 1000; }
  Activation Activate(WindowHandle window, ProcessId process) override;
  void PressEnter() override { entered.push_back(active); }

  std::vector<TopLevelWindow> open;
  WindowHandle active = 0;
  Activation answer = Activation::kActivated;
  std::vector<WindowHandle> activated;
  std::vector<WindowHandle> entered;  // the windows that got the Enter key
};

class ScriptedPicture final : public Picture {
 public:
  explicit ScriptedPicture(std::string jpeg) : jpeg_(std::move(jpeg)) {}
  std::optional<std::string> ToJpeg() const override {
    return jpeg_.empty() ? std::nullopt : std::optional(jpeg_);
  }

 private:
  std::string jpeg_;
};

class ScriptedClipboard final : public Clipboard {
 public:
  ClipboardRead ReadPicture() override;
  void Empty() override;
  void PutText(const std::string& new_text) override { text = new_text; }

  void Put(const std::string& jpeg) { content = std::make_shared<ScriptedPicture>(jpeg); }

  std::shared_ptr<const Picture> content;
  bool busy = false;
  std::string text;
  int reads = 0;
  int emptied = 0;
  std::function<void()> after_empty;  // what another program does right then
};

class ScriptedWindows final : public MainWindow, public Windows {
 public:
  void ShowLines(std::vector<std::string> new_lines) override {
    lines = std::move(new_lines);
    selected.clear();
  }
  void ReplaceLine(int index, const std::string& line) override {
    lines.at(static_cast<std::size_t>(index)) = line;
  }
  std::vector<int> SelectedLines() const override { return selected; }
  void SelectLine(int index) override { selected = {index}; }
  void SetField(Field field, const std::string& text) override { fields[field] = text; }
  void ShowPicture(const std::string& path) override { picture = path; }
  void ShowViewer(const ViewedShot& shot) override { viewer = shot; }
  void SetCaptions(WindowId window) override { events.push_back({"captions", window}); }
  void ShowModal(WindowId dialog) override {
    events.push_back({"modal", dialog});
    if (in_dialog) in_dialog(dialog);
  }
  void ShowModeless(WindowId dialog) override {
    events.push_back({"modeless", dialog});
    if (in_dialog) in_dialog(dialog);
  }
  void CloseDialog(WindowId window) override { events.push_back({"close", window}); }
  void ShowBusy(bool busy) override { looks_busy = busy; }
  void ShowProgress(int done, int all) override {
    painted_busy += looks_busy && done < all ? 1 : 0;
  }
  bool SessionEnds() override { return painted_busy >= ends_after_painting; }

  std::vector<std::string> lines;
  std::vector<int> selected;
  std::map<Field, std::string> fields;
  std::string picture;
  ViewedShot viewer;
  std::vector<std::pair<std::string, WindowId>> events;
  bool looks_busy = false;
  int painted_busy = 0;  // how often an operation has let the windows paint
  int ends_after_painting = std::numeric_limits<int>::max();  // when the system ends the session
  std::function<void(WindowId)> in_dialog;  // what the user does in a modal dialog
};

// All that a program asks of its user and of the desktop.
struct ScriptedServices {
  ScriptedMessageBoxes boxes;
  ScriptedFileDialogs dialogs;
  RecordedSounds sounds;
  RecordedShell shell;
  ScriptedDesktopWindows desktop;
  ScriptedClipboard clipboard;
  ScriptedWindows windows;

  // A program with these services, but for windows of its own.
  Program NewProgram(FileSystem& files, const Text& text, Windows& shown, MainWindow& main_window);
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_SCRIPTED_DESKTOP_H_
