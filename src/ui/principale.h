// The main window.
#ifndef VELLUMARK_UI_PRINCIPALE_H_
#define VELLUMARK_UI_PRINCIPALE_H_

#include <QDialog>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <map>

#include "foundation/windows_interface.h"
#include "savegames/main_window_interface.h"

class QAbstractButton;
class QAction;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QSplitter;

namespace vellumark {

struct Command;
struct Program;
class ArchiveViews;
class FileSystem;
class FirstPageView;
class RecentArchives;
class ScreenShotViewer;
class ShotBox;
class Text;
class ViewMenu;

class Principale final : public QMainWindow, public MainWindow, public Windows {
  Q_OBJECT

 public:
  Principale(FileSystem& files, const Text& text);

  // Gives the window the program that its commands work on, and starts the timer. The program must
  // outlive the window's use.
  void Attach(Program& program);

  // Shows what there is to say while there is no list, or takes that away.
  void RefreshPage();
  // Writes down what the next run's window is to look like. For an orderly end of a run only.
  void Remember();

  // MainWindow
  void ShowLines(std::vector<std::string> lines) override;
  void ReplaceLine(int index, const std::string& line) override;
  std::vector<int> SelectedLines() const override;
  void SelectLine(int index) override;
  void SetField(Field field, const std::string& text) override;
  void ShowPicture(const std::string& path) override;
  void ShowViewer(const ViewedShot& shot) override;

  // Windows
  void SetCaptions(WindowId window) override;
  void ShowModal(WindowId dialog) override;
  void ShowModeless(WindowId dialog) override;
  void CloseDialog(WindowId window) override;
  void ShowBusy(bool busy) override;
  void ShowProgress(int done, int all) override;
  bool SessionEnds() override;

 signals:
  // The window has closed and shut-down is done.
  void Closed();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenus();
  void BuildRecentMenu();
  void BuildContextMenu();
  void BuildPage();
  void BuildCentre();
  QWidget* BuildDetails();
  QWidget* BuildPathLine();
  QWidget* BuildBottomLine();
  void SetTabOrder();
  void NameControlsWithoutCaption();
  void DimWhatIsNotSelected();
  void Connect(const Command& command);
  void Run(const Command& command);
  void Recall();
  bool IsOpen(WindowId dialog);

  FileSystem& files_;
  const Text& text_;
  Program* program_ = nullptr;
  bool closing_ = false;

  QSplitter* splitter_ = nullptr;
  ArchiveViews* views_ = nullptr;
  FirstPageView* page_ = nullptr;
  ViewMenu* view_menu_ = nullptr;
  ShotBox* picture_ = nullptr;
  QPlainTextEdit* note_ = nullptr;
  QLineEdit* path_ = nullptr;
  QLineEdit* total_savegames_ = nullptr;
  QLineEdit* total_folders_ = nullptr;
  QLineEdit* found_ = nullptr;
  RecentArchives* recent_ = nullptr;
  QTimer timer_;
  QProgressBar* progress_ = nullptr;  // in the place of the path while an operation takes long
  QElapsedTimer working_;             // since the operation has begun
  QElapsedTimer painted_;             // since the windows were last let paint
  QPointer<ScreenShotViewer> viewer_;
  bool viewer_line_ = true;  // the viewer shows the line below its picture
  std::map<WindowId, QPointer<QDialog>> open_dialogs_;  // those that are shown
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_PRINCIPALE_H_
