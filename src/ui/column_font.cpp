#include "ui/column_font.h"

namespace vellumark {

QFont ColumnFont() {
  QFont font(QStringLiteral("Courier"));
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSizeF(9.75);
  return font;
}

}  // namespace vellumark
