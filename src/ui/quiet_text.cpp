#include "ui/quiet_text.h"

#include <QApplication>
#include <QPalette>

namespace vellumark {

void KeepQuietTextReadable() {
  constexpr int kLeastContrast = 64;  // of 255
  constexpr int kQuiet = 128;
  const QPalette palette = QApplication::palette();
  const int ground = palette.color(QPalette::Base).lightness();
  if (qAbs(palette.color(QPalette::PlaceholderText).lightness() - ground) >= kLeastContrast) return;
  QColor quiet = palette.color(QPalette::Text);
  if (qAbs(quiet.lightness() - ground) < kLeastContrast) return;
  quiet.setAlpha(kQuiet);
  QPalette readable = palette;
  readable.setColor(QPalette::PlaceholderText, quiet);
  QApplication::setPalette(readable);
}

}  // namespace vellumark
