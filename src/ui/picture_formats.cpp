#include "ui/picture_formats.h"

#include <QImageReader>

#include "platform/qt/background_work.h"
#include "platform/qt/picture_reading.h"

namespace vellumark {

PictureFormats ReadablePictures() {
  QStringList patterns;
  const QList<QByteArray> readable = QImageReader::supportedImageFormats();
  for (const QByteArray& ending : PictureFormatNames()) {
    if (readable.contains(ending)) patterns.append(QStringLiteral("*.") + QLatin1String(ending));
  }
  return {.patterns = patterns.join(u';').toStdString(), .as_jpeg = [](const std::string& bytes) {
            return WaitPainting(
                BeginBeside<std::optional<std::string>>([bytes] { return AsJpegFile(bytes); }));
          }};
}

}  // namespace vellumark
