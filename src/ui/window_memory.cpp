#include "ui/window_memory.h"

#include <QGuiApplication>
#include <QSettings>
#include <QWidget>
#include <algorithm>

#include "foundation/paths.h"
#include "platform/file_system.h"
#include "ui/available_screen_size.h"

namespace vellumark {
namespace {

constexpr int kVersion = 1;
constexpr std::uint64_t kLargestFile = 65536;
constexpr int kLargestNumber = 32767;

const QString kVersionKey = QStringLiteral("version");
const QString kXKey = QStringLiteral("window/x");
const QString kYKey = QStringLiteral("window/y");
const QString kWidthKey = QStringLiteral("window/width");
const QString kHeightKey = QStringLiteral("window/height");
const QString kMaximisedKey = QStringLiteral("window/maximised");
const QString kDetailsKey = QStringLiteral("window/details");
const QString kPicturesKey = QStringLiteral("view/pictures");
const QString kTileSizeKey = QStringLiteral("view/size");
const QString kViewerLineKey = QStringLiteral("viewer/line");
const QString kArchivesKey = QStringLiteral("archives/last");

enum class Found { kNothing, kOurs, kDamaged, kOfLaterVersion };

std::string FileIn(const std::string& program_folder) {
  return InFolder(program_folder, "window.ini");
}

// A number that can be one of a window's.
std::optional<int> NumberAt(const QSettings& settings, const QString& key, int least) {
  bool is_number = false;
  const int number = settings.value(key).toString().toInt(&is_number);
  const bool sensible = is_number && number >= least && number <= kLargestNumber;
  return sensible ? std::optional(number) : std::nullopt;
}

bool SwitchAt(const QSettings& settings, const QString& key, bool otherwise) {
  return NumberAt(settings, key, 0).value_or(otherwise ? 1 : 0) != 0;
}

Found VersionOf(const QSettings& settings) {
  const QString version = settings.value(kVersionKey).toString();
  const auto is_digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  if (version.isEmpty() || !std::ranges::all_of(version, is_digit)) return Found::kDamaged;
  bool fits = false;
  const int number = version.toInt(&fits);
  return fits && number <= kVersion ? Found::kOurs : Found::kOfLaterVersion;
}

// Only a small plain file is ever opened.
Found WhatIsAt(FileSystem& files, const std::string& path) {
  const AttributesResult found = files.Attributes(path);
  if (found.error == FileError::kNotFound) return Found::kNothing;
  if (found.error != FileError::kNone || !found.attributes.IsPlainFile()) return Found::kDamaged;
  if (found.size > kLargestFile) return Found::kDamaged;
  const QSettings settings(QString::fromStdString(files.HostPath(path)), QSettings::IniFormat);
  return VersionOf(settings);
}

std::optional<QRect> PlaceIn(const QSettings& settings) {
  const auto x = NumberAt(settings, kXKey, -kLargestNumber);
  const auto y = NumberAt(settings, kYKey, -kLargestNumber);
  const auto width = NumberAt(settings, kWidthKey, 1);
  const auto height = NumberAt(settings, kHeightKey, 1);
  if (!x || !y || !width || !height) return std::nullopt;
  return QRect(*x, *y, *width, *height);
}

}  // namespace

WindowMemory ReadWindowMemory(FileSystem& files, const std::string& program_folder) {
  const std::string path = FileIn(program_folder);
  if (WhatIsAt(files, path) != Found::kOurs) return {};
  const QSettings settings(QString::fromStdString(files.HostPath(path)), QSettings::IniFormat);
  return {.place = PlaceIn(settings),
          .maximised = SwitchAt(settings, kMaximisedKey, false),
          .details_width = NumberAt(settings, kDetailsKey, 1),
          .pictures = SwitchAt(settings, kPicturesKey, false),
          .tile_size = NumberAt(settings, kTileSizeKey, 0),
          .viewer_line = SwitchAt(settings, kViewerLineKey, true),
          .archives = settings.value(kArchivesKey).toStringList()};
}

void WriteWindowMemory(FileSystem& files, const std::string& program_folder,
                       const WindowMemory& memory) {
  const std::string path = FileIn(program_folder);
  const Found found = WhatIsAt(files, path);
  if (found == Found::kOfLaterVersion) return;
  if (found == Found::kDamaged && files.Delete(path) != FileError::kNone) return;
  // The path of a file that is not there yet may have no form that the system takes.
  const QString folder = QString::fromStdString(files.HostPath(program_folder));
  if (folder.isEmpty()) return;

  QSettings settings(QString::fromStdString(files.HostPath(path)), QSettings::IniFormat);
  settings.setValue(kVersionKey, kVersion);
  if (memory.place) {
    settings.setValue(kXKey, memory.place->x());
    settings.setValue(kYKey, memory.place->y());
    settings.setValue(kWidthKey, memory.place->width());
    settings.setValue(kHeightKey, memory.place->height());
  }
  settings.setValue(kMaximisedKey, memory.maximised ? 1 : 0);
  if (memory.details_width) settings.setValue(kDetailsKey, *memory.details_width);
  settings.setValue(kPicturesKey, memory.pictures ? 1 : 0);
  if (memory.tile_size) settings.setValue(kTileSizeKey, *memory.tile_size);
  settings.setValue(kViewerLineKey, memory.viewer_line ? 1 : 0);
  settings.setValue(kArchivesKey, memory.archives);
}

void RememberPlace(const QWidget& window, WindowMemory& memory) {
  memory.maximised = window.isMaximized();
  const QRect place =
      memory.maximised || window.isMinimized() ? window.normalGeometry() : window.geometry();
  if (place.isValid()) memory.place = place;
}

void RestorePlace(QWidget& window, const WindowMemory& memory) {
  if (memory.place) {
    constexpr int kTitleBar = 24;  // at least; how high it is shows only later
    const QScreen* screen = QGuiApplication::screenAt(memory.place->center());
    const QRect room = (screen != nullptr ? screen : window.screen())->availableGeometry();
    QRect place(memory.place->topLeft(), memory.place->size().boundedTo(RoomIn(room.size())));
    if (screen == nullptr) {
      window.resize(place.size());
    } else {
      place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
      place.moveTop(
          std::clamp(place.top(), room.top() + kTitleBar, room.bottom() + 1 - place.height()));
      window.setGeometry(place);
    }
  }
  if (memory.maximised) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

}  // namespace vellumark
