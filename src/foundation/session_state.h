// Where a run stands between its start and its end.
#ifndef VELLUMARK_FOUNDATION_SESSION_STATE_H_
#define VELLUMARK_FOUNDATION_SESSION_STATE_H_

#include <string>

namespace vellumark {

struct SessionState {
  bool settings_read = false;   // from here on the settings may be written
  bool ending = false;          // nobody is there to answer any more; ask IsEnding
  bool ended = false;           // all that an end of the run saves is saved
  std::string missing_archive;  // the archive that was to be opened and is not there
  bool looked_again = false;    // and it was still not there
  std::string untold;           // the messages that nobody was there to read
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_SESSION_STATE_H_
