#include "ui/modal_dialog.h"

#include <QLineEdit>

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/sound_effects.h"
#include "platform/qt/dialog_parent.h"
#include "platform/qt/qt_text.h"
#include "program.h"
#include "ui/available_screen_size.h"
#include "ui/caption_setter.h"

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

bool ModalDialog::IsExpressible(QLineEdit* field, int refusal) {
  const EncodedText text = program_.text.FromUtf8(field->text().toStdString());
  if (text.missing.empty()) return true;
  const QString marked = QString::fromStdString(text.missing.front());
  PlaySoundEffect(program_, SoundEffect::kRefusal);
  Tell(program_, LoadMessage(refusal), BoxIcon::kCritical);
  field->setFocus();
  field->setSelection(static_cast<int>(field->text().indexOf(marked)),
                      static_cast<int>(marked.size()));
  return false;
}

}  // namespace vellumark
