#include "ui/commands.h"

#include "archive/archive_commands.h"
#include "archive/scan.h"
#include "foundation/help.h"
#include "game/import.h"
#include "savegames/details.h"

namespace vellumark {
namespace {

constexpr Command kCommands[] = {
    {"mnu_File", "mnu_New", nullptr, "Ctrl+N", nullptr},
    {"mnu_File", "mnu_Load", nullptr, "Ctrl+O", LoadArchive},
    {"mnu_File", "-", nullptr, "", nullptr},
    {"mnu_File", "mnu_Save", nullptr, "Ctrl+S", SaveArchive},
    {"mnu_File", "mnu_SaveAs", nullptr, "Ctrl+Shift+S", SaveArchiveAs},
    {"mnu_File", "-", nullptr, "", nullptr},
    {"mnu_File", "mnu_Exit", nullptr, "Ctrl+Q", nullptr},

    {"mnu_Savegames", "mnu_Archivia", nullptr, "Ctrl+I", ImportCommand},
    {"mnu_Savegames", "-", nullptr, "", nullptr},
    {"mnu_Savegames", "mnu_Find", "Pul_Cerca", "Ctrl+F", nullptr},
    {"mnu_Savegames", "mnu_Examine", "Pul_Play", "Ctrl+P", nullptr},
    {"mnu_Savegames", "mnu_PropSavegame", "Pul_CambiaProp", "F2", nullptr},
    {"mnu_Savegames", "-", nullptr, "", nullptr},
    {"mnu_Savegames", "mnu_Copy", nullptr, "Ctrl+C", nullptr},
    {"mnu_Savegames", "mnu_Move", nullptr, "Ctrl+M", nullptr},
    {"mnu_Savegames", "mnu_Delete", nullptr, "Del", nullptr},

    {"mnu_Tools", "mnu_Reorder", nullptr, "", nullptr},
    {"mnu_Tools", "mnu_Scansione", nullptr, "F5", RescanCommand},

    {"mnu_Preference", "mnu_PrefArchive", nullptr, "", nullptr},
    {"mnu_Preference", "mnu_PrefManager", nullptr, "", nullptr},

    {"mnu_Help", "mnu_ShowHelp", nullptr, "F1", ShowHelp},

    {nullptr, nullptr, "Pul_StartTomb", "", nullptr},
    {nullptr, nullptr, "Pul_Zoom", "", ShowScreenShot},
    {nullptr, nullptr, "Pul_Precedente", "Shift+F3", nullptr},
    {nullptr, nullptr, "Pul_Seguente", "F3", nullptr},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace vellumark
