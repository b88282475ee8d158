// The program's fonts, as far as they are not the desktop's own.
#ifndef VELLUMARK_UI_FONTS_H_
#define VELLUMARK_UI_FONTS_H_

#include <QFont>

namespace vellumark {

// Names what stands in for a desktop font that does not exist. To be called before the application
// is made.
void NameFontSubstitutes();

QFont ColumnFont();  // fixed-pitch, for lists whose lines are made of columns

}  // namespace vellumark

#endif  // VELLUMARK_UI_FONTS_H_
