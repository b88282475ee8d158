// The names of the messages from 401 on.
#ifndef VELLUMARK_FOUNDATION_OWN_MESSAGES_H_
#define VELLUMARK_FOUNDATION_OWN_MESSAGES_H_

namespace vellumark {

enum OwnMessage : int {
  // Start
  kAlreadyRunning = 401,   // ~1 program folder
  kProgramFolderUnusable,  // ~1 line break
  kUserFolderUnusable,     // ~1 line break
  kUserFolderNotMade,      // ~1 folder, ~2 reason
  kCodePageSubstitute,     // ~1 code page
  kBackupFolderNotReady,   // ~1 folder, ~2 reason
  kSlotsSetAside,          // ~1 folder, ~2 line break, ~3 new folder
  kSlotsNotSetAside,       // followed by failure lines
  kRescueFolder,           // path tail
  kRescueListName,         // file name
  kRescueListHead,         // first line of that file

  kBackupLabelName,      // file name
  kBackupLabelHead,      // first line of that file
  kPutSlotsBack,         // ~1 game folder, ~2 line break; question
  kSlotsPutBack,         // ~1 game folder
  kArchiveThemNow,       // question
  kRescuedArchived,      // ~1 number
  kRescuedNotArchived,   // followed by failure lines
  kRescuedInGame,        // ~1 number, ~2 game folder
  kSlotsNotFree,         // followed by failure lines
  kNoArchiveForRescued,  // no values
  kDeleteRescued,        // ~1 number of files; question

  // Why something was set aside, in that file
  kWhyLeftInBackup,
  kWhyOtherBackup,
  kWhyInGameSlots,
  kWhyInTheWay,
  kWhyNotInNewArchive,
  kWhyNotLinked,
  kUntoldFile,  // path tail
  kUntold,      // followed by what was not told

  // Settings files
  kPreferencesNotReadWhole,  // ~1 file, ~2 reason
  kPreferencesNotWritten,    // ~1 file, ~2 reason
  kArchiveNotReadWhole,      // ~1 file, ~2 reason
  kArchiveRefused,           // ~1 file, ~2 reason
  kArchiveNotWritten,        // ~1 file, ~2 reason
  kSaveElsewhere,            // question
  kOldFileKept,              // ~1 file, ~2 kept copy
  kChangedFileKept,          // ~1 file, ~2 kept copy
  kReasonFolderGone,         // reason
  kPathTooLong,              // ~1 path
  kBaseNameNotPossible,      // no values
  kPathNotExpressible,       // no values

  // Scan
  kTableFull,           // ~1 number of entries
  kAmbiguousNames,      // followed by failure lines
  kScanFailures,        // followed by failure lines
  kUnusableFolders,     // ~1 main folder; followed by failure lines
  kUnusableCharacters,  // reason
  kUnusableName,        // reason

  // Import
  kSubfolderNotMade,  // ~1 folder, ~2 reason, ~3 line break, ~4 game folder
  kImportNotCopied,   // ~1 game folder; followed by failure lines
  kImportNotFlushed,  // ~1 reason, ~2 game folder
  kImportNotDeleted,  // ~1 game folder; followed by failure lines
  kImportNotRenamed,  // ~1 file name, ~2 reason
  kInfoNotWritten,    // ~1 file, ~2 reason

  // Playing
  kPlaySourceInGameFolder,  // ~1 savegame, ~2 game folder
  kGameFolderIsBackup,      // ~1 game folder
  kOtherBackupSetAside,     // ~1 other game folder, ~2 new folder
  kPlayNotBackedUp,         // ~1 game folder; followed by failure lines
  kSlotsNotCleared,         // ~1 game folder; followed by failure lines
  kGameSlotsSetAside,       // ~1 game folder, ~2 new folder
  kPlayNotCopied,           // ~1 game folder; followed by failure lines
  kBackupNotWhole,          // ~1 game folder, ~2 backup folder; followed by failure lines
  kRestoreNotBegun,         // ~1 backup folder
  kRestoreNotCopied,        // ~1 game folder, ~2 backup folder; followed by failure lines
  kRestoredElsewhere,       // ~1 game folder
  kGameNotStarted,          // ~1 executable, ~2 reason
  kReasonNeedsWine,         // reason
  kReasonOnly64Bit,         // reason
  kPackageToInstall,        // goes on after a reason; ~1 package
  kReasonNoProgram,         // reason
  kReasonRefused,           // reason
  kReasonEndedAtOnce,       // reason, ~1 exit code
  kGameLastWords,           // ~1 a line that another program wrote
  kSavegamesInSlots,        // no values

  kTrustFile,            // path tail
  kTrustHead,            // first line of that file
  kStartUnknownProgram,  // ~1 archive, ~2 executable
  kProgramIsForeign,     // no values
  kStartItAllTheSame,    // question

  // Capture
  kSlotEmpty,                  // no values
  kSlotsChanged,               // no values
  kLinkedInGameOnly,           // ~1 slot
  kClipboardUnreadable,        // no values
  kPictureNotShown,            // ~1 reason
  kPictureFaultNone,           // reason
  kPictureFaultDamaged,        // reason
  kPictureFaultTooLarge,       // reason
  kPictureFileTooLarge,        // reason
  kPictureFaultLargeForSmall,  // reason
  kPictureFaultNotCredible,    // reason
  kPicturesFilter,             // ~1 patterns
  kShotFolderKept,             // no values
  kTypedNoteKept,              // ~1 folder
  kTypedNoteNotKept,           // ~1 folder, ~2 reason; followed by the note
  kNameCapturedPicture,        // for assistive technology

  // Main window
  kNoteGoesOn,       // ~1 characters shown, ~2 characters in all
  kNothingSelected,  // no values
  kHeadingCounter,   // at most five characters
  kHeadingLevel,     // at most 28 characters
  kHeadingNote,      // no values
  kListLegend,       // ~1 mark of a line break
  kListDescription,  // ~1 mark of a line break; for assistive technology and as a tool tip

  // The menu View
  kViewMenu,
  kViewList,
  kViewPictures,
  kViewLarger,
  kViewSmaller,
  kViewGoToLevel,
  kLevelInMenu,   // follows a level's name; ~1 number of savegames
  kLevelsNone,    // in the place of the levels
  kLevelNone,     // in the place of a level's name
  kSpokenTile,    // ~1 counter; followed by the level
  kSpokenInGame,  // goes on
  kSpokenShot,    // goes on
  kSpokenNoShot,  // goes on
  kSpokenNote,    // followed by the note

  // What the main window says while there is no list
  kPageNoArchive,
  kPageGameFound,          // ~1 game folder
  kPageGamesFound,         // followed by folders
  kPageArchiveMissing,     // ~1 archive
  kPageStillMissing,       // no values
  kPageNotSetUp,           // no values
  kPageMainFolderMissing,  // ~1 main folder
  kPageGameFolderMissing,  // ~1 game folder
  kPageFoldersAdvice,      // no values
  kPageNetworkPath,        // no values
  kPageArchiveEmpty,       // ~1 game folder
  kPageNew,
  kPageNewFor,  // ~1 name of the game folder
  kPageOpen,
  kPageHelp,
  kPageLookAgain,
  kOtherGameFolder,  // of a choice of folders

  // The main window's commands
  kRecentCommand,
  kShowInFolderCommand,
  kCopyPathCommand,
  kSelectForPath,     // no values
  kNotShownInFolder,  // ~1 folder
  kReplaceShot,       // ~1 savegame, ~2 picture; question

  // Viewer
  kViewerPrevious,
  kViewerNext,
  kViewerZoomIn,
  kViewerZoomOut,
  kViewerFit,
  kViewerEveryPixel,
  kViewerFullScreen,
  kViewerLine,
  kViewerClose,

  // Savegame properties
  kCounterOutOfRange,     // no values
  kNoteCharacters,        // ~1 characters
  kNoPicture,             // ~1 file; question
  kChangesNotWritten,     // followed by failure lines
  kNoteStillShown,        // no values
  kUnseenNoteKept,        // ~1 kept copy
  kRestOfNoteKept,        // ~1 file
  kNoteChangedMeanwhile,  // followed by the note

  // Folder chooser
  kFolderNotOpened,           // ~1 folder, ~2 reason
  kFolderIsOwn,               // ~1 folder
  kFolderNotMade,             // ~1 folder, ~2 reason
  kFolderNameNotExpressible,  // no values
  kFolderRefusedCharacters,   // no values
  kFolderRefusedName,         // no values
  kFolderRefusedTwice,        // no values
  kFolderRefusedLength,       // no values

  // Reorder and export
  kReorderNumberTooLarge,  // no values
  kReorderSlotNegative,    // no values
  kReorderNameBlanks,      // no values
  kReorderSlotName,        // no values
  kReorderInBackup,        // ~1 folder
  kReorderInOldArchive,    // ~1 folder, ~2 old sub-folder
  kReorderStopped,         // ~1 folder, ~2 reason, ~3 line break
  kReorderLeft,            // followed by folders
  kReorderNamesTaken,      // followed by folders
  kReorderNoRoom,          // ~1 and ~2 megabytes, ~3 line break; question
  kReorderUseAllTheSame,   // ~1 line break; question
  kReorderNotCopied,       // followed by failure lines
  kReorderNotFlushed,      // ~1 reason
  kReorderNotWhole,        // no values
  kReorderOldKept,         // ~1 old main folder
  kReorderFoldersKept,     // followed by failure lines
  kReorderSetAside,        // ~1 folder
  kReorderNotListed,       // followed by failure lines
  kExportNotCopied,        // followed by failure lines
  kOldFolderNeeded,        // reason
  kOldHoldsUnusable,       // reason
  kOldNotInNew,            // reason
  kOldIsFolder,            // reason
  kOldIsNoFile,            // reason
  kOldNotMoved,            // reason, ~1 reason
  kOldNotDeleted,          // reason, ~1 reason

  // Copy, move and delete
  kNotAllCopied,      // ~1 folder; followed by failure lines
  kNotAllMoved,       // the same
  kMovedNotDeleted,   // followed by failure lines
  kTargetSetAside,    // ~1 folder, ~2 new folder
  kTargetNotDeleted,  // followed by failure lines
  kNotAllRemoved,     // followed by failure lines

  // Everywhere
  kNothingOpens,     // ~1 file
  kFailureLine,      // ~1 reason, ~2 path
  kFailureAtTarget,  // ~1 file
  kMoreFailures,     // ~1 number

  // About the program
  kAboutCommand,
  kAbout,            // ~1 version, ~2 line break
  kTerminalVersion,  // ~1 version; for a terminal
  kTerminalHelp,     // for a terminal

  // The dialog of what was set aside
  kRescuedCommand,
  kRescuedTitle,
  kRescuedHead,
  kNothingRescued,
  kRescuedToArchive,
  kRescuedToGame,
  kRescuedShowFolder,
  kRescuedDelete,
  kRescuedClose,
  kRescuedSavegame,  // column
  kRescuedNote,      // column
  kRescuedOrigin,    // column
  kRescuedWhy,       // column
  kRescuedNotRead,   // followed by failure lines

  // Names of the controls that have no caption, for assistive technology and as tool tips
  kNameList,
  kNamePictures,
  kNameNote,
  kNamePicture,
  kNamePosition,
  kNamePrevious,
  kNameNext,
  kNameDrives,
  kNameFolders,
  kNameFolderPath,
  kNameNewFolder,
  kNameProgress,

  // Reasons, each a part of a sentence
  kReasonNotWhole,
  kReasonNotAnArchive,
  kReasonNotPreferences,
  kReasonNotFound,
  kReasonAlreadyExists,
  kReasonAccessDenied,
  kReasonDiskFull,
  kReasonNotReady,
  kReasonBadName,
  kReasonAmbiguous,
  kReasonNotEmpty,
  kReasonNotAFolder,
  kReasonInUse,
  kReasonInputOutput,
  kReasonFolder,
  kReasonStopped,
  kReasonTooShort,
  kReasonCompanionLeft,
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_OWN_MESSAGES_H_
