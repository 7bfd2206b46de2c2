// The sample printers speak the panel's languages, so that its window shows one language.
#include <cups/ppd.h>
#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <regex>
#include <set>
#include <span>
#include <sstream>

#include "tests/languages/Language.h"
#include "tests/support/Command.h"
#include "tests/support/TemporaryBundle.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using Ppd = std::unique_ptr<ppd_file_t, decltype(&ppdClose)>;

// English comes first, and is no translation.
constexpr std::span<const Language> kTranslations = std::span(kLanguages).subspan<1>();
constexpr const char* kPrinters[] = {"tape-a", "tape-b", "roll"};
constexpr std::size_t kLongestText = PPD_MAX_TEXT - 1;

std::string pathOf(const std::string& printer) { return source("samples/ppd/" + printer + ".ppd"); }

// The printer as a program sees it whose user reads the language.
Ppd localized(const std::string& printer, const std::string& locale) {
  const ScopedEnvironment environment(languageEnvironment({{"LANG", locale}}));
  // libcups remembers the language of a thread.
  ppd_file_t* const ppd = std::async(std::launch::async, [&] {
                            ppd_file_t* const file = ppdOpenFile(pathOf(printer).c_str());
                            if (file != nullptr) ppdLocalize(file);
                            return file;
                          }).get();
  return {ppd, &ppdClose};
}

std::vector<ppd_option_t*> optionsOf(ppd_file_t* ppd) {
  std::vector<ppd_option_t*> all;
  for (ppd_group_t& group : std::span(ppd->groups, ppd->num_groups)) {
    for (ppd_option_t& option : std::span(group.options, group.num_options)) {
      // It is never shown: the size of the page says as much.
      if (std::string_view(option.keyword) != "PageRegion") all.push_back(&option);
    }
  }
  return all;
}

// What a PPD says in a language, by the lines that say it.
class Translation {
 public:
  Translation(ppd_file_t* ppd, std::string language) : mPpd(ppd), mLanguage(std::move(language)) {}

  // Whether this text is the one for `name` under `of`, an option's keyword or "Translation".
  testing::AssertionResult says(const char* text, const std::string& of, const char* name) const {
    const ppd_attr_t* line = ppdFindAttr(mPpd, (mLanguage + '.' + of).c_str(), name);
    if (line == nullptr) {
      return testing::AssertionFailure() << mLanguage << " has no text for " << of << ' ' << name;
    }
    if (line->text[0] != '\0' && std::string(line->text) == text) {
      return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << mLanguage << " says \"" << text << "\" for " << name;
  }

 private:
  ppd_file_t* mPpd;
  std::string mLanguage;
};

// What the panel calls an option where the PPD does not say it.
std::string panelText(const std::string& folder, const std::string& keyword) {
  const std::string table =
      contentsOf(source("bundle/resources/" + folder + ".lproj/Localizable.strings"));
  std::smatch found;
  const std::regex entry("<key>" + keyword + R"(</key>\s*<string>([^<]*)</string>)");
  return std::regex_search(table, found, entry) ? found[1].str() : "no text";
}

// The texts of a PPD's translations.
std::vector<std::string> translatedTexts(const std::string& printer) {
  const std::string ppd = contentsOf(pathOf(printer));
  const std::regex line(R"(\n\*\w+\.\w+ [^/\n]+/([^:\n]*): "")");
  std::vector<std::string> texts;
  for (std::sregex_iterator at(ppd.begin(), ppd.end(), line), end; at != end; ++at) {
    texts.push_back((*at)[1]);
  }
  return texts;
}

class SamplePpdTexts : public testing::TestWithParam<Language> {};

TEST_P(SamplePpdTexts, NameEveryGroupAndOption) {
  for (const char* printer : kPrinters) {
    const Ppd ppd = localized(printer, GetParam().locale);
    ASSERT_NE(ppd, nullptr);
    const Translation translation(ppd.get(), ppdLanguage(GetParam()));
    for (const ppd_group_t& group : std::span(ppd->groups, ppd->num_groups)) {
      // Options outside of all groups are put into this one by libcups, which names it.
      if (std::string_view(group.name) == "General") continue;
      EXPECT_TRUE(translation.says(group.text, "Translation", group.name)) << printer;
    }
    for (const ppd_option_t* option : optionsOf(ppd.get())) {
      EXPECT_TRUE(translation.says(option->text, "Translation", option->keyword)) << printer;
    }
  }
}

TEST_P(SamplePpdTexts, NameEveryChoiceThatIsNoNumber) {
  for (const char* printer : kPrinters) {
    const Ppd ppd = localized(printer, GetParam().locale);
    ASSERT_NE(ppd, nullptr);
    const Translation translation(ppd.get(), ppdLanguage(GetParam()));
    for (const ppd_option_t* option : optionsOf(ppd.get())) {
      if (std::string_view(option->keyword) == "LxCutLabel") continue;
      for (const ppd_choice_t& choice : std::span(option->choices, option->num_choices)) {
        // It needs a value, so no list shows it.
        if (std::string_view(choice.choice) == "Custom") continue;
        EXPECT_TRUE(translation.says(choice.text, option->keyword, choice.choice)) << printer;
      }
    }
  }
}

// The panel's own texts are proven to fit into it.
TEST_P(SamplePpdTexts, NameTheCutOptionsAsThePanelDoes) {
  for (const char* printer : kPrinters) {
    const Ppd ppd = localized(printer, GetParam().locale);
    ASSERT_NE(ppd, nullptr);
    for (const ppd_option_t* option : optionsOf(ppd.get())) {
      const std::string keyword = option->keyword;
      if (keyword.starts_with("Lx")) {
        EXPECT_EQ(option->text, panelText(GetParam().folder, keyword)) << keyword;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, SamplePpdTexts, testing::ValuesIn(kTranslations),
                         [](const auto& row) { return nameOf(row.param); });

TEST(SamplePpdTextLines, CountLabelsInNumbersThatNeedNoTranslation) {
  for (const char* printer : {"tape-a", "roll"}) {
    const Ppd ppd = localized(printer, "C");
    const ppd_option_t* option = ppdFindOption(ppd.get(), "LxCutLabel");
    for (const ppd_choice_t& choice : std::span(option->choices, option->num_choices)) {
      EXPECT_STREQ(choice.text, choice.choice);
    }
  }
}

// libcups cuts off what is longer, be it within a character.
TEST(SamplePpdTextLines, FitIntoTheRecords) {
  for (const char* printer : kPrinters) {
    const auto texts = translatedTexts(printer);
    EXPECT_GT(texts.size(), 100U);
    for (const std::string& text : texts) EXPECT_LE(text.size(), kLongestText) << text;
  }
}

TEST(SamplePpdTextLines, AreUtf8) {
  for (const char* printer : kPrinters) {
    const CommandResult result = run("iconv -f UTF-8 -t UTF-16 " + pathOf(printer) + " >/dev/null");
    EXPECT_EQ(result.status, 0) << printer << ": " << result.errors;
  }
}

TEST(SamplePpdTextLines, UseEveryTextOfTheTables) {
  std::set<std::string> used;
  for (const char* printer : kPrinters) {
    for (std::string& text : translatedTexts(printer)) used.insert(std::move(text));
  }
  for (const Language& language : kTranslations) {
    const std::string name = ppdLanguage(language);
    std::istringstream table(contentsOf(source("samples/ppd/texts/" + name)));
    for (std::string line; std::getline(table, line);) {
      EXPECT_TRUE(used.contains(line.substr(line.find('|') + 1))) << name << ' ' << line;
    }
  }
}

// A copy of the generator, whose tables a test may change.
class PpdGenerator : public testing::Test {
 protected:
  PpdGenerator() {
    run("cp -r " + source("samples/ppd") + ' ' + mFolder / "ppd" + " && mkdir " + mFolder / "out");
  }
  // Changes the German table by this command of sed.
  CommandResult afterChange(const std::string& command) const {
    run("sed -i " + quoted(command) + ' ' + mFolder / "ppd/texts/de");
    return run(mFolder / "ppd/generate" + ' ' + mFolder / "out" + ' ' + mFolder / "out");
  }
  std::string written(const std::string& name) const { return contentsOf(mFolder / "out/" + name); }

 private:
  TemporaryFolder mFolder;
};

TEST_F(PpdGenerator, WritesWhatTheTablesSay) {
  const CommandResult result = afterChange("s/|Spiegel.*/|Andersherum/");
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_NE(written("roll.ppd").find("\n*de.Translation LxMirror/Andersherum: \"\"\n"),
            std::string::npos);
}

TEST_F(PpdGenerator, FailsWhereALanguageLacksAText) {
  const CommandResult result = afterChange("/^Mirror printing|/d");
  EXPECT_NE(result.status, 0);
  EXPECT_NE(result.errors.find("texts/de: no text, or no good one, for \"Mirror printing\""),
            std::string::npos)
      << result.errors;
}

TEST_F(PpdGenerator, FailsWhereATextIsEmptyOrTooLong) {
  EXPECT_NE(afterChange("s/^Speed|.*/Speed|/").status, 0);
  const std::string forty = "ÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄ";
  EXPECT_EQ(afterChange("s/^Speed|.*/Speed|" + forty + "/").status, 0);
  EXPECT_NE(afterChange("s/^Speed|.*/Speed|" + forty + "x/").status, 0);
}

TEST_F(PpdGenerator, FailsWhereATextWouldEndTooSoon) {
  EXPECT_NE(afterChange("s/^Speed|.*/Speed|Tempo: wie schnell/").status, 0);
}

}  // namespace
}  // namespace cutline::test
