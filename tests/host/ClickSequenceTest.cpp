// A user at work: random clicks, counts, presets of the pop-up, other options, papers, and presets
// kept and chosen, undo, on printers of every make-up, always with the same seeds. After each the
// dialog holds together.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "host/core/CutRules.h"
#include "tests/host/Dialog.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

using test::kTestPapers;
using test::ppdFor;
using test::TestPrinter;

constexpr unsigned kActionsEach = 60;
constexpr unsigned kQuickSeeds = 100;

bool isLong() {
  const char* value = std::getenv("CUTLINE_LONG_TESTS");
  return value != nullptr && std::string(value) == "1";
}

// The printers are numbered: a bit for each of the nine options, one for the family, two for the
// attribute that hides automatic cutting, and one for third choices. Walking by a step that has no
// common divisor with their number meets each of them once, the unlike ones early.
constexpr unsigned kPrinters = 512U * 2 * 4 * 2;
constexpr unsigned kStep = 2999;
// The long form meets every printer.
constexpr unsigned kLongSeeds = kPrinters;
constexpr const char* kAutoCutHidden[] = {"", "True", "False", "Perhaps"};

class User {
 public:
  explicit User(unsigned seed) : mRandom(seed) {}

  void usePrinter(unsigned number) {
    mPrinter = printerOf(number);
    mStory = "printer " + std::to_string(number) + " on " + mPrinter.paper + ":";
    mDialog.open(ppdFor(mPrinter));
    mWishes.emplace(*mDialog.model().ppdFile(), mPrinter.cutOptions);
  }

  void act() {
    static constexpr void (User::*kActions[])() = {
        &User::choosePaper, &User::choosePreset, &User::choosePreset, &User::keepAndChoose,
        &User::goBack,      &User::remember,     &User::remember,     &User::chooseInTheList,
        &User::typeCount,   &User::clickSomeBox, &User::clickSomeBox, &User::clickSomeBox,
        &User::clickSomeBox};
    (this->*kActions[below(std::size(kActions))])();
  }

  void check() { mDialog.expectHeldTogether(*mWishes); }
  const std::string& story() const { return mStory; }

  // An option's choices are a box's two, a number that can be typed, or a list of their own.
  void expectAllReachable() {
    const std::set<std::string> boxes = mDialog.boxKeywords();
    const std::set<std::string> listed = mDialog.generatedCutKeywords();
    for (const auto& [keyword, choice] : mPrinter.cutOptions) {
      const bool byBox = boxes.contains(keyword) && !mPrinter.offersAuto.contains(keyword);
      const bool byField = keyword == "LxCutLabel" && boxes.contains("LxAutoTapeCut");
      EXPECT_EQ(listed.contains(keyword), !byBox && !byField) << keyword;
    }
  }

 private:
  unsigned below(std::size_t limit) { return static_cast<unsigned>(mRandom() % limit); }
  bool coin() { return below(2) == 1; }
  template <typename Container>
  auto& oneOf(Container& container) {
    auto entry = std::begin(container);
    std::advance(entry, below(std::size(container)));
    return *entry;
  }
  bool showsAutoCutBox() const {
    return mPrinter.autoCutHidden == "False" && mPrinter.cutOptions.contains("LxAutoTapeCut");
  }

  TestPrinter printerOf(unsigned number) {
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
    printer.paper = oneOf(kTestPapers);
    return printer;
  }

  void addThirdChoices(TestPrinter& printer) {
    for (auto& [keyword, choice] : printer.cutOptions)
      if (keyword != "LxCutLabel" && coin()) printer.offersAuto.insert(keyword);
  }

  void clickSomeBox() {
    const std::vector<CheckBox*> boxes = mDialog.boxes();
    if (boxes.empty()) return;
    CheckBox* box = oneOf(boxes);
    if (!box->isEnabled()) return;
    mStory += " click " + box->ppdKeyword();
    const bool turnsOn = box->state() == CheckBox::kOff;
    box->performClick();
    mWishes->switchTo(box->ppdKeyword(), turnsOn);
  }

  void typeCount() {
    PlainTextField* field = mDialog.countField();
    if (field == nullptr || !field->isEnabled()) return;
    const std::string count = std::to_string(1 + below(9));
    mStory += " count " + count;
    field->typeText(count);
    mWishes->want("LxCutLabel", count);
  }

  void choosePaper() {
    const std::string paper = oneOf(kTestPapers);
    mStory += " paper " + paper;
    ASSERT_TRUE(mDialog.model().setPaper(paper));
    mWishes->choosePaper(paper);
  }

  void choosePreset() {
    PopUpButton* presets = mDialog.presets();
    if (presets == nullptr || presets->items().empty()) return;
    const auto items = presets->items();
    const int tag = oneOf(items).tag;
    mStory += " preset " + std::to_string(tag);
    ASSERT_TRUE(presets->performSelection(tag));
    mWishes->choosePreset(tag, showsAutoCutBox());
  }

  void chooseInTheList() {
    std::vector<std::pair<std::string, std::string>> offered;
    for (const GeneratedGroup& group : mDialog.model().generatedOptions())
      for (const GeneratedOption& each : group.options)
        for (const OptionChoice& choice : each.option.choices)
          offered.emplace_back(each.option.keyword, choice.name);
    if (offered.empty()) return;
    const auto& [keyword, choice] = oneOf(offered);
    mStory += " choose " + keyword + "=" + choice;
    ASSERT_TRUE(mDialog.model().setOption(keyword, choice));
    mWishes->want(keyword, choice);
  }

  // A preset is kept, and chosen again after something else was done: what was wanted then is
  // wanted now. Its paper is chosen with it.
  void keepAndChoose() {
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

  void remember() { mSteps.emplace_back(mDialog.model().settings(), *mWishes); }

  // Undo: everything is wanted as it was then, whatever was done since, and shown, marked and sent.
  void goBack() {
    if (mSteps.empty()) return;
    const auto& [settings, wishes] = oneOf(mSteps);
    mStory += " undo";
    mDialog.model().restore(settings);
    *mWishes = wishes;
    EXPECT_EQ(mDialog.model().settings(), settings);
  }

  std::mt19937 mRandom;
  std::vector<std::pair<Settings, Wishes>> mSteps;
  Dialog mDialog;
  TestPrinter mPrinter;
  std::optional<Wishes> mWishes;
  std::string mStory;
};

TEST(ClickSequence, HoldsTogetherWhateverTheUserDoes) {
  const unsigned seeds = isLong() ? kLongSeeds : kQuickSeeds;
  for (unsigned seed = 0; seed < seeds; ++seed) {
    User user(seed);
    user.usePrinter(seed * kStep % kPrinters);
    user.check();
    for (unsigned i = 0; i < kActionsEach && !testing::Test::HasFailure(); ++i) {
      user.act();
      user.check();
    }
    ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", " << user.story();
  }
}

// Which of the panel's options are left without a control that reaches each choice.
TEST(ClickSequence, EachChoiceOfEveryPrinterCanBeReached) {
  for (unsigned number = 0; number < kPrinters; number += 41) {
    User user(number);
    user.usePrinter(number);
    user.expectAllReachable();
    ASSERT_FALSE(testing::Test::HasFailure()) << user.story();
  }
}

}  // namespace
}  // namespace cutline
