// What was chosen in the dialog, as applications and the next dialog are told it.
#include <gmock/gmock.h>

#include "cups/CupsOptions.h"
#include "host/core/CommandLine.h"
#include "portal/ChosenJob.h"

namespace cutline::portal {
namespace {

constexpr char kJson[] = R"({"printer": "tape24/half", "copies": 3, "pages": "1-2",
  "options": {"LxHalfCut": "ON", "PageSize": "W24H50"}, "job": {"job-priority": "70"},
  "page": {"name": "W24H50", "width": 50, "length": 24, "top": 1, "right": 2, "bottom": 1,
           "left": 2}})";

ChosenJob job() { return *ChosenJob::parse(kJson); }

QString setting(const char* key, const QVariantMap& asked = {}) {
  return job().settings(asked).value(QLatin1String(key)).toString();
}

TEST(ChosenJob, AnythingElseIsNone) {
  for (const char* wrong : {"", "{}", "[]", "nonsense", R"({"printer": "tape24"})",
                            R"({"printer": "", "copies": 1, "page": {"width": 3}})",
                            R"({"printer": "a", "copies": 0, "page": {"width": 3}})"})
    EXPECT_FALSE(ChosenJob::parse(wrong)) << wrong;
}

TEST(ChosenJob, TheApplicationIsToldThePrintersOptions) {
  EXPECT_EQ(setting("printer"), QStringLiteral("tape24/half"));
  EXPECT_EQ(setting("cups-LxHalfCut"), QStringLiteral("ON"));
  EXPECT_FALSE(job().settings({}).contains(QStringLiteral("cups-job-priority")));
}

// It would apply them, and we do as well.
TEST(ChosenJob, TheApplicationDrawsOneCopyOfAllPages) {
  const QVariantMap asked = {{"n-copies", "5"},   {"print-pages", "ranges"}, {"page-ranges", "3"},
                             {"reverse", "true"}, {"page-set", "odd"},       {"number-up", "4"},
                             {"scale", "50"},     {"collate", "true"}};
  EXPECT_EQ(setting("n-copies", asked), QStringLiteral("1"));
  EXPECT_EQ(setting("print-pages", asked), QStringLiteral("all"));
  EXPECT_EQ(setting("reverse", asked), QStringLiteral("false"));
  EXPECT_EQ(setting("collate", asked), QStringLiteral("false"));
  EXPECT_EQ(setting("page-set", asked), QStringLiteral("all"));
  EXPECT_EQ(setting("number-up", asked), QStringLiteral("1"));
  EXPECT_EQ(setting("scale", asked), QStringLiteral("100"));
  EXPECT_FALSE(job().settings(asked).contains(QStringLiteral("page-ranges")));
}

TEST(ChosenJob, OtherSettingsOfTheApplicationStay) {
  EXPECT_EQ(setting("an-application's-own", {{"an-application's-own", "7"}}), QStringLiteral("7"));
  EXPECT_EQ(setting("cups-OfAnotherPrinter", {{"cups-OfAnotherPrinter", "7"}}), QString());
  EXPECT_EQ(setting("paper-format", {{"paper-format", "iso_a4"}}), QString());
}

TEST(ChosenJob, ThePageIsUprightAndOfItsMeasures) {
  const QVariantMap page = job().pageSetup();
  EXPECT_EQ(page.value(QStringLiteral("Width")).toDouble(), 50);
  EXPECT_EQ(page.value(QStringLiteral("Height")).toDouble(), 24);
  EXPECT_EQ(page.value(QStringLiteral("MarginTop")).toDouble(), 1);
  EXPECT_EQ(page.value(QStringLiteral("MarginRight")).toDouble(), 2);
  EXPECT_EQ(page.value(QStringLiteral("Name")).toString(), QStringLiteral("W24H50"));
  EXPECT_EQ(page.value(QStringLiteral("Orientation")).toString(), QStringLiteral("portrait"));
}

// The words as the program reads them.
TEST(ChosenJob, TheNextDialogIsToldTheSame) {
  ChosenJob chosen = job();
  chosen.options.insert(QStringLiteral("Text"), QStringLiteral("it's a \\ \"b\"=c  d"));
  std::vector<std::string> words = {"cutline"};
  for (const QString& word : chosen.words()) words.push_back(word.toStdString());
  std::vector<const char*> arguments;
  for (const std::string& word : words) arguments.push_back(word.c_str());
  arguments.push_back(nullptr);
  const auto line = parseCommandLine(static_cast<int>(words.size()), arguments.data());
  ASSERT_TRUE(line) << line.error().message;
  EXPECT_EQ(line->destination->text(), "tape24/half");
  EXPECT_EQ(line->asked.copies, 3);
  EXPECT_EQ(line->asked.pageRanges, "1-2");
  EXPECT_THAT(line->asked.options,
              testing::UnorderedElementsAre(testing::Pair("LxHalfCut", "ON"),
                                            testing::Pair("PageSize", "W24H50"),
                                            testing::Pair("Text", "it's a \\ \"b\"=c  d"),
                                            testing::Pair("job-priority", "70")));
}

}  // namespace
}  // namespace cutline::portal
