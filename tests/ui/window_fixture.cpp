#include "ui/window_fixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QMenu>
#include <QTimer>

#include "foundation/messages.h"
#include "platform/qt/qt_text.h"
#include "session/start_up.h"
#include "ui/access_keys.h"

namespace vellumark {

QString TextOf(const QWidget* window, const char* control) {
  return Find<QWidget>(window, control)->property("text").toString();
}

bool IsTicked(const QWidget* window, const char* box) {
  return Find<QWidget>(window, box)->property("checked").toBool();
}

void Click(const QWidget* window, const char* control) {
  QTest::mouseClick(Find<QWidget>(window, control), Qt::LeftButton);
}

void Toggle(const QWidget* window, const char* box) {
  QAccessible::queryAccessibleInterface(Find<QCheckBox>(window, box))
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::toggleAction());
}

void Type(const QWidget* window, const char* field, const char* text) {
  Find<QLineEdit>(window, field)->selectAll();
  QTest::keyClicks(Find<QLineEdit>(window, field), QString::fromUtf8(text));
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

bool GetsFocus(const QWidget* window) {
  return QTest::qWaitFor(
      [window] { return QGuiApplication::focusWindow() == window->windowHandle(); });
}

std::string Jpeg(Qt::GlobalColor colour) {
  QImage image(64, 48, QImage::Format_RGB32);
  image.fill(colour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "JPEG");
  return bytes.toStdString();
}

void ExpectCaptions(const QWidget* window, WindowId id, const Text& text) {
  for (const Caption& caption : CaptionsOf(id)) {
    if (*caption.control == '\0') continue;
    auto* control = Find<QObject>(window, caption.control);
    QVERIFY2(control != nullptr, caption.control);
    const bool has_title =
        qobject_cast<QGroupBox*>(control) != nullptr || qobject_cast<QMenu*>(control) != nullptr;
    QCOMPARE(WithoutAccessKey(control->property(has_title ? "title" : "text").toString()),
             ToQString(text, LoadMessage(caption.message)));
    if (caption.tool_tip == 0) continue;
    QCOMPARE(control->property("toolTip").toString(),
             ToQString(text, LoadMessage(caption.tool_tip)));
  }
}

void ExpectTabOrder(const QStringList& controls) {
  for (const QString& next : controls) {
    Press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), next);
    QVERIFY2(!QApplication::focusWidget()->accessibleName().isEmpty(), qPrintable(next));
  }
}

void WindowFixture::init() {
  world_ = std::make_unique<testing::TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  Prepare();
  Start();
}

void WindowFixture::Start() {
  window_ = std::make_unique<Principale>(world_->files, world_->text);
  program_.reset(new Program(world_->NewProgram(*window_, *window_)));
  window_->Attach(*program_);
  MainWindowLoaded(*program_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void WindowFixture::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

void WindowFixture::InDialog(const char* menu_item, const std::function<void(QDialog*)>& act) {
  InDialog([&] { Find<QAction>(window_.get(), menu_item)->trigger(); }, act);
}

void WindowFixture::InDialog(const std::function<void()>& open,
                             const std::function<void(QDialog*)>& act) {
  bool acted = false;
  QTimer::singleShot(0, window_.get(), [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    acted = GetsFocus(dialog);
    act(dialog);
    cancelled_ = dialog->isVisible();
    dialog->reject();
  });
  open();
  QVERIFY2(acted, "no dialog has opened");
}

}  // namespace vellumark
