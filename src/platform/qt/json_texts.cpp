#include "platform/qt/json_texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vellumark {
namespace {

constexpr int kDeepest = 16;

void Collect(const QJsonValue& value, const QString& name, int depth,
             std::vector<std::string>* texts) {
  if (depth > kDeepest) return;
  if (value.isArray()) {
    for (const auto& element : value.toArray()) Collect(element, name, depth + 1, texts);
  }
  if (!value.isObject()) return;
  const QJsonObject object = value.toObject();
  for (auto at = object.begin(); at != object.end(); ++at) {
    if (at.key() == name && at.value().isString()) {
      texts->push_back(at.value().toString().toStdString());
    } else {
      Collect(at.value(), name, depth + 1, texts);
    }
  }
}

}  // namespace

std::vector<std::string> JsonTexts(std::string_view json, std::string_view name) {
  const QByteArray bytes(json.data(), static_cast<qsizetype>(json.size()));
  const QJsonDocument document = QJsonDocument::fromJson(bytes);
  const QJsonValue root =
      document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
  std::vector<std::string> texts;
  Collect(root, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), 0, &texts);
  return texts;
}

}  // namespace vellumark
