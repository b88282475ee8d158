// The search for installed games, beside the window.
#ifndef VELLUMARK_UI_GAME_SEARCH_H_
#define VELLUMARK_UI_GAME_SEARCH_H_

#include <QObject>
#include <QTimer>
#include <future>
#include <vector>

#include "archive/game_search_state.h"

namespace vellumark {

struct Program;

class GameSearch final : public QObject {
  Q_OBJECT

 public:
  // Begins as soon as the events that are waiting have been worked off.
  explicit GameSearch(Program& program);
  // Leaves a search alone that a disk holds up.
  ~GameSearch() override;

 signals:
  // The program's state holds what was found.
  void Found();

 private:
  void Begin();
  void Look();

  Program& program_;
  QTimer timer_;
  std::future<std::vector<FoundGame>> search_;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_GAME_SEARCH_H_
