#include "platform/posix/code_page_choice.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vellumark {
namespace {

struct LanguageRule {
  std::string_view language;
  std::string_view script;  // the locale's modifier; empty for any
  int code_page;
};

// The first rule that fits holds, so a rule with a script comes before the one without.
constexpr auto kRules = std::to_array<LanguageRule>({
    {"sr", "latin", 1250}, {"bs", "cyrillic", 1251}, {"uz", "cyrillic", 1251},

    {"cs", "", 1250},      {"sk", "", 1250},         {"pl", "", 1250},         {"hu", "", 1250},
    {"sl", "", 1250},      {"hr", "", 1250},         {"ro", "", 1250},         {"sq", "", 1250},
    {"bs", "", 1250},

    {"ru", "", 1251},      {"uk", "", 1251},         {"be", "", 1251},         {"bg", "", 1251},
    {"mk", "", 1251},      {"sr", "", 1251},         {"kk", "", 1251},         {"ky", "", 1251},
    {"mn", "", 1251},      {"tg", "", 1251},         {"tt", "", 1251},

    {"el", "", 1253},      {"tr", "", 1254},         {"az", "", 1254},         {"he", "", 1255},
    {"yi", "", 1255},      {"ar", "", 1256},         {"fa", "", 1256},         {"ur", "", 1256},
    {"ps", "", 1256},      {"et", "", 1257},         {"lv", "", 1257},         {"lt", "", 1257},
    {"vi", "", 1258},      {"th", "", 874},
});

constexpr std::array<std::string_view, 3> kSeveralBytes = {"ja", "zh", "ko"};

constexpr int kWesternCodePage = 1252;

std::string AsciiLower(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
  }
  return lower;
}

}  // namespace

CodePageChoice ChooseCodePage(std::string_view locale_name) {
  const std::string name = AsciiLower(locale_name);
  const std::string language = name.substr(0, name.find_first_of("_.@"));
  if (language == "c" || language == "posix") return {kWesternCodePage, false, ""};

  if (std::count(kSeveralBytes.begin(), kSeveralBytes.end(), language) != 0) {
    return {kWesternCodePage, true, language};
  }

  const std::size_t at = name.find('@');
  const std::string modifier = at == std::string::npos ? "" : name.substr(at + 1);
  for (const LanguageRule& rule : kRules) {
    if (rule.language == language && (rule.script.empty() || rule.script == modifier)) {
      return {rule.code_page, false, language};
    }
  }
  return {kWesternCodePage, false, language};
}

std::string LocaleName(const EnvironmentReader& environment) {
  for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* const value = environment(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return "";
}

}  // namespace vellumark
