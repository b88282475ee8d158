// Message boxes, file dialogs, the clipboard, the shell and sounds by Qt.
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "game/capture.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/qt_shell.h"
#include "platform/qt/qt_sound_player.h"
#include "program.h"
#include "support/test_world.h"

namespace vellumark {
namespace {

// A picture on the clipboard that counts how often it is asked for its pixels.
class CountedPicture final : public QMimeData {
 public:
  explicit CountedPicture(int* conversions) : conversions_(conversions) {}

  QStringList formats() const override { return {QStringLiteral("application/x-qt-image")}; }

 protected:
  QVariant retrieveData(const QString& /*format*/, QMetaType /*type*/) const override {
    ++*conversions_;
    return image_;
  }

 private:
  int* conversions_;
  QImage image_{7680, 4320, QImage::Format_RGB32};
};

}  // namespace

class QtServicesTest : public QObject {
  Q_OBJECT

 public:
  Q_INVOKABLE void Opened(const QUrl& document) { opened_ = document; }

 private slots:
  void MessageBoxesAnswerKeys();
  void MessageBoxesShowTextAsItIs();
  void ALongTextScrolls();
  void ALongPathIsNotCutOff();
  void FileDialogsStartWhereTheyAreTold();
  void FileDialogsExplainAPathThatCannotBeUsed();
  void APictureIsConvertedOnlyWhenItIsWanted();
  void TheShellRefusesWhatIsMissing();
  void SoundsNeedNeitherDeviceNorModule();

 private:
  // Does something to the dialog that comes up next.
  template <typename Dialog>
  void WithNext(const std::function<void(Dialog*)>& act) {
    QTimer::singleShot(50, this, [this, act] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) {
        WithNext<Dialog>(act);
      } else {
        act(dialog);
      }
    });
  }

  testing::TestWorld world_;
  QUrl opened_;
};

void QtServicesTest::MessageBoxesAnswerKeys() {
  const struct {
    BoxButtons buttons;
    Qt::Key key;
    BoxAnswer answer;
  } cases[] = {{BoxButtons::kYesNo, Qt::Key_Return, BoxAnswer::kYes},
               {BoxButtons::kYesNo, Qt::Key_Escape, BoxAnswer::kNo},
               {BoxButtons::kOkCancel, Qt::Key_Return, BoxAnswer::kOk},
               {BoxButtons::kOkCancel, Qt::Key_Escape, BoxAnswer::kCancel},
               {BoxButtons::kOk, Qt::Key_Escape, BoxAnswer::kOk},
               {BoxButtons::kYesNoFromNo, Qt::Key_Return, BoxAnswer::kNo},
               {BoxButtons::kYesNoBothAct, Qt::Key_Y, BoxAnswer::kYes}};
  for (const auto& [buttons, key, answer] : cases) {
    WithNext<QMessageBox>([key = key, buttons = buttons](QMessageBox* box) {
      QCOMPARE(box->windowTitle(), QStringLiteral("Vellumark"));
      QCOMPARE(box->icon(), QMessageBox::Warning);
      if (buttons == BoxButtons::kYesNoBothAct) {
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(!box->close() && box->isVisible());
      }
      QTest::keyClick(box, key, key == Qt::Key_Y ? Qt::AltModifier : Qt::NoModifier);
    });
    QCOMPARE(QtMessageBoxes(world_.text).Show("text", buttons, BoxIcon::kExclamation), answer);
  }
}

void QtServicesTest::MessageBoxesShowTextAsItIs() {
  WithNext<QMessageBox>([](QMessageBox* box) {
    QCOMPARE(box->text(), QString::fromUtf8("<b>\u00E9</b>\ntwo\nthree"));
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QCOMPARE(box->icon(), QMessageBox::NoIcon);
    box->accept();
  });
  QtMessageBoxes(world_.text).Show("<b>\xE9</b>\rtwo\r\nthree", BoxButtons::kOk, BoxIcon::kNone);
}

void QtServicesTest::ALongTextScrolls() {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "line " + std::to_string(i) + "\r\n";
  WithNext<QMessageBox>([](QMessageBox* box) {
    auto* whole = box->findChild<QTextEdit*>();
    QVERIFY(whole != nullptr && whole->isVisible());
    QCOMPARE(box->icon(), QMessageBox::Critical);
    QVERIFY(whole->toPlainText().contains(QLatin1String("line 99")));
    QVERIFY(box->height() < 600);
    box->accept();
  });
  QtMessageBoxes(world_.text).Show(text, BoxButtons::kOk, BoxIcon::kCritical);
}

void QtServicesTest::ALongPathIsNotCutOff() {
  std::string path = "Z:";
  for (int i = 0; i < 25; ++i) path += "\\folder-" + std::to_string(i);
  path += "\\the-end";
  WithNext<QMessageBox>([&path](QMessageBox* box) {
    const auto* shown = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    QVERIFY(shown->width() >= shown->minimumSizeHint().width());
    QVERIFY(shown->text().startsWith(QLatin1String("It is in Z:\\folder-0\\")));
    QVERIFY(shown->text().endsWith(QLatin1String("\\the-end, all of it")));
    auto* whole = box->findChild<QTextEdit*>();
    QVERIFY(whole != nullptr && whole->isVisible());
    QVERIFY(whole->toPlainText().contains(QString::fromStdString(path)));
    box->accept();
  });
  QtMessageBoxes(world_.text)
      .Show("It is in " + path + ", all of it", BoxButtons::kOk, BoxIcon::kNone);
}

void QtServicesTest::FileDialogsStartWhereTheyAreTold() {
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  world_.disk.Write("Saves/old.vmk", "x");
  QtFileDialogs dialogs(world_.files, world_.text, world_.boxes, "No Windows path.");
  WithNext<QFileDialog>([this](QFileDialog* dialog) {
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Save it"));
    QCOMPARE(dialog->directory().path().toStdString(), (world_.disk.path() / "Saves").string());
    QVERIFY(dialog->testOption(QFileDialog::DontConfirmOverwrite));
    QCOMPARE(dialog->selectedFiles().constFirst().toStdString(),
             (world_.disk.path() / "Saves/old.vmk").string());
    QCOMPARE(dialog->nameFilters().constFirst(),
             QStringLiteral("Vellumark archive (.vmk) (*.vmk)"));
    auto* name = dialog->findChild<QLineEdit*>();
    QTRY_VERIFY(name->hasFocus());
    QTest::keyClicks(name, QStringLiteral("new name"));
    QTest::keyClick(name, Qt::Key_Return);
  });
  const auto saved = dialogs.Save({.title = "Save it",
                                   .filter = "Vellumark archive (.vmk)|*.vmk",
                                   .start_folder = "T:\\Saves",
                                   .initial_name = "T:\\Saves\\old.vmk"});
  QCOMPARE(saved.value_or("nothing"), std::string("T:\\Saves\\new name"));

  for (const auto& [typed, opened] :
       {std::pair{"OLD.vmk", "OLD.vmk"}, std::pair{"Old", "Old.vmk"}, std::pair{"no", "no"}}) {
    WithNext<QFileDialog>([typed = typed](QFileDialog* dialog) {
      auto* name = dialog->findChild<QLineEdit*>();
      QTRY_VERIFY(name->hasFocus());
      QTest::keyClicks(name, QString::fromLatin1(typed));
      QTest::keyClick(name, Qt::Key_Return);
    });
    const auto path = dialogs.Open(
        {.title = "", .filter = "Vellumark archive (.vmk)|*.vmk", .start_folder = "T:\\Saves"});
    QCOMPARE(path.value_or("nothing"), std::string("T:\\Saves\\") + opened);
  }
  QVERIFY(world_.files.Read("T:\\Saves\\OLD.vmk", 1).error == FileError::kNone);

  WithNext<QFileDialog>([](QFileDialog* dialog) { dialog->reject(); });
  QVERIFY(!dialogs.Open({.title = "", .filter = "x|*", .start_folder = "T:\\None"}).has_value());
}

void QtServicesTest::FileDialogsExplainAPathThatCannotBeUsed() {
  const QString name = QString::fromUtf8("\u0416.vmk");
  world_.disk.Write(name.toStdString(), "x");
  QtFileDialogs dialogs(world_.files, world_.text, world_.boxes, "No Windows path.");
  WithNext<QFileDialog>([name](QFileDialog* dialog) {
    dialog->findChild<QLineEdit*>()->setText(name);
    QMetaObject::invokeMethod(dialog, "accept");
  });
  QVERIFY(!dialogs.Save({.title = "", .filter = "x|*", .start_folder = "T:"}).has_value());
  QCOMPARE(world_.boxes.shown.size(), std::size_t{1});
}

void QtServicesTest::APictureIsConvertedOnlyWhenItIsWanted() {
  int conversions = 0;
  QApplication::clipboard()->setMimeData(new CountedPicture(&conversions));
  QtClipboard clipboard;
  Program program{.files = world_.files,
                  .text = world_.text,
                  .boxes = world_.boxes,
                  .file_dialogs = world_.dialogs,
                  .sounds = world_.sounds,
                  .shell = world_.shell,
                  .desktop = world_.desktop,
                  .clipboard = clipboard,
                  .windows = world_.windows,
                  .main_window = world_.windows};
  program.archive.settings.GameFolder = "T:\\Game";
  program.archive.settings.MaxSavegame = 15;
  program.preferences.AutoCapture = true;
  conversions = 0;
  for (int tick = 0; tick < 10; ++tick) OnTimer(program);
  QCOMPARE(conversions, 0);

  program.capture.CaptureArmed = true;
  for (int tick = 0; tick < 100 && program.capture.picture == nullptr; ++tick) OnTimer(program);
  QVERIFY(conversions > 0);
  QVERIFY(program.capture.picture != nullptr);

  program.capture = {.CaptureArmed = true};
  world_.boxes.shown.clear();
  auto* words = new QMimeData;
  words->setData(QStringLiteral("image/png"), "words");
  QApplication::clipboard()->setMimeData(words);
  for (int tick = 0; tick < 10; ++tick) OnTimer(program);
  QCOMPARE(world_.boxes.AllTexts(), LoadMessage(kClipboardUnreadable) + "\n");
  QApplication::clipboard()->clear();
}

void QtServicesTest::TheShellRefusesWhatIsMissing() {
  QVERIFY(!QtShell().Open("", "", "", false));
  QVERIFY(!QtShell().Open((world_.disk.path() / "none.exe").string(), "", "", false));
  world_.disk.Write("text.EXE", "no program");
  QVERIFY(!QtShell().Open((world_.disk.path() / "text.EXE").string(), "", "", false));

  world_.disk.Write("script", "#!/bin/sh\necho \"$1 $PWD\" > done\n");
  std::filesystem::permissions(world_.disk.path() / "script", std::filesystem::perms::owner_all);
  QVERIFY(QtShell().Open((world_.disk.path() / "script").string(), "argument",
                         (world_.disk.path() / "Game").string(), false));
  QTRY_VERIFY(world_.disk.Exists("Game/done") && !world_.disk.Read("Game/done").empty());
  QCOMPARE(world_.disk.Read("Game/done"),
           "argument " + (world_.disk.path() / "Game").string() + "\n");

  // On a disk without permissions every file is executable.
  world_.disk.Write("help.txt", "a text");
  std::filesystem::permissions(world_.disk.path() / "help.txt", std::filesystem::perms::owner_all);
  QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Opened");
  QVERIFY(QtShell().Open((world_.disk.path() / "help.txt").string(), "", "", false));
  QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
  QCOMPARE(opened_.fileName(), QStringLiteral("help.txt"));
}

void QtServicesTest::SoundsNeedNeitherDeviceNorModule() {
  QtSoundPlayer nowhere(QStringLiteral("/nonexistent"));
  nowhere.Play("/nonexistent/s1.wav");

  const QDir program(QCoreApplication::applicationDirPath() + QStringLiteral("/../Vellumark"));
  QVERIFY(QFile::exists(program.filePath(QStringLiteral("libvellumark_sound.so"))));
  QtSoundPlayer player(program.path());
  for (const char* sound : {"s7.wav", "s5.wav", "missing.wav"}) {
    player.Play(program.filePath(QLatin1String(sound)).toStdString());
    QTest::qWait(20);
  }
}

}  // namespace vellumark

QTEST_MAIN(vellumark::QtServicesTest)
#include "qt_services_test.moc"
