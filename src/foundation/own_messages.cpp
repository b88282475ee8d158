#include "foundation/own_messages.h"

#include "foundation/message_table.h"

namespace vellumark {
namespace {

// In the tone of the closed table: short, to the point, saying what happened to the files.
constexpr TableMessage kOwnMessages[] = {
    {kAlreadyRunning, "Vellumark is already running from folder ~1"},
    {kProgramFolderUnusable,
     "Vellumark cannot run from this folder: its path is too long or has characters that savegame "
     "archives cannot hold.~1Please move the program to another folder."},
    {kUserFolderUnusable,
     "Vellumark cannot keep its files in your data folder: its path is too long or has characters "
     "that savegame archives cannot hold.~1Please name another folder in XDG_DATA_HOME."},
    {kUserFolderNotMade, "Vellumark cannot make the folder ~1 for its files: ~2."},
    {kCodePageSubstitute,
     "The text of your language cannot be kept in savegame notes and paths. Vellumark uses the "
     "characters of code page ~1."},
    {kBackupFolderNotReady,
     "Warning: the backup folder ~1 cannot be used: ~2.\r\nSavegames cannot be played until it "
     "can."},
    {kSlotsSetAside,
     "Warning: in backup folder ~1 there were savegames left by a previous run.~2They have been "
     "moved in ~3 and nothing of them was lost."},
    {kSlotsNotSetAside,
     "Warning: savegames left by a previous run could not be moved out of the backup folder. They "
     "are still there, and nothing was deleted:"},
    {kRescueFolder, "\\rescued"},
    {kRescueListName, "rescued.txt"},
    {kRescueListHead, "Set aside by Vellumark, so that nothing is lost"},

    {kBackupLabelName, "backup.txt"},
    {kBackupLabelHead, "Savegames put aside by Vellumark while archived ones are played"},
    {kPutSlotsBack,
     "The last run of Vellumark ended while archived savegames were in Tomb Raider folder ~1. Your "
     "own savegames are safe in the backup folder.~2Do you want to put them back now?"},
    {kSlotsPutBack, "Your own savegames are back in Tomb Raider folder ~1"},
    {kArchiveThemNow, "Do you want to put these savegames into the archive now?"},
    {kRescuedArchived, "Savegames put into the archive: ~1"},
    {kRescuedNotArchived, "Some savegames could not be put into the archive and stay set aside:"},
    {kRescuedInGame, "Savegames put into folder ~2: ~1"},
    {kSlotsNotFree, "These savegames stay set aside, because their slots are in use:"},
    {kNoArchiveForRescued,
     "There is no archive to put savegames into. Make or load one with a main folder first."},
    {kDeleteRescued, "Delete for good what is selected (files: ~1)?"},
    {kWhyLeftInBackup, "left in the backup folder by a previous run"},
    {kWhyOtherBackup, "in the backup folder when savegames were played"},
    {kWhyInGameSlots, "in the game's slots, and nowhere else, when they were cleared"},
    {kWhyInTheWay, "had the name of a savegame that was copied"},
    {kWhyNotInNewArchive, "in the old archive when it was deleted, and not in the new one"},
    {kWhyNotLinked, "typed for a captured screen-shot that was not linked"},
    {kUntoldFile, "\\untold.txt"},
    {kUntold, "This could not be told when the system ended Vellumark:"},

    {kPreferencesNotReadWhole,
     "Warning: the preferences file ~1 could not be read whole: ~2.\r\nWhat is missing takes its "
     "default. The file will be kept with the ending .bak before it is written again."},
    {kPreferencesNotWritten,
     "The preferences could not be saved in ~1: ~2.\r\nThe file has been left as it was."},
    {kArchiveNotReadWhole,
     "Warning: the archive file ~1 could not be read whole: ~2.\r\nIt will not be written again "
     "unless you change the archive or save it, and then it will be kept with the ending .bak "
     "first. No savegame is affected."},
    {kArchiveRefused, "The file ~1 cannot be opened as an archive: ~2."},
    {kArchiveNotWritten,
     "The archive could not be saved in ~1: ~2.\r\nThe file has been left as it was."},
    {kSaveElsewhere, "Do you want to save it with another name?"},
    {kOldFileKept, "The archive has been saved in ~1.\r\nThe file that had this name is now ~2"},
    {kChangedFileKept,
     "The file ~1 was changed by another program while Vellumark ran. What it held is kept in ~2"},
    {kReasonFolderGone, "the folder that it lay in is not there"},
    {kPathTooLong, "This path is too long, it can have 256 characters at most: ~1"},
    {kBaseNameNotPossible,
     "This sub-folder name cannot be used: no folder name can hold these characters / \\ : * ? \" "
     "< "
     "> |"},
    {kPathNotExpressible,
     "This file or folder cannot be used: its path has characters that savegame archives cannot "
     "hold, or no drive letter leads to it."},

    {kTableFull,
     "Warning: there are more savegames or sub-folders than the list can hold. Only the first ~1 "
     "are listed; the others are untouched."},
    {kAmbiguousNames,
     "Warning: these names exist twice in their folder, in upper and lower case. They are not "
     "listed and will not be deleted. Please rename one of each:"},
    {kScanFailures, "Warning: these could not be read:"},
    {kUnusableFolders,
     "Warning: these sub-folders of ~1 cannot be listed, nor the savegames in them. They are "
     "untouched. Please rename them:"},
    {kUnusableCharacters, "its name has characters that savegame archives cannot hold"},
    {kUnusableName, "Windows could not hold its name"},

    {kSubfolderNotMade,
     "The new sub-folder ~1 could not be created: ~2.~3Nothing has been imported, and nothing has "
     "changed in Tomb Raider folder ~4"},
    {kImportNotCopied,
     "Warning: not everything could be imported. These files could not be copied and are still in "
     "Tomb Raider folder ~1:"},
    {kImportNotFlushed,
     "Warning: the disk did not confirm that the imported copies are safe: ~1.\r\nTherefore "
     "nothing "
     "has been deleted from Tomb Raider folder ~2"},
    {kImportNotDeleted,
     "Warning: these files could not be deleted, or changed while they were imported. They are "
     "still in Tomb Raider folder ~1:"},
    {kImportNotRenamed, "The last savegame could not become savegame.0 and is still ~1: ~2."},
    {kInfoNotWritten, "The list of the imported savegames could not be added to ~1: ~2."},

    {kPlaySourceInGameFolder,
     "The savegame ~1 cannot be played: its file lies in Tomb Raider folder ~2 itself, or in the "
     "backup folder, under another name. Nothing has been changed."},
    {kGameFolderIsBackup,
     "Savegames cannot be played: Tomb Raider folder ~1 is the folder in which Vellumark keeps the "
     "backup of your own slots."},
    {kOtherBackupSetAside,
     "The backup of your own slots in Tomb Raider folder ~1 has been moved in ~2, because "
     "savegames are played in another folder now. Nothing of it was lost."},
    {kPlayNotBackedUp,
     "The selected savegames have not been put into the slots, because your own slots could not be "
     "put aside. Nothing has been changed in Tomb Raider folder ~1. The reason:"},
    {kSlotsNotCleared,
     "Warning: the slots in Tomb Raider folder ~1 could not all be emptied. The reason:"},
    {kGameSlotsSetAside,
     "In Tomb Raider folder ~1 there were savegames that had been saved since the last play. They "
     "have been moved in ~2 and nothing of them was lost."},
    {kPlayNotCopied,
     "Warning: not all selected savegames could be put into the slots of Tomb Raider folder ~1. "
     "These could not be copied, and are where they were:"},
    {kBackupNotWhole,
     "The original savegames cannot be restored, because their backup is not whole. Nothing has "
     "been changed in Tomb Raider folder ~1; what is left of the backup is in ~2. These files are "
     "missing or cannot be read:"},
    {kRestoreNotBegun, "The original savegames have not been put back. They are still in ~1"},
    {kRestoreNotCopied,
     "Warning: these original savegames could not be put back into Tomb Raider folder ~1. They are "
     "still in ~2:"},
    {kRestoredElsewhere,
     "The original savegames have been restored in folder ~1, from which they had been taken."},
    {kGameNotStarted, "The game ~1 has not started: ~2."},
    {kReasonNeedsWine, "it needs Wine, which is not installed on this computer"},
    {kReasonOnly64Bit,
     "it is a 32-bit program, and the Wine of this computer runs only 64-bit ones"},
    {kPackageToInstall, "; please install the package ~1"},
    {kReasonNoProgram, "this file is no program"},
    {kReasonRefused, "the system has refused it"},
    {kReasonEndedAtOnce, "its program ended at once, with error ~1"},
    {kGameLastWords, "The last words about it: ~1"},
    {kSavegamesInSlots, "The savegames are in its slots."},

    {kTrustFile, "\\programs.txt"},
    {kTrustHead, "Programs that Vellumark may start"},
    {kStartUnknownProgram,
     "Archive ~1 names a program that you have neither chosen nor started "
     "before:\r\n\r\n~2\r\n\r\nWhen "
     "the archive comes from somebody else, make sure that this is your game."},
    {kProgramIsForeign,
     "Warning: this file is not a Windows program. It is a script or a program of this system, and "
     "could do whatever you can do."},
    {kStartItAllTheSame, "Do you want to start it?"},

    {kSlotEmpty,
     "This slot is empty: there is no savegame to link the screen-shot to. Nothing has been "
     "written."},
    {kSlotsChanged,
     "The savegames in the slots have changed. The list shows them as they are now: please set the "
     "slot again.\r\nNothing has been written."},
    {kLinkedInGameOnly,
     "The screen-shot and the note are linked in the game folder only: what slot ~1 holds now is "
     "not the archived savegame that was put there, or the archive has that one no more."},
    {kClipboardUnreadable,
     "There is a picture on the clipboard that cannot be read. It may be damaged, or larger than "
     "32,767 pixels a side or 1 GB in memory."},
    {kPictureNotShown, "This picture cannot be shown: ~1."},
    {kPictureFaultNone, "it is no picture"},
    {kPictureFaultDamaged, "its file is damaged"},
    {kPictureFaultTooLarge, "it is larger than 32,767 pixels a side or 1 GB in memory"},
    {kPictureFileTooLarge, "the file is larger than 256 MB"},
    {kPictureFaultLargeForSmall, "it is too large to be shown among the others"},
    {kPictureFaultNotCredible, "its file is too short for the size that it claims to have"},
    {kPicturesFilter, "|Pictures|~1"},
    {kShotFolderKept,
     "The folder for screen-shots in the preferences stays as it was. The screen-shot itself is "
     "saved all the same, if it can be."},
    {kTypedNoteKept,
     "The note that you had typed for the captured screen-shot was not linked to a savegame. It is "
     "now in ~1"},
    {kTypedNoteNotKept,
     "The note that you had typed for the captured screen-shot was not linked to a savegame, and "
     "could not be kept in ~1: ~2. This is the note:"},
    {kNameCapturedPicture, "The captured screen-shot"},

    {kNoteGoesOn,
     "[The note goes on: these are the first ~1 of ~2 characters. All of it is kept, and the "
     "search "
     "finds all of it.]"},
    {kNothingSelected, "No savegame is selected"},
    {kHeadingCounter, "No."},
    {kHeadingLevel, "Level"},
    {kHeadingNote, "Note"},
    {kListLegend, "T: Tomb Raider folder   I: screen-shot   ~1: new line"},
    {kListDescription,
     "Each line begins with T when the savegame lies in the Tomb Raider folder and with I when it "
     "has a screen-shot. The internal savegame counter, the level and the note follow; ~1 stands "
     "for a new line of the note."},

    {kViewMenu, "View"},
    {kViewList, "List"},
    {kViewPictures, "Pictures"},
    {kViewLarger, "Larger pictures"},
    {kViewSmaller, "Smaller pictures"},
    {kViewGoToLevel, "Go to level"},
    {kLevelInMenu, " (~1)"},
    {kLevelsNone, "No savegames"},
    {kLevelNone, "No level name"},
    {kSpokenTile, "~1, "},
    {kSpokenInGame, ", in the Tomb Raider folder"},
    {kSpokenShot, ", with screen-shot"},
    {kSpokenNoShot, ", no screen-shot"},
    {kSpokenNote, ", note: "},

    {kPageNoArchive,
     "No archive is open.\r\n\r\nAn archive keeps your savegames in numbered folders, with notes "
     "and "
     "screen-shots, however few slots the game has."},
    {kPageGameFound, "Tomb Raider was found in folder ~1."},
    {kPageGamesFound, "Tomb Raider was found in these folders:"},
    {kPageArchiveMissing,
     "Archive ~1 was to be opened, but it is not there.\r\n\r\nPerhaps its disk is not connected, "
     "or "
     "the file has been moved or renamed."},
    {kPageStillMissing, "It was still not there when Vellumark looked again."},
    {kPageNotSetUp,
     "This archive does not name its folders. Choose them with the command Archive in the menu "
     "Preferences."},
    {kPageMainFolderMissing, "The main archive folder ~1 is not there."},
    {kPageGameFolderMissing, "The Tomb Raider folder ~1 is not there."},
    {kPageFoldersAdvice,
     "Perhaps a disk is not connected. When a folder has been moved, choose its new place with the "
     "command Archive in the menu Preferences."},
    {kPageNetworkPath,
     "Vellumark asks no computer in the network that an archive names by itself. To use a folder "
     "there, give it a drive letter, then choose it by this letter."},
    {kPageArchiveEmpty,
     "This archive is empty, and there are no savegames in Tomb Raider folder ~1.\r\n\r\nPlay, and "
     "save in the game. Then look again here, and put the savegames into the archive with the "
     "import "
     "command in the menu Savegames (Ctrl+I)."},
    {kPageNew, "New archive"},
    {kPageNewFor, "New archive for ~1"},
    {kPageOpen, "Open an archive"},
    {kPageHelp, "Show the help"},
    {kPageLookAgain, "Look again"},
    {kOtherGameFolder, "Another folder ..."},

    {kRecentCommand, "Open recent"},
    {kShowInFolderCommand, "Show in file manager"},
    {kCopyPathCommand, "Copy path"},
    {kSelectForPath, "You must select the savegame first"},
    {kNotShownInFolder,
     "The file manager could not be opened in the folder ~1. Does the folder still exist?"},
    {kReplaceShot,
     "The savegame ~1 has a linked screen-shot already. Do you want to put the picture ~2 in its "
     "place?"},

    {kViewerPrevious, "Previous screen-shot"},
    {kViewerNext, "Next screen-shot"},
    {kViewerZoomIn, "Zoom in"},
    {kViewerZoomOut, "Zoom out"},
    {kViewerFit, "Fit into the window"},
    {kViewerEveryPixel, "Every pixel"},
    {kViewerFullScreen, "Whole screen"},
    {kViewerLine, "Counter, level and note"},
    {kViewerClose, "Close"},

    {kCounterOutOfRange, "The internal savegame counter must be a number from -32768 to 32767"},
    {kNoteCharacters,
     "A note cannot hold these characters: ~1\r\nThe first of them is marked. Nothing has been "
     "written."},
    {kNoPicture,
     "The file ~1 is not a picture that can be shown.\r\nDo you want to link it as screen-shot all "
     "the same?"},
    {kChangesNotWritten,
     "Warning: not everything could be saved. These files could not be changed and are as they "
     "were:"},
    {kNoteStillShown,
     "The note that you have typed is still in the window: you can try again or copy it."},
    {kUnseenNoteKept,
     "The savegame had another note than the one that was shown. It is kept in ~1"},
    {kRestOfNoteKept, "The note's file held more than the note that was shown. It is kept in ~1"},
    {kNoteChangedMeanwhile,
     "The note has been changed by another program while this window was open, and stays as it is "
     "there:"},

    {kFolderNotOpened, "The folder ~1 cannot be opened: ~2."},
    {kFolderIsOwn,
     "The folder ~1 cannot be chosen: Vellumark keeps your own slots or savegames that were set "
     "aside there."},
    {kFolderNotMade, "The folder ~1 could not be created: ~2."},
    {kFolderNameNotExpressible,
     "This folder name cannot be used: savegame archives cannot hold the marked character."},
    {kFolderRefusedCharacters,
     "This folder cannot be used: its name has characters that savegame archives cannot hold"},
    {kFolderRefusedName, "This folder cannot be used: Windows could not hold its name"},
    {kFolderRefusedTwice,
     "This folder cannot be used: its name exists twice, in upper and lower case"},
    {kFolderRefusedLength,
     "This folder cannot be used: its path is too long, it can have 256 characters at most"},

    {kReorderNumberTooLarge,
     "This number cannot be used, it can be 32767 at most. The last number typed before it holds."},
    {kReorderSlotNegative, "The max number of savegame cannot be negative"},
    {kReorderNameBlanks, "This sub-folder name cannot be used: it begins or ends with a blank"},
    {kReorderSlotName,
     "This sub-folder name cannot be used in Tomb Raider folder: the sub-folders would take the "
     "names of the game's savegames"},
    {kReorderInBackup,
     "The new archive cannot lie in ~1: this is where the game's own savegames wait while archived "
     "ones are played"},
    {kReorderInOldArchive,
     "The new archive cannot lie in ~1: this is inside ~2, a sub-folder of the old archive that is "
     "to be deleted"},
    {kReorderStopped,
     "The new sub-folder ~1 could not be created: ~2.~3Reordering has stopped. Nothing has been "
     "deleted, and the old archive is still in use."},
    {kReorderLeft,
     "These sub-folders hold copies that are not needed. They could not be deleted, you can do "
     "it:"},
    {kReorderNamesTaken,
     "Nothing has been copied: the new archive needs these names, and they exist already. Please "
     "choose another sub-folder name, or move what has them:"},
    {kReorderNoRoom,
     "The new archive needs ~1 MB, but the disk has only room for ~2 MB.~3Do you want to reorder "
     "all the same?"},
    {kReorderUseAllTheSame,
     "Warning: not everything is safe in the new archive. Do you want to use it all the "
     "same?~1With "
     "No the new archive is removed and the old one stays in use. Nothing of the old archive is "
     "deleted, whatever you choose."},
    {kReorderNotCopied,
     "These files are not in the new archive, nor are note and screen-shot of a savegame that is "
     "among them:"},
    {kReorderNotFlushed, "The disk did not confirm that the new archive is safe: ~1."},
    {kReorderNotWhole, "Warning: not everything is safe in the new archive."},
    {kReorderOldKept, "Therefore nothing has been deleted from the old archive in ~1"},
    {kReorderFoldersKept,
     "Warning: this could not be deleted from the old archive and is still there:"},
    {kReorderSetAside,
     "In sub-folders of the old archive there were files that belong to no savegame, or that "
     "were left out as equal but hold something else. They have been moved, and nothing of them "
     "was lost. They are now in ~1 with a list of where they came from."},
    {kReorderNotListed, "These lists of savegames could not be written:"},
    {kExportNotCopied, "Warning: these screen-shots could not be copied:"},
    {kOldFolderNeeded, "it is also used for something else, or its name exists twice"},
    {kOldHoldsUnusable, "it holds a name that savegame archives cannot hold"},
    {kOldNotInNew, "this savegame is not in the new archive, or has changed meanwhile"},
    {kOldIsFolder, "it is a folder"},
    {kOldIsNoFile, "it is no ordinary file"},
    {kOldNotMoved, "it could not be set aside: ~1"},
    {kOldNotDeleted, "it could not be deleted: ~1"},

    {kNotAllCopied,
     "Warning: not everything could be put in folder ~1. These files could not be copied:"},
    {kNotAllMoved,
     "Warning: not everything could be put in folder ~1. These files could not be copied, and "
     "nothing of their savegames has been deleted:"},
    {kMovedNotDeleted,
     "Warning: these files have been copied, but they could not be deleted or changed meanwhile. "
     "They are still where they were:"},
    {kTargetSetAside,
     "In folder ~1 there were other files with the names of the copies. They have been moved in ~2 "
     "and nothing of them was lost."},
    {kTargetNotDeleted, "Warning: these savegames, which were there before, could not be deleted:"},
    {kNotAllRemoved, "Warning: these files could not be deleted and are still there:"},

    {kNothingOpens, "No program could be started that opens the file ~1"},
    {kFailureLine, "~2: ~1"},
    {kFailureAtTarget, " (when writing ~1)"},
    {kMoreFailures, "... and ~1 more"},

    {kAboutCommand, "About Vellumark"},
    {kAbout,
     "Vellumark ~1~2"
     "An archive of your savegames of Tomb Raider - The Last Revelation.~2~2"
     "Copyright 2026 The Vellumark authors. Free software under the MIT licence, without any "
     "warranty. Vellumark is not connected with the makers of the game.~2~2"
     "Its windows and pictures are made by Qt, free software under the GNU Lesser General Public "
     "License, version 3. The Windows program has Qt inside, with zlib, libpng, libjpeg, FreeType, "
     "HarfBuzz, PCRE2 and double-conversion, and the libraries of its compiler; their licences "
     "stand in the folder \"licences\" beside it. On Linux it also uses XCB (MIT licence); the "
     "licences of these libraries came with them."},
    {kTerminalVersion, "Vellumark ~1\n"},
    {kTerminalHelp,
     "Usage: vellumark [--portable] [FILE]\n"
     "Keeps an archive of your savegames of Tomb Raider - The Last Revelation.\n"
     "\n"
     "  ARCHIVE.vmk      opens this archive instead of the one that was used last\n"
     "  PREFERENCES.prf  uses this preferences file instead of the usual one\n"
     "  --portable       keeps everything beside the program, wherever it lies\n"
     "  --version        prints the version\n"
     "  -h, --help       prints this help\n"
     "\n"
     "The whole command line is one path: blanks in it need no quotes of their own.\n"},

    {kRescuedCommand, "Savegames set aside ..."},
    {kRescuedTitle, "Savegames set aside"},
    {kRescuedHead, "What Vellumark has set aside beside the program, so that nothing is lost:"},
    {kNothingRescued, "Nothing is set aside."},
    {kRescuedToArchive, "Put into archive"},
    {kRescuedToGame, "Put into game slots"},
    {kRescuedShowFolder, "Show folder"},
    {kRescuedDelete, "Delete"},
    {kRescuedClose, "Close"},
    {kRescuedSavegame, "Savegame"},
    {kRescuedNote, "Note"},
    {kRescuedOrigin, "Was in"},
    {kRescuedWhy, "Why"},
    {kRescuedNotRead, "Warning: not everything that is set aside could be read:"},

    {kNameList, "List of savegames"},
    {kNamePictures, "Pictures of savegames"},
    {kNameNote, "Note of the selected savegame"},
    {kNamePicture, "Screen-shot of the selected savegame"},
    {kNamePosition, "Position in the search result"},
    {kNamePrevious, "Previous savegame found"},
    {kNameNext, "Next savegame found"},
    {kNameDrives, "Drives"},
    {kNameFolders, "Folders"},
    {kNameFolderPath, "Path of the selected folder"},
    {kNameNewFolder, "Name of the new folder"},
    {kNameProgress, "Progress"},

    {kReasonNotWhole, "it is too short"},
    {kReasonNotAnArchive, "it holds no archive settings"},
    {kReasonNotPreferences, "it holds no preferences of Vellumark"},
    {kReasonNotFound, "it does not exist"},
    {kReasonAlreadyExists, "the name exists already"},
    {kReasonAccessDenied, "it is read-only, or access is denied"},
    {kReasonDiskFull, "the disk is full"},
    {kReasonNotReady, "the drive is not ready"},
    {kReasonBadName, "this is not a possible name"},
    {kReasonAmbiguous, "the name exists twice, in upper and lower case"},
    {kReasonNotEmpty, "the folder is not empty"},
    {kReasonNotAFolder, "it is a file, not a folder"},
    {kReasonInUse, "another program is using it"},
    {kReasonInputOutput, "it could not be read or written"},
    {kReasonFolder, "it is a folder"},
    {kReasonStopped, "the session ended before its turn"},
    {kReasonTooShort, "it is too short to be a savegame"},
    {kReasonCompanionLeft,
     "the note or the screen-shot of another savegame is still there and would become its own"},
};

}  // namespace

std::span<const TableMessage> OwnMessageTable() { return kOwnMessages; }

}  // namespace vellumark
