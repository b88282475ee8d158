#include "ui/access_keys.h"

#include <span>

namespace vellumark {
namespace {

struct AccessKey {
  const char* control;
  char letter;
};

// Menus and buttons share the window's letters; the items of one menu share that menu's.
constexpr AccessKey kPrincipaleKeys[] = {
    {"mnu_File", 'F'},         {"mnu_Savegames", 'S'},    {"mnu_Tools", 'T'},
    {"mnu_Preference", 'P'},   {"mnu_Help", 'H'},         {"Pul_StartTomb", 'R'},
    {"Pul_Play", 'L'},         {"Pul_CambiaProp", 'C'},   {"Pul_Zoom", 'Z'},
    {"Pul_Cerca", 'I'},        {"mnu_New", 'N'},          {"mnu_Load", 'L'},
    {"mnu_Save", 'S'},         {"mnu_SaveAs", 'A'},       {"mnu_Exit", 'X'},
    {"mnu_Archivia", 'I'},     {"mnu_Find", 'F'},         {"mnu_Examine", 'P'},
    {"mnu_PropSavegame", 'R'}, {"mnu_Copy", 'C'},         {"mnu_Move", 'M'},
    {"mnu_Delete", 'D'},       {"mnu_Reorder", 'O'},      {"mnu_Scansione", 'R'},
    {"mnu_PrefArchive", 'A'},  {"mnu_PrefManager", 'V'},  {"mnu_ShowHelp", 'H'},
    {"mnu_Rescued", 'S'},      {"mnu_View", 'V'},         {"mnu_ViewList", 'L'},
    {"mnu_ViewPictures", 'P'}, {"Pul_PageNew", 'N'},      {"Pul_PageOpen", 'O'},
    {"Pul_PageHelp", 'W'},     {"Pul_PageAgain", 'G'},    {"mnu_About", 'A'},
    {"mnu_ViewLarger", 'A'},   {"mnu_ViewSmaller", 'S'},  {"mnu_ViewGoToLevel", 'G'},
    {"mnu_Recent", 'R'},       {"mnu_ShowInFolder", 'S'}, {"mnu_CopyPath", 'T'},
};

constexpr AccessKey kSetNewArcKeys[] = {
    {"Label1", 'M'},
    {"pul_sfoglia_dir", 'B'},
    {"Label3", 'P'},
    {"Label2", 'T'},
    {"pul_sfoglia_tr", 'R'},
    {"Label7", 'F'},
    {"pul_sfoglia_nome_tomb", 'W'},
    {"Label9", 'X'},
    {"Pul_Ok", 'O'},
    {"Pul_Cancel", 'C'},
};

constexpr AccessKey kPrefKeys[] = {
    {"Check_Suoni", 'S'}, {"Check_AvvioAutomatico", 'E'}, {"Check_TutteLeDir", 'A'},
    {"Label1", 'D'},      {"Pul_Sfoglia", 'B'},           {"Pul_Ok", 'O'},
    {"Pul_Annulla", 'C'},
};

constexpr AccessKey kCercaKeys[] = {
    {"Label1", 'S'},        {"Check_NomeLivello", 'L'},
    {"Check_Note", 'G'},    {"Check_ConScreenShot", 'W'},
    {"Check_ConNote", 'B'}, {"Pul_Cerca", 'F'},
    {"Pul_Annulla", 'C'},
};

constexpr AccessKey kNoteKeys[] = {
    {"Label1", 'S'},
    {"Label2", 'L'},
    {"Label3", 'I'},
    {"Frame1", 'N'},
    {"Pul_SfogliaScreen", 'B'},
    {"Check_EliminaShot", 'R'},
    {"Pul_Ok", 'O'},
    {"Pul_Annulla", 'C'},
};

constexpr AccessKey kGetDirKeys[] = {
    {"Pul_NuovaCartella", 'F'},
    {"OKButton", 'O'},
    {"CancelButton", 'C'},
};

constexpr AccessKey kRiordinaKeys[] = {
    {"Label1", 'M'},
    {"Pul_PercorsoBase", 'B'},
    {"Label2", 'S'},
    {"Label9", 'X'},
    {"Check_CreaInfo", 'I'},
    {"Check_NonMescolare", 'D'},
    {"Check_EliminaUguali", 'E'},
    {"Check_EliminaSorgente", 'A'},
    {"Label3", 'N'},
    {"Pul_CopiaShot", 'L'},
    {"Pul_Riordina", 'R'},
    {"Pul_Annulla", 'C'},
};

constexpr AccessKey kCatturaKeys[] = {
    {"Label1", 'L'}, {"Frame2", 'N'},      {"Pul_SalvaScreenShot", 'S'},
    {"Pul_Ok", 'O'}, {"Pul_Annulla", 'C'},
};

constexpr AccessKey kRescuedKeys[] = {
    {"Pul_ToArchive", 'A'}, {"Pul_ToGame", 'G'}, {"Pul_ShowFolder", 'F'},
    {"Pul_Delete", 'D'},    {"Pul_Close", 'C'},
};

constexpr AccessKey kScreenShotKeys[] = {
    {"mnu_Previous", 'P'}, {"mnu_Next", 'N'},        {"mnu_ZoomIn", 'I'},
    {"mnu_ZoomOut", 'O'},  {"mnu_Fit", 'F'},         {"mnu_EveryPixel", 'E'},
    {"mnu_Line", 'L'},     {"mnu_WholeScreen", 'W'}, {"mnu_Close", 'C'},
};

std::span<const AccessKey> KeysOf(WindowId window) {
  switch (window) {
    case WindowId::kPrincipale:
      return kPrincipaleKeys;
    case WindowId::kDialogSetNewArc:
      return kSetNewArcKeys;
    case WindowId::kDialogPref:
      return kPrefKeys;
    case WindowId::kDialogCerca:
      return kCercaKeys;
    case WindowId::kDialogNote:
      return kNoteKeys;
    case WindowId::kDialogCattura:
      return kCatturaKeys;
    case WindowId::kDialogGetDir:
      return kGetDirKeys;
    case WindowId::kDialogRiordina:
      return kRiordinaKeys;
    case WindowId::kDialogRescued:
      return kRescuedKeys;
    case WindowId::kDialogScreenShot:
      return kScreenShotKeys;
    default:
      return {};
  }
}

}  // namespace

QString WithAccessKey(WindowId window, const QString& control, QString caption) {
  caption.replace(u'&', QLatin1String("&&"));
  for (const AccessKey& key : KeysOf(window)) {
    if (control != QLatin1String(key.control)) continue;
    const qsizetype at = caption.indexOf(QLatin1Char(key.letter), 0, Qt::CaseInsensitive);
    if (at >= 0) caption.insert(at, u'&');
  }
  return caption;
}

QString WithoutAccessKey(const QString& caption) {
  QString plain;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size()) break;
    plain += caption[i];
  }
  return plain;
}

}  // namespace vellumark
