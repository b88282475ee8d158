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

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_SYSTEM_SERVICES_H_
