#include "ui/caption_setter.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

#include "foundation/messages.h"
#include "platform/qt/qt_text.h"
#include "ui/access_keys.h"

namespace vellumark {
namespace {

// A caption as a name: without the blanks around it and the dots that lead the eye to a field.
QString AsName(const QString& caption) {
  QString name = caption.trimmed();
  while (name.endsWith(u'.') || name.endsWith(u' ')) name.chop(1);
  return name;
}

void SetCaption(QObject& control, const QString& caption, const QString& plain) {
  if (auto* menu = qobject_cast<QMenu*>(&control)) {
    menu->setTitle(caption);
  } else if (auto* action = qobject_cast<QAction*>(&control)) {
    action->setText(caption);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
    button->setText(caption);
    button->setAccessibleName(AsName(plain));
  } else if (auto* frame = qobject_cast<QGroupBox*>(&control)) {
    frame->setTitle(caption);
  } else if (auto* label = qobject_cast<QLabel*>(&control)) {
    label->setText(caption);
    if (label->buddy() != nullptr) label->buddy()->setAccessibleName(AsName(plain));
  }
}

void SetToolTip(QObject& control, const QString& tip) {
  if (auto* widget = qobject_cast<QWidget*>(&control)) widget->setToolTip(tip);
}

}  // namespace

void SetWindowCaptions(QWidget& widget, WindowId window, const Text& text) {
  for (const Caption& caption : CaptionsOf(window)) {
    const QString plain = ToQString(text, LoadMessage(caption.message));
    const QString name = QString::fromLatin1(caption.control);
    if (name.isEmpty()) {
      widget.setWindowTitle(plain);
      continue;
    }
    auto* control = widget.findChild<QObject*>(name);
    if (control == nullptr) continue;
    SetCaption(*control, WithAccessKey(window, name, plain), plain);
    if (caption.tool_tip != 0) SetToolTip(*control, ToQString(text, LoadMessage(caption.tool_tip)));
  }
}

}  // namespace vellumark
