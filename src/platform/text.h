// The system's 8-bit code page. Inside the core every text is bytes of it, one byte a character;
// this is where they become Unicode and where letters have an upper and a lower case.
#ifndef VELLUMARK_PLATFORM_TEXT_H_
#define VELLUMARK_PLATFORM_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

struct EncodedText {
  std::string bytes;                 // one byte a character; '?' where the code page has none
  std::vector<std::string> missing;  // the characters that it lacks, UTF-8, each once, in order
};

class Text {
 public:
  virtual ~Text() = default;

  // The number of the code page in use, for example 1252.
  virtual int CodePage() const = 0;

  // True when the system's own code page takes several bytes a character, so that 1252 stands in
  // for it and characters beyond 1252 cannot be kept.
  virtual bool IsSubstitute() const = 0;

  // Never fails: bytes that the code page leaves undefined become the control character of the
  // same number, and come back from it.
  virtual std::string ToUtf8(std::string_view bytes) const = 0;
  virtual EncodedText FromUtf8(std::string_view utf8) const = 0;

  // Letter case by the rules of the user's language; the length never changes.
  virtual std::string Upper(std::string_view bytes) const = 0;
  virtual std::string Lower(std::string_view bytes) const = 0;

  // Equal without regard to case, by the code page's rules: the letters A to Z are a to z in every
  // language.
  virtual bool EqualNoCase(std::string_view a, std::string_view b) const = 0;

  // Every byte by itself as one and the same for all its cases: two texts are EqualNoCase exactly
  // when their folds are equal.
  virtual std::string Fold(std::string_view bytes) const = 0;

  // Lower case for paths: one fixed rule for the code page, whatever the user's language. Two
  // names are the same name exactly when this makes them equal.
  virtual std::string LowerPath(std::string_view path) const = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_TEXT_H_
