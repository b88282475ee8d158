#include "foundation/caption_map.h"

#include "foundation/own_messages.h"

namespace vellumark {
namespace {

constexpr Caption kDialogCattura[] = {
    {"", 101, 0},
    {"Frame2", 102, 0},
    {"Pul_Annulla", 103, 0},
    {"Pul_Ok", 104, 0},
    {"Pul_SalvaScreenShot", 105, 0},
    {"Label1", 106, 0},
};

constexpr Caption kDialogCerca[] = {
    {"", 116, 0},
    {"Frame2", 117, 0},
    {"Check_ConScreenShot", 118, 0},
    {"Check_ConNote", 119, 0},
    {"Pul_Annulla", 120, 0},
    {"Pul_Cerca", 121, 0},
    {"Frame1", 122, 0},
    {"Check_Note", 123, 0},
    {"Check_NomeLivello", 124, 0},
    {"Label1", 125, 0},
};

constexpr Caption kDialogGetDir[] = {
    {"", 127, 0},
    {"Pul_NuovaCartella", 128, 0},
    {"CancelButton", 129, 0},
    {"OKButton", 130, 0},
};

constexpr Caption kDialogNote[] = {
    {"", 152, 0},
    {"Frame2", 153, 0},
    {"Pul_SfogliaScreen", 154, 0},
    {"Check_EliminaShot", 155, 0},
    {"Pul_Annulla", 156, 0},
    {"Pul_Ok", 157, 0},
    {"Frame1", 158, 0},
    {"Label3", 159, 0},
    {"Label2", 160, 0},
    {"Label1", 161, 0},
};

constexpr Caption kDialogPref[] = {
    {"", 166, 0},
    {"Pul_Sfoglia", 167, 0},
    {"Pul_Annulla", 168, 0},
    {"Pul_Ok", 169, 0},
    {"Check_Suoni", 170, 0},
    {"Check_AvvioAutomatico", 171, 0},
    {"Check_TutteLeDir", 172, 0},
    {"Label1", 173, 0},
};

constexpr Caption kDialogRiordina[] = {
    {"", 175, 0},
    {"Pul_CopiaShot", 176, 0},
    {"Pul_Annulla", 177, 0},
    {"Pul_Riordina", 178, 0},
    {"Frame3", 179, 0},
    {"Check_CreaInfo", 180, 0},
    {"Check_NonMescolare", 181, 0},
    {"Check_EliminaUguali", 182, 0},
    {"Check_EliminaSorgente", 183, 0},
    {"Label3", 184, 185},
    {"Frame1", 186, 0},
    {"Pul_PercorsoBase", 187, 0},
    {"Label9", 188, 0},
    {"Label2", 189, 0},
    {"Label1", 190, 0},
};

constexpr Caption kDialogSetNewArc[] = {
    {"", 201, 0},
    {"Pul_Cancel", 202, 0},
    {"Pul_Ok", 203, 0},
    {"pul_sfoglia_nome_tomb", 204, 205},
    {"pul_sfoglia_tr", 206, 207},
    {"pul_sfoglia_dir", 208, 209},
    {"Label3", 210, 211},
    {"Label7", 212, 0},
    {"Label2", 213, 0},
    {"Label1", 214, 0},
    {"Label9", 215, 0},
};

constexpr Caption kDialogScreenShot[] = {
    {"", 224, 0},
    {"Pul_Precedente", kViewerPrevious, kViewerPrevious},
    {"Pul_Seguente", kViewerNext, kViewerNext},
    {"mnu_Previous", kViewerPrevious, 0},
    {"mnu_Next", kViewerNext, 0},
    {"mnu_ZoomIn", kViewerZoomIn, 0},
    {"mnu_ZoomOut", kViewerZoomOut, 0},
    {"mnu_Fit", kViewerFit, 0},
    {"mnu_EveryPixel", kViewerEveryPixel, 0},
    {"mnu_WholeScreen", kViewerFullScreen, 0},
    {"mnu_Line", kViewerLine, 0},
    {"mnu_Close", kViewerClose, 0},
};

constexpr Caption kDialogRescued[] = {
    {"", kRescuedTitle, 0},
    {"Label1", kRescuedHead, 0},
    {"Pul_ToArchive", kRescuedToArchive, 0},
    {"Pul_ToGame", kRescuedToGame, 0},
    {"Pul_ShowFolder", kRescuedShowFolder, 0},
    {"Pul_Delete", kRescuedDelete, 0},
    {"Pul_Close", kRescuedClose, 0},
};

constexpr Caption kPrincipale[] = {
    {"", 225, 0},
    {"Pul_StartTomb", 226, 227},
    {"Pul_Play", 228, 229},
    {"Pul_CambiaProp", 230, 0},
    {"Pul_Zoom", 231, 0},
    {"Pul_Cerca", 232, 0},
    {"Label6", 233, 0},
    {"Label5", 234, 0},
    {"Label4", 235, 0},
    {"mnu_File", 236, 0},
    {"mnu_New", 237, 0},
    {"mnu_Load", 238, 0},
    {"mnu_Recent", kRecentCommand, 0},
    {"mnu_Save", 239, 0},
    {"mnu_SaveAs", 240, 0},
    {"mnu_Exit", 241, 0},
    {"mnu_Savegames", 242, 0},
    {"mnu_Archivia", 243, 0},
    {"mnu_Find", 244, 0},
    {"mnu_Examine", 245, 0},
    {"mnu_PropSavegame", 246, 0},
    {"mnu_Copy", 247, 0},
    {"mnu_Move", 248, 0},
    {"mnu_Delete", 249, 0},
    {"mnu_View", kViewMenu, 0},
    {"mnu_ViewList", kViewList, 0},
    {"mnu_ViewPictures", kViewPictures, 0},
    {"mnu_ViewLarger", kViewLarger, 0},
    {"mnu_ViewSmaller", kViewSmaller, 0},
    {"mnu_ViewGoToLevel", kViewGoToLevel, 0},
    {"mnu_ShowInFolder", kShowInFolderCommand, 0},
    {"mnu_CopyPath", kCopyPathCommand, 0},
    {"mnu_Tools", 250, 0},
    {"mnu_Reorder", 251, 0},
    {"mnu_Scansione", 252, 0},
    {"mnu_Rescued", kRescuedCommand, 0},
    {"mnu_Preference", 253, 0},
    {"mnu_PrefArchive", 254, 0},
    {"mnu_PrefManager", 255, 0},
    {"mnu_Help", 256, 0},
    {"mnu_ShowHelp", 257, 0},
    {"mnu_About", kAboutCommand, 0},
};

}  // namespace

const char* NameOf(WindowId window) {
  switch (window) {
    case WindowId::kDialogCattura:
      return "Dialog_Cattura";
    case WindowId::kDialogCerca:
      return "Dialog_Cerca";
    case WindowId::kDialogGetDir:
      return "Dialog_GetDir";
    case WindowId::kDialogNote:
      return "Dialog_Note";
    case WindowId::kDialogPref:
      return "Dialog_Pref";
    case WindowId::kDialogRiordina:
      return "Dialog_Riordina";
    case WindowId::kDialogSetNewArc:
      return "Dialog_SetNewArc";
    case WindowId::kDialogScreenShot:
      return "Dialog_ScreenShot";
    case WindowId::kDialogRescued:
      return "Dialog_Rescued";
    case WindowId::kPrincipale:
      break;
  }
  return "Principale";
}

std::span<const Caption> CaptionsOf(WindowId window) {
  switch (window) {
    case WindowId::kDialogCattura:
      return kDialogCattura;
    case WindowId::kDialogCerca:
      return kDialogCerca;
    case WindowId::kDialogGetDir:
      return kDialogGetDir;
    case WindowId::kDialogNote:
      return kDialogNote;
    case WindowId::kDialogPref:
      return kDialogPref;
    case WindowId::kDialogRiordina:
      return kDialogRiordina;
    case WindowId::kDialogSetNewArc:
      return kDialogSetNewArc;
    case WindowId::kDialogScreenShot:
      return kDialogScreenShot;
    case WindowId::kDialogRescued:
      return kDialogRescued;
    case WindowId::kPrincipale:
      return kPrincipale;
  }
  return {};
}

}  // namespace vellumark
