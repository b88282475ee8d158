// The dialog for the archive's properties, as the core sees it.
#ifndef VELLUMARK_ARCHIVE_ARCHIVE_PROPERTIES_DIALOG_H_
#define VELLUMARK_ARCHIVE_ARCHIVE_PROPERTIES_DIALOG_H_

namespace vellumark {

class ArchivePropertiesDialog {
 public:
  virtual ~ArchivePropertiesDialog() = default;

  // Fills the dialog from the archive settings and LastArchive; ArchivePropertiesOk becomes false.
  virtual void ImpostaValori() = 0;

  // Shows it and returns when it is closed. ArchivePropertiesOk is true after an accepted OK,
  // which has changed the archive settings.
  virtual void ShowModal() = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_ARCHIVE_PROPERTIES_DIALOG_H_
