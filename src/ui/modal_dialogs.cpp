// Which class stands for which modal dialog.
#include "program.h"
#include "ui/archive_properties_dialog.h"
#include "ui/folder_chooser_dialog.h"
#include "ui/modal_dialog.h"
#include "ui/preferences_dialog.h"
#include "ui/reorder_dialog.h"
#include "ui/rescued_dialog.h"
#include "ui/savegame_properties_dialog.h"
#include "ui/search_dialog.h"

namespace vellumark {

std::unique_ptr<ModalDialog> MakeModalDialog(WindowId window, Program& program) {
  switch (window) {
    case WindowId::kDialogSetNewArc:
      return std::make_unique<ArchivePropertiesDialog>(program);
    case WindowId::kDialogPref:
      return std::make_unique<PreferencesDialog>(program);
    case WindowId::kDialogCerca:
      return std::make_unique<SearchDialog>(program);
    case WindowId::kDialogNote:
      return std::make_unique<SavegamePropertiesDialog>(program);
    case WindowId::kDialogGetDir:
      return std::make_unique<FolderChooserDialog>(program);
    case WindowId::kDialogRiordina:
      return std::make_unique<ReorderDialog>(program);
    case WindowId::kDialogRescued:
      return std::make_unique<RescuedDialog>(program);
    default:
      return nullptr;
  }
}

}  // namespace vellumark
