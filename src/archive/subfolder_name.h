// Which names the sub-folders of an archive may have.
#ifndef VELLUMARK_ARCHIVE_SUBFOLDER_NAME_H_
#define VELLUMARK_ARCHIVE_SUBFOLDER_NAME_H_

#include <string>

namespace vellumark {

// Why the sub-folders of an archive in this main folder cannot be called so, as a message; empty
// when they can. A name leads nowhere else, and leaves room for its number and the longest file
// name in every path.
std::string SubfolderNameProblem(const std::string& main_folder, const std::string& base_name,
                                 int max_slot);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_SUBFOLDER_NAME_H_
