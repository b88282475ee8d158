// The player's own slots while archived savegames are played: one story with one state, PlayState.
//
//   at home       the slots of the game folder are the player's
//   put aside     BackupFolder holds all that clearing them would delete, and a label that names
//                 the folder they belong to
//   given back    they are in their folder again; the backup stays until the run ends
//
// What always holds:
// - No slot is cleared before the backup is whole and its label is on the disk.
// - A file of the game's slots is deleted only when its equal lies in the backup or was put there
//   by a play; every other one is set aside.
// - The backup is never written into another folder than the one it was taken from.
// - What lies in BackupFolder is deleted only when its equal is safe in its own folder. The label
//   goes when the slots are back, or when the player does not want them back.
#ifndef VELLUMARK_GAME_OWN_SLOTS_IN_PLAY_H_
#define VELLUMARK_GAME_OWN_SLOTS_IN_PLAY_H_

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/failures.h"

namespace vellumark {

class Rescue;
struct Program;

// Puts the slots of a game folder aside. Whatever else lies in BackupFolder is moved into `rescue`,
// unless it is known to be in its own folder again. Answers why not all is safe: nothing may be
// cleared then, and what was copied is taken back.
std::vector<Failure> PutOwnSlotsAside(Program& program, const std::string& game_folder,
                                      Rescue& rescue);

// True when the slots of this folder, however its path is spelled, are put aside whole.
bool AreOwnSlotsAside(Program& program, const std::string& game_folder);

struct SlotClearing {
  std::vector<Failure> failures;  // what is still in the folder
  bool moved = false;             // some files have been set aside
  bool deleted = false;           // some files whose equals are safe are gone
};

// Clears the slots of a game folder that is put aside. What the game has saved there meanwhile, or
// the user brought, is moved into `rescue`; nothing is deleted when that fails.
SlotClearing ClearGameSlots(Program& program, const std::string& game_folder, Rescue& rescue);

// A play has put the savegames of these catalogue entries into the cleared slots, as these files.
void RememberPlaced(Program& program, const std::vector<std::int16_t>& indices,
                    const std::vector<std::string>& placed);

// The user has put these files into a folder. When it is the game folder whose slots are put
// aside, they are his own from now on, and so are equal ones that a play has put there.
void RememberBrought(Program& program, const std::string& folder,
                     const std::vector<std::string>& paths);

// The play for which the slots were put aside has changed nothing: the backup is taken away again.
void TakeBackupAway(Program& program);

// The files that the backup should hold and that cannot be read there. An empty backup is whole.
std::vector<Failure> MissingFromBackup(Program& program);

// Copies the backup into its own folder, which its label says from then on. Answers what did not
// arrive.
std::vector<Failure> CopyBackupHome(Program& program);

// The end of a run: empties BackupFolder when each of its files is safe in its own folder. A backup
// that the player did not want back loses its label, and the next start sets it aside.
void ReleaseBackup(Program& program);

// What an earlier run has left in BackupFolder: makes it this run's backup when its label says that
// it is whole and nothing is missing. False otherwise.
bool AdoptLabelledBackup(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_OWN_SLOTS_IN_PLAY_H_
