// While an operation works, the timer does nothing and the pointer shows it. It stops where the
// session ends.
#ifndef VELLUMARK_FOUNDATION_WORK_SCOPE_H_
#define VELLUMARK_FOUNDATION_WORK_SCOPE_H_

namespace vellumark {

struct Program;

// Says whether an operation works from now on, which the pointer shows. Answers what held before.
bool SetWorking(Program& program, bool working);

// True once the system wants the program to end. An operation over many files asks this before each
// and stops there, as if the rest had failed (FileError::kStopped); Tell and the questions then
// show nothing and answer what changes least.
bool IsEnding(Program& program);

// Marks an operation that works without waiting for the user, for as long as it lives.
class WorkScope {
 public:
  explicit WorkScope(Program& program) : program_(program), was_(SetWorking(program, true)) {}
  ~WorkScope() { SetWorking(program_, was_); }
  WorkScope(const WorkScope&) = delete;
  WorkScope& operator=(const WorkScope&) = delete;

 private:
  Program& program_;
  bool was_;
};

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_WORK_SCOPE_H_
