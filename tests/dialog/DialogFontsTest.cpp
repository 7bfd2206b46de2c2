#include <gtest/gtest.h>

#include <QString>
#include <QTemporaryDir>
#include <fstream>
#include <memory>
#include <string>

#include "host/dialog/DialogFonts.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline {

namespace {

using PatternPointer = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

struct Wish {
  const char* name;
  const char* words;  // as fontconfig's own programs take them
};

class DialogFontsWish : public testing::TestWithParam<Wish> {
 protected:
  static void SetUpTestSuite() { sWhole = FcInitLoadConfigAndFonts(); }
  static void TearDownTestSuite() { FcConfigDestroy(sWhole); }

  // What the rules make of the wish, and the font that fits it best.
  static PatternPointer ruled(FcConfig* configuration) {
    const auto* const words = reinterpret_cast<const FcChar8*>(GetParam().words);
    PatternPointer pattern(FcNameParse(words), FcPatternDestroy);
    FcConfigSubstitute(configuration, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
  }
  static PatternPointer matched(FcConfig* configuration) {
    FcResult result = FcResultNoMatch;
    return {FcFontMatch(configuration, ruled(configuration).get(), &result), FcPatternDestroy};
  }

  static FcConfig* sWhole;
};

FcConfig* DialogFontsWish::sWhole = nullptr;

TEST_P(DialogFontsWish, HasTheFontThatFontconfigChooses) {
  const FontConfiguration read = readFontConfiguration();
  ASSERT_TRUE(read);
  EXPECT_TRUE(FcPatternEqual(ruled(read.get()).get(), ruled(sWhole).get()));
  EXPECT_TRUE(FcPatternEqual(matched(read.get()).get(), matched(sWhole).get()));
}

INSTANTIATE_TEST_SUITE_P(DialogFonts, DialogFontsWish,
                         testing::Values(Wish{"Any", ""}, Wish{"Sans", "sans-serif:size=9"},
                                         Wish{"Bold", "sans-serif:bold:size=9"},
                                         Wish{"Mono", "monospace"}, Wish{"Serif", "serif:italic"},
                                         Wish{"Named", "DejaVu Sans:size=6.5"},
                                         Wish{"Japanese", "sans-serif:lang=ja"},
                                         Wish{"Unknown", "No Such Family:lang=ar"}),
                         [](const auto& each) { return each.param.name; });

TEST(DialogFonts, FindsEveryFont) {
  const FontConfiguration read = readFontConfiguration();
  ASSERT_TRUE(read);
  FcConfig* const whole = FcInitLoadConfigAndFonts();
  const FcFontSet* const expected = FcConfigGetFonts(whole, FcSetSystem);
  const FcFontSet* const found = FcConfigGetFonts(read.get(), FcSetSystem);
  ASSERT_GT(expected->nfont, 0);
  ASSERT_EQ(found->nfont, expected->nfont);
  for (int font = 0; font < found->nfont; ++font)
    EXPECT_TRUE(FcPatternEqual(found->fonts[font], expected->fonts[font]));
  FcConfigDestroy(whole);
}

TEST(DialogFonts, LeavesToFontconfigWhatIsNoWholeConfiguration) {
  const QTemporaryDir directory;
  const std::string path = directory.filePath(QStringLiteral("fonts.conf")).toStdString();
  const test::ScopedEnvironment environment(
      test::ScopedEnvironment::Variables{{"FONTCONFIG_FILE", path}});
  EXPECT_FALSE(readFontConfiguration());
  std::ofstream(path) << "<fontconfig><dir>/usr/share/fonts</dir></fontconfig>";
  EXPECT_FALSE(readFontConfiguration());
  std::ofstream(path) << "<fontconfig><cachedir>" << directory.path().toStdString()
                      << "</cachedir></fontconfig>";
  EXPECT_TRUE(readFontConfiguration());
}

TEST(DialogFonts, HasFontsChosenForItWhereCharactersDifferByLanguage) {
  const test::ScopedEnvironment environment(
      test::ScopedEnvironment::Variables{{"FC_LANG", std::nullopt}});
  preferFontsFor({QStringLiteral("de"), QLocale(QStringLiteral("de_DE"))});
  EXPECT_FALSE(qEnvironmentVariableIsSet("FC_LANG"));
  preferFontsFor({QStringLiteral("zh_TW"), QLocale(QStringLiteral("zh_HK"))});
  EXPECT_EQ(qgetenv("FC_LANG"), "zh_HK");
}

TEST(DialogFonts, LeavesTheUsersOwnChoiceOfFontsAlone) {
  const test::ScopedEnvironment environment(test::ScopedEnvironment::Variables{{"FC_LANG", "ko"}});
  preferFontsFor({QStringLiteral("ja"), QLocale(QStringLiteral("ja_JP"))});
  EXPECT_EQ(qgetenv("FC_LANG"), "ko");
}

}  // namespace

}  // namespace cutline
