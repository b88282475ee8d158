#include "ui/plain_tip.h"

#include <QStringList>
#include <algorithm>

namespace vellumark {

QString PlainTip(const QString& text) {
  if (text.isEmpty()) return {};
  // Qt breaks a text early, and a path behind its drive: only long lines need that.
  constexpr qsizetype kLongLine = 90;  // characters
  const QStringList lines = text.split(u'\n');
  const bool has_long =
      std::ranges::any_of(lines, [](const QString& line) { return line.size() > kLongLine; });
  return QStringLiteral("<p style='white-space:%1'>")
             .arg(has_long ? QLatin1String("pre-wrap") : QLatin1String("pre")) +
         text.toHtmlEscaped() + QStringLiteral("</p>");
}

}  // namespace vellumark
