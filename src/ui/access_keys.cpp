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
    {"mnu_File", 'F'},         {"mnu_Savegames", 'S'},   {"mnu_Tools", 'T'},
    {"mnu_Preference", 'P'},   {"mnu_Help", 'H'},        {"Pul_StartTomb", 'R'},
    {"Pul_Play", 'L'},         {"Pul_CambiaProp", 'C'},  {"Pul_Zoom", 'Z'},
    {"Pul_Cerca", 'I'},        {"mnu_New", 'N'},         {"mnu_Load", 'L'},
    {"mnu_Save", 'S'},         {"mnu_SaveAs", 'A'},      {"mnu_Exit", 'X'},
    {"mnu_Archivia", 'I'},     {"mnu_Find", 'F'},        {"mnu_Examine", 'P'},
    {"mnu_PropSavegame", 'R'}, {"mnu_Copy", 'C'},        {"mnu_Move", 'M'},
    {"mnu_Delete", 'D'},       {"mnu_Reorder", 'O'},     {"mnu_Scansione", 'R'},
    {"mnu_PrefArchive", 'A'},  {"mnu_PrefManager", 'V'}, {"mnu_ShowHelp", 'H'},
};

std::span<const AccessKey> KeysOf(WindowId window) {
  switch (window) {
    case WindowId::kPrincipale:
      return kPrincipaleKeys;
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
