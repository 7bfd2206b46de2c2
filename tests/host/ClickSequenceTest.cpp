// A user at work: random clicks, presets of the pop-up, papers and printer switches, thousands of
// them, always with the same seeds. After each the dialog holds together.
#include <gtest/gtest.h>

#include <random>

#include "host/core/CutRules.h"
#include "tests/host/Dialog.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

constexpr int kPrinters = 100;
constexpr int kActionsEach = 30;

class User {
 public:
  explicit User(unsigned seed) : mRandom(seed) {}

  void usePrinter() {
    mPrinter = randomPrinter();
    mDialog.open(test::ppdFor(mPrinter));
    mWanted = mPrinter.cutOptions;
    mDialog.expectHeldTogether(mWanted);
  }

  void act() {
    switch (below(8)) {
      case 0:
        return choosePaper();
      case 1:
        return choosePreset();
      case 2:
        return storeAndRestore();
      default:
        return clickSomeBox();
    }
  }

  void check() { mDialog.expectHeldTogether(mWanted); }
  const std::string& story() const { return mStory; }

 private:
  unsigned below(unsigned limit) { return static_cast<unsigned>(mRandom() % limit); }
  bool coin() { return below(2) == 1; }

  test::TestPrinter randomPrinter() {
    test::TestPrinter printer;
    for (const std::string_view keyword : kCutKeywords) {
      if (below(5) == 0) continue;
      const std::string text(keyword);
      printer.cutOptions[text] =
          text == "LxCutLabel" ? (coin() ? "1" : "3") : (coin() ? "ON" : "OFF");
    }
    if (printer.cutOptions.empty()) printer.cutOptions["LxHalfCut"] = "ON";
    printer.showsAutoCut = coin();
    printer.isRoll = below(4) == 0;
    return printer;
  }

  void clickSomeBox() {
    const std::vector<CheckBox*> boxes = mDialog.boxes();
    if (boxes.empty()) return;
    CheckBox* box = boxes[below(static_cast<unsigned>(boxes.size()))];
    if (!box->isEnabled()) return;
    mStory += " click " + box->ppdKeyword();
    const bool turnsOn = box->state() == CheckBox::kOff;
    box->performClick();
    if (mWanted.contains(box->ppdKeyword())) mWanted[box->ppdKeyword()] = turnsOn ? "ON" : "OFF";
  }

  void choosePaper() {
    const std::string paper = test::kTestPapers[below(std::size(test::kTestPapers))];
    mStory += " paper " + paper;
    ASSERT_TRUE(mDialog.model().setPaper(paper));
  }

  // What a picture shows is wanted: each box that can be used, as it stands then.
  void choosePreset() {
    PopUpButton* presets = mDialog.presets();
    if (presets == nullptr || presets->items().empty()) return;
    const auto items = presets->items();
    const int tag = items[below(static_cast<unsigned>(items.size()))].tag;
    mStory += " preset " + std::to_string(tag);
    ASSERT_TRUE(presets->performSelection(tag));
    for (const CheckBox* box : mDialog.boxes())
      if (box->isEnabled() && mWanted.contains(box->ppdKeyword()))
        mWanted[box->ppdKeyword()] = box->state() == CheckBox::kOn ? "ON" : "OFF";
  }

  void storeAndRestore() {
    mStory += " store";
    const Result<OptionList> preset = mDialog.model().savePreset();
    ASSERT_TRUE(preset);
    check();
    ASSERT_TRUE(mDialog.model().applyPreset(*preset));
    for (auto& [keyword, choice] : mWanted)
      for (const auto& [name, value] : *preset)
        if (name == keyword) choice = value;
  }

  std::mt19937 mRandom;
  Dialog mDialog;
  test::TestPrinter mPrinter;
  Choices mWanted;
  std::string mStory;
};

TEST(ClickSequence, HoldsTogetherWhateverTheUserDoes) {
  for (unsigned seed = 0; seed < kPrinters; ++seed) {
    User user(seed);
    user.usePrinter();
    for (int i = 0; i < kActionsEach && !HasFailure(); ++i) {
      user.act();
      user.check();
    }
    ASSERT_FALSE(HasFailure()) << "seed " << seed << ":" << user.story();
  }
}

}  // namespace
}  // namespace cutline
