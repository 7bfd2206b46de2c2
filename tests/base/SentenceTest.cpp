// Sentences in English, as the command line says them.
#include <gtest/gtest.h>

#include "base/Result.h"
#include "base/Sentence.h"

namespace cutline {

namespace {

TEST(Sentence, SaysNothingByItself) { EXPECT_EQ(Sentence().english(), ""); }

TEST(Sentence, AVerbatimTextIsItself) {
  const Sentence name(std::string("100%1 &c"));
  EXPECT_FALSE(name.phrase());
  EXPECT_EQ(name.english(), "100%1 &c");
}

TEST(Sentence, PlacesAreFilledByNumberAndAsOftenAsTheyStandThere) {
  const Sentence sentence(Phrase("test", "%2 before %1, and %2 again"), {"one", "two"});
  EXPECT_EQ(sentence.english(), "two before one, and two again");
}

TEST(Sentence, WhatIsPutInIsNoPlace) {
  const Sentence sentence(Phrase("test", "%1 and %2"), {"%2", "two"});
  EXPECT_EQ(sentence.english(), "%2 and two");
}

TEST(Sentence, ArgumentsMayBeSentences) {
  const Sentence inner(Phrase("test", "inside of %1"), {"it"});
  EXPECT_EQ(Sentence(Phrase("test", "[%1]"), {inner}).english(), "[inside of it]");
}

TEST(Sentence, APlaceWithoutArgumentIsLeftEmpty) {
  EXPECT_EQ(Sentence(Phrase("test", "a%3b"), {"one"}).english(), "ab");
}

TEST(Sentence, APercentSignWithoutNumberStays) {
  EXPECT_EQ(Sentence(Phrase("test", "50% of %x 100%"), {"one"}).english(), "50% of %x 100%");
}

TEST(Sentence, RemarksFollowAState) {
  const Sentence state = Phrase("test", "Ready");
  EXPECT_EQ(withRemarks(state, {}).english(), "Ready");
  EXPECT_EQ(withRemarks(state, {Sentence("a")}).english(), "Ready - a");
  EXPECT_EQ(withRemarks(state, {Sentence("a"), Sentence("b"), Sentence("c")}).english(),
            "Ready - a, b, c");
}

TEST(Error, SaysTheSameInEnglishAndAsASentence) {
  const Error error = Sentence(Phrase("test", "%1 failed"), {"it"});
  EXPECT_EQ(error.message, "it failed");
  EXPECT_EQ(error.sentence.english(), "it failed");
  const Error verbatim("words");
  EXPECT_EQ(verbatim.message, "words");
  EXPECT_FALSE(verbatim.sentence.phrase());
}

}  // namespace

}  // namespace cutline
