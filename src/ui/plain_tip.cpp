#include "ui/plain_tip.h"

namespace vellumark {

QString PlainTip(const QString& text) {
  if (text.isEmpty()) return {};
  return QStringLiteral("<p style='white-space:pre-wrap'>") + text.toHtmlEscaped() +
         QStringLiteral("</p>");
}

}  // namespace vellumark
