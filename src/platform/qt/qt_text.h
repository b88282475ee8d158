// Texts of the core as Qt shows them.
#ifndef VELLUMARK_PLATFORM_QT_QT_TEXT_H_
#define VELLUMARK_PLATFORM_QT_QT_TEXT_H_

#include <QString>
#include <string_view>

#include "platform/text.h"

namespace vellumark {

// Character by character.
QString ToQString(const Text& text, std::string_view bytes);

// For labels, message boxes and text boxes of several lines: carriage return, line feed or both
// break the line.
QString ToDisplayText(const Text& text, std::string_view bytes);

// For a row of the list: a line break of the note shows as a mark, other control characters as
// blanks, so that every byte takes one column and none breaks the row.
QString ToDisplayLine(const Text& text, std::string_view line, std::size_t note_column);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_QT_TEXT_H_
