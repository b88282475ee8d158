#include "platform/qt/qt_message_boxes.h"

#include <QMessageBox>

#include "platform/qt/opener.h"
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
      break;
  }
  return QMessageBox::Yes | QMessageBox::No;
}

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

}  // namespace

BoxAnswer QtMessageBoxes::Show(const std::string& text, BoxButtons buttons, BoxIcon icon) {
  QMessageBox box(IconFor(icon), QStringLiteral("Vellumark"), ToDisplayText(text_, text),
                  ButtonsFor(buttons), ModalOpener());
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  const bool asks = buttons == BoxButtons::kYesNo;
  box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
  if (asks) box.setEscapeButton(QMessageBox::No);

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
