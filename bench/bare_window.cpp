// What any program with a main window has to do before it shows.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Bare window"));
  window.resize(1120, 700);
  window.show();
  return QApplication::exec();
}
