#include "platform/common/code_page_text.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace vellumark {
namespace {

constexpr std::array<int, 10> kCodePages = {874,  1250, 1251, 1252, 1253,
                                            1254, 1255, 1256, 1257, 1258};

CodePageText MakeText(int code_page, std::string_view language = "") {
  return {code_page, language, false};
}

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

// What a case change makes of a text in UTF-8 that the code page has whole.
using CaseChange = std::string (Text::*)(std::string_view) const;

std::string Changed(const Text& text, CaseChange change, std::string_view utf8) {
  const EncodedText encoded = text.FromUtf8(utf8);
  EXPECT_EQ(encoded.missing, std::vector<std::string>()) << utf8;
  return text.ToUtf8((text.*change)(encoded.bytes));
}

bool SameButForCase(const Text& text, std::string_view a, std::string_view b) {
  const std::string left = text.FromUtf8(a).bytes;
  const std::string right = text.FromUtf8(b).bytes;
  const bool same = text.EqualNoCase(left, right);
  EXPECT_EQ(text.Fold(left) == text.Fold(right), same) << a << " and " << b;
  return same;
}

TEST(CodePageText, EveryByteOfEveryCodePageComesBackFromUtf8) {
  const std::string bytes = AllBytes();
  for (const int code_page : kCodePages) {
    SCOPED_TRACE(code_page);
    const CodePageText text = MakeText(code_page);
    EXPECT_EQ(text.CodePage(), code_page);

    const EncodedText back = text.FromUtf8(text.ToUtf8(bytes));
    EXPECT_EQ(back.bytes, bytes);
    EXPECT_TRUE(back.missing.empty());
  }
}

TEST(CodePageText, CharactersHaveTheirBytesInEachCodePage) {
  const std::tuple<int, std::string_view, std::string_view> cases[] = {
      {874, "\x80\xA1\xE0\xFB", "€กเ๛"},
      {1250, "\x8E\xE9\xB3\xF8", "Žéłř"},
      {1251, "\xC7\xC0\xCC\xCE\xCA\xB4", "ЗАМОКґ"},
      {1252, "\x80\x8E\x9F\xE9", "€ŽŸé"},
      {1253, "\xD3\xDF\xF2\xA2", "ΣίςΆ"},
      {1254, "\xF0\xDD\xFD\xDE", "ğİıŞ"},
      {1255, "\xE0\xFA\xA4", "את₪"},
      {1256, "\xC7\x81\xED", "اپي"},
      {1257, "\xED\xDE\xFE", "ķŽž"},
      {1258, "\xF5\xFD\xFE", "ơư₫"},
  };
  for (const auto& [code_page, bytes, utf8] : cases) {
    const CodePageText text = MakeText(code_page);
    EXPECT_EQ(text.ToUtf8(bytes), utf8);
    EXPECT_EQ(text.FromUtf8(utf8).bytes, bytes) << utf8;
  }
}

TEST(CodePageText, AnUnknownCodePageGivesWayTo1252) {
  const CodePageText text(932, "ja", true);
  EXPECT_EQ(text.CodePage(), 1252);
  EXPECT_TRUE(text.IsSubstitute());
  EXPECT_EQ(text.ToUtf8("\xE9"), "é");
}

TEST(CodePageText, AControlCharacterIsAByteOnlyWhereTheCodePageLeavesThatByteUndefined) {
  EXPECT_EQ(MakeText(1252).ToUtf8("\x8D"), "\u008D");
  EXPECT_EQ(MakeText(1252).FromUtf8("\u008D").bytes, "\x8D");

  const EncodedText defined = MakeText(1250).FromUtf8("\u008D");
  EXPECT_EQ(defined.bytes, "?");
  EXPECT_EQ(defined.missing, std::vector<std::string>{"\u008D"});
}

TEST(CodePageText, AnUndefinedByteBeyondTheControlCharactersTakesNoOtherPagesLetter) {
  EXPECT_EQ(MakeText(1253).FromUtf8("Ò").missing, std::vector<std::string>{"Ò"});
  EXPECT_EQ(MakeText(1257).FromUtf8("¥").missing, std::vector<std::string>{"¥"});
}

TEST(CodePageText, MissingCharactersAreNamedOnceInOrder) {
  const EncodedText encoded =
      MakeText(1252).FromUtf8("Ключ é К 🗝л — long ASCII tail, К");
  EXPECT_EQ(encoded.bytes, "???? \xE9 ? ?? \x97 long ASCII tail, ?");
  EXPECT_EQ(encoded.missing, (std::vector<std::string>{"К", "л", "ю", "ч", "🗝"}));
}

TEST(CodePageText, EachByteOfInvalidUtf8IsAMissingCharacter) {
  const std::vector<std::string> replacement = {"\uFFFD"};
  const std::vector<std::pair<std::string_view, std::string_view>> cases = {
      {"a\x80z", "a?z"},             // no lead byte
      {"\xC3", "?"},                 // cut short
      {"\xE2\x82z", "??z"},          // cut short by a letter
      {"\xC1\x81", "??"},            // overlong
      {"\xED\xA0\x80", "???"},       // half a surrogate pair
      {"\xF4\x90\x80\x80", "????"},  // beyond Unicode
      {"\xFF", "?"},
      {"\xC3\xC3\xA9", "?\xE9"},
  };
  for (const auto& [utf8, bytes] : cases) {
    const EncodedText encoded = MakeText(1252).FromUtf8(utf8);
    EXPECT_EQ(encoded.bytes, bytes);
    EXPECT_EQ(encoded.missing, replacement);
  }
}

TEST(CodePageText, LettersChangeCaseWithinTheCodePage) {
  const std::tuple<int, std::string_view, std::string_view> cases[] = {
      {1250, "ŁÓDŹ ČŘŽ", "łódź čřž"}, {1251, "ЗАМОК ЁЂҐ", "замок ёђґ"}, {1252, "ÉŠŒŸÞ", "éšœÿþ"},
      {1253, "ΆΈΉΊΌΎΏΫ", "άέήίόύώϋ"}, {1254, "ĞŞÇ I", "ğşç i"},         {1257, "ĶĢŪØ", "ķģūø"},
      {1258, "ĐƠƯĂ", "đơưă"},
  };
  for (const auto& [code_page, upper, lower] : cases) {
    const CodePageText text = MakeText(code_page);
    EXPECT_EQ(Changed(text, &Text::Lower, upper), lower);
    EXPECT_EQ(Changed(text, &Text::Upper, lower), upper);
    EXPECT_EQ(Changed(text, &Text::LowerPath, upper), lower);
    EXPECT_TRUE(SameButForCase(text, upper, lower));
  }
}

TEST(CodePageText, ACharacterWithoutACounterpartInTheCodePageStays) {
  EXPECT_EQ(Changed(MakeText(1252), &Text::Upper, "ß×÷ƒµ"), "ß×÷ƒµ");
  EXPECT_EQ(Changed(MakeText(1252), &Text::Lower, "×÷€"), "×÷€");
  EXPECT_EQ(Changed(MakeText(1256), &Text::Upper, "éœ"), "éŒ");
  EXPECT_EQ(Changed(MakeText(1253), &Text::Upper, "ΐΰ"), "ΐΰ");
}

TEST(CodePageText, TheFinalSigmaIsASigmaInTextAndItsOwnLetterInPaths) {
  const CodePageText text = MakeText(1253, "el");
  EXPECT_EQ(Changed(text, &Text::Upper, "σίσυφος"), "ΣΊΣΥΦΟΣ");
  EXPECT_EQ(Changed(text, &Text::Lower, "ΣΊΣΥΦΟΣ"), "σίσυφοσ");
  EXPECT_TRUE(SameButForCase(text, "ΣΊΣΥΦΟΣ", "Σίσυφος"));
  EXPECT_TRUE(SameButForCase(text, "ς", "σ"));
  EXPECT_EQ(Changed(text, &Text::LowerPath, "Σς"), "σς");
}

TEST(CodePageText, TurkishRulesHoldForTextAndNeverForPaths) {
  for (const std::string_view language : {"tr", "az"}) {
    const CodePageText text = MakeText(1254, language);
    EXPECT_EQ(Changed(text, &Text::Upper, "iı"), "İI");
    EXPECT_EQ(Changed(text, &Text::Lower, "İI"), "iı");
    EXPECT_TRUE(SameButForCase(text, "DIŞ İZ", "dış iz"));
    EXPECT_TRUE(SameButForCase(text, "ISLANDS", "islands")) << "whatever the language";
    EXPECT_EQ(Changed(text, &Text::LowerPath, "IİıiŞ"), "iİıiş");
  }

  EXPECT_TRUE(SameButForCase(MakeText(1254, "de"), "I", "i"));
  EXPECT_TRUE(SameButForCase(MakeText(1252, "tr"), "I", "i"));
}

}  // namespace
}  // namespace vellumark
