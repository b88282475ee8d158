// Making a folder a drive, on Windows and under Wine.
#ifndef VELLUMARK_TESTS_SUPPORT_WINDOWS_DRIVE_LETTER_H_
#define VELLUMARK_TESTS_SUPPORT_WINDOWS_DRIVE_LETTER_H_

#include <string>

namespace vellumark::testing {

// False when the system refuses. The folder must exist.
bool DefineDrive(char letter, const std::wstring& folder);

void RemoveDrive(char letter);

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_WINDOWS_DRIVE_LETTER_H_
