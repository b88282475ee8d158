#include "platform/qt/session_end_watch.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <cstdlib>
#include <utility>

#include "platform/desktop_services.h"

namespace vellumark {
namespace {

// For the one way of ending that reaches no object: a library that leaves the process when the
// display has gone.
std::function<void()> at_exit;

void OnExit() {
  if (at_exit) at_exit();
}

}  // namespace

SessionEndWatch::SessionEndWatch(Calls calls) : calls_(std::move(calls)) {
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { calls_.save(); },
      Qt::DirectConnection);
  // Windows ends the process right after this.
  connect(qGuiApp, &QCoreApplication::aboutToQuit, this, &SessionEndWatch::End);
  qGuiApp->installEventFilter(this);

  if (const int signal = CatchEndSignals(); signal >= 0) {
    auto* notifier = new QSocketNotifier(signal, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &SessionEndWatch::End);
  }
  at_exit = [this] { End(); };
  std::atexit(OnExit);
}

SessionEndWatch::~SessionEndWatch() { at_exit = nullptr; }

// The session manager's last word, unless the program itself is about to quit.
bool SessionEndWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Quit) End();
  return QObject::eventFilter(watched, event);
}

// Nothing of what the program was about when it was interrupted may go on.
void SessionEndWatch::End() {
  if (calls_.end()) std::_Exit(EXIT_SUCCESS);
}

}  // namespace vellumark
