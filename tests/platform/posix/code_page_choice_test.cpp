#include "platform/posix/code_page_choice.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "platform/system_services.h"

namespace vellumark {
namespace {

TEST(SystemText, TheSystemsTextFollowsTheEnvironment) {
  const char* const before = std::getenv("LC_ALL");
  // Empty is as good as missing.
  const std::string saved = before == nullptr ? "" : before;

  ASSERT_EQ(setenv("LC_ALL", "tr_TR.UTF-8", 1), 0);
  const auto turkish = MakeSystemText();
  ASSERT_EQ(setenv("LC_ALL", "ja_JP.UTF-8", 1), 0);
  const auto japanese = MakeSystemText();
  setenv("LC_ALL", saved.c_str(), 1);

  EXPECT_EQ(turkish->CodePage(), 1254);
  EXPECT_FALSE(turkish->IsSubstitute());
  EXPECT_EQ(turkish->Upper("i"), "\xDD");
  EXPECT_EQ(japanese->CodePage(), 1252);
  EXPECT_TRUE(japanese->IsSubstitute());
}

TEST(CodePageChoice, EachLanguageHasTheCodePageOfWindows) {
  const std::tuple<std::string_view, int, bool, std::string_view> cases[] = {
      {"", 1252, false, ""},
      {"C", 1252, false, ""},
      {"POSIX", 1252, false, ""},
      {"de_DE.UTF-8@euro", 1252, false, "de"},
      {"pl_PL.UTF-8", 1250, false, "pl"},
      {"hrx_BR", 1252, false, "hrx"},
      {"sr_RS", 1251, false, "sr"},
      {"sr_RS.UTF-8@latin", 1250, false, "sr"},
      {"uz_UZ.UTF-8", 1252, false, "uz"},
      {"uz_UZ.UTF-8@cyrillic", 1251, false, "uz"},
      {"RU_RU.KOI8-R", 1251, false, "ru"},
      {"el_GR", 1253, false, "el"},
      {"tr_TR.UTF-8", 1254, false, "tr"},
      {"he_IL", 1255, false, "he"},
      {"fa_IR", 1256, false, "fa"},
      {"lt_LT", 1257, false, "lt"},
      {"vi_VN", 1258, false, "vi"},
      {"th_TH", 874, false, "th"},
      {"ja_JP.UTF-8", 1252, true, "ja"},
  };
  for (const auto& [locale, code_page, substitute, language] : cases) {
    SCOPED_TRACE(locale);
    const CodePageChoice choice = ChooseCodePage(locale);
    EXPECT_EQ(choice.code_page, code_page);
    EXPECT_EQ(choice.substitute, substitute);
    EXPECT_EQ(choice.language, language);
  }
}

TEST(CodePageChoice, TheFirstVariableThatIsNotEmptyNamesTheLocale) {
  using Variables = std::map<std::string_view, const char*>;
  const auto locale_name = [](const Variables& variables) {
    return LocaleName([&](const char* name) {
      const auto found = variables.find(name);
      return found == variables.end() ? nullptr : found->second;
    });
  };
  EXPECT_EQ(locale_name({}), "");
  EXPECT_EQ(locale_name({{"LANG", "pl_PL"}, {"LC_ALL", ""}}), "pl_PL");
  EXPECT_EQ(locale_name({{"LANG", "pl_PL"}, {"LC_CTYPE", "el_GR"}}), "el_GR");
  EXPECT_EQ(locale_name({{"LC_CTYPE", "el_GR"}, {"LC_ALL", "C"}}), "C");
}

}  // namespace
}  // namespace vellumark
