#include "tests/host/RandomUser.h"

#include <gtest/gtest.h>

#include <iterator>

#include "host/core/CutRules.h"

namespace cutline {

namespace {

using test::kTestPapers;
using test::TestPrinter;

constexpr const char* kAutoCutHidden[] = {"", "True", "False", "Perhaps"};

template <typename Container>
auto& oneOf(Container& container, const RandomUser::Dice& dice) {
  auto entry = std::begin(container);
  std::advance(entry, dice(std::size(container)));
  return *entry;
}

}  // namespace

void RandomUser::usePrinter(unsigned number) {
  mPrinter = printerOf(number);
  mStory = "printer " + std::to_string(number) + " on " + mPrinter.paper + ":";
  mDialog.open(test::ppdFor(mPrinter));
  mWishes.emplace(*mDialog.model().ppdFile(), mPrinter.cutOptions);
}

void RandomUser::act() {
  static constexpr void (RandomUser::*kActions[])() = {
      &RandomUser::choosePaper,   &RandomUser::choosePreset,    &RandomUser::choosePreset,
      &RandomUser::keepAndChoose, &RandomUser::goBack,          &RandomUser::remember,
      &RandomUser::remember,      &RandomUser::chooseInTheList, &RandomUser::typeCount,
      &RandomUser::clickSomeBox,  &RandomUser::clickSomeBox,    &RandomUser::clickSomeBox,
      &RandomUser::clickSomeBox};
  (this->*kActions[below(std::size(kActions))])();
}

void RandomUser::expectAllReachable() {
  const std::set<std::string> boxes = mDialog.boxKeywords();
  const std::set<std::string> listed = mDialog.generatedCutKeywords();
  for (const auto& [keyword, choice] : mPrinter.cutOptions) {
    const bool byBox = boxes.contains(keyword) && !mPrinter.offersAuto.contains(keyword);
    const bool byField = keyword == "LxCutLabel" && boxes.contains("LxAutoTapeCut");
    EXPECT_EQ(listed.contains(keyword), !byBox && !byField) << keyword;
  }
}

bool RandomUser::showsAutoCutBox() const {
  return mPrinter.autoCutHidden == "False" && mPrinter.cutOptions.contains("LxAutoTapeCut");
}

TestPrinter RandomUser::printerOf(unsigned number) {
  TestPrinter printer;
  for (const std::string_view name : kCutKeywords) {
    const std::string keyword(name);
    if ((number & 1U) != 0)
      printer.cutOptions[keyword] =
          keyword == "LxCutLabel" ? (coin() ? "1" : "3") : (coin() ? "ON" : "OFF");
    number >>= 1U;
  }
  printer.isRoll = (number & 1U) != 0;
  printer.autoCutHidden = kAutoCutHidden[(number >> 1U) & 3U];
  if (((number >> 3U) & 1U) != 0) addThirdChoices(printer);
  printer.paper = oneOf(kTestPapers, mDice);
  return printer;
}

void RandomUser::addThirdChoices(TestPrinter& printer) {
  for (auto& [keyword, choice] : printer.cutOptions)
    if (keyword != "LxCutLabel" && coin()) printer.offersAuto.insert(keyword);
}

void RandomUser::clickSomeBox() {
  const std::vector<CheckBox*> boxes = mDialog.boxes();
  if (boxes.empty()) return;
  CheckBox* box = oneOf(boxes, mDice);
  if (!box->isEnabled()) return;
  mStory += " click " + box->ppdKeyword();
  const bool turnsOn = box->state() == CheckBox::kOff;
  box->performClick();
  mWishes->switchTo(box->ppdKeyword(), turnsOn);
}

void RandomUser::typeCount() {
  PlainTextField* field = mDialog.countField();
  if (field == nullptr || !field->isEnabled()) return;
  const std::string count = std::to_string(1 + below(9));
  mStory += " count " + count;
  field->typeText(count);
  mWishes->want("LxCutLabel", count);
}

void RandomUser::choosePaper() {
  const std::string paper = oneOf(kTestPapers, mDice);
  mStory += " paper " + paper;
  ASSERT_TRUE(mDialog.model().setPaper(paper));
  mWishes->choosePaper(paper);
}

void RandomUser::choosePreset() {
  PopUpButton* presets = mDialog.presets();
  if (presets == nullptr || presets->items().empty()) return;
  const auto items = presets->items();
  const int tag = oneOf(items, mDice).tag;
  mStory += " preset " + std::to_string(tag);
  ASSERT_TRUE(presets->performSelection(tag));
  mWishes->choosePreset(tag, showsAutoCutBox());
}

void RandomUser::chooseInTheList() {
  std::vector<std::pair<std::string, std::string>> offered;
  for (const OptionGroup& group : mDialog.model().generatedOptions())
    for (const PpdOption& each : group.options)
      for (const OptionChoice& choice : each.choices)
        offered.emplace_back(each.keyword, choice.name);
  if (offered.empty()) return;
  const auto& [keyword, choice] = oneOf(offered, mDice);
  mStory += " choose " + keyword + "=" + choice;
  ASSERT_TRUE(mDialog.model().setOption(keyword, choice));
  mWishes->want(keyword, choice);
}

// A preset is kept, and chosen again after something else was done: what was wanted then is
// wanted now. Its paper is chosen with it.
void RandomUser::keepAndChoose() {
  mStory += " keep";
  const Result<OptionList> preset = mDialog.model().savePreset();
  ASSERT_TRUE(preset);
  check();
  Wishes kept = *mWishes;
  const std::string paper = mDialog.marked("PageSize");
  if (coin()) clickSomeBox();
  if (coin()) choosePaper();
  mStory += " choose it";
  ASSERT_TRUE(mDialog.model().applyPreset(*preset));
  kept.choosePaper(paper);
  *mWishes = kept;
}

// Undo: everything is wanted as it was then, whatever was done since, and shown, marked and sent.
void RandomUser::goBack() {
  if (mSteps.empty()) return;
  const auto& [settings, wishes] = oneOf(mSteps, mDice);
  mStory += " undo";
  mDialog.model().restore(settings);
  *mWishes = wishes;
  EXPECT_EQ(mDialog.model().settings(), settings);
}

}  // namespace cutline
