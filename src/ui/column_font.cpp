#include "ui/column_font.h"

#include <QStringList>

namespace vellumark {

// The Courier of Windows is a bitmap font, which does not follow the scaling of the screen. Where
// there is no Courier New, as under Wine, the second font has its measures.
QFont ColumnFont() {
  QFont font;
  font.setFamilies({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono")});
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSizeF(9.75);
  return font;
}

}  // namespace vellumark
