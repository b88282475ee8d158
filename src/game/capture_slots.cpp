#include "game/capture_slots.h"

#include <algorithm>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "program.h"
#include "savegames/notes.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

std::string GameFolder(Program& program) { return Trimmed(program.archive.settings.GameFolder); }

std::string SlotFile(Program& program, int slot) {
  return InFolder(GameFolder(program), SavegameFileName(slot));
}

// A number that is wider than its field is written whole.
std::string RightAligned(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  digits.insert(0, width - std::min(width, digits.size()), ' ');
  return digits;
}

std::string SlotLine(Program& program, int slot) {
  constexpr std::size_t kSlotWidth = 2;
  constexpr std::size_t kCounterWidth = 4;
  const std::string number = RightAligned(slot, kSlotWidth);
  const std::string path = SlotFile(program, slot);
  if (!FileExists(program.files, path)) return LoadMessage(107, {number});

  const SavegameHeader header = ReadSavegameHeader(program.files, path);
  std::string line = LoadMessage(108);
  line.append(number).append(" -> ").append(RightAligned(header.counter, kCounterWidth));
  return line.append("  ").append(header.level_name);
}

std::string SlotBytes(Program& program, int slot) {
  return program.files.Read(SlotFile(program, slot), FileSystem::kWholeFile).bytes;
}

// The slots that have a savegame, in rising order.
std::vector<int> TakenSlots(Program& program) {
  std::vector<int> taken;
  for (int slot = 0; slot <= program.archive.settings.MaxSavegame; ++slot) {
    if (FileExists(program.files, SlotFile(program, slot))) taken.push_back(slot);
  }
  return taken;
}

std::string NoteOfSlot(Program& program, int slot) {
  const std::string path = InFolder(GameFolder(program), NoteFileName(slot));
  return FileExists(program.files, path) ? ReadNoteFile(program.files, path) : std::string();
}

}  // namespace

std::string PrepareCapture(Program& program) {
  PlaySoundEffect(program, SoundEffect::kOpening);
  program.capture.CaptureDialogOpen = true;
  ReadCaptureSlots(program);

  const std::vector<int> taken = TakenSlots(program);
  if (taken.size() != 1) return {};
  ChooseSlot(program, taken.front());
  return NoteOfSlot(program, taken.front());
}

void ReadCaptureSlots(Program& program) {
  ChooseSlot(program, -1);
  CaptureState& capture = program.capture;
  capture.game_folder = GameFolder(program);
  capture.slot_lines.clear();
  capture.slot_bytes.clear();
  const std::vector<int> taken = TakenSlots(program);
  if (taken.empty()) return;
  for (int slot = 0; slot <= taken.back(); ++slot) {
    capture.slot_lines.push_back(SlotLine(program, slot));
    capture.slot_bytes.push_back(SlotBytes(program, slot));
  }
}

void ChooseSlot(Program& program, int line) {
  CaptureState& capture = program.capture;
  capture.SelectedSlot = static_cast<std::int16_t>(line);
  capture.SelectedLevelName.clear();
  capture.SelectedCounter = 0;
  const std::string path = SlotFile(program, line);
  if (line < 0 || !FileExists(program.files, path)) return;

  const SavegameHeader header = ReadSavegameHeader(program.files, path);
  capture.SelectedLevelName = header.level_name;
  capture.SelectedCounter = header.counter;
}

bool ChosenSlotIsAsShown(Program& program) {
  const CaptureState& capture = program.capture;
  const auto line = static_cast<std::size_t>(capture.SelectedSlot);
  return line < capture.slot_bytes.size() &&
         SamePath(program.text, capture.game_folder, GameFolder(program)) &&
         capture.slot_bytes[line] == SlotBytes(program, capture.SelectedSlot);
}

}  // namespace vellumark
