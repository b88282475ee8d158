// A PosixFileSystem whose drive `T:` is a temporary folder.
#ifndef VELLUMARK_TESTS_PLATFORM_POSIX_POSIX_FILE_SYSTEM_FIXTURE_H_
#define VELLUMARK_TESTS_PLATFORM_POSIX_POSIX_FILE_SYSTEM_FIXTURE_H_

#include "platform/disk_fixture.h"
#include "platform/posix/posix_file_system.h"

namespace vellumark {

class PosixFileSystemTest : public DiskTest {};

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_PLATFORM_POSIX_POSIX_FILE_SYSTEM_FIXTURE_H_
