#include "archive/archive_settings_validation.h"

#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {
namespace {

bool Refuse(Program& program, int message, BoxIcon icon = BoxIcon::kNone) {
  PlaySoundEffect(program, SoundEffect::kRefusal);
  Tell(program, LoadMessage(message), icon);
  return false;
}

// Trims a field, stores it back, and answers whether nothing is left.
bool IsBlank(std::string& field) {
  field = Trimmed(field);
  return field.empty();
}

}  // namespace

bool ValidateArchiveSettings(Program& program) {
  ArchiveSettings& settings = program.archive.settings;
  if (IsBlank(settings.SubfolderBaseName)) return Refuse(program, 300);
  if (IsBlank(settings.MainFolder)) return Refuse(program, 301);
  if (IsBlank(settings.GameFolder)) return Refuse(program, 302);
  if (IsBlank(settings.GameExecutable) || !FileExists(program.files, settings.GameExecutable)) {
    return Refuse(program, 303);
  }
  if (settings.MaxSavegame == 0) return Refuse(program, 304, BoxIcon::kCritical);
  return true;
}

}  // namespace vellumark
