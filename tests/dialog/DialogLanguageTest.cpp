#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QMap>
#include <QTemporaryDir>
#include <QTranslator>

#include "host/dialog/DialogLanguage.h"
#include "host/dialog/PresetBar.h"
#include "platform/lib/Languages.h"
#include "tests/dialog/languages.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {

namespace {

struct Row {
  const char* name;
  test::ScopedEnvironment::Variables variables;
  const char* code;
  const char* locale;
};

class DialogLanguageChoice : public testing::TestWithParam<Row> {};

TEST_P(DialogLanguageChoice, IsTheFirstOfTheUsersThatThereIs) {
  const test::ScopedEnvironment environment(test::languageEnvironment(GetParam().variables));
  const DialogLanguage language = chooseLanguage(preferredLocalizations(), tableDirectory());
  EXPECT_EQ(language.code, QLatin1String(GetParam().code));
  EXPECT_EQ(language.locale.name(), QLatin1String(GetParam().locale));
}

INSTANTIATE_TEST_SUITE_P(
    Environments, DialogLanguageChoice,
    testing::Values(
        Row{"NothingSet", {}, "en", "en_US"},  //
        Row{"CLocale", {{"LANG", "C"}}, "en", "en_US"},
        Row{"LanguageCountsForNothingInTheCLocale",
            {{"LANG", "C"}, {"LANGUAGE", "de"}},
            "en",
            "en_US"},
        Row{"Lang", {{"LANG", "fr_FR.UTF-8"}}, "fr", "fr_FR"},
        Row{"AVarietyWithoutATable", {{"LANG", "de_CH.UTF-8"}}, "de", "de_CH"},
        Row{"AVarietyOfEnglish", {{"LANG", "en_GB.UTF-8"}}, "en", "en_GB"},
        Row{"LcAllBeforeLcMessages",
            {{"LC_ALL", "it_IT"}, {"LC_MESSAGES", "de_DE"}, {"LANG", "fr_FR"}},
            "it",
            "it_IT"},
        Row{"LcMessagesBeforeLang", {{"LC_MESSAGES", "de_DE"}, {"LANG", "fr_FR"}}, "de", "de_DE"},
        Row{"LanguageBeforeAll", {{"LC_ALL", "it_IT"}, {"LANGUAGE", "nl"}}, "nl", "nl_NL"},
        Row{"EnglishEndsTheList", {{"LANG", "en_US"}, {"LANGUAGE", "en:de"}}, "en", "en_US"},
        Row{"TheNextWhereThereIsNoTable",
            {{"LANG", "en_US"}, {"LANGUAGE", "fi:sv:es"}},
            "es",
            "es_ES"},
        Row{"NoneOfThem", {{"LANG", "fi_FI.UTF-8"}}, "en", "en_US"},
        Row{"SimplifiedChinese", {{"LANG", "zh_CN.UTF-8"}}, "zh_CN", "zh_CN"},
        Row{"SimplifiedChineseElsewhere", {{"LANG", "zh_SG.UTF-8"}}, "zh_CN", "zh_SG"},
        Row{"TraditionalChinese", {{"LANG", "zh_TW.UTF-8"}}, "zh_TW", "zh_TW"},
        Row{"TraditionalChineseElsewhere", {{"LANG", "zh_HK.UTF-8"}}, "zh_TW", "zh_HK"},
        Row{"ChineseWithoutAPlace", {{"LANG", "en_US"}, {"LANGUAGE", "zh"}}, "zh_CN", "zh_CN"},
        Row{"BrazilianPortuguese", {{"LANG", "pt_BR.UTF-8"}}, "pt", "pt_BR"},
        Row{"Nonsense", {{"LANG", "../../etc/passwd"}}, "en", "en_US"}),
    [](const auto& row) { return row.param.name; });

TEST(DialogLanguage, WithoutTablesIsEnglish) {
  const QTemporaryDir empty;
  EXPECT_EQ(chooseLanguage({"de", "en"}, empty.path()).code, QStringLiteral("en"));
  EXPECT_EQ(chooseLanguage({}, tableDirectory()).code, QStringLiteral("en"));
}

TEST(DialogLanguage, IsInForceAsLongAsItsObjectLives) {
  const QLocale before;
  {
    const LanguageInForce inForce({QStringLiteral("de"), QLocale(QStringLiteral("de_CH"))},
                                  tableDirectory());
    EXPECT_EQ(PresetBar::tr("Cancel"), QStringLiteral("Abbrechen"));
    EXPECT_EQ(QLocale().name(), QStringLiteral("de_CH"));
    // A text of the toolkit's own.
    EXPECT_NE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
  }
  EXPECT_EQ(PresetBar::tr("Cancel"), QStringLiteral("Cancel"));
  EXPECT_EQ(QLocale(), before);
}

TEST(DialogLanguage, ADamagedTableLeavesTheTextsEnglish) {
  const QTemporaryDir directory;
  QFile table(directory.filePath(QStringLiteral("cutline_de.qm")));
  ASSERT_TRUE(table.open(QIODevice::WriteOnly));
  table.write("no table");
  table.close();
  const LanguageInForce inForce(chooseLanguage({"de"}, directory.path()), directory.path());
  EXPECT_EQ(PresetBar::tr("Cancel"), QStringLiteral("Cancel"));
}

class TableTranslator : public QTranslator {
 public:
  TableTranslator() { QCoreApplication::installTranslator(this); }

  QString translate(const char* context, const char* source, const char* /*comment*/,
                    int /*number*/) const override {
    return qstrcmp(context, "test") == 0 ? mTexts.value(QString::fromUtf8(source)) : QString();
  }
  bool isEmpty() const override { return false; }

 private:
  const QMap<QString, QString> mTexts = {
      {QStringLiteral("%1 of %2"), QStringLiteral("von %2 die %1")},
      {QStringLiteral("page"), QStringLiteral("seite")},
      {QStringLiteral("it fails"), QStringLiteral("es geht nicht")},
      {QStringLiteral("%1: %2"), QStringLiteral("%1: %2")},
  };
};

TEST(Translated, PlacesFollowTheLanguagesOrder) {
  const TableTranslator german;
  const Sentence sentence(Phrase("test", "%1 of %2"), {Phrase("test", "page"), std::string("A")});
  EXPECT_EQ(translated(sentence), QStringLiteral("von A die seite"));
  EXPECT_EQ(sentence.english(), "page of A");
}

TEST(Translated, WhatIsPutInIsNoPlace) {
  const TableTranslator german;
  const Sentence sentence(Phrase("test", "%1 of %2"), {std::string("%2"), std::string("%1")});
  EXPECT_EQ(translated(sentence), QStringLiteral("von %1 die %2"));
}

TEST(Translated, APhraseThatNoTableHasStaysEnglish) {
  const TableTranslator german;
  EXPECT_EQ(translated(Phrase("test", "unheard of")), QStringLiteral("unheard of"));
  EXPECT_EQ(translated(Phrase("elsewhere", "page")), QStringLiteral("page"));
}

TEST(Translated, WordsThatAreTheSameEverywhereAreLeftAlone) {
  const TableTranslator german;
  EXPECT_EQ(translated(std::string("page")), QStringLiteral("page"));
}

TEST(Translated, ALineBeginsWithACapitalUnlessANameComesFirst) {
  const TableTranslator german;
  const Sentence fails = Phrase("test", "it fails");
  EXPECT_EQ(asLine(fails), QStringLiteral("Es geht nicht"));
  EXPECT_EQ(asLine(Sentence(Phrase("test", "%1: %2"), {std::string("labels.pdf"), fails})),
            QStringLiteral("labels.pdf: es geht nicht"));
  EXPECT_EQ(asLine(Sentence(Phrase("test", "%1: %2"), {fails, std::string("x")})),
            QStringLiteral("Es geht nicht: x"));
  EXPECT_EQ(asLine(Sentence()), QString());
}

}  // namespace

}  // namespace cutline
