// The bytes of the files that a savegame slot consists of.
#ifndef VELLUMARK_SCRIPTS_DEMO_DEMO_SAVEGAMES_H_
#define VELLUMARK_SCRIPTS_DEMO_DEMO_SAVEGAMES_H_

#include <QByteArray>
#include <cstdint>
#include <string>
#include <string_view>

namespace vellumark::demo {

// The number that everything random about a savegame grows from: the same level and counter give
// the same files.
std::uint64_t SavegameSeed(std::string_view level, int counter);

// A savegame file of 7 to 16 KB: the level name, what the memory behind it happened to hold, the
// internal counter (-32768 to 32767), and data that looks like a game's state.
std::string SavegameBytes(std::string_view level, int counter);

// A note file: `text` is UTF-8 with \n between its lines and no character outside Latin-1.
std::string NoteBytes(std::string_view text);

// The picture of a savegame that has one: the bytes of a JPEG file of 640 by 480 pixels that lies
// among the assets. Empty when it cannot be read.
QByteArray ShotBytes(std::string_view level, int counter);

}  // namespace vellumark::demo

#endif  // VELLUMARK_SCRIPTS_DEMO_DEMO_SAVEGAMES_H_
