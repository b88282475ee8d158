#include "frame_clock.h"

#include <QEvent>
#include <QWidget>

#include "bench_run.h"
#include "measurement.h"

namespace vellumark::bench {

double FrameClock::WaitForFrame(const QWidget* widget) {
  constexpr double kLongest = 30;
  awaited_ = widget;
  painted_ = false;
  shown_at_ = 0;
  const double begin = Now();
  while (shown_at_ == 0) {
    processEvents();
    Require(Now() - begin < kLongest, "The window is not painted.");
  }
  awaited_ = nullptr;
  return shown_at_;
}

void FrameClock::Settle() {
  constexpr double kSettled = 0.2;
  const double begin = Now();
  while (Now() - begin < kSettled) processEvents();
}

bool FrameClock::notify(QObject* receiver, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool handled = QApplication::notify(receiver, event);
  if (awaited_ == nullptr || shown_at_ != 0) return handled;

  // The window paints all its dirty widgets and flushes them while it handles one request.
  if (type == QEvent::Paint && receiver == awaited_) painted_ = true;
  if (type == QEvent::UpdateRequest && painted_) shown_at_ = Now();
  return handled;
}

}  // namespace vellumark::bench
