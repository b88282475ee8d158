// From the host's paths to the core's: by the drive that they lie on.
#ifndef VELLUMARK_PLATFORM_POSIX_HOST_PATH_H_
#define VELLUMARK_PLATFORM_POSIX_HOST_PATH_H_

#include <optional>
#include <string>

#include "platform/common/host_names.h"
#include "platform/common/windows_path.h"
#include "platform/posix/drive_map.h"

namespace vellumark {

// An absolute host path (UTF-8) as a Windows path, on the drive whose folder is the longest part
// of it; Z comes last among equals. Links to folders are followed, a link to a file keeps its own
// name. The path need not exist. Empty when it lies on no drive, or when one of its names is not
// usable in the core.
std::optional<WindowsPath> WindowsPathFromHost(const std::string& host_path, const DriveMap& drives,
                                               const PathNames& names);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_HOST_PATH_H_
