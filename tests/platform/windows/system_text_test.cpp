// The code pages against those of the system.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/common/code_page_text.h"
#include "platform/system_services.h"
#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

TEST(SystemTextTest, EveryCodePageHasTheCharactersOfWindows) {
  for (const int code_page : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
    ASSERT_NE(IsValidCodePage(static_cast<UINT>(code_page)), 0) << code_page;
    const CodePageText text(code_page, "", false);
    for (int byte = 0; byte < 256; ++byte) {
      const std::string bytes(1, static_cast<char>(byte));
      wchar_t wide = 0;
      ASSERT_EQ(MultiByteToWideChar(static_cast<UINT>(code_page), 0, bytes.data(), 1, &wide, 1), 1);
      EXPECT_EQ(text.ToUtf8(bytes), FromWide({&wide, 1})) << code_page << ": " << byte;
    }
  }
}

TEST(SystemTextTest, IsTheSystemsOwnCodePageOrItsSubstitute) {
  const auto text = MakeSystemText();
  const int code_page = static_cast<int>(GetACP());
  CPINFO information = {};
  ASSERT_NE(GetCPInfo(GetACP(), &information), 0);
  EXPECT_EQ(text->IsSubstitute(), information.MaxCharSize > 1);
  EXPECT_EQ(text->CodePage(), information.MaxCharSize > 1 ? 1252 : code_page);
}

}  // namespace
}  // namespace vellumark
