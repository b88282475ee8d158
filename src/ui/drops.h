// Files that are dragged onto the main window.
#ifndef VELLUMARK_UI_DROPS_H_
#define VELLUMARK_UI_DROPS_H_

#include <QObject>
#include <QRubberBand>
#include <optional>
#include <string>

#include "savegames/savegame_properties.h"

class QDropEvent;
class QMimeData;

namespace vellumark {

class ArchiveViews;
struct Program;

// Takes one local file at a time: an archive anywhere, a picture on a savegame. Anything else, and
// whatever comes while an operation works or a question waits, is seen to be refused.
class Drops final : public QObject {
  Q_OBJECT

 public:
  Drops(Program& program, ArchiveViews& views, QWidget& window);

 signals:
  // A dropped file has been taken.
  void Taken();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Offer {
    std::string file;        // a host path
    int line = -1;           // the savegame that it would go to; -1 for an archive
    std::string savegame{};  // its path
  };

  bool IsBusy() const;
  std::optional<Offer> OfferOf(const QDropEvent& event) const;
  void Hover(QDropEvent& event, bool anywhere);
  void Take(const Offer& offer);

  Program& program_;
  ArchiveViews& views_;
  QWidget& window_;
  const PictureFormats formats_;
  QRubberBand mark_;  // around the savegame that would take the picture
  bool taking_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_UI_DROPS_H_
