#include "platform/common/code_page_tables.h"

#include <algorithm>
#include <array>

namespace vellumark {
namespace {

struct CodePageTable {
  int code_page;
  std::u16string_view upper_half;
};

// Rows of sixteen bytes. Invisible, combining and right-to-left characters are escaped, so that a
// row reads in byte order. A byte without a character is the control character of its number; from
// 0xA0 on, where there are no control characters, it has one of the private use area, the same as
// on Windows.
constexpr auto kTables = std::to_array<CodePageTable>({
    {874,
     u"€\u0081\u0082\u0083\u0084…\u0086\u0087"
     u"\u0088\u0089\u008A\u008B\u008C\u008D\u008E\u008F"
     u"\u0090‘’“”•–—\u0098\u0099\u009A\u009B\u009C\u009D\u009E\u009F"
     u"\u00A0กขฃคฅฆงจฉชซฌญฎฏ"
     u"ฐฑฒณดตถทธนบปผฝพฟ"
     u"ภมยรฤลฦวศษสหฬอฮฯ"
     u"ะ\u0E31าำ\u0E34\u0E35\u0E36\u0E37\u0E38\u0E39\u0E3A\uF8C1\uF8C2\uF8C3\uF8C4฿"
     u"เแโใไๅๆ\u0E47\u0E48\u0E49\u0E4A\u0E4B\u0E4C\u0E4D\u0E4E๏"
     u"๐๑๒๓๔๕๖๗๘๙๚๛\uF8C5\uF8C6\uF8C7\uF8C8"},
    {1250,
     u"€\u0081‚\u0083„…†‡\u0088‰Š‹ŚŤŽŹ"
     u"\u0090‘’“”•–—\u0098™š›śťžź"
     u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż"
     u"°±˛ł´µ¶·¸ąş»Ľ˝ľż"
     u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎ"
     u"ĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
     u"ŕáâăäĺćçčéęëěíîď"
     u"đńňóôőö÷řůúűüýţ˙"},
    {1251,
     u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏ"
     u"ђ‘’“”•–—\u0098™љ›њќћџ"
     u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї"
     u"°±Ііґµ¶·ё№є»јЅѕї"
     u"АБВГДЕЖЗИЙКЛМНОП"
     u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
     u"абвгдежзийклмноп"
     u"рстуфхцчшщъыьэюя"},
    {1252,
     u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
     u"\u0090‘’“”•–—˜™š›œ\u009DžŸ"
     u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
     u"°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
     u"ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
     u"àáâãäåæçèéêëìíîï"
     u"ðñòóôõö÷øùúûüýþÿ"},
    {1253,
     u"€\u0081‚ƒ„…†‡\u0088‰\u008A‹\u008C\u008D\u008E\u008F"
     u"\u0090‘’“”•–—\u0098™\u009A›\u009C\u009D\u009E\u009F"
     u"\u00A0΅Ά£¤¥¦§¨©\uF8F9«¬\u00AD®―"
     u"°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
     u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟ"
     u"ΠΡ\uF8FAΣΤΥΦΧΨΩΪΫάέήί"
     u"ΰαβγδεζηθικλμνξο"
     u"πρςστυφχψωϊϋόύώ\uF8FB"},
    {1254,
     u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008D\u008E\u008F"
     u"\u0090‘’“”•–—˜™š›œ\u009D\u009EŸ"
     u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
     u"°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
     u"ĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
     u"àáâãäåæçèéêëìíîï"
     u"ğñòóôõö÷øùúûüışÿ"},
    {1255,
     u"€\u0081‚ƒ„…†‡ˆ‰\u008A‹\u008C\u008D\u008E\u008F"
     u"\u0090‘’“”•–—˜™\u009A›\u009C\u009D\u009E\u009F"
     u"\u00A0¡¢£₪¥¦§¨©×«¬\u00AD®¯"
     u"°±²³´µ¶·¸¹÷»¼½¾¿"
     u"\u05B0\u05B1\u05B2\u05B3\u05B4\u05B5\u05B6\u05B7"
     u"\u05B8\u05B9\u05BA\u05BB\u05BC\u05BD\u05BE\u05BF"
     u"\u05C0\u05C1\u05C2\u05C3\u05F0\u05F1\u05F2\u05F3"
     u"\u05F4\uF88D\uF88E\uF88F\uF890\uF891\uF892\uF893"
     u"\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7"
     u"\u05D8\u05D9\u05DA\u05DB\u05DC\u05DD\u05DE\u05DF"
     u"\u05E0\u05E1\u05E2\u05E3\u05E4\u05E5\u05E6\u05E7"
     u"\u05E8\u05E9\u05EA\uF894\uF895\u200E\u200F\uF896"},
    {1256,
     u"€\u067E‚ƒ„…†‡ˆ‰\u0679‹Œ\u0686\u0698\u0688"
     u"\u06AF‘’“”•–—\u06A9™\u0691›œ\u200C\u200D\u06BA"
     u"\u00A0،¢£¤¥¦§¨©\u06BE«¬\u00AD®¯"
     u"°±²³´µ¶·¸¹\u061B»¼½¾\u061F"
     u"\u06C1\u0621\u0622\u0623\u0624\u0625\u0626\u0627"
     u"\u0628\u0629\u062A\u062B\u062C\u062D\u062E\u062F"
     u"\u0630\u0631\u0632\u0633\u0634\u0635\u0636×"
     u"\u0637\u0638\u0639\u063A\u0640\u0641\u0642\u0643"
     u"à\u0644â\u0645\u0646\u0647\u0648çèéêë\u0649\u064Aîï"
     u"\u064B\u064C\u064D\u064Eô\u064F\u0650÷\u0651ù\u0652ûü\u200E\u200F\u06D2"},
    {1257,
     u"€\u0081‚\u0083„…†‡\u0088‰\u008A‹\u008C¨ˇ¸"
     u"\u0090‘’“”•–—\u0098™\u009A›\u009C¯˛\u009F"
     u"\u00A0\uF8FC¢£¤\uF8FD¦§Ø©Ŗ«¬\u00AD®Æ"
     u"°±²³´µ¶·ø¹ŗ»¼½¾æ"
     u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻ"
     u"ŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
     u"ąįāćäåęēčéźėģķīļ"
     u"šńņóōõö÷ųłśūüżž˙"},
    {1258,
     u"€\u0081‚ƒ„…†‡ˆ‰\u008A‹Œ\u008D\u008E\u008F"
     u"\u0090‘’“”•–—˜™\u009A›œ\u009D\u009EŸ"
     u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
     u"°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂĂÄÅÆÇÈÉÊË\u0300ÍÎÏ"
     u"ĐÑ\u0309ÓÔƠÖ×ØÙÚÛÜƯ\u0303ß"
     u"àáâăäåæçèéêë\u0301íîï"
     u"đñ\u0323óôơö÷øùúûüư₫ÿ"},
});

static_assert(std::all_of(kTables.begin(), kTables.end(), [](const CodePageTable& table) {
  return table.upper_half.size() == 128;
}));

// Every `step`th character from first to last is an upper case letter, `distance` before its lower
// case.
struct UpperCaseRange {
  char16_t first;
  char16_t last;
  int step;
  int distance;
};

constexpr auto kUpperCase = std::to_array<UpperCaseRange>({
    {u'A', u'Z', 1, 32},
    {u'À', u'Ö', 1, 32},
    {u'Ø', u'Þ', 1, 32},
    {u'Ā', u'Į', 2, 1},
    {u'Ĳ', u'Ķ', 2, 1},
    {u'Ĺ', u'Ň', 2, 1},
    {u'Ŋ', u'Ŷ', 2, 1},
    {u'Ÿ', u'Ÿ', 1, -121},
    {u'Ź', u'Ž', 2, 1},
    {u'Ơ', u'Ơ', 1, 1},
    {u'Ư', u'Ư', 1, 1},
    {u'\u0386', u'\u0386', 1, 38},
    {u'\u0388', u'\u038A', 1, 37},
    {u'\u038C', u'\u038C', 1, 64},
    {u'\u038E', u'\u038F', 1, 63},
    {u'\u0391', u'\u03A1', 1, 32},
    {u'\u03A3', u'\u03AB', 1, 32},
    {u'\u0400', u'\u040F', 1, 80},
    {u'\u0410', u'\u042F', 1, 32},
    {u'\u0490', u'\u0490', 1, 1},
});

}  // namespace

std::u16string_view UpperHalf(int code_page) {
  const auto* const table =
      std::find_if(kTables.begin(), kTables.end(),
                   [=](const CodePageTable& each) { return each.code_page == code_page; });
  return table == kTables.end() ? std::u16string_view() : table->upper_half;
}

char16_t LowerOfPair(char16_t upper) {
  for (const UpperCaseRange& range : kUpperCase) {
    if (upper >= range.first && upper <= range.last && (upper - range.first) % range.step == 0) {
      return static_cast<char16_t>(upper + range.distance);
    }
  }
  return 0;
}

}  // namespace vellumark
