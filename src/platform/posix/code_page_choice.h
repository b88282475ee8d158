// Which code page a user's language takes, judged by the name of the locale.
#ifndef VELLUMARK_PLATFORM_POSIX_CODE_PAGE_CHOICE_H_
#define VELLUMARK_PLATFORM_POSIX_CODE_PAGE_CHOICE_H_

#include <functional>
#include <string>
#include <string_view>

namespace vellumark {

struct CodePageChoice {
  int code_page;         // the one that Windows uses for the language
  bool substitute;       // 1252 stands in for a code page of several bytes a character
  std::string language;  // lower case, for example "pl"; empty where the locale names none
};

// `locale_name` is language[_territory][.codeset][@modifier], "C", "POSIX" or empty. A language
// that is not known takes 1252.
CodePageChoice ChooseCodePage(std::string_view locale_name);

// The value of an environment variable, or null where it is not set.
using EnvironmentReader = std::function<const char*(const char* name)>;

// The locale that rules over characters: the first of LC_ALL, LC_CTYPE and LANG that is not empty.
// Empty where none is.
std::string LocaleName(const EnvironmentReader& environment);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_CODE_PAGE_CHOICE_H_
