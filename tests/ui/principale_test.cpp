// The real main window over a program on a disk of its own.
#include "ui/principale.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <memory>

#include "foundation/messages.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "support/test_world.h"
#include "ui/access_keys.h"
#include "ui/picture_box.h"
#include "ui/savegame_list.h"
#include "ui/screen_shot_viewer.h"
#include "ui/shown_program.h"

namespace vellumark {

class PrincipaleTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void CaptionsAreTheMessagesByteForByte();
  void AccessKeysDoNotClash();
  void TabFollowsTheReadingOrder();
  void EveryControlCanBeTold();
  void EveryCommandIsEnabled();
  void KeysChangeTheDetailsAsClicksDo();
  void CtrlAndTheSpaceBarSelectOneLineMore();
  void TheColumnsOfTheListAlign();
  void TheContextMenuHasTheSavegameCommands();
  void DelAsksAndDeletesTheSelection();
  void ARowShowsControlCharactersAsMarksOrBlanks();
  void RescanKeepsNothingOfTheOldList();
  void TheViewerShowsThePictureOfItsOpening();
  void APictureThatIsNoneIsNotShown();
  void ThePictureKeepsItsProportion();
  void HelpOpensTheTextBesideTheProgram();
  void ClosingShutsDownOnce();

 private:
  void Start();
  template <typename Widget>
  Widget* Find(const char* name) const {
    return window_->findChild<Widget*>(QLatin1String(name));
  }
  QString FieldText(const char* name) const { return Find<QLineEdit>(name)->text(); }

  std::unique_ptr<testing::TestWorld> world_;
  std::unique_ptr<Principale> window_;
  std::unique_ptr<Program> program_;
};

// A picture of one colour, as a JPEG file's bytes.
std::string Jpeg(Qt::GlobalColor colour) {
  QImage image(64, 48, QImage::Format_RGB32);
  image.fill(colour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "JPEG");
  return bytes.toStdString();
}

void PrincipaleTest::init() {
  world_ = std::make_unique<testing::TestWorld>();
  world_->WriteArchiveFile();
  world_->WritePreferences();
  world_->disk.Write("Program/default_shot.jpg", Jpeg(Qt::gray));
  world_->AddSavegame("Archive/Slot1", 0, "Angkor Wat", 1);
  world_->AddSavegame("Archive/Slot1", 1, "Race For The Iris", 2);
  world_->AddSavegame("Archive/Slot1", 2, "The Tomb Of Seth", 3);
  world_->disk.Write("Archive/Slot1/note1.txt", "first\x8D\nsecond \xE9\r\n");
  world_->disk.Write("Archive/Slot1/shot1.jpg", Jpeg(Qt::red));
  world_->disk.Write("Archive/Slot1/shot2.jpg", "no picture at all");
}

void PrincipaleTest::Start() { ShowProgram(*world_, window_, program_); }

void PrincipaleTest::cleanup() {
  window_.reset();
  program_.reset();
  world_.reset();
}

void PrincipaleTest::CaptionsAreTheMessagesByteForByte() {
  Start();
  for (const Caption& caption : CaptionsOf(WindowId::kPrincipale)) {
    const QString expected = ToQString(world_->text, LoadMessage(caption.message));
    const QString name = QLatin1String(caption.control);
    if (name.isEmpty()) {
      QCOMPARE(window_->windowTitle(), expected);
      continue;
    }
    auto* control = window_->findChild<QObject*>(name);
    QVERIFY2(control != nullptr, caption.control);
    const char* property = qobject_cast<QMenu*>(control) != nullptr ? "title" : "text";
    QCOMPARE(WithoutAccessKey(control->property(property).toString()), expected);
    if (caption.tool_tip != 0) {
      QCOMPARE(control->property("toolTip").toString(),
               ToQString(world_->text, LoadMessage(caption.tool_tip)));
    }
  }
}

QChar AccessKeyOf(const QString& caption) {
  const qsizetype at = caption.indexOf(u'&');
  return at < 0 ? QChar() : caption[at + 1].toLower();
}

void PrincipaleTest::AccessKeysDoNotClash() {
  Start();
  QList<QChar> window_keys;
  for (const QPushButton* button : window_->findChildren<QPushButton*>()) {
    const QChar key = AccessKeyOf(button->text());
    const QString name = button->objectName();
    if (name == QLatin1String("Pul_Precedente") || name == QLatin1String("Pul_Seguente")) continue;
    QVERIFY2(!key.isNull(), qPrintable(name));
    window_keys.append(key);
  }
  for (const QAction* top : window_->menuBar()->actions()) {
    window_keys.append(AccessKeyOf(top->text()));
    QList<QChar> menu_keys;
    for (const QAction* item : top->menu()->actions()) {
      if (!item->isSeparator()) menu_keys.append(AccessKeyOf(item->text()));
    }
    QVERIFY2(!menu_keys.contains(QChar()), qPrintable(top->text()));
    QCOMPARE(QSet<QChar>(menu_keys.begin(), menu_keys.end()).size(), menu_keys.size());
  }
  QVERIFY(!window_keys.contains(QChar()));
  QCOMPARE(QSet<QChar>(window_keys.begin(), window_keys.end()).size(), window_keys.size());
}

void PrincipaleTest::TabFollowsTheReadingOrder() {
  Start();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  QVERIFY(Find<SavegameList>("List1")->hasFocus());
  for (const char* next : {"Pul_Zoom", "Pul_CambiaProp", "Text_Note", "Text_PathSavegame",
                           "Text_TotSavegame", "Text_TotCartelle", "Pul_Cerca", "Pul_Precedente",
                           "Text_Trovati", "Pul_Seguente", "Pul_Play", "Pul_StartTomb", "List1"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
  }
}

void PrincipaleTest::EveryControlCanBeTold() {
  Start();
  for (const char* name :
       {"List1", "Text_TotSavegame", "Text_TotCartelle", "Text_PathSavegame", "Text_Note", "Image1",
        "Text_Trovati", "Pul_StartTomb", "Pul_Play", "Pul_CambiaProp", "Pul_Zoom", "Pul_Cerca",
        "Pul_Precedente", "Pul_Seguente"}) {
    auto* control = Find<QWidget>(name);
    QVERIFY2(control != nullptr, name);
    QVERIFY2(!control->accessibleName().isEmpty(), name);
  }
  QVERIFY(Find<QPlainTextEdit>("Text_Note")->isReadOnly());
  QCOMPARE(FieldText("Text_TotSavegame"), QStringLiteral("3"));
  QCOMPARE(FieldText("Text_TotCartelle"), QStringLiteral("1"));
}

void PrincipaleTest::EveryCommandIsEnabled() {
  Start();
  for (const char* name :
       {"mnu_New", "mnu_Load", "mnu_Save", "mnu_SaveAs", "mnu_Exit", "mnu_Archivia", "mnu_Find",
        "mnu_Examine", "mnu_PropSavegame", "mnu_Copy", "mnu_Move", "mnu_Delete", "mnu_Reorder",
        "mnu_Scansione", "mnu_PrefArchive", "mnu_PrefManager", "mnu_ShowHelp"}) {
    QVERIFY2(Find<QAction>(name)->isEnabled(), name);
  }
  for (const char* name : {"Pul_Zoom", "Pul_CambiaProp", "Pul_Cerca", "Pul_Precedente",
                           "Pul_Seguente", "Pul_Play", "Pul_StartTomb"}) {
    QVERIFY2(Find<QPushButton>(name)->isEnabled(), name);
  }
}

void PrincipaleTest::KeysChangeTheDetailsAsClicksDo() {
  Start();
  auto* list = Find<SavegameList>("List1");
  QCOMPARE(FieldText("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.0"));

  QTest::keyClick(list, Qt::Key_Down);
  QCOMPARE(FieldText("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.1"));
  QCOMPARE(Find<QPlainTextEdit>("Text_Note")->toPlainText(),
           QString::fromUtf8("first\nsecond \u00E9"));
  QCOMPARE(Find<PictureBox>("Image1")->Picture().pixelColor(5, 5).red() > 200, true);

  QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
  QCOMPARE(FieldText("Text_PathSavegame"), QStringLiteral("Selected  2 savegames"));
  QCOMPARE(Find<QPlainTextEdit>("Text_Note")->toPlainText(), QString());
  QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(program_->selection.indices, (std::vector<std::int16_t>{0, 1, 2}));

  const auto line = [list](int row) {
    return list->visualRect(list->model()->index(row, 0)).center();
  };

  // Another click on the same line looks at its files again.
  QTest::keyClick(list, Qt::Key_Home);
  world_->disk.Write("Archive/Slot1/shot0.jpg", Jpeg(Qt::blue));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, line(0));
  QVERIFY(Find<PictureBox>("Image1")->Picture().pixelColor(5, 5).blue() > 200);

  // The third line is clicked first; the selection is in line order all the same.
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, line(2));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, line(0));
  QCOMPARE(program_->selection.indices, (std::vector<std::int16_t>{0, 2}));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, line(0));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, line(2));
  QCOMPARE(program_->selection.Count(), std::int16_t{0});
  QCOMPARE(FieldText("Text_PathSavegame"), QString());
}

void PrincipaleTest::CtrlAndTheSpaceBarSelectOneLineMore() {
  Start();
  auto* list = Find<SavegameList>("List1");
  QTest::keyClick(list, Qt::Key_Home);
  QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
  // As Windows reports it: with a blank as the text that it types.
  QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, QStringLiteral(" "));
  QApplication::sendEvent(list, &space);
  QCOMPARE(list->SelectedLines(), (std::vector<int>{0, 1}));
  QCOMPARE(list->currentIndex().row(), 1);
}

void PrincipaleTest::TheColumnsOfTheListAlign() {
  Start();
  const QFontMetrics metrics(Find<SavegameList>("List1")->font());
  QCOMPARE(metrics.horizontalAdvance(QStringLiteral("iiii")),
           metrics.horizontalAdvance(QStringLiteral("WWWW")));
}

void PrincipaleTest::TheContextMenuHasTheSavegameCommands() {
  Start();
  auto* list = Find<SavegameList>("List1");
  QStringList names;
  const auto look = [&names] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    for (const QAction* action : menu->actions()) names.append(action->objectName());
    menu->close();
  };
  const QStringList expected = {"mnu_Examine", "mnu_PropSavegame", "mnu_Copy", "mnu_Move",
                                "mnu_Delete"};

  // Another line by the mouse: it is selected first. Several: they stay selected.
  const QPoint second = list->visualRect(list->model()->index(1, 0)).center();
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
  QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
  right_click(second);
  QCOMPARE(program_->selection.Count(), std::int16_t{3});

  names.clear();
  QTimer::singleShot(50, this, look);
  QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, second, list->mapToGlobal(second));
  QApplication::sendEvent(list, &menu_key);
  QCOMPARE(names, expected);
}

void PrincipaleTest::DelAsksAndDeletesTheSelection() {
  Start();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  auto* list = Find<SavegameList>("List1");
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
  world_->boxes.answers = {BoxAnswer::kYes};
  QTest::keyClick(list, Qt::Key_Delete);
  QCOMPARE(world_->disk.Names("Archive/Slot1"), std::vector<std::string>{"savegame.0"});
  QCOMPARE(list->model()->rowCount(), 1);
}

void PrincipaleTest::ARowShowsControlCharactersAsMarksOrBlanks() {
  Start();
  const QString row = Find<SavegameList>("List1")->model()->index(1, 0).data().toString();
  QCOMPARE(row,
           QString::fromUtf8(" I    2 Race For The Iris            first\u00B6 second \u00E9"));

  // Before the note the same byte is whatever the code page says.
  const CodePageText cyrillic(1251, "ru", false);
  const std::string line(45, '\x8D');
  const QString shown = ToDisplayLine(cyrillic, line, 37);
  QCOMPARE(shown, QString(37, QChar(0x040C)) + QString(8, QChar(0xB6)));
  QCOMPARE(ToDisplayLine(cyrillic, std::string("\0\t\n\r\x7F", 5), 37), QString(5, u' '));
}

void PrincipaleTest::RescanKeepsNothingOfTheOldList() {
  Start();
  auto* list = Find<SavegameList>("List1");
  QTest::keyClick(list, Qt::Key_End);
  world_->AddSavegame("Archive/Slot1", 7, "Burial Chambers", 4);
  Find<QAction>("mnu_Scansione")->trigger();
  QCOMPARE(list->model()->rowCount(), 4);
  QCOMPARE(list->SelectedLines(), std::vector<int>{0});
  QCOMPARE(FieldText("Text_PathSavegame"), QStringLiteral("t:\\archive\\slot1\\savegame.0"));

  window_->ReplaceLine(2, std::string(37, ' ') + "new note");
  QVERIFY(list->model()->index(2, 0).data().toString().endsWith(QLatin1String("new note")));
  QCOMPARE(list->SelectedLines(), std::vector<int>{0});
}

void PrincipaleTest::TheViewerShowsThePictureOfItsOpening() {
  Start();
  auto* list = Find<SavegameList>("List1");
  QTest::keyClick(list, Qt::Key_Down);
  QTest::mouseClick(Find<QPushButton>("Pul_Zoom"), Qt::LeftButton);
  auto* viewer = Find<ScreenShotViewer>("Dialog_ScreenShot");
  QVERIFY(viewer != nullptr && viewer->isVisible() && !viewer->isModal());
  QVERIFY(program_->details.ViewerOpen);
  QCOMPARE(viewer->windowTitle(), QString());
  auto* picture = viewer->findChild<PictureBox*>(QStringLiteral("Image1"));
  const auto is_red = [picture] { return picture->Picture().pixelColor(5, 5).blue() < 60; };
  QVERIFY(is_red());

  QTest::keyClick(list, Qt::Key_Up);
  QVERIFY2(is_red(), "another selection does not change the viewer");
  QTest::mouseClick(Find<QPushButton>("Pul_Zoom"), Qt::LeftButton);
  QVERIFY(!is_red());
  QCOMPARE(window_->findChildren<ScreenShotViewer*>().size(), 1);

  viewer->resize(500, 300);
  QTRY_COMPARE(picture->size(), viewer->frameGeometry().size() - QSize(9, 27));
  QTest::keyClick(viewer, Qt::Key_Escape);
  QVERIFY(!program_->details.ViewerOpen);
  QTRY_COMPARE(window_->findChildren<ScreenShotViewer*>().size(), 0);
}

void PrincipaleTest::APictureThatIsNoneIsNotShown() {
  Start();
  QTest::keyClick(Find<SavegameList>("List1"), Qt::Key_End);
  QVERIFY(Find<PictureBox>("Image1")->Picture().isNull());
  QTest::mouseClick(Find<QPushButton>("Pul_Zoom"), Qt::LeftButton);
  QVERIFY(program_->details.ViewerOpen);
}

void PrincipaleTest::ThePictureKeepsItsProportion() {
  Start();
  for (const QSize size : {QSize(1024, 600), QSize(1280, 800), QSize(1920, 1080)}) {
    window_->resize(size);
    QTest::qWait(20);
    const QWidget* picture = Find<QWidget>("Image1");
    QVERIFY(std::abs(picture->width() * 3 - picture->height() * 4) <= 4);
    QCOMPARE(window_->size(), size);
  }
}

void PrincipaleTest::HelpOpensTheTextBesideTheProgram() {
  Start();
  Find<QAction>("mnu_ShowHelp")->trigger();
  QCOMPARE(world_->boxes.shown.back().text,
           std::string("Warning, I cann't find help file in : T:\\Program\\help_savegame.txt"));
  world_->disk.Write("Program/help_savegame.txt", "help");
  Find<QAction>("mnu_ShowHelp")->trigger();
  QCOMPARE(world_->shell.opened.size(), std::size_t{1});
  QVERIFY(world_->shell.opened[0].document.ends_with("/Program/help_savegame.txt"));
}

void PrincipaleTest::ClosingShutsDownOnce() {
  Start();
  QTest::mouseClick(Find<QPushButton>("Pul_Zoom"), Qt::LeftButton);
  QSignalSpy closed(window_.get(), &Principale::Closed);
  Find<QAction>("mnu_Exit")->trigger();
  QCOMPARE(closed.count(), 1);
  QVERIFY(!window_->isVisible());
  QCOMPARE(world_->disk.Read("Archive.vmk").substr(1026), std::string("\3\0\0\0", 4));
  QTRY_COMPARE(window_->findChildren<ScreenShotViewer*>().size(), 0);
  window_->close();
  QCOMPARE(closed.count(), 1);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::PrincipaleTest)
#include "principale_test.moc"
