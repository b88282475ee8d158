// Writing the captured picture as a JPEG file.
#ifndef VELLUMARK_GAME_CAPTURE_PICTURE_H_
#define VELLUMARK_GAME_CAPTURE_PICTURE_H_

#include <string>

#include "platform/file_system.h"

namespace vellumark {

struct Program;

// Writes the picture that the timer took from the clipboard as a JPEG file, over one that is there.
// On false, also when there is no picture or it cannot be encoded, the file is as it was, and
// `why`, where given, tells the reason.
bool SaveClipboardAsJpeg(Program& program, const std::string& path, FileError* why = nullptr);

// The button "Save screenshot also in folder ...": asks for a file, keeps its path in the
// preferences for the next time and writes the picture. A failure is told.
void SaveCaptureElsewhere(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_PICTURE_H_
