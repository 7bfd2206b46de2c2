#include "tests/host/Dialog.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "host/core/CutRules.h"
#include "host/core/OptionTable.h"

namespace cutline {

namespace {

template <typename Kind>
void collect(const View& view, std::vector<Kind*>& found) {
  for (const std::shared_ptr<View>& subview : view.subviews()) {
    auto* control = dynamic_cast<Kind*>(subview.get());
    if (control != nullptr && !control->isHidden()) found.push_back(control);
    collect(*subview, found);
  }
}

template <typename Kind>
std::vector<Kind*> controls(PrintModel& model) {
  std::vector<Kind*> found;
  for (const PanelEntry& panel : model.panels())
    if (panel.view != nullptr) collect(*panel.view, found);
  return found;
}

std::string shownState(PrintModel& model) {
  std::string state;
  for (const CheckBox* box : controls<CheckBox>(model))
    state += box->ppdKeyword() + "=" + std::to_string(box->state()) +
             (box->isEnabled() ? " " : "(grey) ");
  return state;
}

bool begins(const std::string& text, const char* prefix) { return text.starts_with(prefix); }

}  // namespace

PluginLoader& testPlugIns() {
  static PluginLoader loader({CUTLINE_BUILD_DIR "/lib/cutline/plugins"});
  return loader;
}

bool ruleMayChange(const PpdFile& ppd, const std::string& keyword) {
  const std::string paper = ppd.markedChoice("PageSize");
  const bool special = ppd.markedChoice("LxSpecialTape") == "ON";
  if (keyword == "LxHalfCut" || keyword == "LxChainPrint" || keyword == "LxCutMark") return special;
  if (keyword == "LxAutoTapeCut") return special || begins(paper, "HS");
  if (keyword == "LxRemoveBlkSpace") return begins(paper, "DC") || begins(paper, "AV");
  return false;
}

Dialog::Dialog(const AskedSettings& asked) : mPlatform(mToolkit), mModel(testPlugIns(), asked) {}

void Dialog::open(const std::shared_ptr<PpdFile>& ppd, const OptionList& saved) {
  Destination destination;
  destination.name.printer = "test";
  destination.savedOptions = saved;
  mModel.openPrinter({destination, ppd});
  for (const std::string& problem : testPlugIns().takeProblems()) ADD_FAILURE() << problem;
}

std::vector<CheckBox*> Dialog::boxes() { return controls<CheckBox>(mModel); }

std::vector<CheckBox*> Dialog::boxes(const std::string& keyword) {
  std::vector<CheckBox*> found = boxes();
  found.erase(std::remove_if(found.begin(), found.end(),
                             [&](CheckBox* box) { return box->ppdKeyword() != keyword; }),
              found.end());
  return found;
}

PopUpButton* Dialog::presets() {
  const std::vector<PopUpButton*> found = controls<PopUpButton>(mModel);
  return found.empty() ? nullptr : found.front();
}

void Dialog::click(const std::string& keyword) {
  const std::vector<CheckBox*> found = boxes(keyword);
  ASSERT_FALSE(found.empty()) << "no box for " << keyword;
  found.front()->performClick();
}

std::string Dialog::marked(const std::string& keyword) {
  return mModel.ppdFile()->markedChoice(keyword);
}

Choices Dialog::sent() {
  Choices choices;
  for (const auto& [name, value] : mModel.jobOptions()) choices[name] = value;
  return choices;
}

void Dialog::expectHeldTogether(const Choices& wanted) {
  expectShownIsMarked();
  expectMarkedIsSent();
  expectOnlyRulesDiffer(wanted);
  if (testing::Test::HasNonfatalFailure())
    ADD_FAILURE() << "shown: " << shownState(mModel) << " paper " << marked("PageSize");
}

void Dialog::expectShownIsMarked() {
  const OptionTable table(*mModel.ppdFile());
  for (const CheckBox* box : boxes()) {
    const std::string keyword = box->ppdKeyword();
    const auto position = table.position(keyword, marked(keyword));
    if (!position || !box->isEnabled()) continue;
    // Cut marks can be ticked ahead while special tape keeps them off.
    if (keyword == "LxCutMark" && ruleMayChange(*mModel.ppdFile(), keyword)) continue;
    EXPECT_EQ(box->state(), *position) << keyword << " is shown otherwise than marked";
  }
}

void Dialog::expectMarkedIsSent() {
  const Choices job = sent();
  for (const std::string_view name : kCutKeywords) {
    const std::string keyword(name);
    if (!mModel.ppdFile()->hasOption(keyword) || marked(keyword).empty()) continue;
    const auto entry = job.find(keyword);
    ASSERT_NE(entry, job.end()) << keyword << " is not sent";
    EXPECT_EQ(entry->second, marked(keyword)) << keyword;
  }
}

void Dialog::expectOnlyRulesDiffer(const Choices& wanted) {
  std::map<std::string, Deviation> reported;
  for (const Deviation& deviation : mModel.deviations()) reported[deviation.keyword] = deviation;
  for (const auto& [keyword, choice] : wanted) {
    if (marked(keyword) == choice) {
      EXPECT_FALSE(reported.contains(keyword)) << keyword << " is reported but as wanted";
      continue;
    }
    EXPECT_TRUE(ruleMayChange(*mModel.ppdFile(), keyword))
        << keyword << ": " << choice << " was wanted, " << marked(keyword)
        << " is sent, and no rule explains it";
    ASSERT_TRUE(reported.contains(keyword)) << keyword << " is changed and not reported";
    EXPECT_EQ(reported[keyword].asked, choice);
    EXPECT_EQ(reported[keyword].sent, marked(keyword));
  }
}

void Dialog::expectSettled() {
  const Choices before = sent();
  const std::string shownBefore = shownState(mModel);
  ASSERT_TRUE(mModel.prepareToPrint());
  EXPECT_EQ(sent(), before);
  EXPECT_EQ(shownState(mModel), shownBefore);
}

}  // namespace cutline
