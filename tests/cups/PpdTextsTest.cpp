#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "cups/PpdFile.h"
#include "cups/PpdTexts.h"
#include "tests/cups/Fixtures.h"
#include "tests/support/TemporaryBundle.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

using test::fixtureText;
using test::TemporaryFolder;

using Languages = std::vector<std::string>;

// Names a language in a PPD, and its text for half cut.
std::string translation(const std::string& language, const std::string& text) {
  return "*" + language + ".Translation LxHalfCut/" + text + ": \"\"\n";
}

// The tape printer, speaking English and what else its lines say.
std::string speaking(const std::string& listed, const std::string& lines) {
  const std::string header = "*LanguageEncoding: UTF-8\n";
  std::string ppd = fixtureText("tape.ppd");
  ppd.insert(ppd.find(header) + header.size(), "*cupsLanguages: \"" + listed + "\"\n" + lines);
  return ppd;
}

class PpdTextsTest : public testing::Test {
 protected:
  std::shared_ptr<PpdFile> opened(const std::string& ppd) const {
    const auto file = PpdFile::open(mFolder.write("x.ppd", ppd));
    return file ? *file : nullptr;
  }
  // What the printer calls half cut to a reader of the languages.
  std::string halfCut(const std::string& ppd, const std::string& languages) const {
    const test::ScopedEnvironment environment(
        test::languageEnvironment({{"LANG", "en_US.UTF-8"}, {"LANGUAGE", languages}}));
    return opened(ppd)->optionGroups().at(1).options.at(0).text;
  }

  TemporaryFolder mFolder;
};

TEST_F(PpdTextsTest, AreInTheLanguageThatIsAskedForWhateverTheLocale) {
  const std::string ppd =
      speaking("en de fr", translation("de", "Halber Schnitt") + translation("fr", "Demi-coupe"));
  EXPECT_EQ(halfCut(ppd, "de"), "Halber Schnitt");
  EXPECT_EQ(halfCut(ppd, "fr_CA"), "Demi-coupe");
  EXPECT_EQ(halfCut(ppd, "it:fr:de"), "Demi-coupe");
}

TEST_F(PpdTextsTest, AreThePpdsOwnWhereItSpeaksNoneOfTheLanguages) {
  const std::string ppd = speaking("en de", translation("de", "Halber Schnitt"));
  const std::string own = halfCut(fixtureText("tape.ppd"), "");
  EXPECT_EQ(halfCut(ppd, "it"), own);
  EXPECT_EQ(halfCut(ppd, ""), own);
}

TEST_F(PpdTextsTest, AreThePpdsOwnWhereItsOwnLanguageComesFirst) {
  const std::string ppd = speaking("en de", translation("de", "Halber Schnitt"));
  EXPECT_EQ(halfCut(ppd, "en:de"), halfCut(ppd, ""));
  EXPECT_EQ(halfCut(speaking("sv de", translation("de", "Halber Schnitt")), "sv:de"),
            halfCut(ppd, ""));
}

TEST_F(PpdTextsTest, FollowTheLocaleWhereNoLanguageIsSet) {
  const std::string ppd = speaking("en de", translation("de", "Halber Schnitt"));
  const test::ScopedEnvironment environment(
      test::languageEnvironment({{"LC_ALL", "de_DE.UTF-8"}, {"LC_MESSAGES", "en_US"}}));
  EXPECT_EQ(opened(ppd)->optionGroups().at(1).options.at(0).text, "Halber Schnitt");
}

TEST_F(PpdTextsTest, AreThePpdsOwnInTheUntranslatedLocale) {
  const std::string ppd = speaking("en de", translation("de", "Halber Schnitt"));
  const test::ScopedEnvironment environment(
      test::languageEnvironment({{"LC_ALL", "C"}, {"LANGUAGE", "de"}}));
  EXPECT_EQ(opened(ppd)->optionGroups().at(1).options.at(0).text, halfCut(ppd, "en"));
}

TEST_F(PpdTextsTest, ATerritoryComesBeforeTheLanguageAlone) {
  const std::string ppd =
      speaking("en pt pt_BR", translation("pt", "Meio corte") + "*pt.LxHalfCut ON/Ligado: \"\"\n" +
                                  translation("pt_BR", "Corte parcial"));
  EXPECT_EQ(halfCut(ppd, "pt_BR"), "Corte parcial");
  EXPECT_EQ(halfCut(ppd, "pt_PT"), "Meio corte");
  const test::ScopedEnvironment environment(test::languageEnvironment({{"LANG", "pt_BR.UTF-8"}}));
  const auto choices = opened(ppd)->optionGroups().at(1).options.at(0).choices;
  EXPECT_EQ(choices.at(1).text, "Ligado");
}

TEST_F(PpdTextsTest, AChineseReaderGetsTheScriptThatWasAskedFor) {
  const std::string ppd =
      speaking("en zh_CN zh_TW", translation("zh_CN", "半切") + translation("zh_TW", "半切割"));
  EXPECT_EQ(halfCut(ppd, "zh_SG"), "半切");
  EXPECT_EQ(halfCut(ppd, "zh_HK"), "半切割");
  EXPECT_EQ(halfCut(ppd, "zh"), "半切");
}

TEST_F(PpdTextsTest, ReachGroupsChoicesAndSizes) {
  const std::string ppd =
      speaking("en de",
               "*de.Translation Cutting/Schneiden: \"\"\n*de.LxHalfCut OFF/Aus: \"\"\n"
               "*de.LxHalfCut ON/Ein: \"\"\n*de.PageSize W24H100/Band 24 mm: \"\"\n");
  const test::ScopedEnvironment environment(test::languageEnvironment({{"LANG", "de_DE.UTF-8"}}));
  const auto file = opened(ppd);
  const OptionGroup group = file->optionGroups().at(1);
  EXPECT_EQ(group.name, "Cutting");
  EXPECT_EQ(group.text, "Schneiden");
  const PpdOption& halfCut = group.options.at(0);
  ASSERT_EQ(halfCut.choices.size(), 2U);
  EXPECT_EQ(halfCut.choices[0].text, "Aus");
  EXPECT_EQ(halfCut.choices[1].text, "Ein");
  file->markChoice("PageSize", "W24H100");
  EXPECT_EQ(file->markedPaper().text, "Band 24 mm");
}

TEST_F(PpdTextsTest, ALongTextEndsInAWholeCharacter) {
  std::string text;
  for (int i = 0; i < 40; ++i) text += "切";  // three bytes each
  const std::string shown = halfCut(speaking("en zh_CN", translation("zh_CN", text)), "zh_CN");
  EXPECT_GT(shown.size(), 60U);
  EXPECT_EQ(shown, text.substr(0, shown.size()));
  EXPECT_EQ(shown.size() % 3, 0U);
}

TEST_F(PpdTextsTest, EveryLineKeepsItsNumber) {
  std::string contents =
      "*LxA: x\n*de.Translation A/B: \"\"\n*fr.Translation A/C: \"\"\r\n*de.LxA x/D: \"\"\n*LxB: y";
  EXPECT_EQ(keepTexts(contents, {"de"}), Languages{"de"});
  EXPECT_EQ(contents, "*LxA: x\n*de-Translation A/B: \"\"\n\r\n*de-LxA x/D: \"\"\n*LxB: y");
}

TEST_F(PpdTextsTest, AValueOfSeveralLinesIsLeftToLibcups) {
  const std::string ppd = "*fr.Translation A/B: \"\n\"\n*End\n";
  std::string kept = ppd;
  EXPECT_EQ(keepTexts(kept, {"de"}), Languages());
  EXPECT_EQ(kept, ppd);
}

TEST_F(PpdTextsTest, OtherLinesStayAsTheyAre) {
  for (const char* contents : {"", "*", "*.", "*de", "de.Translation", "*deu_DE.", "%*de.\n",
                               "*\n.", "*LxHalfCut ON/On: \"*fr.\"\n"}) {
    std::string kept = contents;
    EXPECT_EQ(keepTexts(kept, {"de", "en"}), Languages());
    EXPECT_EQ(kept, contents);
  }
}

TEST_F(PpdTextsTest, LinesMayEndAsOnAnySystem) {
  for (const char* end : {"\n", "\r", "\r\n"}) {
    std::string contents =
        std::string("*PPD-Adobe: \"4.3\"") + end + "*de.Translation A/B: \"\"" + end;
    EXPECT_EQ(keepTexts(contents, {"de"}), Languages{"de"});
  }
}

}  // namespace
}  // namespace cutline
