#include "platform/qt/qt_message_boxes.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>

#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_text.h"

namespace vellumark {
namespace {

QMessageBox::StandardButtons ButtonsFor(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOk:
      return QMessageBox::Ok;
    case BoxButtons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::kYesNo:
    case BoxButtons::kYesNoFromNo:
    case BoxButtons::kYesNoBothAct:
      break;
  }
  return QMessageBox::Yes | QMessageBox::No;
}

// A box that may have no way out but its buttons.
class Box final : public QMessageBox {
 public:
  Box(Icon icon, const QString& text, BoxButtons buttons, QWidget* parent)
      : QMessageBox(icon, QStringLiteral("Vellumark"), text, ButtonsFor(buttons), parent),
        only_buttons_(buttons == BoxButtons::kYesNoBothAct) {
    if (only_buttons_) setWindowFlag(Qt::WindowCloseButtonHint, false);
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (only_buttons_) return event->ignore();
    QMessageBox::closeEvent(event);
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (only_buttons_ && event->matches(QKeySequence::Cancel)) return;
    QMessageBox::keyPressEvent(event);
  }

 private:
  const bool only_buttons_;
};

QMessageBox::Icon IconFor(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kNone:
      return QMessageBox::NoIcon;
    case BoxIcon::kCritical:
      return QMessageBox::Critical;
    case BoxIcon::kExclamation:
      break;
  }
  return QMessageBox::Warning;
}

// The text with the middle left out of each word that no box on this screen has room for: a path
// without blanks is one word.
QString WithWordsThatFit(const QMessageBox& box, const QString& text) {
  const int widest = box.screen()->availableGeometry().width() / 2;
  const QFontMetrics metrics = box.fontMetrics();
  QString fitting;
  for (qsizetype at = 0; at < text.size();) {
    qsizetype end = at;
    while (end < text.size() && !text[end].isSpace()) ++end;
    fitting += metrics.elidedText(text.sliced(at, end - at), Qt::ElideMiddle, widest);
    if (end < text.size()) fitting += text[end++];
    at = end;
  }
  return fitting;
}

// A text of many lines would make the box higher than the screen, and a long path would be cut off:
// the box then shows the beginning, or the ends of the path, and the whole text below in a field
// that scrolls.
void SetLongText(QMessageBox& box, const QString& text) {
  constexpr int kMostLines = 14;
  constexpr int kLinesAbove = 4;
  QString shown = WithWordsThatFit(box, text);
  if (shown.count(u'\n') >= kMostLines) {
    shown = shown.section(u'\n', 0, kLinesAbove - 1) + QStringLiteral("\n...");
  }
  if (shown == text) return;

  box.setText(shown);
  box.setDetailedText(text);
  for (QAbstractButton* button : box.buttons()) {
    if (box.buttonRole(button) == QMessageBox::ActionRole) button->click();
  }
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const std::string& text, BoxButtons buttons, BoxIcon icon) {
  return ShowText(ToDisplayText(text_, text), buttons, icon);
}

void QtMessageBoxes::ShowNames(const std::string& text, const std::vector<std::string>& lines,
                               BoxIcon icon) {
  QString shown = ToDisplayText(text_, text);
  for (const std::string& line : lines) shown += u'\n' + QString::fromStdString(line);
  ShowText(shown, BoxButtons::kOk, icon);
}

BoxAnswer QtMessageBoxes::ShowText(const QString& text, BoxButtons buttons, BoxIcon icon) {
  Box box(IconFor(icon), text, buttons, ModalOpener());
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  SetLongText(box, box.text());
  if (buttons == BoxButtons::kYesNoFromNo) {
    box.setDefaultButton(QMessageBox::No);
  } else {
    box.setDefaultButton(box.button(QMessageBox::Yes) != nullptr ? QMessageBox::Yes
                                                                 : QMessageBox::Ok);
  }
  if (box.button(QMessageBox::No) != nullptr) box.setEscapeButton(QMessageBox::No);

  switch (box.exec()) {
    case QMessageBox::Yes:
      return BoxAnswer::kYes;
    case QMessageBox::No:
      return BoxAnswer::kNo;
    case QMessageBox::Cancel:
      return BoxAnswer::kCancel;
    default:
      return BoxAnswer::kOk;
  }
}

}  // namespace vellumark
