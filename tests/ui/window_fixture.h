// What the tests of windows have in common: the program with its real main window, shown, over a
// disk and services of its own.
#ifndef VELLUMARK_TESTS_UI_WINDOW_FIXTURE_H_
#define VELLUMARK_TESTS_UI_WINDOW_FIXTURE_H_

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <functional>
#include <memory>
#include <string>

#include "program.h"
#include "support/test_world.h"
#include "ui/principale.h"

namespace vellumark {

template <typename Widget>
Widget* Find(const QWidget* window, const char* name) {
  return window->findChild<Widget*>(QLatin1String(name));
}

QString TextOf(const QWidget* window, const char* control);
bool IsTicked(const QWidget* window, const char* box);
void Click(const QWidget* window, const char* control);

// Changes a check box as a screen reader or a voice control does.
void Toggle(const QWidget* window, const char* box);

// Types a text in place of the one in a field.
void Type(const QWidget* window, const char* field, const char* text);

// Presses a key in whatever has the focus.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

// True as soon as a window has the input focus. (For Qt, a window is active also while one that it
// stands over has it.)
bool GetsFocus(const QWidget* window);

// A picture of one colour, as a JPEG file's bytes.
std::string Jpeg(Qt::GlobalColor colour);

// Each control has its messages as its caption and its tool tip.
void ExpectCaptions(const QWidget* window, WindowId id, const Text& text);

// Tab goes from what has the focus to these controls, and each can be told by its name.
void ExpectTabOrder(const QStringList& controls);

class WindowFixture : public QObject {
  Q_OBJECT

 private slots:
  // Starts the program in T:\Program as main() does, with an archive that its preferences name.
  void init();
  void cleanup();

 protected:
  // Puts on the disk what is there before the program starts.
  virtual void Prepare() {}

  // Starts the program; when it has run before, that run must have come to its end.
  void Start();

  void InDialog(const char* menu_item, const std::function<void(QDialog*)>& act);
  // Opens a modal dialog; `act` is done in it, and it is cancelled then if it is still open.
  void InDialog(const std::function<void()>& open, const std::function<void(QDialog*)>& act);

  std::unique_ptr<testing::TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
  bool cancelled_ = false;  // whether the last dialog was still open
};

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_UI_WINDOW_FIXTURE_H_
