#include "game/game_start.h"

#include <array>
#include <charconv>
#include <utility>

#include "foundation/failures.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/strings.h"
#include "game/executable_kind.h"
#include "game/running_game.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "program.h"

namespace vellumark {
namespace {

// Wine makes a new prefix first, which takes a while.
constexpr int kTicksToWatch = 60;

// Small codes are known in decimal, those of Windows itself by their hexadecimal form.
std::string CodeText(std::uint32_t code) {
  if (code <= 0xFFFF) return std::to_string(code);
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), code, 16).ptr;
  return "0x" + std::string(digits.begin(), end);
}

// What another program wrote, fit for a message.
std::string ForMessage(Program& program, const std::string& words) {
  constexpr std::size_t kLongest = 400;
  std::string text = program.text.FromUtf8(words).bytes.substr(0, kLongest);
  for (char& letter : text) {
    if (static_cast<unsigned char>(letter) < 0x20) letter = ' ';
  }
  return Trimmed(text);
}

void TellNotStarted(Program& program, const std::string& executable, const std::string& reason,
                    GameSlots slots, const std::string& last_words = "") {
  std::string text = LoadMessage(kGameNotStarted, {Quoted(executable), reason});
  if (!last_words.empty()) text += kLineBreak + LoadMessage(kGameLastWords, {last_words});
  if (slots == GameSlots::kFilledByPlay) text += kLineBreak + LoadMessage(kSavegamesInSlots);
  Tell(program, text, BoxIcon::kExclamation);
}

// Why the file cannot be a program at all; empty when it may be one.
std::string WhyNoProgram(Program& program, const std::string& executable, ProgramKind kind) {
  const AttributesResult found = program.files.Attributes(executable);
  if (found.error == FileError::kNotFound) return ReasonFor(found.error);
  if (found.error == FileError::kNone && found.attributes.folder) {
    return LoadMessage(kReasonFolder);
  }
  return kind == ProgramKind::kBroken ? LoadMessage(kReasonNoProgram) : "";
}

std::string WhyRefused(ProgramKind kind) {
  if (kind == ProgramKind::kForeign) return LoadMessage(kReasonNoProgram);
  return LoadMessage(kind == ProgramKind::kUnreadable ? kReasonAccessDenied : kReasonRefused);
}

std::string Describe(const MissingPart& missing) {
  if (missing.kind == MissingPart::Kind::kNothing) return {};
  if (missing.kind == MissingPart::Kind::kWine) return LoadMessage(kReasonNeedsWine);
  std::string text = LoadMessage(kReasonOnly64Bit);
  if (missing.package.empty()) return text;
  return text + LoadMessage(kPackageToInstall, {missing.package});
}

}  // namespace

void StartGameProgram(Program& program, const std::string& executable, GameSlots slots) {
  PlayState& play = program.play;
  play.start_watch = {};
  const ProgramKind kind = ReadProgramKind(program.files, executable);
  if (const auto why = WhyNoProgram(program, executable, kind); !why.empty()) {
    return TellNotStarted(program, executable, why, slots);
  }
  const std::string missing = Describe(program.shell.MissingFor(program.files.HostPath(executable),
                                                                kind == ProgramKind::kWindows32));
  const bool known = std::exchange(play.told_not_started, missing) == missing;
  if (!missing.empty()) {
    if (!known) TellNotStarted(program, executable, missing, slots);
    return;
  }

  if (OpenWithShell(program.files, program.text, program.shell, executable, "", false, "")) {
    play.start_watch = {executable, slots == GameSlots::kFilledByPlay, kTicksToWatch};
    return;
  }
  TellNotStarted(program, executable, WhyRefused(kind), slots,
                 ForMessage(program, program.shell.LastStarted().last_words));
}

void WatchGameStart(Program& program) {
  StartWatch& watch = program.play.start_watch;
  if (watch.ticks_left == 0 || program.working) return;
  --watch.ticks_left;
  const StartedProgram started = program.shell.LastStarted();
  std::string title = LoadMessage(330);
  const bool is_up = FindWindowByTitle(program, title, false) != 0;
  if (!started.ended && !is_up) return;

  const StartWatch watched = std::exchange(watch, {});
  if (is_up || started.exit_code == 0) return;
  TellNotStarted(program, watched.executable,
                 LoadMessage(kReasonEndedAtOnce, {CodeText(started.exit_code)}),
                 watched.slots_filled ? GameSlots::kFilledByPlay : GameSlots::kAsTheyWere,
                 ForMessage(program, started.last_words));
}

}  // namespace vellumark
