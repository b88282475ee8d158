#include "support/scripted_desktop.h"

#include <utility>

#include "program.h"

namespace vellumark::testing {

BoxAnswer ScriptedMessageBoxes::Show(const std::string& text, BoxButtons buttons, BoxIcon icon) {
  shown.push_back({text, buttons, icon});
  if (while_waiting) while_waiting();
  if (buttons == BoxButtons::kOk) return BoxAnswer::kOk;
  if (answers.empty()) {
    if (buttons == BoxButtons::kYesNoFromNo) return BoxAnswer::kNo;
    return buttons == BoxButtons::kOkCancel ? BoxAnswer::kOk : BoxAnswer::kYes;
  }
  const BoxAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

void ScriptedMessageBoxes::ShowNames(const std::string& text, const std::vector<std::string>& lines,
                                     BoxIcon icon) {
  std::string whole = text;
  for (const std::string& line : lines) whole += '\n' + line;
  Show(whole, BoxButtons::kOk, icon);
}

std::string ScriptedMessageBoxes::AllTexts() const {
  std::string all;
  for (const Shown& box : shown) all += box.text + "\n";
  return all;
}

std::string RecordedSounds::Take() {
  std::string names;
  for (const std::string& path : std::exchange(played, {})) {
    const std::size_t name = path.find_last_of("/\\") + 1;
    names += path.substr(name, path.rfind('.') - name) + '|';
  }
  return names;
}

std::optional<std::string> ScriptedFileDialogs::Answer(const FileDialogRequest& request) {
  requests.push_back(request);
  if (answers.empty()) return std::nullopt;
  auto answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

Activation ScriptedDesktopWindows::Activate(WindowHandle window, ProcessId /*process*/) {
  if (answer == Activation::kActivated) {
    activated.push_back(window);
    active = window;
  }
  return answer;
}

ClipboardRead ScriptedClipboard::ReadPicture() {
  ++reads;
  if (busy) return {ClipboardAnswer::kBusy, nullptr};
  if (content == nullptr) return {};
  return {ClipboardAnswer::kPicture, content};
}

void ScriptedClipboard::Empty() {
  ++emptied;
  content = nullptr;
  if (after_empty) after_empty();
}

Program ScriptedServices::NewProgram(FileSystem& files, const Text& text, Windows& shown,
                                     MainWindow& main_window) {
  return {.files = files,
          .text = text,
          .boxes = boxes,
          .file_dialogs = dialogs,
          .sounds = sounds,
          .shell = shell,
          .desktop = desktop,
          .clipboard = clipboard,
          .windows = shown,
          .main_window = main_window};
}

}  // namespace vellumark::testing
