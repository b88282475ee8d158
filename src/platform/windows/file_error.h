// What the system calls' error codes mean to the program.
#ifndef VELLUMARK_PLATFORM_WINDOWS_FILE_ERROR_H_
#define VELLUMARK_PLATFORM_WINDOWS_FILE_ERROR_H_

#include <string>

#include "platform/file_system.h"

namespace vellumark {

// The program's word for a code of GetLastError; ERROR_SUCCESS is kNone, an unknown code
// kInputOutput.
FileError FileErrorFromCode(unsigned long code);

// kNone for a call that succeeded, else what GetLastError says.
FileError ErrorUnless(bool succeeded);

// The same for a call on an absolute path: on a drive whose root cannot be reached nothing is
// missing, but the drive is kNotReady.
FileError ErrorUnless(bool succeeded, const std::wstring& path);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_FILE_ERROR_H_
