#include "ui/drops.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSysInfo>
#include <QTimer>
#include <QUrl>

#include "platform/desktop_services.h"
#include "program.h"
#include "session/drop.h"
#include "ui/archive_views.h"
#include "ui/picture_formats.h"

namespace vellumark {
namespace {

// The one local file that is offered; empty for anything else.
std::string FileIn(const QMimeData* offered) {
  const QList<QUrl> urls = offered == nullptr ? QList<QUrl>() : offered->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
  QUrl url = urls.front();
  // Some file managers say which computer the file is on.
  const bool is_ours = url.host().compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 ||
                       url.host().compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
  if (is_ours) url.setHost(QString());
  const std::string path = url.toLocalFile().toStdString();
  return path.starts_with("//") ? std::string() : path;
}

}  // namespace

Drops::Drops(Program& program, ArchiveViews& views, QWidget& window)
    : QObject(&window),
      program_(program),
      views_(views),
      window_(window),
      formats_(ReadablePictures()),
      mark_(QRubberBand::Rectangle, &window) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

bool Drops::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
      Hover(*static_cast<QDropEvent*>(event), true);
      return true;
    case QEvent::DragMove:
      Hover(*static_cast<QDropEvent*>(event), false);
      return true;
    case QEvent::DragLeave:
      mark_.hide();
      return true;
    case QEvent::Drop: {
      auto* drop = static_cast<QDropEvent*>(event);
      Hover(*drop, false);
      mark_.hide();
      const auto offer = OfferOf(*drop);
      if (!drop->isAccepted() || !offer) return true;
      // The other program waits until this call returns.
      QTimer::singleShot(0, this, [this, offer] { Take(*offer); });
      return true;
    }
    default:
      return QObject::eventFilter(watched, event);
  }
}

bool Drops::IsBusy() const {
  return taking_ || program_.working || QApplication::activeModalWidget() != nullptr ||
         QApplication::activePopupWidget() != nullptr;
}

// Nothing where the file would not be taken.
std::optional<Drops::Offer> Drops::OfferOf(const QDropEvent& event) const {
  Offer offer{.file = FileIn(event.mimeData())};
  const DropKind kind = KindOfDrop(offer.file, formats_);
  if (kind == DropKind::kArchive) return offer;
  if (kind == DropKind::kNone) return std::nullopt;
  offer.line = views_.LineAt(window_.mapToGlobal(event.position().toPoint()));
  if (offer.line < 0 || offer.line >= program_.catalogue.EntryCount()) return std::nullopt;
  offer.savegame = program_.catalogue.entries[static_cast<std::size_t>(offer.line)].SavegamePath;
  return offer;
}

// A file is never moved: the program that it comes from would delete it.
void Drops::Hover(QDropEvent& event, bool anywhere) {
  const auto offer = OfferOf(event);
  const bool known = anywhere && KindOfDrop(FileIn(event.mimeData()), formats_) != DropKind::kNone;
  const Qt::DropAction action =
      event.possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction;
  const bool takes = (offer || known) && !IsBusy() && event.possibleActions().testFlag(action);
  const bool marks = takes && offer && offer->line >= 0;
  if (marks) {
    const QRect line = views_.RectOf(offer->line);
    mark_.setGeometry(QRect(window_.mapFromGlobal(line.topLeft()), line.size()));
  }
  mark_.setVisible(marks);
  if (!takes) return event.ignore();
  event.setDropAction(action);
  event.accept();
}

void Drops::Take(const Offer& offer) {
  if (IsBusy()) return;
  const QScopedValueRollback taking(taking_, true);
  window_.activateWindow();
  BringToFront(static_cast<WindowHandle>(window_.winId()));
  TakeDrop(program_, offer.file, offer.savegame, formats_);
  emit Taken();
}

}  // namespace vellumark
