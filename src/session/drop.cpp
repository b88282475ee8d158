#include "session/drop.h"

#include <algorithm>

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "platform/file_system.h"
#include "program.h"
#include "savegames/savegame_properties.h"
#include "session/archive_commands.h"

namespace vellumark {

DropKind KindOfDrop(std::string_view name, const PictureFormats& formats) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || name.find_first_of("/\\", dot) != std::string_view::npos) {
    return DropKind::kNone;
  }
  const std::string_view ending = name.substr(dot);
  if (EqualsIgnoringAsciiCase(ending, LoadMessage(288))) return DropKind::kArchive;
  // The patterns are `*.jpg;*.png`.
  std::string_view rest = formats.patterns;
  while (!rest.empty()) {
    const std::string_view pattern = rest.substr(0, rest.find(';'));
    if (pattern.size() > 1 && EqualsIgnoringAsciiCase(ending, pattern.substr(1))) {
      return DropKind::kPicture;
    }
    rest.remove_prefix(std::min(rest.size(), pattern.size() + 1));
  }
  return DropKind::kNone;
}

void TakeDrop(Program& program, const std::string& host_path, const std::string& savegame,
              const PictureFormats& formats) {
  const auto path = program.files.FromHostPath(host_path);
  if (!path) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    return Tell(program, LoadMessage(kPathNotExpressible), BoxIcon::kCritical);
  }
  const DropKind kind = KindOfDrop(host_path, formats);
  if (kind == DropKind::kArchive) return OpenArchive(program, *path);
  if (kind == DropKind::kNone) return;
  const auto& entries = program.catalogue.entries;
  const auto found = std::ranges::find(entries, savegame, &SavegameEntry::SavegamePath);
  if (found == entries.end()) return;
  LinkDroppedPicture(program, static_cast<int>(found - entries.begin()), *path, formats);
}

}  // namespace vellumark
