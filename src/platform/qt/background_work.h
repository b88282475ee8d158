// Work beside the window's thread.
#ifndef VELLUMARK_PLATFORM_QT_BACKGROUND_WORK_H_
#define VELLUMARK_PLATFORM_QT_BACKGROUND_WORK_H_

#include <QCoreApplication>
#include <QThreadPool>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace vellumark {

// Begins work on another thread.
template <typename Answer>
std::shared_future<Answer> BeginBeside(std::function<Answer()> work) {
  const auto task = std::make_shared<std::packaged_task<Answer()>>(std::move(work));
  QThreadPool::globalInstance()->start([task] { (*task)(); });
  return task->get_future().share();
}

// Waits on the window's thread for work that was begun. When it takes long, the windows are painted
// meanwhile, but take no input.
template <typename Answer>
Answer WaitPainting(const std::shared_future<Answer>& answer) {
  auto patience = std::chrono::milliseconds(200);
  while (answer.wait_for(patience) != std::future_status::ready) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    patience = std::chrono::milliseconds(20);
  }
  return answer.get();
}

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_BACKGROUND_WORK_H_
