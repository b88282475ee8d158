// What the system calls' error numbers mean to the program.
#ifndef VELLUMARK_PLATFORM_POSIX_FILE_ERROR_H_
#define VELLUMARK_PLATFORM_POSIX_FILE_ERROR_H_

#include "platform/file_system.h"

namespace vellumark {

// The program's word for an `errno` value; 0 is kNone, an unknown number kInputOutput.
FileError FileErrorFromNumber(int number);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_FILE_ERROR_H_
