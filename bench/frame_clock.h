// Tells when a widget's change has reached the screen.
#ifndef VELLUMARK_BENCH_FRAME_CLOCK_H_
#define VELLUMARK_BENCH_FRAME_CLOCK_H_

#include <QApplication>

namespace vellumark::bench {

class FrameClock final : public QApplication {
 public:
  using QApplication::QApplication;

  // Runs events until a frame with `widget` in it has been painted whole and handed to the display.
  // The moment of that, by Now().
  double WaitForFrame(const QWidget* widget);

  // Runs events until nothing is left to be painted.
  void Settle();

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  const QObject* awaited_ = nullptr;
  bool painted_ = false;
  double shown_at_ = 0;
};

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_FRAME_CLOCK_H_
