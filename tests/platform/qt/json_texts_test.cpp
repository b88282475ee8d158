// Documents of other programs, which may hold anything.
#include "platform/qt/json_texts.h"

#include <QTest>

#include "platform/file_system.h"
#include "platform/system_services.h"
#include "platform/text.h"

namespace vellumark {
namespace {

using Texts = std::vector<std::string>;

std::string Nested(const std::string& opening, const std::string& inner, const std::string& closing,
                   int depth) {
  std::string whole;
  for (int i = 0; i < depth; ++i) whole += opening;
  whole += inner;
  for (int i = 0; i < depth; ++i) whole += closing;
  return whole;
}

}  // namespace

class JsonTextsTest : public QObject {
  Q_OBJECT

 private slots:
  void FindsTheTextsWithTheNameWhereverTheyStand() {
    const std::string json =
        R"([{"path": "/one"},)"
        R"({"app": {"path": "\/t\u0077o \u00e9", "Path": "/no", "title": "path"}, "path": ["/no"]},)"
        R"({"path": {"path": "/three"}}, {"path": ""}])";
    QCOMPARE(JsonTexts(json, "path"), (Texts{"/one", "/two \xC3\xA9", "/three", ""}));
    QCOMPARE(JsonTexts(R"({"path": "/alone"})", "path"), Texts{"/alone"});
  }

  void TakesNothingOfAnotherKindForAText() {
    for (const char* json : {R"({"path": 1})", R"({"path": null})", R"({"path": true})",
                             R"({"path": [[]]})", R"({"path": 1e999})", R"("path")", "1", "null"}) {
      QVERIFY2(JsonTexts(json, "path").empty(), json);
    }
  }

  void NamesNothingFromADamagedDocument() {
    const std::string good = R"({"a": {"path": "/game"}, "b": [1, "x\u0041"]})";
    QCOMPARE(JsonTexts(good, "path"), Texts{"/game"});
    for (std::size_t length = 0; length < good.size(); ++length) {
      QVERIFY2(JsonTexts(std::string_view(good).substr(0, length), "path").empty(),
               good.substr(0, length).c_str());
    }
    for (const std::string& bad :
         {good + "}", good + good, "\xFF\xFE" + good, std::string(1, '\0') + good,
          std::string("{\"path\": \"/a\xC3\"}"), std::string("{'path': '/a'}")}) {
      QVERIFY2(JsonTexts(bad, "path").empty(), bad.c_str());
    }
  }

  // As deep and as long as a list of a megabyte can be.
  void SurvivesDepthAndLength() {
    constexpr int kDeep = 200000;
    const std::string text = R"({"path": "x"})";
    QVERIFY(JsonTexts(Nested("[", "", "", kDeep), "path").empty());
    QVERIFY(JsonTexts(Nested("[", text, "]", kDeep), "path").empty());
    QVERIFY(JsonTexts(Nested(R"({"path":)", text, "}", kDeep / 2), "path").empty());
    // What a launcher writes stands in the first few levels.
    QVERIFY(JsonTexts(Nested("[", text, "]", 100), "path").empty());
    QCOMPARE(JsonTexts(Nested("[", text, "]", 10), "path"), Texts{"x"});

    std::string many = "[";
    many += Nested(R"({"path":"/x"},)", text, "", 70000);
    many += "]";
    QCOMPARE(JsonTexts(many, "path").size(), std::size_t{70001});
    const std::string wide(1000000, 'w');
    std::string long_text = "{\"path\": \"";
    long_text += wide;
    long_text += "\"}";
    QCOMPARE(JsonTexts(long_text, "path"), Texts{wide});
  }

  // Such a path names nothing, whatever its beginning names.
  void ATextWithANulReachesNoFile() {
    const Texts texts = JsonTexts(R"({"path": "/tmp\u0000/x"})", "path");
    const auto text = MakeSystemText();
    const auto files = MakeSystemFileSystem(*text);
    for (const std::string& path : texts) {
      const std::string found = files->FromHostPath(path).value_or("");
      QVERIFY(found.empty() || files->Attributes(found).error != FileError::kNone);
    }
  }
};

}  // namespace vellumark

QTEST_GUILESS_MAIN(vellumark::JsonTextsTest)
#include "json_texts_test.moc"
