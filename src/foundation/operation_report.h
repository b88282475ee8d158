// What an operation has to tell, gathered for one message at its end.
#ifndef VELLUMARK_FOUNDATION_OPERATION_REPORT_H_
#define VELLUMARK_FOUNDATION_OPERATION_REPORT_H_

#include <string>

namespace vellumark {

struct Program;

class Report {
 public:
  // An empty paragraph is none.
  void Add(const std::string& paragraph);

  // With a blank line between the paragraphs.
  const std::string& text() const { return text_; }

  // Shows the paragraphs with the exclamation icon; nothing when there are none.
  void Show(Program& program) const;

 private:
  std::string text_;
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_OPERATION_REPORT_H_
