#include "ui/recent_archives.h"

#include <algorithm>

#include "foundation/failures.h"
#include "foundation/fixed_size_record.h"
#include "foundation/paths.h"
#include "platform/file_system.h"
#include "platform/qt/qt_text.h"
#include "ui/plain_tip.h"

namespace vellumark {
namespace {

bool HasControlCharacter(const QString& text) {
  return std::ranges::any_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
}

}  // namespace

RecentArchives::RecentArchives(FileSystem& files, const Text& text, QWidget* parent)
    : QMenu(parent), files_(files), text_(text) {
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentArchives::Fill);
}

void RecentArchives::SetPaths(const QStringList& paths) {
  paths_.clear();
  for (const QString& path : paths) {
    const EncodedText encoded = text_.FromUtf8(path.toStdString());
    const bool possible = encoded.missing.empty() && !encoded.bytes.empty() &&
                          encoded.bytes.size() <= kTextFieldSize && !HasControlCharacter(path);
    if (possible && paths_.size() < kMost) paths_.push_back(encoded.bytes);
  }
}

QStringList RecentArchives::Paths() const {
  QStringList paths;
  for (const std::string& path : paths_) paths.append(ToQString(text_, path));
  return paths;
}

void RecentArchives::Add(const std::string& path) {
  if (path.empty()) return;
  std::erase_if(paths_, [&](const std::string& known) { return SamePath(text_, known, path); });
  paths_.insert(paths_.begin(), path);
  paths_.resize(std::min(paths_.size(), kMost));
}

void RecentArchives::Fill() {
  constexpr qsizetype kWidest = 70;  // characters
  clear();
  int number = 0;
  for (const std::string& path : paths_) {
    const QString whole = ToQString(text_, path);
    QString shown = whole;
    if (shown.size() > kWidest) {
      shown = shown.left(3) + QStringLiteral("...") + shown.right(kWidest - 6);
    }
    shown.replace(u'&', QLatin1String("&&"));
    QAction* action = addAction(QStringLiteral("&%1  %2").arg(++number).arg(shown));
    const QString reason = ReasonAgainst(path);
    action->setEnabled(reason.isEmpty());
    const QString tip = reason.isEmpty() ? whole : whole + QLatin1String(": ") + reason;
    action->setToolTip(PlainTip(tip));
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, path] { emit Chosen(path); });
  }
}

// Why an archive cannot be opened; empty when it can. A path on the network is taken to be there:
// to look could take long.
QString RecentArchives::ReasonAgainst(const std::string& path) {
  if (path.starts_with(R"(\\)")) return {};
  const AttributesResult found = files_.Attributes(path);
  FileError error = found.error;
  if (error == FileError::kNone && found.attributes.folder) error = FileError::kIsAFolder;
  return error == FileError::kNone ? QString() : ToQString(text_, ReasonFor(error));
}

}  // namespace vellumark
