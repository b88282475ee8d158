// A field that shows a text: it can be read, marked and copied, not changed, and looks it.
#ifndef VELLUMARK_UI_READ_ONLY_FIELD_H_
#define VELLUMARK_UI_READ_ONLY_FIELD_H_

#include <QLineEdit>
#include <QStyleOptionFrame>

namespace vellumark {

class ReadOnlyField final : public QLineEdit {
  Q_OBJECT

 public:
  ReadOnlyField(const char* name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(QLatin1String(name));
    setReadOnly(true);
  }

 protected:
  // The window's own colour, whatever the theme makes of it later.
  void initStyleOption(QStyleOptionFrame* option) const override {
    QLineEdit::initStyleOption(option);
    option->palette.setBrush(QPalette::Base, option->palette.window());
  }
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_READ_ONLY_FIELD_H_
