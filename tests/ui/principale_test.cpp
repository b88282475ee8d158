// The real main window over a program on a disk of its own.
#include "ui/principale.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>

#include "foundation/version.h"
#include "foundation/work_scope.h"
#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_text.h"
#include "ui/picture_box.h"
#include "ui/pictures_view.h"
#include "ui/savegame_list.h"
#include "ui/screen_shot_viewer.h"
#include "ui/window_fixture.h"

namespace vellumark {

class PrincipaleTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void CaptionsAreTheMessagesByteForByte();
  void EveryCommandIsEnabledAndHasAnAccessKeyOfItsOwn();
  void TabFollowsTheReadingOrder();
  void KeysChangeTheDetailsAsClicksDo();
  void CtrlAndTheSpaceBarSelectOneLineMore();
  void TheContextMenuHasTheSavegameCommands();
  void KeysOfTheListAreTheListsAlone();
  void AWorkingWindowPaintsItselfButDoesNotClose();
  void ARowShowsControlCharactersAsMarksOrBlanks();
  void BothViewsHaveOneSelection();
  void RescanKeepsNothingOfTheOldList();
  void LongWorkShowsItsProgressInThePlaceOfThePath();
  void TheViewerShowsThePictureOfItsOpening();
  void TheWindowFitsSmallScreensAndLarge();
  void HelpOpensTheTextBesideTheProgram();
  void AboutNamesTheVersionAndTheLicences();
  void ClosingShutsDownOnce();

 private:
  void Prepare() override;

  template <typename Widget>
  Widget* Find(const char* name) const {
    return vellumark::Find<Widget>(window_.get(), name);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(List(), key, modifiers);
  }
  void Click(const char* button) const { vellumark::Click(window_.get(), button); }
  QString TextOf(const char* field) const { return vellumark::TextOf(window_.get(), field); }
  SavegameList* List() const { return Find<SavegameList>("List1"); }
  QString Row(int row) const { return List()->model()->index(row, 0).data().toString(); }
  QPoint PlaceOf(int row) const {
    return List()->visualRect(List()->model()->index(row, 0)).center();
  }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers, PlaceOf(row));
  }
};

void PrincipaleTest::Prepare() {
  world_->disk.Write("Program/default_shot.jpg", Jpeg(Qt::gray));
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Archive/Slot1", 1, "Race For The Iris", 2);
  world_->AddSavegame("Archive/Slot1", 2, "The Tomb Of Seth", 3);
  world_->disk.Write("Archive/Slot1/note1.txt", "first\x8D\nsecond \xE9\r\n");
  world_->disk.Write("Archive/Slot1/shot1.jpg", Jpeg(Qt::red));
  world_->disk.Write("Archive/Slot1/shot2.jpg", "no picture at all");
}

void PrincipaleTest::CaptionsAreTheMessagesByteForByte() {
  QCOMPARE(window_->windowTitle(), QStringLiteral(" Vellumark - savegame archive"));
  ExpectCaptions(window_.get(), WindowId::kPrincipale, world_->text);
}

// Each of these can be used and is reached by a letter that none of the others has.
template <typename Control>
void ExpectUsable(const QList<Control*>& controls, QSet<QChar>& keys) {
  for (const Control* control : controls) {
    const QString text = control->text();
    const qsizetype mark = text.indexOf(u'&');
    QVERIFY2(mark >= 0 && control->isEnabled(), qPrintable(text));
    QVERIFY2(!keys.contains(text[mark + 1].toLower()), qPrintable(text));
    keys.insert(text[mark + 1].toLower());
  }
}

void PrincipaleTest::EveryCommandIsEnabledAndHasAnAccessKeyOfItsOwn() {
  Find<QAction>("mnu_ViewPictures")->trigger();
  QList<QPushButton*> buttons = window_->findChildren<QPushButton*>();
  // These two have keys of another kind.
  for (const char* step : {"Pul_Precedente", "Pul_Seguente"}) {
    QVERIFY(Find<QPushButton>(step)->isEnabled() && buttons.removeOne(Find<QPushButton>(step)));
  }
  QSet<QChar> window_keys;
  ExpectUsable(buttons, window_keys);
  const QList<QAction*> menus = window_->menuBar()->actions();
  ExpectUsable(menus, window_keys);
  for (const QAction* menu : menus) {
    QList<QAction*> items = menu->menu()->actions();
    items.removeIf([](const QAction* item) { return item->isSeparator(); });
    QSet<QChar> menu_keys;
    ExpectUsable(items, menu_keys);
  }
}

void PrincipaleTest::TabFollowsTheReadingOrder() {
  QVERIFY(List()->hasFocus());
  ExpectTabOrder({"Pul_Zoom", "Pul_CambiaProp", "Text_Note", "Text_PathSavegame",
                  "Text_TotSavegame", "Text_TotCartelle", "Pul_Cerca", "Pul_Precedente",
                  "Text_Trovati", "Pul_Seguente", "Pul_Play", "Pul_StartTomb", "List1"});
  auto* picture = QAccessible::queryAccessibleInterface(Find<QWidget>("Image1"));
  QVERIFY(picture->role() == QAccessible::Graphic && !picture->text(QAccessible::Name).isEmpty());
  QVERIFY(List()->accessibleDescription().contains(QChar(0xB6)));
  QVERIFY2(List()->viewport()->y() >= 10, "a heading stands over the lines");
  QVERIFY(Find<QPlainTextEdit>("Text_Note")->isReadOnly());
}

void PrincipaleTest::KeysChangeTheDetailsAsClicksDo() {
  QCOMPARE(TextOf("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.0"));

  Press(Qt::Key_Down);
  QCOMPARE(TextOf("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.1"));
  QCOMPARE(Find<QPlainTextEdit>("Text_Note")->toPlainText(),
           QString::fromUtf8("first\nsecond \u00E9"));

  Press(Qt::Key_Down, Qt::ShiftModifier);
  QCOMPARE(TextOf("Text_PathSavegame"), QStringLiteral("Selected  2 savegames"));
  Press(Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(program_->selection.indices, (std::vector<std::int16_t>{0, 1, 2}));

  // The key that leads to the line where the cursor is already selects it alone, too.
  Press(Qt::Key_Home);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Home);
  QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{0});

  QTest::keyClicks(List(), "the t");
  QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{2});
  Press(Qt::Key_Home);

  // Another click on the same line looks at its files again.
  world_->disk.Write("Archive/Slot1/shot0.jpg", Jpeg(Qt::blue));
  ClickRow(0);
  QVERIFY(Find<PictureBox>("Image1")->Picture().pixelColor(5, 5).blue() > 200);

  // The third line is clicked first; the selection is in line order all the same.
  ClickRow(2);
  ClickRow(0, Qt::ControlModifier);
  QCOMPARE(program_->selection.indices, (std::vector<std::int16_t>{0, 2}));
  ClickRow(2, Qt::ControlModifier);
  const auto shown = [this] { return Find<QWidget>("Image1")->grab().toImage(); };
  const QImage of_one = shown();
  ClickRow(0, Qt::ControlModifier);
  QCOMPARE(program_->selection.Count(), std::int16_t{0});
  QVERIFY2(shown() != of_one, "the picture is seen to be of nothing selected");
  QCOMPARE(TextOf("Text_PathSavegame"), QString());
}

void PrincipaleTest::CtrlAndTheSpaceBarSelectOneLineMore() {
  auto* list = List();
  Press(Qt::Key_Home);
  Press(Qt::Key_Down, Qt::ControlModifier);
  // As Windows reports it: with a blank as the text that it types.
  QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, QStringLiteral(" "));
  QApplication::sendEvent(list, &space);
  QCOMPARE(window_->SelectedLines(), (std::vector<int>{0, 1}));
  QCOMPARE(list->currentIndex().row(), 1);
}

void PrincipaleTest::TheContextMenuHasTheSavegameCommands() {
  auto* list = List();
  QStringList names;
  QPoint place;
  const auto look = [&names, &place] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    for (const QAction* action : menu->actions()) names.append(action->objectName());
    place = menu->pos();
    menu->close();
  };
  const QStringList expected = {"mnu_Examine", "mnu_PropSavegame", "mnu_Copy",    "mnu_Move",
                                "mnu_Delete",  "mnu_ShowInFolder", "mnu_CopyPath"};

  // Another line by the mouse: it is selected first. Several: they stay selected.
  const QPoint second = PlaceOf(1);
  const auto right_click = [&](QPoint at) {
    names.clear();
    QTimer::singleShot(50, this, look);
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, at);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, list->viewport()->mapToGlobal(at));
    QApplication::sendEvent(list->viewport(), &event);
  };
  right_click(second);
  QCOMPARE(names, expected);
  QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{1});
  Press(Qt::Key_A, Qt::ControlModifier);
  right_click(second);
  QCOMPARE(program_->selection.Count(), std::int16_t{3});

  names.clear();
  QTimer::singleShot(50, this, look);
  const QPoint middle = list->rect().bottomRight();
  QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, middle, list->mapToGlobal(middle));
  QApplication::sendEvent(list, &menu_key);
  QCOMPARE(names, expected);
  QVERIFY(std::abs(place.y() - list->viewport()->mapToGlobal(second).y()) < 30);
}

// Counts how often what it watches is painted.
class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    painted += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }

  int painted = 0;
};

void PrincipaleTest::AWorkingWindowPaintsItselfButDoesNotClose() {
  PaintCounter counter;
  List()->viewport()->installEventFilter(&counter);
  {
    const WorkScope working(*program_);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    List()->viewport()->update();
    QTest::qSleep(200);
    QCOMPARE(counter.painted, 0);
    window_->ShowProgress(0, 1);
    QVERIFY(counter.painted > 0);
    QVERIFY(!window_->close());
  }
  QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
  QVERIFY(window_->isVisible());
}

void PrincipaleTest::KeysOfTheListAreTheListsAlone() {
  auto* list = List();
  Press(Qt::Key_Down);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  world_->boxes.answers = {BoxAnswer::kYes};

  // In a text the same keys are the text's.
  auto* note = Find<QPlainTextEdit>("Text_Note");
  note->setPlainText(QStringLiteral("of the note"));
  note->setFocus();
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_C}) QTest::keyClick(note, key, Qt::ControlModifier);
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("of the note"));
  for (const char* other : {"Text_Note", "Text_PathSavegame", "Pul_Cerca"}) {
    Find<QWidget>(other)->setFocus();
    QTest::keyClick(Find<QWidget>(other), Qt::Key_Delete);
  }
  QVERIFY2(world_->boxes.shown.empty(), "no copy and no question");

  list->setFocus();
  Press(Qt::Key_Delete);
  QCOMPARE(world_->disk.Names("Archive/Slot1"), std::vector<std::string>{"savegame.0"});
  QCOMPARE(list->model()->rowCount(), 1);
}

void PrincipaleTest::ARowShowsControlCharactersAsMarksOrBlanks() {
  QVERIFY2(QFontInfo(List()->font()).fixedPitch(), "the columns align");
  QCOMPARE(Row(1),
           QString::fromUtf8(" I    2 Race For The Iris            first\u00B6 second \u00E9"));

  // Before the note the same byte is whatever the code page says.
  const CodePageText cyrillic(1251, "ru", false);
  const std::string line(45, '\x8D');
  const QString shown = ToDisplayLine(cyrillic, line, 37);
  QCOMPARE(shown, QString(37, QChar(0x040C)) + QString(8, QChar(0xB6)));
  QCOMPARE(ToDisplayLine(cyrillic, std::string("\0\t\n\r\x7F", 5), 37), QString(5, u' '));
}

void PrincipaleTest::BothViewsHaveOneSelection() {
  Press(Qt::Key_Down);
  QTest::keyClick(window_.get(), Qt::Key_2, Qt::ControlModifier);
  auto* pictures = Find<PicturesView>("Pictures1");
  QVERIFY(pictures->isVisible() && pictures->hasFocus() && !List()->isVisible());
  QVERIFY(Find<QAction>("mnu_ViewPictures")->isChecked());
  QTest::keyClick(pictures, Qt::Key_End);
  QCOMPARE(program_->selection.indices, std::vector<std::int16_t>{2});
  QCOMPARE(TextOf("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.2"));

  world_->boxes.answers = {BoxAnswer::kYes};
  QTest::keyClick(pictures, Qt::Key_Delete);
  QVERIFY(!world_->disk.Exists("Archive/Slot1/savegame.2"));
  QCOMPARE(pictures->model()->rowCount(), 2);
  QTest::keyClick(pictures, Qt::Key_1, Qt::ControlModifier);
  QVERIFY(List()->hasFocus());
  QCOMPARE(List()->currentIndex().row(), 0);
}

void PrincipaleTest::RescanKeepsNothingOfTheOldList() {
  auto* list = List();
  Press(Qt::Key_End);
  world_->AddSavegame("Archive/Slot1", 7, "Burial Chambers", 4);
  Find<QAction>("mnu_Scansione")->trigger();
  QCOMPARE(list->model()->rowCount(), 4);
  QCOMPARE(window_->SelectedLines(), std::vector<int>{0});
  QCOMPARE(TextOf("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.0"));
}

void PrincipaleTest::LongWorkShowsItsProgressInThePlaceOfThePath() {
  auto* progress = Find<QProgressBar>("ProgressBar1");
  const QSize size = window_->size();
  {
    const WorkScope working(*program_);
    window_->ShowProgress(1, 10);
    QVERIFY(!progress->isVisible());
    QTest::qSleep(600);
    window_->ShowProgress(3, 10);
    QVERIFY(progress->isVisible() && !Find<QLineEdit>("Text_PathSavegame")->isVisible());
    QCOMPARE(progress->value() * 10, progress->maximum() * 3);
  }
  QVERIFY(!progress->isVisible() && Find<QLineEdit>("Text_PathSavegame")->isVisible());
  QCOMPARE(window_->size(), size);
}

void PrincipaleTest::TheViewerShowsThePictureOfItsOpening() {
  Press(Qt::Key_Down);
  Click("Pul_Zoom");
  auto* viewer = Find<ScreenShotViewer>("Dialog_ScreenShot");
  QVERIFY(viewer != nullptr && viewer->isVisible() && !viewer->isModal());
  QVERIFY(program_->details.ViewerOpen);
  auto* picture = viewer->findChild<PictureBox*>(QStringLiteral("Image1"));
  const auto is_red = [picture] { return picture->Picture().pixelColor(5, 5).blue() < 60; };
  QVERIFY(is_red());

  Press(Qt::Key_Down);
  QVERIFY2(Find<PictureBox>("Image1")->Picture().isNull(), "its file is no picture");
  QCOMPARE(Find<PictureBox>("Image1")->accessibleDescription(),
           QStringLiteral("This picture cannot be shown: it is no picture."));
  QVERIFY2(is_red(), "another selection does not change the viewer");
  Click("Pul_Zoom");
  QVERIFY(picture->Picture().isNull());
  QCOMPARE(window_->findChildren<ScreenShotViewer*>().size(), 1);

  QVERIFY(viewer->width() >= 640 && viewer->height() >= 480);
  viewer->resize(500, 300);
  QTRY_COMPARE(picture->width(), 500);
  viewer->showMinimized();
  Click("Pul_Zoom");
  QVERIFY(!viewer->isMinimized());
  QTest::keyClick(viewer, Qt::Key_Escape);
  QVERIFY(!program_->details.ViewerOpen);
  QTRY_COMPARE(window_->findChildren<ScreenShotViewer*>().size(), 0);
}

int IsRed(const QImage& image, QPoint at) { return image.pixelColor(at).blue() < 60 ? 1 : 0; }

void PrincipaleTest::TheWindowFitsSmallScreensAndLarge() {
  Press(Qt::Key_Down);
  for (const QSize size : {QSize(1920, 1080), QSize(784, 560), QSize(624, 410)}) {
    window_->resize(size);
    QTest::qWait(20);
    for (const auto* button : window_->findChildren<QPushButton*>()) {
      // Those of the page are not there while there is a list.
      if (button->objectName().startsWith(QLatin1String("Pul_Page"))) continue;
      const QRegion seen = button->visibleRegion();
      QVERIFY2(seen == QRegion(button->rect()), qPrintable(button->objectName()));
    }
    const QImage picture = Find<QWidget>("Image1")->grab().toImage();
    int width = 0;
    int height = 0;
    for (int x = 0; x < picture.width(); ++x) width += IsRed(picture, {x, picture.height() / 2});
    for (int y = 0; y < picture.height(); ++y) height += IsRed(picture, {picture.width() / 2, y});
    QVERIFY(height >= 48 && std::abs(width * 3 - height * 4) <= 4);
    QCOMPARE(window_->size(), size);
  }
}

void PrincipaleTest::HelpOpensTheTextBesideTheProgram() {
  Find<QAction>("mnu_ShowHelp")->trigger();
  QCOMPARE(world_->boxes.shown.back().text,
           std::string("Warning, I cann't find help file in : T:\\Program\\help_savegame.txt"));
  world_->disk.Write("Program/help_savegame.txt", "help");
  Find<QAction>("mnu_ShowHelp")->trigger();
  QCOMPARE(world_->shell.opened.size(), std::size_t{1});
  QVERIFY(world_->shell.opened[0].document.ends_with("/Program/help_savegame.txt"));
  world_->shell.answer = false;
  Find<QAction>("mnu_ShowHelp")->trigger();
  QVERIFY(world_->boxes.shown.back().text.starts_with("No program could be started"));
}

void PrincipaleTest::AboutNamesTheVersionAndTheLicences() {
  Find<QAction>("mnu_About")->trigger();
  const std::string text = world_->boxes.shown.back().text;
  QVERIFY(text.starts_with(std::string("Vellumark ") + Version() + "\r\n"));
  for (const char* licence : {"MIT licence", "GNU Lesser General Public License, version 3"}) {
    QVERIFY(text.find(licence) != std::string::npos);
  }
  QVERIFY(text.find('~') == std::string::npos);
}

void PrincipaleTest::ClosingShutsDownOnce() {
  Click("Pul_Zoom");
  QSignalSpy closed(window_.get(), &Principale::Closed);
  Find<QAction>("mnu_Exit")->trigger();
  QCOMPARE(closed.count(), 1);
  QVERIFY(!window_->isVisible());
  QCOMPARE(world_->disk.Read("Archive.vmk").substr(1026), std::string("\3\0\0\0", 4));
  QTRY_COMPARE(window_->findChildren<ScreenShotViewer*>().size(), 0);
  QVERIFY2(ModalOpener() == nullptr, "no dialog opens over a window that is gone");
  QCloseEvent again;
  QApplication::sendEvent(window_.get(), &again);
  QCOMPARE(closed.count(), 1);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::PrincipaleTest)
#include "principale_test.moc"
