#include "ui/screen_shot_viewer.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <chrono>

#include "ui/available_screen_size.h"
#include "ui/controls.h"
#include "ui/plain_tip.h"
#include "ui/zoom_box.h"

namespace vellumark {

ScreenShotViewer::ScreenShotViewer(FileSystem& files, QWidget* main_window)
    : QDialog(main_window, Qt::Window),
      picture_(Named(new ZoomBox(files, this), "Image1")),
      line_(Named<QLabel>("Label_Line", this)),
      previous_(StepButton("Pul_Precedente", Qt::LeftArrow)),
      next_(StepButton("Pul_Seguente", Qt::RightArrow)) {
  setObjectName(QStringLiteral("Dialog_ScreenShot"));
  connect(picture_, &PictureBox::Arrived, this, [this] {
    if (size() == opened_) ResizeForPicture();
  });
  setAttribute(Qt::WA_DeleteOnClose);
  setMinimumSize(160, 120);
  line_->setTextFormat(Qt::PlainText);
  line_->setAlignment(Qt::AlignCenter);
  connect(previous_, &QToolButton::clicked, this, &ScreenShotViewer::PreviousWanted);
  connect(next_, &QToolButton::clicked, this, &ScreenShotViewer::NextWanted);
  BuildActions();

  constexpr auto kButtonsStay = std::chrono::seconds(2);
  hide_buttons_.setSingleShot(true);
  hide_buttons_.setInterval(kButtonsStay);
  connect(&hide_buttons_, &QTimer::timeout, this, &ScreenShotViewer::HideButtons);
  picture_->installEventFilter(this);
}

template <typename Slot>
QAction* ScreenShotViewer::AddAction(const char* name, std::initializer_list<const char*> keys,
                                     Slot slot) {
  auto* action = Named(new QAction(this), name);
  QList<QKeySequence> shortcuts;
  for (const char* key : keys) shortcuts.append(QKeySequence(QLatin1String(key)));
  action->setShortcuts(shortcuts);
  connect(action, &QAction::triggered, this, slot);
  addAction(action);
  return action;
}

// What can be done, by key and by the context menu.
void ScreenShotViewer::BuildActions() {
  setContextMenuPolicy(Qt::ActionsContextMenu);
  const auto add_separator = [this] {
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    addAction(separator);
  };
  AddAction("mnu_Previous", {"Left"}, [this] { emit PreviousWanted(); });
  AddAction("mnu_Next", {"Right"}, [this] { emit NextWanted(); });
  add_separator();
  AddAction("mnu_ZoomIn", {"+", "=", "Ctrl++", "Ctrl+="}, [this] { picture_->ZoomBySteps(1); });
  AddAction("mnu_ZoomOut", {"-", "Ctrl+-"}, [this] { picture_->ZoomBySteps(-1); });
  AddAction("mnu_Fit", {"0", "Ctrl+0"}, [this] { picture_->Fit(); });
  AddAction("mnu_EveryPixel", {"1"}, [this] { picture_->ShowPixelByPixel(); });
  add_separator();
  AddAction("mnu_WholeScreen", {"F11"},
            [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
  line_action_ = AddAction("mnu_Line", {"L"}, [this](bool shows) {
    PlaceParts();
    emit LineToggled(shows);
  });
  line_action_->setCheckable(true);
  line_action_->setChecked(true);
  add_separator();
  AddAction("mnu_Close", {}, [this] { close(); });
}

QToolButton* ScreenShotViewer::StepButton(const char* name, Qt::ArrowType arrow) {
  auto* button = Named<QToolButton>(name, picture_);
  button->setArrowType(arrow);
  button->setFocusPolicy(Qt::NoFocus);
  button->setCursor(Qt::ArrowCursor);
  button->resize(40, 64);
  button->hide();
  return button;
}

void ScreenShotViewer::ShowPicture(const std::string& path, const QString& line) {
  const bool as_opened = !isVisible() || size() == opened_;
  picture_->ShowFitted(path);
  picture_->setAccessibleName(line);
  whole_line_ = line;
  setWindowTitle(QString());
  if (as_opened && !isFullScreen() && !isMaximized()) ResizeForPicture();
  PlaceParts();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

bool ScreenShotViewer::ShowsLine() const { return line_action_->isChecked(); }

void ScreenShotViewer::SetShowsLine(bool shows) {
  line_action_->setChecked(shows);
  PlaceParts();
}

void ScreenShotViewer::ResizeForPicture() {
  opened_ = OpeningSize();
  resize(opened_);
}

// The picture's own size, but neither smaller than a small window nor larger than most of the
// screen; and the line below.
QSize ScreenShotViewer::OpeningSize() const {
  constexpr QSize kLeast(640, 480);
  constexpr double kMostOfScreen = 0.8;
  const QSize line(0, LineHeight());
  const QSize room = RoomOnScreen(*this) - line;
  const QSize most = room * kMostOfScreen;
  if (picture_->Picture().isNull()) return kLeast.boundedTo(room) + line;

  QSize size = picture_->Picture().size();
  if (size.boundedTo(most) != size) size.scale(most, Qt::KeepAspectRatio);
  if (size.expandedTo(kLeast) != size) size.scale(kLeast, Qt::KeepAspectRatioByExpanding);
  if (size.boundedTo(room) != size) size.scale(room, Qt::KeepAspectRatio);
  return size + line;
}

int ScreenShotViewer::LineHeight() const {
  constexpr int kMargins = 8;
  return ShowsLine() ? line_->fontMetrics().height() + kMargins : 0;
}

void ScreenShotViewer::PlaceParts() {
  constexpr int kMargin = 8;
  const QRect picture = rect().adjusted(0, 0, 0, -LineHeight());
  picture_->setGeometry(picture);
  line_->setVisible(ShowsLine());
  line_->setGeometry(kMargin, picture.height(), width() - 2 * kMargin, LineHeight());
  line_->setText(line_->fontMetrics().elidedText(whole_line_, Qt::ElideRight, line_->width()));
  line_->setToolTip(line_->text() == whole_line_ ? QString() : PlainTip(whole_line_));
  const int top = (picture.height() - previous_->height()) / 2;
  previous_->move(kMargin, top);
  next_->move(picture.width() - next_->width() - kMargin, top);
}

void ScreenShotViewer::ShowButtons() {
  previous_->show();
  next_->show();
  hide_buttons_.start();
}

void ScreenShotViewer::HideButtons() {
  if (previous_->underMouse() || next_->underMouse()) return hide_buttons_.start();
  previous_->hide();
  next_->hide();
}

bool ScreenShotViewer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) ShowButtons();
  return QDialog::eventFilter(watched, event);
}

// On the whole screen a picture keeps its shape, and nothing shines beside it.
void ScreenShotViewer::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  picture_->SetKeepsShape(isFullScreen());
  QPalette colours;
  if (isFullScreen()) {
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::white);
  }
  setPalette(colours);
}

// Escape leaves the whole screen first. What does not fit is moved by the keys that do not step.
void ScreenShotViewer::keyPressEvent(QKeyEvent* event) {
  constexpr double kMove = 48;
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_Escape:
      if (!isFullScreen()) return QDialog::keyPressEvent(event);
      return setWindowState(windowState() & ~Qt::WindowFullScreen);
    case Qt::Key_Up:
      return picture_->Move({0, kMove});
    case Qt::Key_Down:
      return picture_->Move({0, -kMove});
    case Qt::Key_Left:
      return shift ? picture_->Move({kMove, 0}) : QDialog::keyPressEvent(event);
    case Qt::Key_Right:
      return shift ? picture_->Move({-kMove, 0}) : QDialog::keyPressEvent(event);
    default:
      QDialog::keyPressEvent(event);
  }
}

void ScreenShotViewer::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (!isMinimized()) PlaceParts();
}

}  // namespace vellumark
