// Makes the archive that the benchmarks read: 10,000 savegames of 7.5 KB in 625 sub-folders, a
// note with each, a screen-shot of 30 KB with half of them. The same bytes every time. With `long`,
// one note in ten goes on to 64 KB, and one to 10 MB. With `pictures` it is one for looking at: a
// screen-shot with each, and levels of 40 savegames.
// usage: make_archive_tree FOLDER [long|pictures]
#include <QBuffer>
#include <QImage>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "bench_run.h"

namespace {

using namespace vellumark::bench;
namespace fs = std::filesystem;

constexpr std::size_t kSavegameSize = 7680;
constexpr std::size_t kShotSize = 30720;
constexpr std::size_t kCounterOffset = 75;
constexpr std::size_t kNoteSize = 100;

constexpr std::string_view kLevels[] = {"Angkor Wat",          "Race For The Iris",
                                        "The Tomb Of Seth",    "Burial Chambers",
                                        "Valley Of The Kings", "The Mastabas"};

// A number for each call, the same ones in every run.
class Numbers {
 public:
  std::uint32_t Next() {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state_ >> 33U);
  }
  std::uint32_t Below(std::uint32_t limit) { return Next() % limit; }

 private:
  std::uint64_t state_ = 1;
};

void Write(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  Require(file.good(), "Cannot write " + path.string() + ".");
}

std::string Savegame(Numbers& numbers, int index, bool in_order) {
  constexpr int kSavegamesOfLevel = 40;
  const std::size_t level = in_order ? static_cast<std::size_t>(index / kSavegamesOfLevel)
                                     : numbers.Below(std::size(kLevels));
  std::string bytes(kLevels[level % std::size(kLevels)]);
  bytes += '\0';
  while (bytes.size() < kCounterOffset) bytes += static_cast<char>(numbers.Below(256));
  bytes += static_cast<char>(index & 0xFF);
  bytes += static_cast<char>(index >> 8);
  while (bytes.size() < kSavegameSize) bytes += static_cast<char>(numbers.Below(256));
  return bytes;
}

// The length of a note in an archive with long ones.
std::size_t LongNoteSize(int index) {
  if (index == kSavegames / 2 + 1) return std::size_t{10} << 20U;
  return index % 10 == 0 ? std::size_t{64} << 10U : kNoteSize;
}

std::string Note(Numbers& numbers, std::size_t size) {
  static constexpr std::string_view kWords[] = {"before", "the",  "second", "lever",
                                                "with",   "full", "health", "jump",
                                                "left",   "key",  "trap",   "door"};
  std::string note;
  while (note.size() < kNoteSize) {
    note += kWords[numbers.Below(std::size(kWords))];
    note += ' ';
  }
  note.resize(kNoteSize, ' ');
  while (note.size() < size) note += note;
  note.resize(size);
  return note + "\r\n";
}

// A picture with as much detail as its size has room for.
std::string Shot() {
  Numbers numbers;
  QImage picture(640, 480, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int grain = static_cast<int>(numbers.Below(7));
      picture.setPixel(x, y, qRgb(x * 200 / 640 + grain, y * 200 / 480 + grain, 90 + grain));
    }
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  Require(picture.save(&buffer, "JPEG", 85), "This Qt cannot write JPEG pictures.");
  std::string shot = bytes.toStdString();
  Require(shot.size() <= kShotSize, "The picture has become too large.");
  shot.resize(kShotSize);
  return shot;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view kind = argc == 3 ? argv[2] : "";
  Require(argc == 2 || kind == "long" || kind == "pictures",
          "usage: make_archive_tree FOLDER [long|pictures]");
  const bool pictures = kind == "pictures";
  const fs::path archive = argv[1];
  const bool long_notes = kind == "long";
  const std::string shot = Shot();
  Numbers numbers;
  int index = 0;
  for (int k = 1; k <= kFolders; ++k) {
    const fs::path folder = archive / (kSubfolderBaseName + std::to_string(k));
    fs::create_directories(folder);
    for (int slot = 0; slot < kSlotsInFolder; ++slot) {
      const std::string number = std::to_string(slot);
      Write(folder / ("savegame." + number), Savegame(numbers, ++index, pictures));
      Write(folder / ("note" + number + ".txt"),
            Note(numbers, long_notes ? LongNoteSize(index) : kNoteSize));
      if (pictures || slot % 2 == 0) Write(folder / ("shot" + number + ".jpg"), shot);
    }
  }
}
