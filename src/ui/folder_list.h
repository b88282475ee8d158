// The folder list of the folder chooser: the way down to a folder, and its sub-folders.
#ifndef VELLUMARK_UI_FOLDER_LIST_H_
#define VELLUMARK_UI_FOLDER_LIST_H_

#include <QListView>

#include "maintenance/folder_lines.h"

namespace vellumark {

class FolderListModel;
class Text;

// A click or Enter goes to a folder, Backspace to the one above, F5 reads the list again. A click
// goes there at once, so that the folder that is marked after it is the one that OK takes.
class FolderList final : public QListView {
  Q_OBJECT

 public:
  FolderList(const Text& text, QWidget* parent);

  // Shows the lines with the current folder marked and in sight.
  void SetLines(FolderLines lines);
  const std::string& Folder() const;

  // Scrolls until a folder's line is in sight.
  void ShowFolder(const std::string& path);

 signals:
  void FolderPicked(const std::string& path);
  void RereadWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void Pick(const QModelIndex& index);
  void GoUp();

  FolderListModel* folders_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_FOLDER_LIST_H_
