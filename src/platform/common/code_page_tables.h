// What the bytes of the 8-bit code pages stand for, and which of their letters are pairs of an
// upper and a lower case.
#ifndef VELLUMARK_PLATFORM_COMMON_CODE_PAGE_TABLES_H_
#define VELLUMARK_PLATFORM_COMMON_CODE_PAGE_TABLES_H_

#include <string_view>

namespace vellumark {

// The 128 characters of the bytes 0x80..0xFF, all different; below 0x80 every code page is ASCII.
// Empty for a code page that has no table here.
std::u16string_view UpperHalf(int code_page);

// The lower case letter that pairs with an upper case one, both ways; zero for any other character.
// The Turkish İ and ı belong to no pair: which letters they pair with depends on the language.
char16_t LowerOfPair(char16_t upper);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_CODE_PAGE_TABLES_H_
