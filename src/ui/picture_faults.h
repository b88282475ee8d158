// Why a picture is not shown, in words.
#ifndef VELLUMARK_UI_PICTURE_FAULTS_H_
#define VELLUMARK_UI_PICTURE_FAULTS_H_

#include <string>

#include "platform/qt/picture_reading.h"

namespace vellumark {

// A part of a sentence.
std::string WordsFor(PictureFault fault);

}  // namespace vellumark

#endif  // VELLUMARK_UI_PICTURE_FAULTS_H_
