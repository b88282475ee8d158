#include "ui/fonts.h"

#include <QStringList>

namespace vellumark {

// Wine's desktop names the font of old Windows dialogs, often without a font that it stands for.
// Any font would be taken then, one with serifs too.
void NameFontSubstitutes() {
  QFont::insertSubstitutions(QStringLiteral("MS Shell Dlg"),
                             {QStringLiteral("Tahoma"), QStringLiteral("Arial"),
                              QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
}

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
