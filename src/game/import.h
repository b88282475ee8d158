// Taking the game folder's savegames into the archive.
#ifndef VELLUMARK_GAME_IMPORT_H_
#define VELLUMARK_GAME_IMPORT_H_

namespace vellumark {

struct Catalogue;
struct Program;

// True when a savegame of the game folder has a higher counter than the last archived one, or,
// where nothing is archived, than the game folder's first. Reads only the catalogue.
bool HasNewSavegames(const Catalogue& catalogue);

// Copies every slot of the game folder into a new sub-folder of the archive, then empties the game
// folder but for the highest slot, which becomes savegame.0, and rebuilds the catalogue. Every
// outcome is told. A file is deleted only when its copy was read back equal and flushed; what could
// not be copied stays where it is and is named.
void ImportSavegames(Program& program);

// The command "Import savegames from Tomb Raider folder".
void ImportCommand(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_IMPORT_H_
