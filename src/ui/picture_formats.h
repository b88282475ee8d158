// The pictures that can become a screen-shot.
#ifndef VELLUMARK_UI_PICTURE_FORMATS_H_
#define VELLUMARK_UI_PICTURE_FORMATS_H_

#include "savegames/savegame_properties.h"

namespace vellumark {

// Those that this computer can read.
PictureFormats ReadablePictures();

}  // namespace vellumark

#endif  // VELLUMARK_UI_PICTURE_FORMATS_H_
