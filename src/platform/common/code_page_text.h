// Text in one of the 8-bit Windows code pages, from tables of its own: the C library's locales
// need not be installed.
#ifndef VELLUMARK_PLATFORM_COMMON_CODE_PAGE_TEXT_H_
#define VELLUMARK_PLATFORM_COMMON_CODE_PAGE_TEXT_H_

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text.h"

namespace vellumark {

class CodePageText : public Text {
 public:
  // 874 or 1250..1258; 1252 takes the place of any other. `language` as in "tr": the Turkish
  // letters i follow their own rules in Turkish and Azerbaijani.
  CodePageText(int code_page, std::string_view language, bool substitute);

  int CodePage() const override { return code_page_; }
  bool IsSubstitute() const override { return substitute_; }

  std::string ToUtf8(std::string_view bytes) const override;

  // A byte that is no part of valid UTF-8 counts as a missing U+FFFD.
  EncodedText FromUtf8(std::string_view utf8) const override;

  std::string Upper(std::string_view bytes) const override;
  std::string Lower(std::string_view bytes) const override;
  bool EqualNoCase(std::string_view a, std::string_view b) const override;
  std::string Fold(std::string_view bytes) const override;
  std::string LowerPath(std::string_view path) const override;

 private:
  using ByteMap = std::array<char, 256>;

  struct Utf8Character {
    std::array<char, 3> bytes;
    std::uint8_t size;
  };

  static Utf8Character Encode(char16_t character);
  static std::string Map(const ByteMap& map, std::string_view bytes);

  void FillConversions();
  void PairCases();
  void AddOneWayUppers();
  void UseTurkishCases();

  // Nothing changes unless the code page has both letters.
  void SetPair(char16_t upper, char16_t lower);
  void SetUpper(char16_t lower, char16_t upper);

  // Zero where the code page lacks the character.
  unsigned char ByteOf(char16_t character) const { return byte_of_[character]; }

  int code_page_;
  bool substitute_;
  std::array<Utf8Character, 256> utf8_{};
  std::vector<unsigned char> byte_of_;  // by UTF-16 code unit
  ByteMap upper_{};
  ByteMap lower_{};
  ByteMap fold_{};
  ByteMap path_{};
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_CODE_PAGE_TEXT_H_
