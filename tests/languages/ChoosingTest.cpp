// Which language the staged bundle answers in, by the environment's rules for messages.
#include <gtest/gtest.h>

#include <clocale>
#include <functional>
#include <string>
#include <tuple>

#include "tests/languages/Language.h"
#include "tests/languages/StagedBundle.h"

namespace cutline {
namespace {

constexpr char kKey[] = "RS_HalfCut";  // no two languages say it alike

std::string answer(const test::ScopedEnvironment::Variables& variables) {
  const auto bundle = openStagedBundle(variables);
  return bundle ? bundle->localizedStringForKey(kKey, std::nullopt, std::nullopt) : std::string();
}

std::string expected(const std::string& folder) { return stringTable(folder).at(kKey); }

// A way to ask for a language, while other variables ask for another one.
struct Way {
  const char* name;
  test::ScopedEnvironment::Variables (*variables)(const std::string& locale,
                                                  const std::string& other);
};

constexpr Way kWays[] = {
    {"Lang",
     [](const std::string& locale, const std::string&) {
       return test::ScopedEnvironment::Variables{{"LANG", locale}};
     }},
    {"Messages",
     [](const std::string& locale, const std::string& other) {
       return test::ScopedEnvironment::Variables{{"LC_MESSAGES", locale}, {"LANG", other}};
     }},
    {"All",
     [](const std::string& locale, const std::string& other) {
       return test::ScopedEnvironment::Variables{
           {"LC_ALL", locale}, {"LC_MESSAGES", other}, {"LANG", other}};
     }},
    {"Language",
     [](const std::string& locale, const std::string& other) {
       return test::ScopedEnvironment::Variables{
           {"LANGUAGE", locale}, {"LC_ALL", other}, {"LC_MESSAGES", other}, {"LANG", other}};
     }},
    {"LanguageList",
     [](const std::string& locale, const std::string& other) {
       return test::ScopedEnvironment::Variables{{"LANGUAGE", "xx:" + locale + ":" + other},
                                                 {"LANG", other}};
     }},
    {"LanguageWithoutTerritory",
     [](const std::string& locale, const std::string& other) {
       const bool isChinese = locale.starts_with("zh");
       return test::ScopedEnvironment::Variables{
           {"LANGUAGE", locale.substr(0, locale.find(isChinese ? '.' : '_'))}, {"LANG", other}};
     }},
};

class ChosenLanguage : public testing::TestWithParam<std::tuple<Language, Way>> {};

TEST_P(ChosenLanguage, IsTheBundles) {
  const auto& [language, way] = GetParam();
  const std::string other = std::string(language.folder) == "fr" ? "de_DE.UTF-8" : "fr_FR.UTF-8";
  EXPECT_EQ(answer(way.variables(language.locale, other)), expected(language.folder));
}

INSTANTIATE_TEST_SUITE_P(Every, ChosenLanguage,
                         testing::Combine(testing::ValuesIn(kLanguages), testing::ValuesIn(kWays)),
                         [](const auto& chosen) {
                           return nameOf(std::get<Language>(chosen.param)) + "By" +
                                  std::get<Way>(chosen.param).name;
                         });

struct LocaleRow {
  const char* locale;
  const char* folder;
};

constexpr LocaleRow kLocales[] = {
    {"en_US.UTF-8", "en"},      {"de_AT", "de"},
    {"de_DE@euro", "de"},       {"de_CH.ISO-8859-1", "de"},
    {"fr_CA.UTF-8", "fr"},      {"es_MX.UTF-8", "es"},
    {"es_419", "es"},           {"it_CH.UTF-8", "it"},
    {"nl_BE@euro", "nl"},       {"pt_BR.UTF-8", "pt"},
    {"pt_PT.UTF-8", "pt"},      {"pt", "pt"},
    {"ja_JP.eucJP", "ja"},      {"ko", "ko"},
    {"zh", "zh-Hans"},          {"zh_CN.GB18030", "zh-Hans"},
    {"zh_SG.UTF-8", "zh-Hans"}, {"zh_Hans", "zh-Hans"},
    {"zh-Hans-HK", "zh-Hans"},  {"zh_TW.Big5", "zh-Hant"},
    {"zh_HK.UTF-8", "zh-Hant"}, {"zh_MO", "zh-Hant"},
    {"zh_Hant", "zh-Hant"},     {"zh-Hant_TW", "zh-Hant"},
    {"ru_RU.UTF-8", "en"},      {"C", "en"},
    {"C.UTF-8", "en"},          {"POSIX", "en"},
    {"nonsense", "en"},         {"", "en"},
};

TEST(LanguageOfALocale, IsTheNearest) {
  for (const auto& [locale, folder] : kLocales) {
    EXPECT_EQ(answer({{"LANG", locale}}), expected(folder)) << locale;
  }
}

TEST(LanguageOfALocale, NeedsNoDataOfThatLocale) {
  const char* locale = "de_AQ.UTF-8";
  EXPECT_EQ(newlocale(LC_ALL_MASK, locale, nullptr), nullptr);
  EXPECT_EQ(answer({{"LC_ALL", locale}}), expected("de"));
}

TEST(LanguageList, IsFollowedInItsOrder) {
  EXPECT_EQ(answer({{"LANGUAGE", "xx:de:en"}, {"LANG", "fr_FR"}}), expected("de"));
  EXPECT_EQ(answer({{"LANGUAGE", "ru:xx:ja:ko"}, {"LANG", "fr_FR"}}), expected("ja"));
  EXPECT_EQ(answer({{"LANGUAGE", "en_US:en:de"}, {"LANG", "de_DE"}}), expected("en"));
  EXPECT_EQ(answer({{"LANGUAGE", "xx:yy"}, {"LANG", "de_DE"}}), expected("en"));
}

TEST(LanguageList, CountsForNothingWhereMessagesAreUntranslated) {
  for (const char* untranslated : {"C", "POSIX"}) {
    EXPECT_EQ(answer({{"LANGUAGE", "de"}, {"LC_ALL", untranslated}}), expected("en"));
    EXPECT_EQ(answer({{"LANGUAGE", "de"}, {"LC_MESSAGES", untranslated}, {"LANG", "fr_FR"}}),
              expected("en"));
  }
  EXPECT_EQ(answer({{"LANGUAGE", "de"}}), expected("en"));
  EXPECT_EQ(answer({{"LANGUAGE", "de"}, {"LANG", "C.UTF-8"}}), expected("de"));
}

}  // namespace
}  // namespace cutline
