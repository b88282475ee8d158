#include "archive/steam_libraries.h"

#include <algorithm>
#include <cstddef>

#include "foundation/strings.h"

namespace vellumark {
namespace {

constexpr std::size_t kMostLibraries = 64;
constexpr std::size_t kLongestText = 1024;
constexpr int kDeepest = 16;

struct Token {
  enum class Kind { kText, kOpen, kClose, kEnd, kDamaged };
  Kind kind = Kind::kEnd;
  std::string text{};
};

class Tokens {
 public:
  explicit Tokens(std::string_view vdf) : rest_(vdf) {}

  Token Next() {
    SkipBlanks();
    if (rest_.empty()) return {Token::Kind::kEnd};
    const char first = rest_.front();
    rest_.remove_prefix(1);
    if (first == '{') return {Token::Kind::kOpen};
    if (first == '}') return {Token::Kind::kClose};
    return first == '"' ? QuotedText() : Token{Token::Kind::kDamaged};
  }

 private:
  // Comments count as blanks.
  void SkipBlanks() {
    for (;;) {
      const std::size_t at = std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size());
      rest_.remove_prefix(at);
      if (!rest_.starts_with("//")) return;
      rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
    }
  }

  Token QuotedText() {
    Token token{Token::Kind::kText};
    while (!rest_.empty() && token.text.size() <= kLongestText) {
      char letter = rest_.front();
      rest_.remove_prefix(1);
      if (letter == '"') return token;
      if (letter == '\n' || letter == '\0') break;
      if (letter == '\\') {
        if (rest_.empty() || (rest_.front() != '\\' && rest_.front() != '"')) break;
        letter = rest_.front();
        rest_.remove_prefix(1);
      }
      token.text += letter;
    }
    return {Token::Kind::kDamaged};
  }

  std::string_view rest_;
};

bool IsNumber(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// "path" in a library's own block; in the older form a number in the list names the folder itself.
bool NamesLibrary(int depth, const std::string& name) {
  return depth == 2 ? EqualsIgnoringAsciiCase(name, "path") : depth == 1 && IsNumber(name);
}

}  // namespace

std::optional<std::vector<std::string>> ReadSteamLibraries(std::string_view vdf) {
  Tokens tokens(vdf);
  std::vector<std::string> libraries;
  int depth = 0;
  for (;;) {
    const Token name = tokens.Next();
    if (name.kind == Token::Kind::kEnd && depth == 0) return libraries;
    if (name.kind == Token::Kind::kClose && depth > 0) {
      --depth;
      continue;
    }
    if (name.kind != Token::Kind::kText) return std::nullopt;

    const Token value = tokens.Next();
    if (value.kind == Token::Kind::kOpen && depth < kDeepest) {
      ++depth;
    } else if (value.kind != Token::Kind::kText) {
      return std::nullopt;
    } else if (NamesLibrary(depth, name.text) && libraries.size() < kMostLibraries) {
      libraries.push_back(value.text);
    }
  }
}

}  // namespace vellumark
