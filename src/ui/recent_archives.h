// The menu of the archives that were opened last.
#ifndef VELLUMARK_UI_RECENT_ARCHIVES_H_
#define VELLUMARK_UI_RECENT_ARCHIVES_H_

#include <QMenu>
#include <QStringList>
#include <string>
#include <vector>

namespace vellumark {

class FileSystem;
class Text;

class RecentArchives final : public QMenu {
  Q_OBJECT

 public:
  static constexpr std::size_t kMost = 8;

  RecentArchives(FileSystem& files, const Text& text, QWidget* parent);

  // Takes what an earlier run has remembered. What cannot be a path is left out.
  void SetPaths(const QStringList& paths);
  QStringList Paths() const;

  // An archive was opened or saved: it becomes the first. Nothing for an empty path.
  void Add(const std::string& path);

 signals:
  // The user wants this one opened.
  void Chosen(const std::string& path);

 private:
  void Fill();
  QString ReasonAgainst(const std::string& path);

  FileSystem& files_;
  const Text& text_;
  std::vector<std::string> paths_;  // the latest first
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_RECENT_ARCHIVES_H_
