// Noticing that the system wants the program to end.
#ifndef VELLUMARK_PLATFORM_QT_SESSION_END_WATCH_H_
#define VELLUMARK_PLATFORM_QT_SESSION_END_WATCH_H_

#include <QObject>
#include <functional>

namespace vellumark {

// Needs the application; one at a time. By signals, by the session manager, by the end of a Windows
// session, and by the end of the display: whatever dialog is open then, `end` is called, and the
// process ends with the status 0.
class SessionEndWatch final : public QObject {
 public:
  struct Calls {
    std::function<void()> save;  // the session may end soon; it may also go on
    std::function<bool()> end;   // false when the program has come to its end by itself before
  };

  explicit SessionEndWatch(Calls calls);
  ~SessionEndWatch() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void End();

  Calls calls_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_SESSION_END_WATCH_H_
