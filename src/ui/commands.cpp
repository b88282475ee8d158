#include "ui/commands.h"

#include "archive/scan.h"
#include "foundation/about.h"
#include "foundation/help.h"
#include "foundation/windows_interface.h"
#include "game/import.h"
#include "game/play.h"
#include "game/running_game.h"
#include "maintenance/copy_move.h"
#include "maintenance/delete_selected.h"
#include "program.h"
#include "savegames/details.h"
#include "savegames/savegame_place.h"
#include "savegames/savegame_properties.h"
#include "savegames/search.h"
#include "savegames/viewer.h"
#include "session/archive_commands.h"

namespace vellumark {
namespace {

template <WindowId dialog>
void Show(Program& program) {
  program.windows.ShowModal(dialog);
}

constexpr Command kCommands[] = {
    {"mnu_File", "mnu_New", nullptr, "Ctrl+N", NewArchive},
    {"mnu_File", "mnu_Load", nullptr, "Ctrl+O", LoadArchive},
    {"mnu_File", "-", nullptr, "", nullptr},
    {"mnu_File", "mnu_Save", nullptr, "Ctrl+S", SaveArchive},
    {"mnu_File", "mnu_SaveAs", nullptr, "Ctrl+Shift+S", SaveArchiveAs},
    {"mnu_File", "-", nullptr, "", nullptr},
    {"mnu_File", "mnu_Exit", nullptr, "Ctrl+Q", nullptr},

    {"mnu_Savegames", "mnu_Archivia", nullptr, "Ctrl+I", ImportCommand},
    {"mnu_Savegames", "-", nullptr, "", nullptr},
    {"mnu_Savegames", "mnu_Find", "Pul_Cerca", "Ctrl+F", OpenSearch},
    {"mnu_Savegames", "mnu_Examine", "Pul_Play", "Ctrl+P", PlaySelectedSavegames},
    {"mnu_Savegames", "mnu_PropSavegame", "Pul_CambiaProp", "F2", ShowSavegameProperties},
    {"mnu_Savegames", "-", nullptr, "", nullptr},
    {"mnu_Savegames", "mnu_Copy", nullptr, "Ctrl+C", CopySelection, true},
    {"mnu_Savegames", "mnu_Move", nullptr, "Ctrl+M", MoveSelection, true},
    {"mnu_Savegames", "mnu_Delete", nullptr, "Del", DeleteSelectedSavegames, true},
    {"mnu_Savegames", "-", nullptr, "", nullptr},
    {"mnu_Savegames", "mnu_ShowInFolder", nullptr, "", ShowInFileManager},
    {"mnu_Savegames", "mnu_CopyPath", nullptr, "Ctrl+Shift+C", CopyPaths, true},

    {"mnu_Tools", "mnu_Reorder", nullptr, "", Show<WindowId::kDialogRiordina>},
    {"mnu_Tools", "mnu_Scansione", nullptr, "F5", RescanCommand},
    {"mnu_Tools", "mnu_Rescued", nullptr, "", Show<WindowId::kDialogRescued>},

    {"mnu_Preference", "mnu_PrefArchive", nullptr, "", Show<WindowId::kDialogSetNewArc>},
    {"mnu_Preference", "mnu_PrefManager", nullptr, "", Show<WindowId::kDialogPref>},

    {"mnu_Help", "mnu_ShowHelp", nullptr, "F1", ShowHelp},
    {"mnu_Help", "mnu_About", nullptr, "", ShowAbout},

    {nullptr, nullptr, "Pul_StartTomb", "", StartGame},
    {nullptr, nullptr, "Pul_Zoom", "", ShowScreenShot},
    {nullptr, nullptr, "Pul_Precedente", "Shift+F3", ShowPreviousFound},
    {nullptr, nullptr, "Pul_Seguente", "F3", ShowNextFound},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace vellumark
