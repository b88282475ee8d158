#include "ui/modal_dialog.h"

#include "platform/qt/opener.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "ui/caption_setter.h"
#include "ui/screen_room.h"

namespace vellumark {

ModalDialog::ModalDialog(WindowId window, Program& program)
    : QDialog(ModalOpener()), window_(window), program_(program) {
  setObjectName(QLatin1String(NameOf(window)));
  setModal(true);
}

void ModalDialog::showEvent(QShowEvent* event) {
  resize(size().boundedTo(RoomOnScreen(*this)));
  QDialog::showEvent(event);  // finds the place for it
}

void ModalDialog::SetCaptions() { SetWindowCaptions(*this, window_, program_.text); }

QString ModalDialog::ToText(const std::string& text) const {
  return ToQString(program_.text, text);
}

std::string ModalDialog::FromText(const QString& text) const {
  return program_.text.FromUtf8(text.toStdString()).bytes;
}

}  // namespace vellumark
