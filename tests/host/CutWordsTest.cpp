// What words make of a driver's choices.
#include <gtest/gtest.h>

#include <map>

#include "host/core/CutWordsText.h"

namespace cutline {
namespace {

using Chosen = std::map<std::string, std::string>;

CutSettings settingsOf(const std::string& text, const Chosen& chosen,
                       const std::vector<std::string>& filters = {}) {
  const CutWordsText read = cutWordsIn(text, "words");
  EXPECT_TRUE(read.problems.empty()) << read.problems.front().english();
  return settingsIn(
      read.words,
      [&](const std::string& option) {
        const auto found = chosen.find(option);
        return found == chosen.end() ? std::string() : found->second;
      },
      filters);
}

TEST(CutWords, SayNothingOfADriverThatTheyDoNotName) {
  EXPECT_EQ(settingsOf("A on cut=label", {}).authority, CutAuthority::Nobody);
  EXPECT_EQ(settingsOf("A on cut=label", {{"A", "off"}}).authority, CutAuthority::Nobody);
  EXPECT_EQ(settingsOf("A on mirror=on", {{"A", "on"}}).authority, CutAuthority::Nobody);
  EXPECT_TRUE(settingsOf("A on mirror=on", {{"A", "on"}}).mirrors);
}

struct Row {
  const char* place;
  CutAuthority authority;
  bool cutsAutomatically, cutsAtEnd;
  CutUnit unit;
};
constexpr Row kRows[] = {
    {"never", CutAuthority::Settings, false, false, CutUnit::Label},
    {"label", CutAuthority::Settings, true, false, CutUnit::Label},
    {"page", CutAuthority::Settings, true, false, CutUnit::Page},
    {"copy", CutAuthority::Settings, true, false, CutUnit::Copy},
    {"document", CutAuthority::Settings, true, false, CutUnit::Document},
    {"job", CutAuthority::Settings, false, true, CutUnit::Label},
    {"printer", CutAuthority::Printer, false, false, CutUnit::Label},
};

TEST(CutWords, SayWhereItIsCut) {
  for (const Row& row : kRows) {
    const CutSettings settings = settingsOf(std::string("A on cut=") + row.place, {{"A", "ON"}});
    EXPECT_EQ(settings.authority, row.authority) << row.place;
    EXPECT_EQ(settings.cutsAutomatically, row.cutsAutomatically) << row.place;
    EXPECT_EQ(settings.cutsAtEnd, row.cutsAtEnd) << row.place;
    EXPECT_EQ(settings.unit, row.unit) << row.place;
    EXPECT_TRUE(settings.isRoll) << row.place;
  }
}

TEST(CutWords, CountWithTheChoicesNumber) {
  constexpr const char* kText = "A NUMBER every=NUMBER cut=label";
  EXPECT_EQ(settingsOf(kText, {{"A", "3"}}).labelsPerCut, 3U);
  EXPECT_FALSE(settingsOf(kText, {{"A", "3"}}).cutsRest);
  EXPECT_TRUE(settingsOf("A NUMBER cut=label every=4 rest=on", {{"A", "3"}}).cutsRest);
  EXPECT_EQ(settingsOf("A NUMBER cut=label every=4", {{"A", "3"}}).labelsPerCut, 4U);
  for (const char* none : {"0", "-1", "None", "3x", "99999999999"})
    EXPECT_EQ(settingsOf(kText, {{"A", none}}).authority, CutAuthority::Nobody) << none;
}

TEST(CutWords, LaterOnesWin) {
  constexpr const char* kText = "A on cut=label\nB on cut=never\nA on half=on\n";
  const CutSettings settings = settingsOf(kText, {{"A", "on"}, {"B", "on"}});
  EXPECT_FALSE(settings.cutsAutomatically);
  EXPECT_TRUE(settings.halfCuts);
  // A place starts the counting anew.
  EXPECT_EQ(settingsOf("A on cut=label every=3\nA on cut=label\n", {{"A", "on"}}).labelsPerCut, 1U);
}

TEST(CutWords, CanHangOnAnotherOption) {
  constexpr const char* kText = "A on cut=label if B=on\n";
  EXPECT_TRUE(settingsOf(kText, {{"A", "on"}, {"B", "on"}}).cutsAutomatically);
  EXPECT_EQ(settingsOf(kText, {{"A", "on"}, {"B", "off"}}).authority, CutAuthority::Nobody);
  EXPECT_EQ(settingsOf(kText, {{"A", "on"}}).authority, CutAuthority::Nobody);
}

TEST(CutWords, CanHangOnTheFilter) {
  constexpr const char* kText = "A on cut=never with one\nA on cut=job with other if B=on\n";
  const Chosen chosen = {{"A", "on"}, {"B", "on"}};
  EXPECT_EQ(settingsOf(kText, chosen).authority, CutAuthority::Nobody);
  EXPECT_FALSE(settingsOf(kText, chosen, {"one"}).cutsAtEnd);
  EXPECT_TRUE(settingsOf(kText, chosen, {"one", "other"}).cutsAtEnd);
  const CutWords words = cutWordsIn(kText, "words").words;
  EXPECT_EQ(optionsIn(words, {"one"}), (std::vector<std::string>{"A"}));
  EXPECT_EQ(optionsIn(words, {"other"}), (std::vector<std::string>{"A", "B"}));
}

TEST(CutWords, KnowEveryEffect) {
  const CutSettings settings = settingsOf(
      "A on cut=label half=on chain=on special=on marks=on no-blank=on mirror=on leader=8.5 feed=0",
      {{"A", "on"}});
  for (const bool CutSettings::*flag :
       {&CutSettings::halfCuts, &CutSettings::chains, &CutSettings::isSpecialTape,
        &CutSettings::printsCutMarks, &CutSettings::removesBlankSpace, &CutSettings::mirrors})
    EXPECT_TRUE(settings.*flag);
  EXPECT_EQ(settings.leader, 8.5);
  EXPECT_EQ(settings.feed, 0.0);
}

}  // namespace
}  // namespace cutline
