#include "foundation/captions.h"

#include "foundation/windows_interface.h"

namespace vellumark {

void LoadCaptions(Windows& windows) {
  for (const WindowId window :
       {WindowId::kDialogCattura, WindowId::kDialogCerca, WindowId::kDialogGetDir,
        WindowId::kDialogNote, WindowId::kDialogPref, WindowId::kDialogRiordina,
        WindowId::kDialogSetNewArc, WindowId::kDialogScreenShot, WindowId::kPrincipale}) {
    windows.SetCaptions(window);
  }
}

}  // namespace vellumark
