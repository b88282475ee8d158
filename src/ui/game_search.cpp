#include "ui/game_search.h"

#include <chrono>
#include <functional>

#include "archive/game_finder.h"
#include "platform/qt/background_work.h"
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

void GameSearch::Begin() {
  search_ = BeginBeside(std::function(FindInstalledGames));
  timer_.start(kLookInterval);
}

void GameSearch::Look() {
  if (search_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
  timer_.stop();
  program_.game_search.games = search_.get();
  emit Found();
}

}  // namespace vellumark
