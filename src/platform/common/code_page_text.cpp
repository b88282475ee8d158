#include "platform/common/code_page_text.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <unordered_set>

#include "platform/common/code_page_tables.h"

namespace vellumark {
namespace {

constexpr int kWesternCodePage = 1252;
constexpr int kTurkishCodePage = 1254;
constexpr std::size_t kAsciiSize = 0x80;
constexpr std::size_t kUtf16Units = 0x10000;

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::string_view kReplacementUtf8 = "\xEF\xBF\xBD";

unsigned char Index(char byte) { return static_cast<unsigned char>(byte); }

// How many bytes from `start` on are ASCII, without a break.
std::size_t AsciiRun(std::string_view text, std::size_t start) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  std::size_t end = start;
  for (std::uint64_t word = 0; end + sizeof word <= text.size(); end += sizeof word) {
    std::memcpy(&word, text.data() + end, sizeof word);
    if ((word & kHighBits) != 0) break;
  }
  while (end < text.size() && Index(text[end]) < kAsciiSize) ++end;
  return end - start;
}

struct DecodedCharacter {
  char32_t value;
  std::size_t size;  // in bytes of UTF-8
};

// The character of several bytes at the start of `utf8`. Bytes that are none, an overlong form or
// half a surrogate pair yield the replacement character for the first byte alone.
DecodedCharacter DecodeFirst(std::string_view utf8) {
  struct Form {
    unsigned char lead_mask;
    unsigned char lead;
    char32_t lowest;
  };
  constexpr auto kForms =
      std::to_array<Form>({{0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}});
  constexpr DecodedCharacter kBad = {kReplacement, 1};

  std::size_t size = 1;
  for (const Form& form : kForms) {
    ++size;
    const unsigned char lead = Index(utf8[0]);
    if ((lead & form.lead_mask) != form.lead) continue;

    if (utf8.size() < size) return kBad;
    char32_t value = lead & static_cast<unsigned char>(~form.lead_mask);
    for (const char byte : utf8.substr(1, size - 1)) {
      if ((Index(byte) & 0xC0U) != 0x80U) return kBad;
      value = (value << 6U) | (Index(byte) & 0x3FU);
    }

    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < form.lowest || value > 0x10FFFF || surrogate) return kBad;
    return {value, size};
  }
  return kBad;
}

}  // namespace

CodePageText::CodePageText(int code_page, std::string_view language, bool substitute)
    : code_page_(UpperHalf(code_page).empty() ? kWesternCodePage : code_page),
      substitute_(substitute),
      byte_of_(kUtf16Units) {
  FillConversions();

  PairCases();
  path_ = lower_;

  AddOneWayUppers();
  for (std::size_t byte = 0; byte < fold_.size(); ++byte) {
    fold_[byte] = lower_[Index(upper_[byte])];
  }
  // In these languages the dotted and the dotless i are two letters. Comparing counts all four of
  // them as one, as the names of levels are English.
  const bool turkish = language == "tr" || language == "az";
  if (turkish && code_page_ == kTurkishCodePage) {
    UseTurkishCases();
    fold_[ByteOf(u'\u0130')] = 'i';
  }
}

CodePageText::Utf8Character CodePageText::Encode(char16_t character) {
  const auto low = static_cast<char>(0x80 | (character & 0x3F));
  if (character < 0x80) return {{static_cast<char>(character)}, 1};
  if (character < 0x800) return {{static_cast<char>(0xC0 | (character >> 6)), low}, 2};

  const auto middle = static_cast<char>(0x80 | ((character >> 6) & 0x3F));
  return {{static_cast<char>(0xE0 | (character >> 12)), middle, low}, 3};
}

void CodePageText::FillConversions() {
  const std::u16string_view upper_half = UpperHalf(code_page_);
  for (std::size_t byte = 0; byte < utf8_.size(); ++byte) {
    const char16_t character =
        byte < kAsciiSize ? static_cast<char16_t>(byte) : upper_half[byte - kAsciiSize];
    byte_of_[character] = static_cast<unsigned char>(byte);
    utf8_[byte] = Encode(character);
  }
}

void CodePageText::PairCases() {
  for (std::size_t byte = 0; byte < lower_.size(); ++byte) {
    upper_[byte] = lower_[byte] = static_cast<char>(byte);
  }

  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) SetPair(letter, LowerOfPair(letter));
  for (const char16_t letter : UpperHalf(code_page_)) SetPair(letter, LowerOfPair(letter));
}

// Lower case letters that share their upper case with another one.
void CodePageText::AddOneWayUppers() {
  SetUpper(u'\u03C2', u'\u03A3');  // the final sigma
  SetUpper(u'\u00B5', u'\u039C');  // the micro sign, a Greek mu
  SetUpper(u'\u0131', u'I');
}

void CodePageText::UseTurkishCases() {
  SetPair(u'\u0130', u'i');
  SetPair(u'I', u'\u0131');
}

void CodePageText::SetPair(char16_t upper, char16_t lower) {
  if (ByteOf(upper) == 0 || ByteOf(lower) == 0) return;

  lower_[ByteOf(upper)] = static_cast<char>(ByteOf(lower));
  SetUpper(lower, upper);
}

void CodePageText::SetUpper(char16_t lower, char16_t upper) {
  if (ByteOf(upper) == 0 || ByteOf(lower) == 0) return;

  upper_[ByteOf(lower)] = static_cast<char>(ByteOf(upper));
}

std::string CodePageText::ToUtf8(std::string_view bytes) const {
  std::string utf8;
  utf8.reserve(bytes.size());
  std::size_t position = 0;
  while (position < bytes.size()) {
    const std::size_t run = AsciiRun(bytes, position);
    utf8.append(bytes, position, run);
    position += run;
    if (position == bytes.size()) break;

    const Utf8Character& character = utf8_[Index(bytes[position])];
    utf8.append(character.bytes.data(), character.size);
    ++position;
  }
  return utf8;
}

EncodedText CodePageText::FromUtf8(std::string_view utf8) const {
  EncodedText encoded;
  encoded.bytes.reserve(utf8.size());
  std::unordered_set<char32_t> seen_missing;
  std::size_t position = 0;
  while (position < utf8.size()) {
    const std::size_t run = AsciiRun(utf8, position);
    encoded.bytes.append(utf8, position, run);
    position += run;
    if (position == utf8.size()) break;

    const DecodedCharacter character = DecodeFirst(utf8.substr(position));
    const unsigned char byte =
        character.value < kUtf16Units ? ByteOf(static_cast<char16_t>(character.value)) : 0;
    encoded.bytes += byte == 0 ? '?' : static_cast<char>(byte);
    if (byte == 0 && seen_missing.insert(character.value).second) {
      encoded.missing.emplace_back(character.value == kReplacement
                                       ? kReplacementUtf8
                                       : utf8.substr(position, character.size));
    }
    position += character.size;
  }
  return encoded;
}

std::string CodePageText::Upper(std::string_view bytes) const { return Map(upper_, bytes); }

std::string CodePageText::Lower(std::string_view bytes) const { return Map(lower_, bytes); }

bool CodePageText::EqualNoCase(std::string_view a, std::string_view b) const {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [this](char left, char right) {
    return fold_[Index(left)] == fold_[Index(right)];
  });
}

std::string CodePageText::Fold(std::string_view bytes) const { return Map(fold_, bytes); }

std::string CodePageText::LowerPath(std::string_view path) const { return Map(path_, path); }

std::string CodePageText::Map(const ByteMap& map, std::string_view bytes) {
  std::string mapped(bytes);
  for (char& byte : mapped) byte = map[Index(byte)];
  return mapped;
}

}  // namespace vellumark
