#include "bundle/preview/PictureWords.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/lib/DirectoryBundle.h"
#include "tests/bundle/TestBundle.h"
#include "tests/support/TemporaryBundle.h"

namespace cutline::test {
namespace {

PictureWords englishWords() {
  const ScopedEnvironment english(languageEnvironment({}));
  const auto bundle =
      DirectoryBundle::open(CUTLINE_BUILD_DIR "/lib/cutline/plugins/CutOptions.plugin");
  return PictureWords(bundle.get());
}

struct Row {
  ShownOptions shown;
  const char* words;
};

TEST(PictureWords, SayWhatATapesPictureShows) {
  const PictureWords words = englishWords();
  const Row rows[] = {
      {{.cut = true, .halfCut = true, .offersHalfCut = true, .offersMirror = true},
       "Auto cut on, half cut between labels, not mirrored"},
      {{.offersHalfCut = true, .offersMirror = true}, "Auto cut off, no half cut, not mirrored"},
      {{.mirror = true, .chainPrint = true, .offersHalfCut = true, .offersMirror = true},
       "Auto cut off, no half cut, chain printing, mirrored"},
      {{.cut = true, .cutAtEnd = true}, "Auto cut on"},
      {{.specialTape = true, .offersHalfCut = true, .offersMirror = true},
       "Special tape, not cut, not mirrored"},
      {{.specialTape = true, .mirror = true, .offersMirror = true},
       "Special tape, not cut, mirrored"},
  };
  for (const Row& row : rows) EXPECT_EQ(words.describe(row.shown), row.words);
}

TEST(PictureWords, SayWhatARollsPictureShows) {
  const PictureWords words = englishWords();
  const Row rows[] = {
      {{.isWN = true, .offersMirror = true}, "Not cut, not mirrored"},
      {{.isWN = true, .cut = true, .cutAtEnd = true}, "Cut between labels"},
      {{.isWN = true, .cutAtEnd = true, .mirror = true, .offersMirror = true},
       "Cut only after the last label, mirrored"},
      {{.isWN = true, .specialTape = true}, "Not cut"},
  };
  for (const Row& row : rows) EXPECT_EQ(words.describe(row.shown), row.words);
}

// No roll's picture shows them.
TEST(PictureWords, SayNothingOfHalfCutAndChainPrintingOnRolls) {
  const PictureWords words = englishWords();
  EXPECT_EQ(
      words.describe({.isWN = true, .halfCut = true, .chainPrint = true, .offersHalfCut = true}),
      "Not cut");
}

TEST(PictureWords, AreJoinedAsTheLanguageJoins) {
  TestBundle bundle;
  bundle.strings = {{"RS_Picture_AutoCutOff", "A"},
                    {"RS_Picture_HalfCutOn", "B"},
                    {"RS_Picture_Separator", "\u3001"}};
  EXPECT_EQ(PictureWords(&bundle).describe({.halfCut = true, .offersHalfCut = true}), "A\u3001B");
}

TEST(PictureWords, AreNoneWithoutABundle) {
  EXPECT_EQ(PictureWords(nullptr).describe({.cut = true, .offersMirror = true}), "");
  EXPECT_EQ(PictureWords().describe({}), "");
}

}  // namespace
}  // namespace cutline::test
