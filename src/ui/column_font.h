// The font of lists whose lines are made of columns.
#ifndef VELLUMARK_UI_COLUMN_FONT_H_
#define VELLUMARK_UI_COLUMN_FONT_H_

#include <QFont>

namespace vellumark {

QFont ColumnFont();  // fixed-pitch

}  // namespace vellumark

#endif  // VELLUMARK_UI_COLUMN_FONT_H_
