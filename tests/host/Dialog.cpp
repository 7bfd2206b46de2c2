#include "tests/host/Dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "host/core/CutRules.h"
#include "host/core/OptionTable.h"
#include "plain/PlainView.h"
#include "plain/RecordingDrawingContext.h"
#include "tests/host/Controls.h"

namespace cutline {

namespace {

std::string shownState(PrintModel& model) {
  std::string state;
  for (const CheckBox* box : test::shownControls<CheckBox>(model))
    state += box->ppdKeyword() + "=" + std::to_string(box->state()) +
             (box->isEnabled() ? " " : "(grey) ");
  return state;
}

}  // namespace

PluginLoader& testPlugIns() {
  static PluginLoader loader({CUTLINE_BUILD_DIR "/lib/cutline/plugins"});
  return loader;
}

Dialog::Dialog(const AskedSettings& asked) : mPlatform(mToolkit), mModel(testPlugIns(), asked) {}

void Dialog::open(const std::shared_ptr<PpdFile>& ppd, const OptionList& saved) {
  Destination destination;
  destination.name.printer = "test";
  destination.savedOptions = saved;
  mModel.openPrinter({destination, ppd});
  for (const std::string& problem : testPlugIns().takeProblems()) ADD_FAILURE() << problem;
}

std::vector<CheckBox*> Dialog::boxes() { return test::shownControls<CheckBox>(mModel); }

std::vector<CheckBox*> Dialog::boxes(const std::string& keyword) {
  std::vector<CheckBox*> found = boxes();
  found.erase(std::remove_if(found.begin(), found.end(),
                             [&](CheckBox* box) { return box->ppdKeyword() != keyword; }),
              found.end());
  return found;
}

PopUpButton* Dialog::presets() {
  const std::vector<PopUpButton*> found = test::shownControls<PopUpButton>(mModel);
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

std::set<std::string> Dialog::boxKeywords() {
  std::set<std::string> keywords;
  for (const CheckBox* box : boxes())
    if (mModel.ppdFile()->hasOption(box->ppdKeyword())) keywords.insert(box->ppdKeyword());
  return keywords;
}

PlainTextField* Dialog::countField() {
  const std::vector<PlainTextField*> fields = test::shownControls<PlainTextField>(mModel);
  return fields.empty() ? nullptr : fields.front();
}

std::string Dialog::picture() {
  RecordingDrawingContext context;
  for (PlainCustomView* view : test::shownControls<PlainCustomView>(mModel)) view->draw(context);
  if (context.drawnImages().empty()) return "";
  return std::filesystem::path(context.drawnImages().back().path).stem();
}

std::set<std::string> Dialog::generatedCutKeywords() {
  std::set<std::string> keywords;
  for (const OptionGroup& group : mModel.generatedOptions())
    for (const PpdOption& option : group.options)
      if (isCutKeyword(option.keyword)) keywords.insert(option.keyword);
  return keywords;
}

void Dialog::expectHeldTogether(const Choices& wanted) {
  expectHeldTogether(Wishes(*mModel.ppdFile(), wanted));
}

void Dialog::expectHeldTogether(const Wishes& wishes) {
  expectShown(wishes);
  expectSent(wishes);
  expectSummary(wishes);
  expectNamed(wishes);
  if (testing::Test::HasNonfatalFailure())
    ADD_FAILURE() << "shown: " << shownState(mModel) << " paper " << marked("PageSize");
}

// A box that cannot be used keeps what comes back with its use, and so does the one for cut marks,
// which can be ticked ahead under special tape.
void Dialog::expectShown(const Wishes& wishes) {
  if (mModel.panels().empty()) return;
  const OptionTable table(*mModel.ppdFile());
  for (const CheckBox* box : boxes()) {
    const std::string keyword = box->ppdKeyword();
    const int position = table.position(keyword, wishes.shown(keyword)).value_or(0);
    EXPECT_EQ(box->state(), position > 0 ? CheckBox::kOn : CheckBox::kOff) << keyword;
    if (!box->isEnabled() || keyword == "LxCutMark") continue;
    EXPECT_EQ(wishes.shown(keyword), wishes.sent(keyword)) << keyword << " is shown, not sent";
  }
  PlainTextField* count = countField();
  EXPECT_EQ(count != nullptr ? count->stringValue() : "", wishes.shown("LxCutLabel"));
  const bool isRoll = isLabelRoll(*mModel.ppdFile());
  EXPECT_EQ(picture(), wishes.picture(isRoll, boxKeywords()));
}

void Dialog::expectSent(const Wishes& wishes) {
  const Choices job = sent();
  for (const auto& [keyword, choice] : wishes.wanted()) {
    EXPECT_EQ(marked(keyword), wishes.sent(keyword)) << keyword << " is marked otherwise";
    EXPECT_EQ(job.contains(keyword) ? job.at(keyword) : "nothing", wishes.sent(keyword))
        << keyword << " is sent otherwise";
  }
}

// Lines are titled with the PPD's text. The one for the number tells of automatic cutting.
void Dialog::expectSummary(const Wishes& wishes) {
  const OptionTable table(*mModel.ppdFile());
  Choices lines;
  for (const SummaryLine& line : mModel.summary()) lines[line.title] = line.value;
  for (const auto& [keyword, choice] : wishes.wanted()) {
    const auto line = lines.find(table.optionText(keyword));
    if (keyword == "LxCutLabel" || line == lines.end()) continue;
    const int position = table.position(keyword, wishes.sent(keyword)).value_or(-1);
    const std::string third = table.choiceText(keyword, wishes.sent(keyword));
    EXPECT_EQ(line->second, position == 0 ? "No" : position == 1 ? "Yes" : third) << keyword;
  }
}

void Dialog::expectNamed(const Wishes& wishes) {
  std::set<std::string> named;
  for (const Deviation& deviation : mModel.deviations()) {
    EXPECT_TRUE(named.insert(deviation.keyword).second) << deviation.keyword << " is named twice";
    EXPECT_EQ(deviation.asked, wishes.wanted().at(deviation.keyword));
    EXPECT_EQ(deviation.sent, wishes.sent(deviation.keyword));
  }
  EXPECT_EQ(named, wishes.named(boxKeywords()));
}

void Dialog::expectSettled() {
  const Choices before = sent();
  const std::string shownBefore = shownState(mModel);
  ASSERT_TRUE(mModel.prepareToPrint());
  EXPECT_EQ(sent(), before);
  EXPECT_EQ(shownState(mModel), shownBefore);
}

}  // namespace cutline
