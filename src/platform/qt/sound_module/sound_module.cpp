// The sound effects by Qt Multimedia, in a module of their own.
#include <QAudioDevice>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace {

// Lives as long as the application object, which the audio service behind it needs.
QSoundEffect* Effect() {
  static auto* effect = new QSoundEffect(qApp);
  return effect;
}

}  // namespace

// Plays a WAV file (UTF-8 path) and returns at once; a sound that is still playing is cut off.
extern "C" Q_DECL_EXPORT void VellumarkPlaySound(const char* path) {
  if (QMediaDevices::defaultAudioOutput().isNull()) return;

  QSoundEffect* effect = Effect();
  effect->stop();
  effect->setSource(QUrl::fromLocalFile(QString::fromUtf8(path)));
  effect->play();
}
