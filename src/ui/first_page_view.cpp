#include "ui/first_page_view.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "platform/qt/qt_text.h"
#include "session/first_page.h"
#include "ui/access_keys.h"
#include "ui/controls.h"

namespace vellumark {
namespace {

constexpr int kWidestCaption = 280;
constexpr int kMargin = 24;

}  // namespace

FirstPageView::FirstPageView(const Text& text, QWidget* parent)
    : QScrollArea(parent),
      text_(text),
      label_(Named<QLabel>("Label_Page", this)),
      look_again_(AddButton("Pul_PageAgain", kPageLookAgain)),
      new_(AddButton("Pul_PageNew", kPageNew)),
      open_(AddButton("Pul_PageOpen", kPageOpen)),
      help_(AddButton("Pul_PageHelp", kPageHelp)) {
  setObjectName(QStringLiteral("Page1"));
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  // Paths and names stand in it.
  label_->setTextFormat(Qt::PlainText);
  label_->setWordWrap(true);
  label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(label_);
  column->addSpacing(kMargin / 2);
  for (QPushButton* button : {look_again_, new_, open_, help_}) {
    column->addWidget(button, 0, Qt::AlignLeft);
  }
  column->addStretch(1);
  setWidget(page);
  page->setAutoFillBackground(true);
  page->setBackgroundRole(QPalette::Base);
  label_->setForegroundRole(QPalette::Text);

  connect(look_again_, &QPushButton::clicked, this, &FirstPageView::LookAgainChosen);
  connect(new_, &QPushButton::clicked, this, &FirstPageView::NewChosen);
  connect(open_, &QPushButton::clicked, this, &FirstPageView::OpenChosen);
  connect(help_, &QPushButton::clicked, this, &FirstPageView::HelpChosen);
}

QPushButton* FirstPageView::AddButton(const char* name, int caption) {
  auto* button = Named<QPushButton>(name, this);
  SetCaption(button, ToQString(text_, LoadMessage(caption)));
  return button;
}

void FirstPageView::SetCaption(QPushButton* button, const QString& caption) {
  const QString fitting = fontMetrics().elidedText(caption, Qt::ElideMiddle, kWidestCaption);
  button->setText(WithAccessKey(WindowId::kPrincipale, button->objectName(), fitting));
}

void FirstPageView::Describe(const FirstPage& page) {
  const QString text = ToDisplayText(text_, page.text);
  label_->setText(text);
  if (!page.new_archive.empty()) SetCaption(new_, ToQString(text_, page.new_archive));
  // A button that goes must not take the focus along.
  QPushButton* const first = page.offers_look_again     ? look_again_
                             : page.new_archive.empty() ? help_
                                                        : new_;
  setFocusProxy(first);
  const bool focused = isAncestorOf(focusWidget()) && focusWidget()->hasFocus();
  look_again_->setVisible(page.offers_look_again);
  new_->setVisible(!page.new_archive.empty());
  open_->setVisible(page.offers_open);
  if (focused) first->setFocus();
  // Whoever does not see the text hears it with the button that has the focus first.
  for (QPushButton* button : {look_again_, new_, open_, help_}) {
    button->setAccessibleDescription(button == first ? text : QString());
  }
}

}  // namespace vellumark
