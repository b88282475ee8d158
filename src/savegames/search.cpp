#include "savegames/search.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/windows_interface.h"
#include "program.h"
#include "savegames/details.h"
#include "savegames/main_window_interface.h"
#include "savegames/notes.h"

namespace vellumark {
namespace {

std::size_t Index(char byte) { return static_cast<unsigned char>(byte); }

// Tells which savegames have the searched text. One search reads every note, so the texts are
// folded into a buffer that stays.
class TextMatcher {
 public:
  TextMatcher(const Program& program, const EncodedText& searched)
      : in_level_names_(program.preferences.SearchInLevelName),
        in_notes_(program.preferences.SearchInNotes),
        expressible_(searched.missing.empty()),
        searched_(program.text.Fold(searched.bytes)) {
    for (std::size_t byte = 0; byte < level_fold_.size(); ++byte) {
      level_fold_[byte] = static_cast<char>(byte);
    }
    const std::string folded =
        program.text.Fold(std::string_view(level_fold_.data(), level_fold_.size()));
    std::ranges::copy(folded, level_fold_.begin());

    // Where the code page has a letter for this byte, that letter must not find line breaks.
    note_fold_ = level_fold_;
    note_fold_[Index(kStoredLineBreak)] = '\r';
  }

  bool Matches(const SavegameEntry& entry) {
    if (searched_.empty()) return true;
    if (!expressible_) return false;

    return (in_level_names_ && Contains(entry.LevelName, level_fold_)) ||
           (in_notes_ && Contains(entry.NoteText, note_fold_));
  }

 private:
  using ByteMap = std::array<char, 256>;

  bool Contains(std::string_view text, const ByteMap& fold) {
    if (text.size() < searched_.size()) return false;

    if (buffer_.size() < text.size()) buffer_.resize(text.size());
    std::ranges::transform(text, buffer_.begin(),
                           [map = fold.data()](char byte) { return map[Index(byte)]; });
    return std::string_view(buffer_.data(), text.size()).find(searched_) != std::string_view::npos;
  }

  bool in_level_names_;
  bool in_notes_;
  bool expressible_;  // false: it has characters that no text of the archive can hold
  std::string searched_;
  ByteMap level_fold_{};
  ByteMap note_fold_{};
  std::string buffer_;
};

bool PassesFilters(Program& program, const SearchRequest& request, const SavegameEntry& entry) {
  if (!request.with_note && !request.with_shot) return true;

  return (request.with_note && FileExists(program.files, entry.NotePath)) ||
         (request.with_shot && FileExists(program.files, entry.ShotPath));
}

void Step(Program& program, int by) {
  SearchResult& search = program.search;
  const int position = search.FoundPosition + by;
  if (position < 0 || position >= search.FoundCount()) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    return;
  }
  search.FoundPosition = static_cast<std::int16_t>(position);
  ShowFoundEntry(program);
}

}  // namespace

void OpenSearch(Program& program) {
  if (program.catalogue.EntryCount() == 0) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    Tell(program, LoadMessage(274, {kCarriageReturn}), BoxIcon::kCritical);
    return;
  }
  program.windows.ShowModal(WindowId::kDialogCerca);
}

bool RunSearch(Program& program, const SearchRequest& request) {
  SearchResult& search = program.search;
  search = {};
  TextMatcher matcher(program, request.text);
  std::int16_t index = 0;
  for (const SavegameEntry& entry : program.catalogue.entries) {
    if (matcher.Matches(entry) && PassesFilters(program, request, entry)) {
      search.FoundList.push_back(index);
    }
    ++index;
  }

  if (search.FoundCount() == 0) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    Tell(program, LoadMessage(126));
    return false;
  }
  program.windows.CloseDialog(WindowId::kDialogCerca);
  ShowFoundEntry(program);
  return true;
}

void ShowFoundEntry(Program& program) {
  const SearchResult& search = program.search;
  SelectOnly(program, search.FoundList[static_cast<std::size_t>(search.FoundPosition)]);
  program.main_window.SetField(
      MainWindow::Field::kTrovati,
      WithLeadingBlank(search.FoundPosition + 1) + "/" + std::to_string(search.FoundCount()));
}

void ShowPreviousFound(Program& program) { Step(program, -1); }

void ShowNextFound(Program& program) { Step(program, +1); }

}  // namespace vellumark
