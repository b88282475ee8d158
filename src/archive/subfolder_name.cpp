#include "archive/subfolder_name.h"

#include "foundation/file_utilities.h"
#include "foundation/fixed_size_record.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "savegames/catalogue_state.h"
#include "savegames/slot_names.h"

namespace vellumark {

std::string SubfolderNameProblem(const std::string& main_folder, const std::string& base_name,
                                 int max_slot) {
  const bool possible = AreFieldText(base_name) && !IsTemporaryName(base_name) &&
                        base_name.find_first_of("/\\:*?\"<>|") == std::string::npos;
  if (!possible) return LoadMessage(kBaseNameNotPossible);
  // The archive file holds names without the blanks around them.
  if (base_name != Trimmed(base_name)) return LoadMessage(kReorderNameBlanks);
  const std::string last =
      InFolder(main_folder, base_name) + std::to_string(Catalogue::kMostEntries);
  const std::string file = SavegameFileName(max_slot);
  // While a reorder makes it, its name is longer.
  if (InFolder(TemporaryFolderFor(last), file).size() > kTextFieldSize) {
    return LoadMessage(kPathTooLong, {Quoted(InFolder(last, file))});
  }
  return {};
}

}  // namespace vellumark
