// What holds for every modal dialog: its captions, its keys and its place.
#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>

#include "savegames/details.h"
#include "ui/modal_dialog.h"
#include "ui/window_fixture.h"

namespace vellumark {

class ModalDialogsTest : public WindowFixture {
  Q_OBJECT

 private slots:
  void EachHasItsCaptionsKeysAndPlace_data();
  void EachHasItsCaptionsKeysAndPlace();
  void OneThatIsTooLargeOpensInsideTheScreen();

 private:
  void Prepare() override { world_->AddSavegame("Archive/Slot1", 0, "Tower", 1); }
};

// The letter that reaches a control by Alt; none without one.
QChar AccessKey(const QObject* control) {
  const bool is_frame = qobject_cast<const QGroupBox*>(control) != nullptr;
  const QString caption = control->property(is_frame ? "title" : "text").toString();
  const qsizetype mark = caption.indexOf(u'&');
  return mark < 0 ? QChar() : caption[mark + 1].toLower();
}

// Every caption but a frame's has a letter of its own, and a field is reached by its label's.
void ExpectAccessKeys(const QDialog* dialog, WindowId id) {
  QSet<QChar> keys;
  for (const Caption& caption : CaptionsOf(id)) {
    if (*caption.control == '\0') continue;
    auto* control = Find<QWidget>(dialog, caption.control);
    const QChar key = AccessKey(control);
    auto* frame = qobject_cast<QGroupBox*>(control);
    if (key.isNull() && frame != nullptr) continue;
    QVERIFY2(!key.isNull() && !keys.contains(key), caption.control);
    keys.insert(key);

    const auto* label = qobject_cast<QLabel*>(control);
    const bool is_field = label != nullptr && !label->buddy()->inherits("QAbstractButton");
    if (frame == nullptr && !is_field) continue;
    Press(static_cast<Qt::Key>(key.toUpper().unicode()), Qt::AltModifier);
    const QWidget* reached = QApplication::focusWidget();
    QVERIFY2(frame != nullptr ? frame->isAncestorOf(reached) : reached == label->buddy(),
             caption.control);
  }
}

void ModalDialogsTest::EachHasItsCaptionsKeysAndPlace_data() {
  QTest::addColumn<int>("window");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("tab_order");  // it ends at what has the focus at first
  const auto row = [](WindowId id, const char* title, const char* tab_order) {
    QTest::newRow(NameOf(id)) << static_cast<int>(id) << title << tab_order;
  };
  row(WindowId::kDialogSetNewArc, " Properties of archive: T:\\Archive.vmk",
      "Pul_Cancel pul_sfoglia_dir Text_nome_dir pul_sfoglia_tr pul_sfoglia_nome_tomb "
      "Text_MaxSavegame Pul_Ok");
  row(WindowId::kDialogPref, " Vellumark preferences",
      "Check_AvvioAutomatico Check_TutteLeDir Pul_Sfoglia Pul_Ok Pul_Annulla Check_Suoni");
  row(WindowId::kDialogCerca, " Find savegame ...",
      "Check_NomeLivello Check_Note Check_ConScreenShot Check_ConNote Pul_Cerca Pul_Annulla "
      "Text_Cerca");
  row(WindowId::kDialogNote, " Savegame properties",
      "Pul_SfogliaScreen Check_EliminaShot Pul_Ok Pul_Annulla Text_Path Text_Livello "
      "Text_NuovoNSalvataggio Text_Commento");
  row(WindowId::kDialogGetDir, " Select folder for screen-shot capture",
      "Text_Path Pul_NuovaCartella Text_NomeCartella OKButton CancelButton Drive1 Dir1");
  row(WindowId::kDialogRiordina, " Reorder savegame archive",
      "Pul_PercorsoBase Text_NomeCartelle Text_MaxSavegame Check_CreaInfo Check_NonMescolare "
      "Check_EliminaUguali Check_EliminaSorgente Text_MaxPerCartella Pul_CopiaShot Pul_Riordina "
      "Pul_Annulla Text_PercorsoBase");
}

void ModalDialogsTest::EachHasItsCaptionsKeysAndPlace() {
  QFETCH(const int, window);
  QFETCH(const QString, title);
  QFETCH(const QString, tab_order);
  const auto id = static_cast<WindowId>(window);
  SelectOnly(*program_, 0);
  InDialog([&] { window_->ShowModal(id); },
           [&](const QDialog* dialog) {
             QCOMPARE(dialog->objectName(), QLatin1String(NameOf(id)));
             QCOMPARE(dialog->windowTitle(), title);
             ExpectCaptions(dialog, id, world_->text);
             ExpectTabOrder(tab_order.split(u' '));
             ExpectAccessKeys(dialog, id);

             QVERIFY(QSize(624, 410).expandedTo(dialog->minimumSizeHint()) == QSize(624, 410));
             const QPoint off_centre =
                 dialog->frameGeometry().center() - window_->frameGeometry().center();
             QVERIFY2(off_centre.manhattanLength() <= 60, "it opens over the middle of its opener");
           });
}

class LargeDialog final : public ModalDialog {
 public:
  explicit LargeDialog(Program& program) : ModalDialog(WindowId::kDialogNote, program) {
    resize(5000, 5000);
  }
  void ImpostaValori() override {}
};

void ModalDialogsTest::OneThatIsTooLargeOpensInsideTheScreen() {
  LargeDialog dialog(*program_);
  dialog.show();
  const QRect screen = dialog.screen()->availableGeometry();
  QVERIFY(screen.contains(dialog.frameGeometry()) && dialog.width() > screen.width() / 2);
}

}  // namespace vellumark

QTEST_MAIN(vellumark::ModalDialogsTest)
#include "modal_dialogs_test.moc"
