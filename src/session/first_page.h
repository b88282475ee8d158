// What the main window says while there is no list to show.
#ifndef VELLUMARK_SESSION_FIRST_PAGE_H_
#define VELLUMARK_SESSION_FIRST_PAGE_H_

#include <optional>
#include <string>

namespace vellumark {

struct Program;

struct FirstPage {
  std::string text{};         // plain, with line breaks
  std::string new_archive{};  // the caption of that button; empty: the page does not offer it
  bool offers_open = false;
  bool offers_look_again = false;

  bool operator==(const FirstPage&) const = default;
};

// Nothing as soon as the list has a line.
std::optional<FirstPage> DescribeFirstPage(const Program& program);

// Looks again for what was not there: opens the archive that was named, or reads the folders of
// the one in use.
void LookAgain(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SESSION_FIRST_PAGE_H_
