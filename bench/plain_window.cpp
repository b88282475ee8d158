// The least that a window like the program's takes: the same menu, controls, captions and fonts by
// plain Qt, with nothing behind them.
#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <initializer_list>

#include "foundation/messages.h"
#include "foundation/own_messages.h"

namespace {

constexpr int kSeparator = 0;

QString Message(int number) { return QString::fromStdString(vellumark::LoadMessage(number)); }

struct Item {
  int message;
  const char* shortcut = "";
};

void AddMenu(QMenuBar& bar, int title, std::initializer_list<Item> items) {
  QMenu* menu = bar.addMenu(Message(title));
  for (const Item& item : items) {
    if (item.message == kSeparator) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(Message(item.message));
    action->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
  }
}

void AddMenus(QMenuBar& bar) {
  AddMenu(bar, 236,
          {{237, "Ctrl+N"},
           {238, "Ctrl+O"},
           {kSeparator},
           {239, "Ctrl+S"},
           {240, "Ctrl+Shift+S"},
           {kSeparator},
           {241, "Ctrl+Q"}});
  AddMenu(bar, 242,
          {{243, "Ctrl+I"},
           {kSeparator},
           {244, "Ctrl+F"},
           {245, "Ctrl+P"},
           {246, "F2"},
           {kSeparator},
           {247, "Ctrl+C"},
           {248, "Ctrl+M"},
           {249, "Del"}});
  AddMenu(bar, vellumark::kViewMenu, {{vellumark::kViewList}, {vellumark::kViewPictures}});
  AddMenu(bar, 250, {{251}, {252, "F5"}, {vellumark::kRescuedCommand}});
  AddMenu(bar, 253, {{254}, {255}});
  AddMenu(bar, 256, {{257, "F1"}});
}

QLineEdit* Field() {
  auto* field = new QLineEdit;
  field->setReadOnly(true);
  return field;
}

QLineEdit* NumberField() {
  QLineEdit* field = Field();
  field->setAlignment(Qt::AlignCenter);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("10001")) + 24);
  return field;
}

QHBoxLayout* Row(std::initializer_list<QWidget*> controls) {
  auto* row = new QHBoxLayout;
  for (QWidget* control : controls) row->addWidget(control);
  return row;
}

QWidget* Details() {
  auto* details = new QWidget;
  auto* column = new QVBoxLayout(details);
  auto* note = new QPlainTextEdit;
  note->setReadOnly(true);
  note->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  column->addWidget(new QLabel, 3);
  column->addLayout(Row({new QPushButton(Message(231)), new QPushButton(Message(230))}));
  column->addWidget(note, 2);
  return details;
}

QWidget* Centre() {
  auto* splitter = new QSplitter(Qt::Horizontal);
  splitter->addWidget(new QListView);
  splitter->addWidget(Details());
  splitter->setStretchFactor(0, 1);
  auto* path = Field();
  path->setPlaceholderText(Message(vellumark::kNothingSelected));

  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->addWidget(splitter, 1);
  column->addLayout(Row({new QLabel(Message(235)), path}));
  column->addLayout(
      Row({new QLabel(Message(233)), NumberField(), new QLabel(Message(234)), NumberField(),
           new QPushButton(Message(232)), new QPushButton(QStringLiteral("<<")), NumberField(),
           new QPushButton(QStringLiteral(">>")), new QPushButton(Message(228)),
           new QPushButton(Message(226))}));
  return centre;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Plain window"));
  window.resize(1120, 700);
  AddMenus(*window.menuBar());
  window.setCentralWidget(Centre());
  window.show();
  return QApplication::exec();
}
