// Reading JSON documents of other programs.
#ifndef VELLUMARK_PLATFORM_QT_JSON_TEXTS_H_
#define VELLUMARK_PLATFORM_QT_JSON_TEXTS_H_

#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

// All texts (UTF-8) with this name that stand anywhere in a document; none when it is damaged.
std::vector<std::string> JsonTexts(std::string_view json, std::string_view name);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_QT_JSON_TEXTS_H_
