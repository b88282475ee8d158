#include "ui/game_search.h"

#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

#include "archive/game_finder.h"
#include "platform/qt/json_texts.h"
#include "platform/system_services.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::chrono::milliseconds kMostDiskTime{300};
constexpr std::chrono::milliseconds kLookInterval{50};

// With a file system of its own: the program's is for the window's thread.
std::vector<FoundGame> FindInstalledGames() {
  const auto text = MakeSystemText();
  const auto files = MakeSystemFileSystem(*text);
  GamePlaces places = KnownGamePlaces();
  places.json_texts = JsonTexts;
  return FindGames(*files, *text, places, kMostDiskTime);
}

}  // namespace

GameSearch::GameSearch(Program& program) : program_(program) {
  connect(&timer_, &QTimer::timeout, this, &GameSearch::Look);
  QTimer::singleShot(0, this, &GameSearch::Begin);
}

GameSearch::~GameSearch() {
  if (search_.valid()) search_.wait_for(kMostDiskTime);
}

// On a thread that nobody waits for: where a disk does not answer, the program still ends.
void GameSearch::Begin() {
  std::packaged_task search(FindInstalledGames);
  search_ = search.get_future();
  try {
    std::thread(std::move(search)).detach();
  } catch (const std::system_error&) {
    return;  // no threads are left: the fields of a new archive stay empty
  }
  timer_.start(kLookInterval);
}

void GameSearch::Look() {
  if (search_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
  timer_.stop();
  program_.game_search.games = search_.get();
  emit Found();
}

}  // namespace vellumark
