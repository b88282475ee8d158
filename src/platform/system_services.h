// The file system and the text of the system that the program was built for.
#ifndef VELLUMARK_PLATFORM_SYSTEM_SERVICES_H_
#define VELLUMARK_PLATFORM_SYSTEM_SERVICES_H_

#include <memory>

#include "platform/file_system.h"
#include "platform/text.h"

namespace vellumark {

// Chooses the code page by the user's language.
std::unique_ptr<Text> MakeSystemText();

// `text` must outlive it.
std::unique_ptr<FileSystem> MakeSystemFileSystem(const Text& text);

// Reads ahead what the first window will need of the system, its font configuration above all. For
// a thread of its own, beside the connection to the display; nothing depends on it.
void ReadAheadForFirstWindow();

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_SYSTEM_SERVICES_H_
