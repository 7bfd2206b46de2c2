#include <gtest/gtest.h>

#include "platform/lib/Languages.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {
namespace {

using Names = std::vector<std::string>;

struct LocaleRow {
  const char* name;
  std::string locale;
  Names folders;
};

class LocaleFolders : public testing::TestWithParam<LocaleRow> {};

TEST_P(LocaleFolders, AreListedBestFirst) {
  EXPECT_EQ(localizationsForLocale(GetParam().locale), GetParam().folders);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LocaleFolders,
    testing::Values(LocaleRow{"Language", "de", {"de"}},
                    LocaleRow{"Territory", "de_AT", {"de_AT", "de-AT", "de"}},
                    LocaleRow{"Codeset", "de_AT.UTF-8", {"de_AT", "de-AT", "de"}},
                    LocaleRow{"Modifier", "de_DE@euro", {"de_DE", "de-DE", "de"}},
                    LocaleRow{"Hyphen", "pt-BR", {"pt_BR", "pt-BR", "pt"}},
                    LocaleRow{
                        "TraditionalChinese", "zh_TW.UTF-8", {"zh_TW", "zh-TW", "zh-Hant", "zh"}},
                    LocaleRow{"HongKong", "zh_HK", {"zh_HK", "zh-HK", "zh-Hant", "zh"}},
                    LocaleRow{"SimplifiedChinese", "zh_CN", {"zh_CN", "zh-CN", "zh-Hans", "zh"}},
                    LocaleRow{"Chinese", "zh", {"zh", "zh-Hans"}},
                    LocaleRow{"Macau", "zh_MO", {"zh_MO", "zh-MO", "zh-Hant", "zh"}},
                    LocaleRow{"Singapore", "zh_SG", {"zh_SG", "zh-SG", "zh-Hans", "zh"}},
                    LocaleRow{"Script", "zh_Hant", {"zh_Hant", "zh-Hant", "zh"}},
                    LocaleRow{"ScriptAndTerritory",
                              "zh-Hans-HK",
                              {"zh_Hans_HK", "zh-Hans-HK", "zh_Hans", "zh-Hans", "zh"}},
                    LocaleRow{"LatinSerbian", "sr_RS@latin", {"sr-Latn", "sr_RS", "sr-RS", "sr"}},
                    LocaleRow{"C", "C", {}}, LocaleRow{"CWithCodeset", "C.UTF-8", {}},
                    LocaleRow{"Posix", "POSIX", {}}, LocaleRow{"Empty", "", {}},
                    LocaleRow{"Path", "../../tmp/x", {}}, LocaleRow{"Dots", "..", {}}),
    [](const auto& row) { return std::string(row.param.name); });

struct EnvironmentRow {
  const char* name;
  test::ScopedEnvironment::Variables variables;
  Names folders;
};

class PreferredLocalizations : public testing::TestWithParam<EnvironmentRow> {};

TEST_P(PreferredLocalizations, FollowTheEnvironment) {
  const test::ScopedEnvironment environment(test::languageEnvironment(GetParam().variables));
  EXPECT_EQ(preferredLocalizations(), GetParam().folders);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PreferredLocalizations,
    testing::Values(
        EnvironmentRow{"Nothing", {}, {"en"}},
        EnvironmentRow{"Lang", {{"LANG", "de"}}, {"de", "en"}},
        EnvironmentRow{"MessagesBeforeLang", {{"LANG", "de"}, {"LC_MESSAGES", "fr"}}, {"fr", "en"}},
        EnvironmentRow{
            "AllBeforeMessages", {{"LC_MESSAGES", "fr"}, {"LC_ALL", "ko"}}, {"ko", "en"}},
        EnvironmentRow{"EmptyCountsAsUnset", {{"LC_ALL", ""}, {"LANG", "de"}}, {"de", "en"}},
        EnvironmentRow{
            "LanguageBeforeAll", {{"LANGUAGE", "ko:fr"}, {"LC_ALL", "de"}}, {"ko", "fr", "en"}},
        EnvironmentRow{"EmptyLanguage", {{"LANGUAGE", ""}, {"LANG", "de"}}, {"de", "en"}},
        EnvironmentRow{
            "EmptyPartsOfLanguage", {{"LANGUAGE", ":ko::"}, {"LANG", "de"}}, {"ko", "en"}},
        EnvironmentRow{"LanguageIgnoredForC", {{"LANGUAGE", "ko"}, {"LANG", "C"}}, {"en"}},
        EnvironmentRow{"TheRestOfLanguageIgnoredAfterC",
                       {{"LANGUAGE", "fr:C:ko"}, {"LANG", "de"}},
                       {"fr", "en"}},
        EnvironmentRow{"LanguageOfC", {{"LANGUAGE", "C"}, {"LANG", "de"}}, {"en"}},
        EnvironmentRow{
            "LanguageIgnoredForPosix", {{"LANGUAGE", "ko"}, {"LC_ALL", "POSIX"}}, {"en"}},
        EnvironmentRow{"LanguageIgnoredWithoutALocale", {{"LANGUAGE", "ko"}}, {"en"}},
        EnvironmentRow{
            "LanguageWithCodesetOfC", {{"LANGUAGE", "ko"}, {"LANG", "C.UTF-8"}}, {"ko", "en"}},
        EnvironmentRow{
            "EnglishIsNotListedTwice", {{"LANG", "en_GB.UTF-8"}}, {"en_GB", "en-GB", "en"}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace cutline
