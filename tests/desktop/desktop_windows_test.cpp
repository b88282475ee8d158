// Finding and activating windows on a real display. The suites whose name begins with `Any` run
// with a window manager and again without one.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QProcess>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>

#include "desktop/test_window.h"
#include "platform/x11/x11_desktop_windows.h"

namespace vellumark::testing {
namespace {

const auto kOwnProcess = static_cast<ProcessId>(getpid());
constexpr ProcessId kGameProcess = 4000001;  // above what a process of this system can have

// The window with this title among those that the desktop lists; 0 when it is not among them.
WindowHandle Listed(DesktopWindows& desktop, const std::string& title) {
  for (const TopLevelWindow& window : desktop.List()) {
    if (window.title == title) return window.handle;
  }
  return 0;
}

bool IsListed(DesktopWindows& desktop, WindowHandle handle) {
  const auto windows = desktop.List();
  return std::ranges::find(windows, handle, &TopLevelWindow::handle) != windows.end();
}

class AnyDesktop : public ::testing::Test {
 protected:
  X11DesktopWindows desktop_;
};

using ManagedDesktop = AnyDesktop;
using BareDesktop = AnyDesktop;

// Another display than that of the other tests, for as long as it lives.
class ScopedDisplay {
 public:
  explicit ScopedDisplay(const std::string& display) : old_(std::getenv("DISPLAY")) {
    setenv("DISPLAY", display.c_str(), 1);
  }
  ~ScopedDisplay() { setenv("DISPLAY", old_.c_str(), 1); }
  ScopedDisplay(const ScopedDisplay&) = delete;
  ScopedDisplay& operator=(const ScopedDisplay&) = delete;

 private:
  std::string old_;
};

TEST_F(AnyDesktop, ListsTitlesOfEachKind) {
  const TestWindow today(
      {.utf8_title = "\xC3\x84gypten \xE2\x80\x93 \xD0\x96", .latin1_title = "Something else"});
  const TestWindow old({.latin1_title = "Caf\xE9 de la Paix"});
  const TestWindow untitled({});
  EXPECT_TRUE(Becomes(
      [&] { return Listed(desktop_, "\xC3\x84gypten \xE2\x80\x93 \xD0\x96") == today.Handle(); }));
  EXPECT_TRUE(Becomes([&] { return Listed(desktop_, "Caf\xC3\xA9 de la Paix") == old.Handle(); }));
  EXPECT_EQ(Listed(desktop_, "Something else"), 0U);
}

TEST_F(AnyDesktop, ForgetsAWindowThatIsClosed) {
  auto window = std::make_unique<TestWindow>(WindowTraits{.utf8_title = "Soon gone"});
  const WindowHandle handle = window->Handle();
  EXPECT_TRUE(Becomes([&] { return IsListed(desktop_, handle); }));
  window.reset();
  EXPECT_TRUE(Becomes([&] { return !IsListed(desktop_, handle); }));
  EXPECT_EQ(desktop_.ProcessOf(handle), 0U);
}

TEST_F(AnyDesktop, TellsTheActiveWindowWithItsProcess) {
  TestWindow first({.utf8_title = "First", .process = kGameProcess});
  TestWindow second({.utf8_title = "Second"});
  for (TestWindow* window : {&first, &second}) {
    window->TakeFocus();
    EXPECT_EQ(desktop_.ActiveWindow(), window->Handle());
  }
  EXPECT_EQ(desktop_.ProcessOf(first.Handle()), kGameProcess);
  EXPECT_EQ(desktop_.ProcessOf(second.Handle()), 0U);
}

TEST_F(AnyDesktop, SendsEnterToTheWindowItActivatesOnly) {
  TestWindow game({.utf8_title = "Game", .process = kGameProcess});
  TestWindow bystander({.utf8_title = "Bystander", .process = kGameProcess});
  TestWindow own({.utf8_title = "Own", .process = kOwnProcess});
  own.TakeFocus();
  EXPECT_EQ(desktop_.Activate(game.Handle(), kGameProcess), Activation::kActivated);
  EXPECT_EQ(desktop_.ActiveWindow(), game.Handle());

  desktop_.PressEnter();
  EXPECT_TRUE(Becomes([&] { return game.EnterKeys() == "down up "; })) << game.EnterKeys();
  EXPECT_EQ(own.EnterKeys(), "");
  EXPECT_EQ(bystander.EnterKeys(), "");
}

TEST_F(AnyDesktop, SendsEnterAfterTheKeyThatTheUserStillHolds) {
  for (const QString key : {"Return", "alt"}) {
    TestWindow game({.utf8_title = "Game", .process = kGameProcess});
    TestWindow own({.utf8_title = "Own", .process = kOwnProcess});
    QProcess user;
    user.start("xdotool", {"keydown", key, "sleep", "0.3", "keyup", key});
    EXPECT_TRUE(Becomes([&] { return !own.EnterKeys().empty(); }));
    game.TakeFocus();

    desktop_.PressEnter();
    EXPECT_TRUE(Becomes([&] { return game.EnterKeys().ends_with("down up "); }))
        << key.toStdString() << ": " << game.EnterKeys();
    user.waitForFinished();
  }
}

TEST_F(AnyDesktop, HoldsEnterLongEnoughForAGameThatLooksAtTheKeyboardOnceAFrame) {
  TestWindow game({.utf8_title = "Game", .process = kGameProcess});
  std::thread program([this] { desktop_.PressEnter(); });
  EXPECT_TRUE(Becomes([&] { return game.IsAnyKeyDown(); }));
  program.join();
  EXPECT_TRUE(Becomes([&] { return game.EnterKeys() == "down up "; })) << game.EnterKeys();
}

TEST_F(AnyDesktop, WaitsForItsTurn) {
  TestWindow own({.utf8_title = "Own", .process = kOwnProcess});
  TestWindow game({.utf8_title = "Game"});
  TestWindow other({.utf8_title = "Other", .process = kGameProcess});
  other.TakeFocus();
  std::thread user([&own] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    own.TakeFocus();
  });
  EXPECT_EQ(desktop_.Activate(game.Handle(), 0), Activation::kActivated);
  user.join();
}

TEST_F(AnyDesktop, LeavesTheFocusToAnotherProgramThatKeepsIt) {
  const TestWindow game({.utf8_title = "Game", .process = kGameProcess});
  const TestWindow own({.utf8_title = "Own", .process = kOwnProcess});
  TestWindow other({.utf8_title = "Other", .process = kGameProcess});
  other.TakeFocus();
  EXPECT_EQ(desktop_.Activate(game.Handle(), kGameProcess), Activation::kNotOurTurn);
  EXPECT_EQ(desktop_.ActiveWindow(), other.Handle());
}

TEST_F(AnyDesktop, FailsToActivateWhatIsNotTheWindowMeant) {
  const TestWindow game({.utf8_title = "Game", .process = kGameProcess});
  TestWindow own({.utf8_title = "Own", .process = kOwnProcess});
  auto vanished = std::make_unique<TestWindow>(WindowTraits{.utf8_title = "Vanished"});
  const WindowHandle gone = vanished->Handle();
  own.TakeFocus();

  // Connected before the window goes, so that no number is given out a second time.
  EXPECT_EQ(desktop_.ActiveWindow(), own.Handle());
  vanished.reset();
  EXPECT_TRUE(Becomes([&] { return !IsListed(desktop_, gone); }));
  EXPECT_EQ(desktop_.Activate(gone, 0), Activation::kFailed);
  EXPECT_EQ(desktop_.Activate(game.Handle(), kGameProcess + 1), Activation::kFailed);
  EXPECT_EQ(desktop_.ActiveWindow(), own.Handle());
}

TEST_F(ManagedDesktop, FailsWhenTheDesktopRefuses) {
  const TestWindow game({.utf8_title = "Game", .process = kGameProcess, .takes_focus = false});
  TestWindow own({.utf8_title = "Own", .process = kOwnProcess});
  own.TakeFocus();
  EXPECT_EQ(desktop_.Activate(game.Handle(), kGameProcess), Activation::kFailed);
}

TEST_F(BareDesktop, LooksIntoFramesForWindows) {
  const TestWindow frame({});
  const TestWindow framed({.utf8_title = "Framed"}, frame.Handle());
  TestWindow inside({.utf8_title = "Part of the framed one"}, framed.Handle());
  EXPECT_EQ(Listed(desktop_, "Framed"), framed.Handle());
  EXPECT_FALSE(IsListed(desktop_, inside.Handle()));

  inside.TakeFocusFor(framed.Handle());
  EXPECT_EQ(desktop_.ActiveWindow(), framed.Handle());
}

void ExpectNothing(X11DesktopWindows& desktop) {
  EXPECT_TRUE(desktop.List().empty());
  EXPECT_EQ(desktop.ActiveWindow(), 0U);
  EXPECT_EQ(desktop.ProcessOf(1), 0U);
  EXPECT_EQ(desktop.Activate(1, 0), Activation::kFailed);
  desktop.PressEnter();
}

TEST(AnyServer, OffersNothingWithoutADisplay) {
  for (const char* display : {"", ":4999", "nonsense"}) {
    const ScopedDisplay none(display);
    X11DesktopWindows desktop;
    ExpectNothing(desktop);
  }
}

TEST(AnyServer, OffersNothingOnceItHasGone) {
  QProcess server;
  server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                        QStringLiteral("-nolisten"), QStringLiteral("tcp")});
  ASSERT_TRUE(server.waitForReadyRead());
  const ScopedDisplay display(server.readAllStandardOutput().trimmed().prepend(':').toStdString());
  X11DesktopWindows desktop;
  auto window = std::make_unique<TestWindow>(WindowTraits{.utf8_title = "On that server"});
  ASSERT_EQ(Listed(desktop, "On that server"), window->Handle());

  server.kill();
  ASSERT_TRUE(server.waitForFinished());
  ExpectNothing(desktop);
}

}  // namespace
}  // namespace vellumark::testing
