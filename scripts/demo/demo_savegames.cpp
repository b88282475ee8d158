#include "demo_savegames.h"

#include <QFile>
#include <QIODevice>
#include <QString>
#include <cstddef>

#include "demo_random.h"

namespace vellumark::demo {
namespace {

constexpr std::size_t kCounterOffset = 75;
constexpr std::size_t kStateOffset = 79;
constexpr int kSmallestSize = 7 * 1024;
constexpr int kLargestSize = 16 * 1024;

char Byte(std::uint32_t bits) { return static_cast<char>(bits & 0xFFU); }

void AppendWord(std::string& bytes, std::uint32_t word) {
  bytes += Byte(word);
  bytes += Byte(word >> 8U);
}

// The game does not clear the name field: whatever the memory held stays behind the name's end.
// Commas and line ends among it are what a careless reader trips over.
void AppendLeftovers(std::string& bytes, Random& random) {
  while (bytes.size() < kCounterOffset) {
    switch (random.Whole(0, 5)) {
      case 0:
        bytes += ',';
        break;
      case 1:
        bytes += '\r';
        break;
      case 2:
      case 3:
        bytes += static_cast<char>(random.Whole('A', 'Z') + (random.Chance(0.7) ? 32 : 0));
        break;
      default:
        bytes += static_cast<char>(random.Whole(0x80, 0xFF));
    }
  }
}

// The state of a level: flags that are mostly alike, tables of small numbers, positions.
void AppendState(std::string& bytes, Random& random, std::size_t size) {
  while (bytes.size() < size) {
    const int length = random.Whole(4, 60);
    switch (random.Whole(0, 4)) {
      case 0:
        bytes.append(3 * static_cast<std::size_t>(length), '\0');
        break;
      case 1:
        bytes.append(static_cast<std::size_t>(length), random.Chance(0.5) ? '\xFF' : '\x01');
        break;
      case 2:
        for (int i = 0; i < length; ++i) AppendWord(bytes, random.Bits() % 32U);
        break;
      case 3:
        for (int i = 0; i < length / 4; ++i) {
          AppendWord(bytes, random.Bits());
          AppendWord(bytes, random.Chance(0.5) ? 0U : 0xFFFFU);
        }
        break;
      default:
        for (int i = 0; i < length; ++i) bytes += Byte(random.Bits());
    }
  }

  bytes.resize(size);
}

}  // namespace

std::uint64_t SavegameSeed(std::string_view level, int counter) {
  std::uint64_t seed = 0xCBF29CE484222325U;
  for (const char letter : level) {
    seed = (seed ^ static_cast<unsigned char>(letter)) * 0x100000001B3U;
  }
  return (seed ^ static_cast<std::uint64_t>(counter)) * 0x100000001B3U;
}

std::string SavegameBytes(std::string_view level, int counter) {
  Random random(SavegameSeed(level, counter));
  const auto size = static_cast<std::size_t>(random.Whole(kSmallestSize, kLargestSize));

  std::string bytes(level);
  bytes += '\0';
  AppendLeftovers(bytes, random);
  AppendWord(bytes, static_cast<std::uint32_t>(counter));
  bytes.append(kStateOffset - bytes.size(), '\0');
  AppendState(bytes, random, size);
  return bytes;
}

std::string NoteBytes(std::string_view text) {
  // A carriage return would end the record, so the byte 0x8D stands for it inside.
  QByteArray bytes = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toLatin1();
  bytes.replace('\n', "\x8D\n");
  bytes.append("\r\n");
  return bytes.toStdString();
}

QByteArray ShotBytes(std::string_view level, int counter) {
  QString name = QString::fromLatin1(level.data(), static_cast<qsizetype>(level.size()));
  name = name.toLower().replace(' ', '-') + QStringLiteral("-%1.jpg").arg(counter);
  QFile file(QStringLiteral(DEMO_SHOTS "/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace vellumark::demo
