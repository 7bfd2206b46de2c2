// The string tables themselves: complete, translated, cleanly typed, and spelt with the fonts.
#include <gtest/gtest.h>

#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "qt/QtText.h"
#include "tests/languages/Language.h"
#include "tests/languages/StagedBundle.h"

namespace cutline {
namespace {

const std::string kEnglish = "en";
constexpr char kSeparator[] = "RS_Picture_Separator";

// Texts that a language has in common with English, by folder and key.
const std::set<std::pair<std::string, std::string>> kSameAsEnglish = {
    {"nl", "RS_Labels"}, {"es", "RS_STitle_No"}, {"it", "RS_STitle_No"}, {"de", kSeparator},
    {"fr", kSeparator},  {"es", kSeparator},     {"it", kSeparator},     {"nl", kSeparator},
    {"pt", kSeparator},  {"ko", kSeparator},
};

// Words for an option without a text of its own, and for its box.
constexpr std::pair<const char*, const char*> kKeywordsAndBoxes[] = {
    {"LxCutMark", "RS_CutMark"},
    {"LxCutLabel", "RS_CutAtEvery"},
    {"LxAutoTapeCut", "RS_AutoTapeCut"},
    {"LxCutAtEnd", "RS_CutAtEnd"},
    {"LxHalfCut", "RS_HalfCut"},
    {"LxSpecialTape", "RS_SpecialTape"},
    {"LxChainPrint", "RS_ChainPrinting"},
    {"LxMirror", "RS_MirrorPrinting"},
    {"LxRemoveBlkSpace", "RS_RemoveBlkSpace"},
};

// The preview's words stand in one sentence: some begin it, the others go on.
constexpr const char* kFirstPictureWords[] = {"RS_Picture_AutoCutOn",   "RS_Picture_AutoCutOff",
                                              "RS_Picture_SpecialTape", "RS_Picture_CutEvery",
                                              "RS_Picture_CutAtEnd",    "RS_Picture_NoCut"};
constexpr const char* kLaterPictureWords[] = {"RS_Picture_HalfCutOn", "RS_Picture_HalfCutOff",
                                              "RS_Picture_ChainPrint", "RS_Picture_Mirrored",
                                              "RS_Picture_NotMirrored"};

std::vector<std::string> keysOf(const StringTable& table) {
  std::vector<std::string> keys;
  for (const auto& [key, text] : table) keys.push_back(key);
  return keys;
}

bool isStray(QChar character) {
  return character.category() == QChar::Other_Control ||
         character.category() == QChar::Other_Format || character == QChar::ReplacementCharacter;
}

bool hasEveryGlyph(const QString& text) {
  QTextLayout layout(text, QFont(QStringLiteral("DejaVu Sans")));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  const auto runs = layout.glyphRuns();
  return !runs.isEmpty() && std::none_of(runs.begin(), runs.end(), [](const QGlyphRun& run) {
    return run.glyphIndexes().contains(0);
  });
}

class StringTables : public testing::TestWithParam<Language> {
 protected:
  std::string folder() const { return GetParam().folder; }
  const StringTable& table() const { return mTable; }

 private:
  StringTable mTable = stringTable(GetParam().folder);
};

TEST_P(StringTables, HaveTheKeysOfEnglish) {
  EXPECT_FALSE(table().empty());
  EXPECT_EQ(keysOf(table()), keysOf(stringTable(kEnglish)));
}

TEST_P(StringTables, SaySomethingForEveryKey) {
  for (const auto& [key, text] : table()) {
    EXPECT_FALSE(text.empty()) << key;
    EXPECT_NE(text, key);
  }
}

TEST_P(StringTables, LeaveNothingInEnglishByOversight) {
  if (folder() == kEnglish) return;
  for (const auto& [key, english] : stringTable(kEnglish)) {
    EXPECT_EQ(table().at(key) == english, kSameAsEnglish.count({folder(), key}) == 1)
        << key << ": " << english;
  }
}

TEST_P(StringTables, AreTypedCleanly) {
  for (const auto& [key, utf8] : table()) {
    const QString text = toQString(utf8);
    EXPECT_EQ(text.toStdString(), utf8) << key;
    EXPECT_EQ(text, text.normalized(QString::NormalizationForm_C)) << key;
    EXPECT_TRUE(std::none_of(text.begin(), text.end(), isStray)) << key;
    EXPECT_FALSE(text.contains(QStringLiteral("  "))) << key;
    EXPECT_TRUE(text == text.trimmed() || key == kSeparator) << key;
  }
}

TEST_P(StringTables, CallAnOptionWithoutATextAsItsBox) {
  for (const auto& [keyword, box] : kKeywordsAndBoxes) {
    EXPECT_EQ(table().at(keyword), table().at(box)) << keyword;
  }
}

TEST_P(StringTables, TellThePresetsOfAPrinterApart) {
  const std::string preset = "RS_Preset_";
  std::map<bool, std::set<std::string>> wordsOfFamily;
  for (const auto& [key, text] : table()) {
    if (!key.starts_with(preset)) continue;
    const bool isRoll = key.starts_with(preset + "EveryEnd");
    EXPECT_TRUE(wordsOfFamily[isRoll].insert(text).second) << key << ": " << text;
  }
  const std::string& onRolls = table().at("RS_RollPreset_AHCMOnOffOffOff");
  EXPECT_TRUE(wordsOfFamily[true].insert(onRolls).second) << onRolls;
  EXPECT_EQ(wordsOfFamily[true].size(), 4U);
  EXPECT_EQ(wordsOfFamily[false].size(), 13U);
}

TEST_P(StringTables, WriteThePicturesWordsAsOneSentence) {
  for (const char* key : kFirstPictureWords) {
    EXPECT_FALSE(toQString(table().at(key)).front().isLower()) << key;
  }
  for (const char* key : kLaterPictureWords) {
    EXPECT_FALSE(toQString(table().at(key)).front().isUpper()) << key;
  }
}

TEST_P(StringTables, AreSpeltWithTheFonts) {
  for (const auto& [key, text] : table()) EXPECT_TRUE(hasEveryGlyph(toQString(text))) << key;
}

INSTANTIATE_TEST_SUITE_P(Languages, StringTables, testing::ValuesIn(kLanguages),
                         [](const auto& language) { return nameOf(language.param); });

TEST(StringTableFolders, AreThoseOfTheLanguages) {
  std::set<std::string> found;
  for (const auto& entry :
       std::filesystem::directory_iterator(CUTLINE_SOURCE_DIR "/bundle/resources")) {
    if (entry.path().extension() == ".lproj") found.insert(entry.path().stem());
  }
  std::set<std::string> expected;
  for (const Language& language : kLanguages) expected.insert(language.folder);
  EXPECT_EQ(found, expected);
}

TEST(FontsOfTheTests, AreInstalled) {
  for (const char* family : {"DejaVu Sans", "Noto Sans CJK JP"}) {
    EXPECT_TRUE(QFontDatabase::hasFamily(QLatin1String(family))) << family;
  }
}

TEST(FontsOfTheTests, LackSomeCharacters) {
  EXPECT_FALSE(hasEveryGlyph(QString::fromUcs4(U"\U0001E100")));
}

}  // namespace
}  // namespace cutline
