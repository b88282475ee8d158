#include "game/capture_picture.h"

#include <algorithm>
#include <optional>

#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "platform/file_dialogs.h"
#include "program.h"
#include "savegames/shot_dialog_folder.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

FileError WritePicture(Program& program, const std::string& path) {
  const auto& picture = program.capture.picture;
  const std::optional<std::string> jpeg = picture ? picture->ToJpeg() : std::nullopt;
  return jpeg ? ReplaceFile(program.files, path, *jpeg) : FileError::kInputOutput;
}

bool FitsFileName(char letter) {
  constexpr std::string_view kNotInNames = "\\/:*?\"<>|";
  constexpr unsigned char kFirstPrintable = 0x20;
  return kNotInNames.find(letter) == std::string_view::npos &&
         static_cast<unsigned char>(letter) >= kFirstPrintable;
}

// A level name may hold what a file name cannot.
std::string AsFileName(std::string name) {
  std::ranges::replace_if(
      name, [](char letter) { return !FitsFileName(letter); }, '_');
  return name;
}

std::string ProposedName(Program& program) {
  const CaptureState& capture = program.capture;
  const int slot = capture.SelectedSlot;
  const bool has_savegame =
      slot != -1 &&
      FileExists(program.files, InFolder(capture.game_folder, SavegameFileName(slot)));
  if (!has_savegame) return LoadMessage(113);
  return AsFileName(capture.SelectedLevelName + "_" + std::to_string(capture.SelectedCounter));
}

void RememberFolder(Program& program, const std::string& path) {
  if (path.size() <= kTextFieldSize) {
    program.preferences.ShotFolder = path;
    return;
  }
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program,
       LoadMessage(kPathTooLong, {Quoted(path)}) + kLineBreak + LoadMessage(kShotFolderKept),
       BoxIcon::kExclamation);
}

}  // namespace

bool SaveClipboardAsJpeg(Program& program, const std::string& path, FileError* why) {
  const FileError error = WritePicture(program, path);
  if (why != nullptr) *why = error;
  return error == FileError::kNone;
}

void SaveCaptureElsewhere(Program& program) {
  const std::string folder = FolderOf(program.preferences.ShotFolder);
  const std::string proposed = ProposedName(program) + LoadMessage(114);
  PlaySoundEffect(program, SoundEffect::kOpening);
  const auto path = program.file_dialogs.Save({.title = LoadMessage(111),
                                               .filter = LoadMessage(112),
                                               .start_folder = ShotStartFolder(program),
                                               .initial_name = InFolder(folder, proposed),
                                               .confirm_overwrite = true,
                                               .default_ending = LoadMessage(114)});
  if (!path || path->empty()) return;

  RememberFolder(program, *path);
  if (SaveClipboardAsJpeg(program, *path)) return;
  Tell(program, LoadMessage(115) + *path, BoxIcon::kCritical);
}

}  // namespace vellumark
