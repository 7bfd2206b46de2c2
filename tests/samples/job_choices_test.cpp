#include <gtest/gtest.h>

#include "samples/printer/JobChoices.h"
#include "tests/support/Command.h"

namespace cutline::test {
namespace {

using printer::choicesOf;

const std::string kTapeA = source("samples/ppd/tape-a.ppd");

TEST(JobChoices, AreTheDefaultsOfThePpd) {
  const auto choices = choicesOf(kTapeA, "");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxCutLabel"), "1");
  EXPECT_EQ(choices->at("LxHalfCut"), "OFF");
  EXPECT_EQ(choices->at("PageSize"), "W24H50");
  EXPECT_FALSE(choices->contains("LxTapeType"));
}

TEST(JobChoices, AreOverlaidWithTheJobsOptions) {
  const auto choices = choicesOf(kTapeA, "copies=2 LxHalfCut=ON LxCutLabel=7 PageSize=DC24H50");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxHalfCut"), "ON");
  EXPECT_EQ(choices->at("LxCutLabel"), "7");
  EXPECT_EQ(choices->at("PageSize"), "DC24H50");
}

TEST(JobChoices, KeepTheDefaultOfAnUnknownChoice) {
  const auto choices = choicesOf(kTapeA, "LxHalfCut=MAYBE");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxHalfCut"), "OFF");
}

TEST(JobChoices, NameTheFamily) {
  const auto choices = choicesOf(source("samples/ppd/roll.ppd"), "");
  ASSERT_TRUE(choices);
  EXPECT_EQ(choices->at("LxTapeType"), "WN");
}

TEST(JobChoices, LeaveOutOptionsThatHaveNone) {
  const auto choices = choicesOf(source("tests/samples/ppd/odd-no-default.ppd"), "");
  ASSERT_TRUE(choices);
  EXPECT_FALSE(choices->contains("LxHalfCut"));
}

TEST(JobChoices, AreNoneWithoutAPpd) {
  EXPECT_FALSE(choicesOf("", ""));
  EXPECT_FALSE(choicesOf(source("samples/documents/labels.pdf"), ""));
}

}  // namespace
}  // namespace cutline::test
