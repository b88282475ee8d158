#include "desktop/offer_content.h"

#include <unistd.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QSocketNotifier>
#include <cstdio>
#include <memory>

namespace vellumark::testing {
namespace {

void Say(const char* line) {
  std::puts(line);
  std::fflush(stdout);
}

class Content : public QMimeData {
 public:
  Content(QString format, QByteArray bytes)
      : format_(std::move(format)), bytes_(std::move(bytes)) {}

  QStringList formats() const override { return {format_}; }
  bool hasFormat(const QString& format) const override { return format == format_; }

 protected:
  QVariant retrieveData(const QString& /*format*/, QMetaType /*type*/) const override {
    Say("asked");
    return bytes_;
  }

 private:
  QString format_;
  QByteArray bytes_;
};

}  // namespace

int OfferContent(const QString& format, const QString& file) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) return 1;
  auto content = std::make_unique<Content>(format, source.readAll());
  QGuiApplication::clipboard()->setMimeData(content.release());
  if (!QGuiApplication::clipboard()->ownsClipboard()) return 1;

  QSocketNotifier end(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&end, &QSocketNotifier::activated, &end, [] { QCoreApplication::quit(); });
  QMetaObject::invokeMethod(
      &end, [] { Say("offered"); }, Qt::QueuedConnection);
  return QCoreApplication::exec();
}

}  // namespace vellumark::testing
